#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <new>
#include <utility>
#include <vector>

#include "services/platform/Workers.h"

namespace lithmark::platform {

SharedNumbers::SharedNumbers(std::size_t count) : count_(count) {
    void* memory =
        ::mmap(nullptr, count * sizeof(*numbers_), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    numbers_ = new (memory) std::atomic<std::uint64_t>[count];
}

SharedNumbers::~SharedNumbers() {
    ::munmap(numbers_, count_ * sizeof(*numbers_));
}

bool SendAll(Socket socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(static_cast<int>(socket), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) continue;
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::size_t ReceiveSome(Socket socket, char* to, std::size_t count) {
    ssize_t received = 0;
    do received = ::recv(static_cast<int>(socket), to, count, 0);
    while (received < 0 && errno == EINTR);
    return received <= 0 ? 0 : static_cast<std::size_t>(received);
}

std::size_t SendSome(Socket socket, std::string_view bytes) {
    const ssize_t sent = ::send(static_cast<int>(socket), bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    return sent <= 0 ? 0 : static_cast<std::size_t>(sent);
}

std::ptrdiff_t ReceiveIfAny(Socket socket, char* to, std::size_t count) {
    const ssize_t received = ::recv(static_cast<int>(socket), to, count, MSG_DONTWAIT);
    if (received < 0 && (errno == EAGAIN || errno == EINTR)) return 0;
    return received <= 0 ? -1 : received;
}

bool WorkersStartAnew() noexcept {
    return false;
}

void RunAsWorker(const WorkerMain&) {}

bool WorkerProcess::Start(const WorkerMain& work, SharedNumbers& numbers, std::size_t index) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return false;
    const pid_t process = ::fork();
    if (process < 0) {
        ::close(ends[0]);
        ::close(ends[1]);
        return false;
    }
    if (process == 0) {
        // The program alone decides when its workers end: a Ctrl+C goes to them all.
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) std::signal(signal, SIG_IGN);
        // Nothing of the program's files stays open: neither the streams of other workers, which would never end, nor
        // what a lock is on, which would outlast a program that is killed.
        constexpr int kFirst = 3;
        if (ends[1] > kFirst) ::close_range(kFirst, static_cast<unsigned>(ends[1] - 1), 0);
        ::close_range(static_cast<unsigned>(ends[1] + 1), ~0U, 0);
        work(ends[1], numbers[index]);
        ::_exit(0);
    }
    ::close(ends[1]);
    process_ = process;
    socket_ = ends[0];
    return true;
}

int WorkerProcess::Id() const noexcept {
    return static_cast<int>(process_);
}

int WorkerProcess::End() noexcept {
    if (process_ == 0) return 0;
    const auto process = static_cast<pid_t>(std::exchange(process_, 0));
    ::kill(process, SIGKILL);  // it may have closed its stream and live
    int status = 0;
    pid_t reaped = 0;
    do reaped = ::waitpid(process, &status, 0);
    while (reaped < 0 && errno == EINTR);
    const int stream = static_cast<int>(std::exchange(socket_, kNoSocket));
    ::close(stream);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

int StarterId() noexcept {
    return ::getppid();
}

bool Await(std::span<Awaited> streams, int milliseconds) {
    std::vector<pollfd> polled;
    for (const Awaited& stream : streams)
        polled.push_back(
            {static_cast<int>(stream.Stream), static_cast<short>(stream.ToWrite ? POLLIN | POLLOUT : POLLIN), 0});
    if (::poll(polled.data(), polled.size(), milliseconds) <= 0) return false;
    for (std::size_t i = 0; i < polled.size(); ++i) {
        streams[i].CanWrite = (polled[i].revents & POLLOUT) != 0;
        streams[i].CanRead = (polled[i].revents & ~POLLOUT) != 0;
    }
    return true;
}

}  // namespace lithmark::platform
