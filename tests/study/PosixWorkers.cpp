// What becomes of workers whose study is killed.
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "study/StudyProblem.h"

namespace lithmark::tests {
namespace {

// They see it and go. A pipe that they all hold tells when the last is gone.
TEST(WorkersOfAKilledStudy, OutliveItNot) {
    StartProblem(4);
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t study = fork();
    if (study == 0) {
        close(ends[0]);
        WorkerPool pool(Session, TakesOf(4, {"s"}), 2);
        std::vector<WorkerPool::Answer> answers;
        pool.Add(0, LongRow());
        pool.Add(1, {});
        while (answers.empty()) pool.Collect(answers, 50);
        raise(SIGKILL);
    }
    close(ends[1]);
    pollfd end{ends[0], POLLIN, 0};
    EXPECT_EQ(poll(&end, 1, 60000), 1);
    EXPECT_TRUE(end.revents & POLLHUP);
    close(ends[0]);
    int status = 0;
    waitpid(study, &status, 0);
}

}  // namespace
}  // namespace lithmark::tests
