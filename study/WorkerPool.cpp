#include "study/WorkerPool.h"

#include <algorithm>
#include <array>
#include <new>
#include <thread>
#include <utility>

#include "base/NumberText.h"
#include "study/StudyFailure.h"
#include "study/Worker.h"

namespace lithmark {

namespace {

// Rows travel in batches of about this much work; longer ones one by one.
constexpr double kBatchSeconds = 0.005;
constexpr std::size_t kMostInBatch = 512;
constexpr int kMostDeathsWithoutRow = 3;

}  // namespace

int WorkerPool::AllCores() {
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

WorkerPool::WorkerPool(const SessionRecord& start, std::vector<Take> takes, int workers)
    : start_(start),
      takes_(std::move(takes)),
      workers_(static_cast<std::size_t>(std::max(1, workers))),
      inWork_(workers_.size()) {}

WorkerPool::~WorkerPool() = default;

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
    inWork_[index] = kNoRow;
    const auto work = [this](platform::Socket socket, std::atomic<Ticket>& inWork) {
        WorkRows(socket, inWork, start_, takes_);
    };
    if (!worker.Process.Start(work, inWork_, index)) return false;
    if (platform::WorkersStartAnew()) worker.Unsent = TakesFrame(takes_);
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
        if (!worker.Process.Runs() && !Start(i)) continue;
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
    const bool anyRuns = started || std::ranges::any_of(workers_, [](const Worker& w) { return w.Process.Runs(); });
    if (!anyRuns && !waiting_.empty()) FailStudyFile(902047_text, {});
}

void WorkerPool::Send(Worker& worker) {
    while (!worker.Unsent.empty()) {
        const std::size_t sent = platform::SendSome(worker.Process.Stream(), worker.Unsent);
        if (sent == 0) return;  // full, or gone: reading tells which
        worker.Unsent.erase(0, sent);
    }
}

bool WorkerPool::Receive(Worker& worker, std::vector<Answer>& answers) {
    std::array<char, 65536> buffer;
    for (;;) {
        const std::ptrdiff_t count = platform::ReceiveIfAny(worker.Process.Stream(), buffer.data(), buffer.size());
        if (count <= 0) return count == 0;
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
            --unanswered_;
            deathsWithoutRow_ = 0;
        }
    }
}

void WorkerPool::Bury(std::size_t index, std::vector<Answer>& answers) {
    Worker& worker = workers_[index];
    const int signal = worker.Process.End();
    const Ticket fatal = inWork_[index];
    std::deque<PendingRow> held = Empty(worker);

    const auto row = std::ranges::find(held, fatal, &PendingRow::Row);
    if (fatal != kNoRow && row != held.end()) {
        RowOutcome outcome;
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

// The place of a worker that has ended, and what it held.
std::deque<WorkerPool::PendingRow> WorkerPool::Empty(Worker& worker) {
    worker.Unsent.clear();
    worker.Received = {};
    return std::exchange(worker.Held, {});
}

void WorkerPool::Collect(std::vector<Answer>& answers, int milliseconds) {
    HandOut();
    std::vector<platform::Awaited> streams;
    for (const Worker& worker : workers_) streams.push_back({worker.Process.Stream(), !worker.Unsent.empty()});
    if (!platform::Await(streams, milliseconds)) return;
    for (std::size_t i = 0; i < workers_.size(); ++i) {
        if (streams[i].CanWrite) Send(workers_[i]);
        if (streams[i].CanRead && !Receive(workers_[i], answers)) Bury(i, answers);
    }
    HandOut();
}

void WorkerPool::Abandon() {
    for (Worker& worker : workers_) {
        if (worker.Held.empty()) continue;
        worker.Process.End();
        Empty(worker);
    }
    waiting_.clear();
    unanswered_ = 0;
}

std::vector<int> WorkerPool::Processes() const {
    std::vector<int> processes;
    for (const Worker& worker : workers_)
        if (worker.Process.Runs()) processes.push_back(worker.Process.Id());
    return processes;
}

}  // namespace lithmark
