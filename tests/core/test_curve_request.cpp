// The choice of a curve: the values that the program works with and the texts that the record holds.
#include <gmock/gmock.h>

#include "core/CurveRequest.h"
#include "support/Files.h"
#include "support/TestSession.h"

namespace lithmark::tests {

namespace {

class CurveRequests : public testing::Test {
  protected:
    void SetUp() override {
        FreshSession();
        Session.Force1Label = "[MN]";
        Session.Len2Label = "[mm]";
    }
};

TEST_F(CurveRequests, TheSetsAreNamedByTheirPlace) {
    for (int i = 0; i < kCurveSets; ++i) {
        const auto set = static_cast<CurveSet>(i);
        EXPECT_EQ(CurveSetName(set), "Tab" + std::to_string(i + 1));
        EXPECT_EQ(CurveSetNamed(CurveSetName(set)), set);
        EXPECT_EQ(IsRaftCurve(set), i >= 4);
    }
    for (const char* name : {"", "Tab", "Tab0", "Tab7", "tab1"}) EXPECT_EQ(CurveSetNamed(name), std::nullopt) << name;
}

TEST_F(CurveRequests, TheRecordHoldsTheNameAndTheLabelsOfTheUnits) {
    RequestCurve({CurveSet::Building, CurveUnit::InForce, CurveUnit::PerCent});
    EXPECT_EQ(Session.CurveChoice, "Tab3");
    EXPECT_EQ(Session.CurveLoadUnit, "[MN]");
    EXPECT_EQ(Session.CurveSettlementUnit, "[%]");
    RequestCurve({CurveSet::Load, CurveUnit::PerCent, CurveUnit::InForce});
    EXPECT_EQ(Session.CurveLoadUnit, "[%]");
    EXPECT_EQ(Session.CurveSettlementUnit, "[mm]");
}

TEST_F(CurveRequests, TheTextsAreReadBack) {
    Session.CurveChoice = "Tab2";
    Session.CurveLoadUnit = "[%]";
    Session.CurveSettlementUnit = "[mm]";
    const CurveRequest request = RequestedCurve();
    EXPECT_EQ(request.Set, CurveSet::SuddenLoad);
    EXPECT_EQ(request.LoadUnit, CurveUnit::PerCent);
    EXPECT_EQ(request.SettlementUnit, CurveUnit::InForce);
    Session.CurveChoice.clear();
    EXPECT_EQ(KindOf([] { RequestedCurve(); }), FailureKind::InvalidArgument);
}

TEST_F(CurveRequests, ContoursAreOfPressuresOrOfSettlements) {
    RequestContours(CurveSet::ContactPressure);
    EXPECT_EQ(Session.ContourResult, "Tab5");
    EXPECT_TRUE(PressureContoursRequested());
    RequestContours(CurveSet::RaftSettlement);
    EXPECT_EQ(Session.ContourResult, "Tab6");
    EXPECT_FALSE(PressureContoursRequested());
}

}  // namespace

}  // namespace lithmark::tests
