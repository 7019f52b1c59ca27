// Long raft runs tell how far they are and can be ended by the user at any time; what the run before left stays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "core/Problems.h"
#include "kernels/raft/BasCircularRigidRaft.h"
#include "raft/RaftRunCase.h"
#include "report/Notices.h"
#include "report/StepTables.h"
#include "support/Slowness.h"

namespace lithmark::tests {
namespace {

// Ends a run as soon as it is so far, and measures processor time: of all threads, so that a busy machine does not
// count.
class EndingHost : public tests::ScriptedHost {
  public:
    double EndAt = 2;
    std::clock_t LastReport = 0, Longest = 0;

    bool Progress(double fraction) override {
        const std::clock_t now = std::clock();
        if (!ProgressReports.empty()) Longest = std::max(Longest, now - LastReport);
        LastReport = now;
        ScriptedHost::Progress(fraction);
        return fraction < EndAt;
    }
};

struct Kind {
    const char* Name;
    int Problem, LoadType, SoilPropertyType;
    bool Analytical;
    double A, Dx, Dy, h;
};
void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.Name;
}

class EndedRaftRuns : public tests::RaftRunCase, public testing::WithParamInterface<Kind> {
  protected:
    void RunIt() {
        Session.CalcAborted = false;
        SessionRecord& s = Session;
        if (s.LoadType == LoadShape::Rectangle)
            RunRectangle();
        else
            ComputeCircularRaft(s.z, s.Q, s.A, s.h, s.eo, s.Po, s.Cc, s.Es, s.SoilPropertyType, s.Exz_x, s.Gamma,
                                s.AnalysisType, s.SettlementAt);
    }
    // What the dialog enters for the run under test.
    static void Enter() {
        const Kind& kind = GetParam();
        Session.ProblemType = kind.Problem;
        Session.LoadType = kind.LoadType;
        Session.SoilPropertyType = kind.SoilPropertyType;
        Session.AnalysisType = kind.Analytical;
        Session.SettlementAt = false;
        Session.A = Session.B = kind.A;
        Session.h = kind.h;
        Session.PrefDx = kind.Dx;
        Session.PrefDy = kind.Dy;
        Session.PrefND = 16;
        Session.Exz_x = 0.3;
        if (kind.LoadType == LoadShape::Rectangle) Session.Exz_y = 0.2;
    }
    // Runs until it is so far.
    void RunUntil(double part) {
        Enter();
        ending_.EndAt = part;
        ending_.Longest = 0;
        ending_.ProgressReports.clear();
        ending_.Messages.clear();
        RunIt();
    }
    // Everything that a run leaves.
    std::string Left() const {
        std::string left = Session.ResultText + NoticeIds();
        const auto add = [&left](double value) { left += std::to_string(value) + ' '; };
        const SessionRecord& s = Session;
        for (const auto* values : {&s.NodeX, &s.NodeY, &s.NodeArea, &s.NodeForce, &s.NodePressure, &s.NodeSettlement,
                                   &s.RaftMidX, &s.RaftMidSettlement, &s.RaftMidPressure, &s.RaftMidFlexible})
            for (const Single value : *values) add(value);
        for (const double value : {double(s.RaftMidCount), double(s.RaftMeanPressure), double(s.A0), double(s.Nue)})
            add(value);
        for (const StepTable& table : Steps().Tables()) left += table.Title + std::to_string(table.Rows.size());
        for (const std::string& name : folder_.Names()) left += name + tests::ReadBytes(folder_ / name);
        return left;
    }

    EndingHost ending_;
};

TEST_P(EndedRaftRuns, LeaveTheFormerResults) {
    Session.z = 1;  // on the clay of a notice
    Session.ProblemType = Problem::RaftConsolidation;
    Session.h = 0.5;
    Steps().SwitchOn(true);
    RunIt();
    ASSERT_FALSE(Session.CalcAborted);
    ASSERT_NE(NoticeIds(), "");
    ASSERT_FALSE(Steps().Tables().empty());
    Session.z = 0;
    const std::string former = Left();
    for (const double part : {0.0, 0.3, 0.78, 0.97, 1.0}) {
        RunUntil(part);
        EXPECT_TRUE(Session.CalcAborted) << part;
        ASSERT_EQ(ending_.Messages.size(), 1u) << part;
        EXPECT_EQ(ending_.Messages.front().Icon, MessageIcon::Information);
        EXPECT_TRUE(Left() == former) << part;
        EXPECT_EQ(Session.PrefDx, Single(GetParam().Dx));
        EXPECT_EQ(Session.h, Single(GetParam().h));
        EXPECT_EQ(Session.z, 0);
    }
    RunUntil(2);
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_FALSE(Left() == former);
}

TEST_P(EndedRaftRuns, TellHowFarTheyAreAndEndSoon) {
    RunUntil(2);
    ASSERT_FALSE(Session.CalcAborted);
    EXPECT_EQ(ending_.ProgressReports.front(), 0);
    EXPECT_EQ(ending_.ProgressReports.back(), 1);
    EXPECT_TRUE(std::is_sorted(ending_.ProgressReports.begin(), ending_.ProgressReports.end()));
    const auto soon = static_cast<std::clock_t>(tests::Slowness() * CLOCKS_PER_SEC / 5);
    EXPECT_LT(ending_.Longest, soon);
    for (const double part : {0.4, 0.9}) {
        RunUntil(part);
        EXPECT_LT(std::clock() - ending_.LastReport, soon) << part;
        EXPECT_LT(ending_.Longest, soon) << part;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, EndedRaftRuns,
                         testing::Values(Kind{"Layer", 9, 2, 1, false, 20, 0.5, 0.5, 5},
                                         Kind{"LargeLayer", 9, 2, 1, false, 20, 0.1, 0.3, 5},
                                         Kind{"LongElements", 9, 2, 1, false, 20, 0.1, 1.6, 5},
                                         Kind{"UniformClay", 10, 2, 1, false, 20, 0.6, 0.6, 5},
                                         Kind{"ThinClay", 10, 2, 2, false, 20, 0.6, 0.6, 5},
                                         Kind{"LargeThinClay", 10, 2, 2, false, 20, 0.3, 0.3, 5},
                                         Kind{"ThickClay", 10, 2, 2, false, 20, 0.8, 0.8, 40},
                                         Kind{"LargeThickClay", 10, 2, 2, false, 20, 0.3, 0.3, 40},
                                         Kind{"Punch", 9, 2, 1, true, 20, 0.5, 0.5, 5},
                                         Kind{"PunchOnClay", 10, 2, 2, true, 20, 0.8, 0.8, 5},
                                         Kind{"CircleOnLayer", 9, 3, 1, false, 10, 0.5, 0.5, 5},
                                         Kind{"CircleOnThinClay", 10, 3, 2, false, 10, 0.5, 0.5, 5},
                                         Kind{"CircleOnThickClay", 10, 3, 2, false, 10, 0.5, 0.5, 40},
                                         Kind{"CircularPunch", 9, 3, 1, true, 10, 0.5, 0.5, 5},
                                         Kind{"CircularPunchOnClay", 10, 3, 2, true, 10, 0.5, 0.5, 5}),
                         [](const auto& kind) { return std::string(kind.param.Name); });

}  // namespace
}  // namespace lithmark::tests
