// Workers: rows in and outcomes out, a worker that dies, the end of a study, and what stays behind.
#include <chrono>
#include <thread>

#include "study/OrderedRows.h"
#include "study/StudyProblem.h"
#include "support/Matchers.h"
#include "support/System.h"

namespace lithmark::tests {
namespace {

class Workers : public testing::Test {
  protected:
    void SetUp() override { LITHMARK_NEEDS(WorkersByCopying); }
};

TEST_F(Workers, EachRowIsWorkedOnTheProjectThatWasOpen) {
    StartProblem(1);
    Session.LoadType = 1;
    WorkerPool pool(Session, TakesOf(1, {"Sigma_z"}), 3);
    Session.Q = 1;  // what happens to the record afterwards is no matter of the pool
    std::vector<RowInput> rows;
    for (int i = 1; i <= 500; ++i) rows.push_back({{"Q", std::to_string(1000 * i)}});
    const auto outcomes = OutcomesOf(pool, rows);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_FALSE(outcomes[i].Aborted) << outcomes[i].Message();
        // Boussinesq: proportional to the load.
        ASSERT_NEAR(outcomes[i].Numbers[0] / outcomes[0].Numbers[0], static_cast<double>(i + 1), 1e-4);
    }
    EXPECT_EQ(Session.Q, 1.0);
}

// A row has the notices of its own run: those of the row before are gone.
TEST_F(Workers, EachRowTellsTheNoticesOfItsRun) {
    StartProblem(9);
    WorkerPool pool(Session, TakesOf(9, {"RaftMeanPressure"}), 1);
    const RowInput square = {{"LoadType", "2"}, {"A", "5"},      {"B", "5"},
                             {"PrefDx", "1"},   {"PrefDy", "1"}, {"AnalysisType", "false"}};
    const auto with = [&square](const char* field, const char* value) {
        RowInput row = square;
        row.push_back({field, value});
        return row;
    };
    const auto outcomes = OutcomesOf(pool, {with("AnalysisType", "true"), square, with("h", "0.5")});
    EXPECT_EQ(outcomes[0].Notices, "raft-layer-unused");
    EXPECT_EQ(outcomes[1].Notices, "");
    EXPECT_EQ(outcomes[2].Notices, "raft-thin-layer");
}

TEST_F(Workers, AValueThatNoFieldHoldsAbortsItsRowAlone) {
    StartProblem(1);
    WorkerPool pool(Session, TakesOf(1, {"Sigma_z"}), 2);
    const auto outcomes = OutcomesOf(pool, {{{"LoadType", "1.5"}}, {}, {{"Young", "1"}}, {{"hLayer(3)", "1"}}});
    EXPECT_THAT(outcomes[0].Message(), HasSubstr("LoadType=1.5"));
    EXPECT_FALSE(outcomes[1].Aborted);
    EXPECT_THAT(outcomes[2].Message(), HasSubstr("Young=1"));
    EXPECT_THAT(outcomes[3].Message(), HasSubstr("hLayer(3)=1"));
    EXPECT_TRUE(outcomes[0].Aborted && outcomes[2].Aborted && outcomes[3].Aborted);
}

TEST_F(Workers, AWorkerThatDiesIsReplacedAndItsRowSaysSo) {
    StartProblem(4);
    WorkerPool pool(Session, TakesOf(4, {"s"}), 1);
    pool.Add(0, {});
    pool.Add(1, LongRow());
    pool.Add(2, {});
    std::vector<WorkerPool::Answer> answers;
    while (answers.empty()) pool.Collect(answers, 100);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));  // into the long row
    const auto before = pool.Processes();
    ASSERT_EQ(before.size(), 1u);
    KillProcess(before.front());
    while (pool.Unanswered() > 0) pool.Collect(answers, 100);
    ASSERT_EQ(answers.size(), 3u);
    EXPECT_EQ(answers[1].Row, 1u);
    EXPECT_TRUE(answers[1].Outcome.Aborted);
    EXPECT_THAT(answers[1].Outcome.Messages, ElementsAre(HasSubstr("signal 9")));
    EXPECT_EQ(answers[2].Row, 2u);
    EXPECT_FALSE(answers[2].Outcome.Aborted) << answers[2].Outcome.Message();
    EXPECT_NE(pool.Processes(), before);
}

