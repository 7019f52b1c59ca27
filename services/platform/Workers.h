// Processes that work beside the program, and how they talk with it.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

namespace lithmark::platform {

// Numbers in memory that the program and its workers share.
class SharedNumbers {
  public:
    // Throws std::bad_alloc where there is no such memory.
    explicit SharedNumbers(std::size_t count);
    ~SharedNumbers();
    SharedNumbers(const SharedNumbers&) = delete;
    SharedNumbers& operator=(const SharedNumbers&) = delete;

    std::atomic<std::uint64_t>& operator[](std::size_t i) noexcept { return numbers_[i]; }
    std::size_t Count() const noexcept { return count_; }
    // How the system knows the memory, where workers start anew.
    std::intptr_t Handle() const noexcept { return handle_; }

  private:
    std::atomic<std::uint64_t>* numbers_;
    std::size_t count_;
    std::intptr_t handle_ = 0;
};
static_assert(std::atomic<std::uint64_t>::is_always_lock_free, "a worker that dies must not leave a lock behind");

// One end of a stream of bytes between two processes.
using Socket = std::intptr_t;
inline constexpr Socket kNoSocket = -1;

// A worker's side: false when the other end is gone. Both wait.
bool SendAll(Socket socket, std::string_view bytes);
// How many bytes came; 0 when the other end is gone.
std::size_t ReceiveSome(Socket socket, char* to, std::size_t count);

// The program's side; nothing waits.
// How many bytes were taken.
std::size_t SendSome(Socket socket, std::string_view bytes);
// How many bytes came, 0 when none are there, -1 when the worker is gone.
std::ptrdiff_t ReceiveIfAny(Socket socket, char* to, std::size_t count);

// What a worker does with its end of the stream and with the number that is its own.
using WorkerMain = std::function<void(Socket, std::atomic<std::uint64_t>&)>;

// True on a system that cannot copy a running process. There a worker is the program started anew with the same command
// line, which calls RunAsWorker as soon as it is what the program was when it started the worker.
bool WorkersStartAnew() noexcept;
// In a program that was started anew as a worker: does the work and ends the process. Returns at once in all others.
void RunAsWorker(const WorkerMain& work);

class WorkerProcess {
  public:
    WorkerProcess() = default;
    // Ends the worker at once.
    ~WorkerProcess() { End(); }
    WorkerProcess(const WorkerProcess&) = delete;
    WorkerProcess& operator=(const WorkerProcess&) = delete;

    // Starts a worker that ignores the signals that end the program and does `work` (where workers start anew, it does
    // what it gives RunAsWorker); then its process ends. False where none can be started.
    bool Start(const WorkerMain& work, SharedNumbers& numbers, std::size_t index);
    bool Runs() const noexcept { return process_ != 0; }
    // The system's number of the process; 0 when none runs.
    int Id() const noexcept;
    Socket Stream() const noexcept { return socket_; }
    // Ends the worker at once. The signal that it had ended by before, or its exit status where the system has no
    // signals; 0 for an end of its own.
    int End() noexcept;

  private:
    std::intptr_t process_ = 0;
    Socket socket_ = kNoSocket;
};

// In a worker: a number that changes when the program that started it is gone, where the worker outlives it.
int StarterId() noexcept;

struct Awaited {
    Socket Stream = kNoSocket;  // which is passed over
    bool ToWrite = false;       // writing is awaited too
    bool CanRead = false, CanWrite = false;
};
// Waits until a stream can be read or written, at most so long. A stream whose other end is gone can be read. False
// when nothing happened, also where a signal ended the wait.
bool Await(std::span<Awaited> streams, int milliseconds);

}  // namespace lithmark::platform
