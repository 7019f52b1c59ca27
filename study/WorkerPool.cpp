#include "study/WorkerPool.h"

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
#include <thread>
#include <utility>

#include "base/NumberText.h"
#include "study/StudyFailure.h"
#include "study/Worker.h"

namespace lithmark {

namespace {

static_assert(std::atomic<Ticket>::is_always_lock_free, "a worker that dies must not leave a lock behind");

// Rows travel in batches of about this much work; longer ones one by one.
constexpr double kBatchSeconds = 0.005;
constexpr std::size_t kMostInBatch = 512;
constexpr int kMostDeathsWithoutRow = 3;

pid_t WaitFor(pid_t process, int& status) {
    pid_t reaped = 0;
    do reaped = waitpid(process, &status, 0);
    while (reaped < 0 && errno == EINTR);
    return reaped;
}

}  // namespace

SharedTickets::SharedTickets(std::size_t count) : bytes_(count * sizeof(std::atomic<Ticket>)) {
    void* memory = mmap(nullptr, bytes_, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) FailStudyFile(902047_text, {});
    tickets_ = new (memory) std::atomic<Ticket>[count];
}

SharedTickets::~SharedTickets() {
    munmap(tickets_, bytes_);
}

int WorkerPool::AllCores() {
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

WorkerPool::WorkerPool(const SessionRecord& start, std::vector<Take> takes, int workers)
    : start_(start),
      takes_(std::move(takes)),
      workers_(static_cast<std::size_t>(std::max(1, workers))),
      inWork_(workers_.size()) {}

WorkerPool::~WorkerPool() {
    for (Worker& worker : workers_) End(worker);
}

void WorkerPool::Add(Ticket row, RowInput input) {
    waiting_.push_back({row, std::move(input)});
    ++unanswered_;
}

std::size_t WorkerPool::Batch() const noexcept {
    if (rowSeconds_ < 0) return 1;
    const double rows = kBatchSeconds / std::max(rowSeconds_, 1e-9);
    return rows < 1 ? 1 : rows < kMostInBatch ? static_cast<std::size_t>(rows) : kMostInBatch;
}

std::size_t WorkerPool::Appetite() const noexcept {
    return workers_.size() * std::max<std::size_t>(2, 3 * Batch());
}

bool WorkerPool::Start(std::size_t index) {
    Worker& worker = workers_[index];
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return false;
    inWork_[index] = kNoRow;
    const pid_t process = fork();
    if (process < 0) {
        close(ends[0]);
        close(ends[1]);
        return false;
    }
    if (process == 0) {
        // The study alone decides when its workers end: a Ctrl+C goes to them all.
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) std::signal(signal, SIG_IGN);
        close(ends[0]);
        for (const Worker& other : workers_)
            if (other.Socket >= 0) close(other.Socket);
        WorkRows(ends[1], inWork_[index], start_, takes_);
        _exit(0);
    }
    close(ends[1]);
    worker.Process = process;
    worker.Socket = ends[0];
    worker.Answered = false;
    return true;
}

void WorkerPool::HandOut() {
    const std::size_t batch = Batch();
    bool started = false;
    for (std::size_t i = 0; i < workers_.size() && !waiting_.empty(); ++i) {
        Worker& worker = workers_[i];
        // A second batch lies ready where rows are short, so that the worker never waits for the way to and fro.
        const std::size_t most = batch > 1 ? 2 * batch : 1;
        if (worker.Held.size() + batch > most) continue;
        if (worker.Process == 0 && !Start(i)) continue;
        started = true;
        const std::size_t share = (waiting_.size() + workers_.size() - 1) / workers_.size();
        WireWriter writer;
        for (std::size_t n = std::min(batch, share); n > 0; --n) {
            writer.Put(waiting_.front().Row);
            writer.Put(waiting_.front().Input);
            worker.Held.push_back(std::move(waiting_.front()));
            waiting_.pop_front();
        }
        worker.Unsent += writer.TakeFrame();
        Send(worker);
    }
    const bool anyRuns = started || std::ranges::any_of(workers_, [](const Worker& w) { return w.Process != 0; });
    if (!anyRuns && !waiting_.empty()) FailStudyFile(902047_text, {});
}

void WorkerPool::Send(Worker& worker) {
    while (!worker.Unsent.empty()) {
        const ssize_t sent =
            send(worker.Socket, worker.Unsent.data(), worker.Unsent.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent <= 0) return;  // full, or gone: reading tells which
        worker.Unsent.erase(0, static_cast<std::size_t>(sent));
    }
}

bool WorkerPool::Receive(Worker& worker, std::vector<Answer>& answers) {
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t count = recv(worker.Socket, buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (count < 0 && (errno == EAGAIN || errno == EINTR)) return true;
        if (count <= 0) return false;
        worker.Received.Append({buffer.data(), static_cast<std::size_t>(count)});
        TakeAnswers(worker, answers);
    }
}

void WorkerPool::TakeAnswers(Worker& worker, std::vector<Answer>& answers) {
    constexpr double kWeight = 0.1;
    while (const auto frame = worker.Received.Next()) {
        WireReader reader(*frame);
        while (!reader.AtEnd() && !worker.Held.empty()) {
            const Ticket row = reader.Number<Ticket>();
            const double seconds = reader.Number<float>();
            rowSeconds_ = rowSeconds_ < 0 ? seconds : rowSeconds_ + kWeight * (seconds - rowSeconds_);
            answers.push_back({row, reader.Outcome()});
            worker.Held.pop_front();
            worker.Answered = true;
            --unanswered_;
            deathsWithoutRow_ = 0;
        }
    }
}

void WorkerPool::Bury(std::size_t index, std::vector<Answer>& answers) {
    Worker& worker = workers_[index];
    int status = 0;
    kill(worker.Process, SIGKILL);  // it may have closed its socket and live
    WaitFor(worker.Process, status);
    close(worker.Socket);
    const Ticket fatal = inWork_[index];
    std::deque<PendingRow> held = std::exchange(worker, {}).Held;

    const auto row = std::ranges::find(held, fatal, &PendingRow::Row);
    if (fatal != kNoRow && row != held.end()) {
        RowOutcome outcome;
        const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
        outcome.Messages.push_back(Text(908001_text, {{"|1", NumberToText(signal)}}));
        answers.push_back({fatal, std::move(outcome)});
        held.erase(row);
        --unanswered_;
        deathsWithoutRow_ = 0;
    } else if (++deathsWithoutRow_ > kMostDeathsWithoutRow) {
        FailStudyFile(902047_text, {});
    }
    waiting_.insert(waiting_.begin(), std::make_move_iterator(held.begin()), std::make_move_iterator(held.end()));
}

void WorkerPool::End(Worker& worker) noexcept {
    if (worker.Process == 0) return;
    int status = 0;
    kill(worker.Process, SIGKILL);
    WaitFor(worker.Process, status);
    close(worker.Socket);
    worker = {};
}

void WorkerPool::Collect(std::vector<Answer>& answers, int milliseconds) {
    HandOut();
    std::vector<pollfd> sockets;
    for (const Worker& worker : workers_) {
        const short wanted = worker.Unsent.empty() ? POLLIN : POLLIN | POLLOUT;
        sockets.push_back({worker.Socket, wanted, 0});
    }
    if (poll(sockets.data(), sockets.size(), milliseconds) <= 0) return;
    for (std::size_t i = 0; i < workers_.size(); ++i) {
        if (sockets[i].revents == 0) continue;
        if (sockets[i].revents & POLLOUT) Send(workers_[i]);
        if (!Receive(workers_[i], answers)) Bury(i, answers);
    }
    HandOut();
}

void WorkerPool::Abandon() {
    for (Worker& worker : workers_)
        if (!worker.Held.empty()) End(worker);
    waiting_.clear();
    unanswered_ = 0;
}

std::vector<pid_t> WorkerPool::Processes() const {
    std::vector<pid_t> processes;
    for (const Worker& worker : workers_)
        if (worker.Process != 0) processes.push_back(worker.Process);
    return processes;
}

}  // namespace lithmark
