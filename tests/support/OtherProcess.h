// A second process beside the test's, which holds things until it is ended.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace lithmark::tests {

// Runs an action in a process of its own, which then waits until it is killed. Made when the action is done.
class OtherProcess {
  public:
    explicit OtherProcess(const std::function<void()>& action) {
        int ready[2];
        EXPECT_EQ(::pipe(ready), 0);
        process_ = ::fork();
        if (process_ == 0) {
            action();
            EXPECT_EQ(::write(ready[1], "x", 1), 1);
            for (;;) ::pause();
        }
        char byte = 0;
        EXPECT_EQ(::read(ready[0], &byte, 1), 1);
        ::close(ready[0]);
        ::close(ready[1]);
    }
    ~OtherProcess() { Kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    void Kill(int signal = SIGKILL) {
        if (process_ <= 0) return;
        ::kill(process_, signal);
        ::waitpid(process_, nullptr, 0);
        process_ = 0;
    }
    pid_t Process() const { return process_; }

  private:
    pid_t process_;
};

}  // namespace lithmark::tests