// Killed between two rows, a worker takes nothing with it: what it still held is worked by another.
TEST_F(Workers, AWorkerThatDiesIdleCostsNoRow) {
    StartProblem(1);
    WorkerPool pool(Session, TakesOf(1, {"Sigma_z"}), 1);
    ASSERT_FALSE(OutcomesOf(pool, {{}})[0].Aborted);
    KillProcess(pool.Processes().front());
    for (const RowOutcome& outcome : OutcomesOf(pool, {{}, {}, {}})) EXPECT_FALSE(outcome.Aborted) << outcome.Message();
}

TEST_F(Workers, RowsThatAreAbandonedAreNeverAnswered) {
    StartProblem(4);
    WorkerPool pool(Session, TakesOf(4, {"s"}), 2);
    for (Ticket row = 0; row < 4; ++row) pool.Add(row, LongRow());
    std::vector<WorkerPool::Answer> answers;
    pool.Collect(answers, 50);
    pool.Abandon();
    EXPECT_EQ(pool.Unanswered(), 0u);
    pool.Add(7, {});
    while (pool.Unanswered() > 0) pool.Collect(answers, 100);
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].Row, 7u);
}

TEST_F(Workers, TheEndOfThePoolLeavesNoProcess) {
    StartProblem(4);
    std::vector<int> processes;
    {
        WorkerPool pool(Session, TakesOf(4, {"s"}), 2);
        pool.Add(0, LongRow());
        pool.Add(1, LongRow());
        std::vector<WorkerPool::Answer> answers;
        pool.Collect(answers, 50);
        processes = pool.Processes();
        EXPECT_EQ(processes.size(), 2u);
    }
    for (const int process : processes) EXPECT_FALSE(ProcessRuns(process));
}

// The first row takes seconds; while it does, the other worker goes ahead with those that follow, but not without end.
TEST_F(Workers, RowsComeInOrderAndFewAreHeld) {
    StartProblem(4);
    WorkerPool pool(Session, TakesOf(4, {"s"}), 2);
    std::uint64_t next = 0, furthest = 0, greatestHeld = 0;
    OrderedRows rows;
    rows.Count = 50000;
    rows.Input = [&](std::uint64_t i) {
        furthest = i;
        return i == 0 ? LongRow() : RowInput{};
    };
    rows.Ready = [&](std::uint64_t i, const RowOutcome& outcome) {
        ASSERT_EQ(i, next++);
        EXPECT_FALSE(outcome.Aborted);
        greatestHeld = std::max(greatestHeld, furthest - i);
    };
    rows.GoOn = [](std::uint64_t) { return true; };
    EXPECT_EQ(WorkInOrder(pool, rows), rows.Count);
    EXPECT_EQ(next, rows.Count);
    EXPECT_LE(greatestHeld, kMostRowsAhead);
}

TEST_F(Workers, AnEndedStudyGivesTheRowsSoFar) {
    StartProblem(1);
    WorkerPool pool(Session, TakesOf(1, {"Sigma_z"}), 2);
    std::uint64_t next = 0;
    OrderedRows rows;
    rows.Count = 100000000;
    rows.Input = [](std::uint64_t) { return RowInput{}; };
    rows.Ready = [&](std::uint64_t i, const RowOutcome&) { ASSERT_EQ(i, next++); };
    rows.GoOn = [](std::uint64_t done) { return done < 1000; };
    EXPECT_EQ(WorkInOrder(pool, rows), next);
    EXPECT_LT(next, rows.Count);
}

}  // namespace
}  // namespace lithmark::tests
