// WorkerPool: processes that work rows beside the program, each on a copy of the project that was open when the
// pool was made. Nothing that a row does is seen by the program: no field, file or preference of it changes.
//
//     WorkerPool pool(Session, takes, WorkerPool::AllCores());
//     pool.Add(1, {{"Es", "5000"}});
//     std::vector<WorkerPool::Answer> answers;
//     while (pool.Unanswered() > 0) pool.Collect(answers, 100);
//
// A worker that dies is replaced; the row that it was working is answered as aborted, with a message that says so, and
// the rows that it still held are worked again. Rows are answered as they are done, in any order.
#pragma once

#include <cstddef>
#include <deque>
#include <vector>

#include "core/Session.h"
#include "services/platform/Workers.h"
#include "study/Row.h"
#include "study/Take.h"
#include "study/Wire.h"

namespace lithmark {

class WorkerPool {
  public:
    struct Answer {
        Ticket Row;
        RowOutcome Outcome;
    };

    // As many as this process may use.
    static int AllCores();

    // Workers are started as rows come in, and start from `start`. They are copies of the process where the system can
    // make some, so a program with a toolkit makes its pool before the toolkit starts threads.
    WorkerPool(const SessionRecord& start, std::vector<Take> takes, int workers);
    // Ends the workers at once, whatever they are at.
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    // A row to be worked. Tickets are the caller's own; each is answered once.
    void Add(Ticket row, RowInput input);
    // Rows that have been added and not answered.
    std::size_t Unanswered() const noexcept { return unanswered_; }
    // As many unanswered rows as keep all workers busy.
    std::size_t Appetite() const noexcept;

    // Hands out rows, waits up to `milliseconds` for answers and appends those that came. A signal ends the wait.
    // StudyFailure when no worker can be started or every new one dies before its first row.
    void Collect(std::vector<Answer>& answers, int milliseconds);
    // Forgets all unanswered rows; workers that are busy with one are ended and replaced by the next rows.
    void Abandon();

    // The processes that run, for tests and for those who watch over them.
    std::vector<int> Processes() const;

  private:
    struct PendingRow {
        Ticket Row;
        RowInput Input;
    };
    struct Worker {
        platform::WorkerProcess Process;
        std::deque<PendingRow> Held;  // handed out and not answered, in order
        std::string Unsent;
        FrameBuffer Received;
    };

    bool Start(std::size_t worker);
    void HandOut();
    void Send(Worker& worker);
    // False when the worker is gone.
    bool Receive(Worker& worker, std::vector<Answer>& answers);
    void TakeAnswers(Worker& worker, std::vector<Answer>& answers);
    // Reaps a worker that is gone and sees to the rows that it held.
    void Bury(std::size_t worker, std::vector<Answer>& answers);
    static std::deque<PendingRow> Empty(Worker& worker);
    std::size_t Batch() const noexcept;

    SessionRecord start_;
    std::vector<Take> takes_;
    std::vector<Worker> workers_;
    std::deque<PendingRow> waiting_;
    std::size_t unanswered_ = 0;
    double rowSeconds_ = -1;  // what a row has taken of late; below 0 before the first
    int deathsWithoutRow_ = 0;
    platform::SharedNumbers inWork_;  // the row in work of each worker
};

}  // namespace lithmark
