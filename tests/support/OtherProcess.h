// A second process beside the test's, which holds things until it is ended.
#pragma once

#include <functional>

namespace lithmark::tests {

// Runs an action in a copy of this process, which then waits until it is ended. Made when the action is done.
class OtherProcess {
  public:
    explicit OtherProcess(const std::function<void()>& action);
    ~OtherProcess() { Kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    // At once, or by the signal that asks a program to end. Both wait until it is gone.
    void Kill();
    void AskToEnd();
    int Process() const { return process_; }

  private:
    int process_ = 0;
};

}  // namespace lithmark::tests
