// What whole runs of large rafts tell beside their reports: by which solver, and how well conditioned.
#include "kernels/raft/Conditioning.h"
#include "kernels/raft/RaftRun.h"
#include "raft/RaftRunCase.h"
#include "support/Matchers.h"
#include "support/Raised.h"

namespace lithmark::tests {
namespace {

// 2501 nodes on 5 m of soil, in elements 5 cm wide and so many times as long. The longer they are, the more a force on
// a node settles its neighbours across, as a point load, and the less itself.
class LargeRaftNotices : public RaftRunCase {
  protected:
    LargeRaftNotices() { SetRaftExport(false); }
    ~LargeRaftNotices() override { SetRaftExport(true); }

    void RunWith(double ratio) {
        Fresh();
        Session.A = 40 * 0.05 * ratio;
        Session.PrefDx = 0.05 * ratio;
        Session.B = 3;
        Session.PrefDy = 0.05;
        Run();
        ASSERT_EQ(Session.NodeForce.Upper(), 2501);
    }
};

TEST_F(LargeRaftNotices, AFallbackToTheInverseIsTold) {
    RunWith(4);
    EXPECT_FALSE(Raised(NoticeId::SolverFallback));
    RunWith(4.64);
    EXPECT_FALSE(Raised(NoticeId::SolverFallback));
    RunWith(5);
    EXPECT_TRUE(Raised(NoticeId::SolverFallback));
    EXPECT_THAT(Told(NoticeId::SolverFallback), HasSubstr("has 2501 nodes"));
}

// Without a fallback: the operator measures the condition too.
TEST_F(LargeRaftNotices, BadConditionIsToldOfTheOperatorToo) {
    RunWith(4.4);
    EXPECT_FALSE(Raised(NoticeId::RaftIllConditioned));
    const double condition = MeasuresOfRaft().Condition;
    RunWith(4.64);
    EXPECT_TRUE(Raised(NoticeId::RaftIllConditioned));
    EXPECT_FALSE(Raised(NoticeId::SolverFallback));
    EXPECT_GT(MeasuresOfRaft().Condition, 2 * condition);
}

}  // namespace
}  // namespace lithmark::tests
