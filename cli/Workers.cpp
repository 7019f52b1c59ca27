#include "cli/Workers.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <mutex>
#include <thread>

namespace lithmark {

namespace {

// A pipe whose ends close themselves and are not inherited by other workers.
struct Pipe {
    Pipe() {
        if (pipe2(Ends, O_CLOEXEC) != 0) Ends[0] = Ends[1] = -1;
    }
    ~Pipe() {
        CloseRead();
        CloseWrite();
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    void CloseRead() { Close(Ends[0]); }
    void CloseWrite() { Close(Ends[1]); }

    int Ends[2];

  private:
    static void Close(int& descriptor) {
        if (descriptor >= 0) close(descriptor);
        descriptor = -1;
    }
};

// Reads both pipes to their ends, whichever has something.
void ReadBoth(int out, int err, WorkerResult& result) {
    std::array<pollfd, 2> ends = {pollfd{out, POLLIN, 0}, pollfd{err, POLLIN, 0}};
    std::array<char, 65536> buffer;
    for (int open = 2; open > 0;) {
        if (poll(ends.data(), ends.size(), -1) < 0) {
            if (errno == EINTR) continue;
            return;
        }
        for (auto& end : ends) {
            if (end.fd < 0 || end.revents == 0) continue;
            const ssize_t count = read(end.fd, buffer.data(), buffer.size());
            if (count > 0) {
                (end.fd == out ? result.Output : result.Errors).append(buffer.data(), static_cast<std::size_t>(count));
            } else if (count == 0 || errno != EINTR) {
                end.fd = -1;
                --open;
            }
        }
    }
}

}  // namespace

WorkerResult RunWorker(const std::vector<std::string>& arguments) {
    WorkerResult result;
    std::vector<std::string> words = {"lithmark-cli"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);

    Pipe out, err;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, out.Ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, err.Ends[1], STDERR_FILENO);
    pid_t process = 0;
    const int error = posix_spawn(&process, "/proc/self/exe", &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) return result;

    out.CloseWrite();
    err.CloseWrite();
    ReadBoth(out.Ends[0], err.Ends[0], result);
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status)) result.ExitStatus = WEXITSTATUS(status);
    return result;
}

void RunOnAllCores(int count, const std::function<void(int)>& job, const std::function<bool(int)>& finished) {
    std::atomic<int> next = 0;
    std::atomic<bool> stop = false;
    std::mutex lock;
    int done = 0;
    const auto work = [&] {
        for (int i; !stop && (i = next++) < count;) {
            job(i);
            const std::lock_guard guard(lock);
            if (!finished(++done)) stop = true;
        }
    };
    const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    std::vector<std::jthread> threads;
    threads.reserve(static_cast<std::size_t>(cores));
    for (int i = 0; i < std::min(cores, count); ++i) threads.emplace_back(work);
}

}  // namespace lithmark
