// A whole run of the circular raft's kernel: what it takes and leaves, files, failures, and its reports as goldens.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/BasCircularRigidRaft.h"
#include "raft/CircularProblem.h"
#include "support/Files.h"
#include "support/Golden.h"
#include "support/Lines.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

// Sets the fields that the dialogs set; a project of its own in a folder of its own.
class CircularRun : public testing::Test {
  protected:
    CircularRun() { Start(Language::English); }
    ~CircularRun() override {
        ResetSession();
        LanguageTexts().SetCurrent(Language::English);
    }

    void Start(Language language) {
        FreshSession(language);
        Session.WorkDir = folder_.Dir();
        Session.WorkName = "Tank";
        Session.LoadType = 3;
        Session.ProblemType = Problem::RaftDisplacement;
        Session.Nue = 0.25;
        Session.PrefND = 4;
        Session.B = 3;
        const RaftInput input = RoundRaft();
        Session.z = 0;
        Session.Q = input.Q;
        Session.A = input.A;
        Session.h = input.h;
        Session.eo = input.eo;
        Session.Po = input.Po;
        Session.Cc = input.Cc;
        Session.Es = input.Es;
        Session.Gamma = input.Gamma;
        Session.SoilPropertyType = 1;
        Session.SettlementAt = true;
    }
    static void Compute() {
        Session.CalcAborted = false;
        ComputeCircularRaft(Session.z, Session.Q, Session.A, Session.h, Session.eo, Session.Po, Session.Cc, Session.Es,
                            Session.SoilPropertyType, Session.Exz_x, Session.Gamma, Session.AnalysisType,
                            Session.SettlementAt);
    }

    ScriptedHost host_;
    TestFolder folder_;
};

TEST_F(CircularRun, LeavesResultsFilesAndReport) {
    Compute();
    ASSERT_FALSE(Session.CalcAborted) << host_.LastMessage().Text;
    EXPECT_EQ(Session.A0, Session.A);
    EXPECT_EQ(Session.NodeSettlement.Upper(), 17);
    EXPECT_EQ(Session.RaftMidCount, 5);
    EXPECT_FALSE(Session.ResultText.empty());
    const std::vector<std::string> files = {"Tank.BAU", "Tank.P21", "Tank.PC1", "Tank.PH1", "Tank.PH2",
                                            "Tank.PL4", "Tank.PL6", "Tank.PL8", "Tank.PO1", "Tank.PW1"};
    auto names = folder_.Names();
    std::transform(names.begin(), names.end(), names.begin(), [](std::string name) {
        std::transform(name.begin() + 5, name.end(), name.begin() + 5, ::toupper);
        return name;
    });
    std::sort(names.begin(), names.end());
    EXPECT_THAT(names, testing::IsSupersetOf(files));
    EXPECT_EQ(names.size(), 11U);
    EXPECT_EQ(host_.Pointers, (std::vector{PointerShape::Hourglass, PointerShape::Default}));
    EXPECT_TRUE(host_.Messages.empty());
}

// The mesh file counts from the raft's centre, the one for the edges from a corner of the square round it.
TEST_F(CircularRun, MeshFilesCountFromCentreAndCorner) {
    Compute();
    const PolarMesh mesh = BuildPolarMesh(4, 5);
    const auto linesOf = [this](const std::string& extension) {
        for (const std::string& name : folder_.Names())
            if (name.size() > 5 && std::equal(extension.begin(), extension.end(), name.begin() + 5,
                                              [](char a, char b) { return a == std::toupper(b); }))
                return ReportLinesOf(ReadBytes(folder_ / name));
        return std::vector<std::string>();
    };
    const auto centred = linesOf("TO1"), moved = linesOf("PL6");
    ASSERT_GT(centred.size(), 2U + 2 * 17);
    ASSERT_GT(moved.size(), 2U + 2 * 17);
    EXPECT_EQ(std::stoi(centred[0]), 17);
    EXPECT_EQ(std::stoi(moved[0]), 17);
    for (int i = 1; i <= 17; ++i) {
        const auto x = static_cast<std::size_t>(2 * i - 1);
        EXPECT_NEAR(std::stod(centred[x]), mesh.NodeX(i), 1e-6);
        EXPECT_NEAR(std::stod(centred[x + 1]), mesh.NodeY(i), 1e-6);
        EXPECT_NEAR(std::stod(moved[x]), mesh.NodeX(i) + 5, 1e-6);
        EXPECT_NEAR(std::stod(moved[x + 1]), mesh.NodeY(i) + 5, 1e-6);
    }
    EXPECT_EQ(std::stoi(centred[35]), 16);
    // The first element: the triangle of the centre and the first nodes of two rays.
    EXPECT_THAT(std::vector<std::string>(centred.begin() + 36, centred.begin() + 40),
                testing::ElementsAre("3", "1", "2", "4"));
}

TEST_F(CircularRun, AnalyticalRunSetsZToNothing) {
    Session.z = 2;
    Session.AnalysisType = true;
    Compute();
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_EQ(Session.z, 0);
    EXPECT_EQ(Session.h, 5);
}

TEST_F(CircularRun, AnalyticalClayLeavesTheLimitingDepth) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 2;
    Session.AnalysisType = true;
    Compute();
    EXPECT_FALSE(Session.CalcAborted);
    EXPECT_GT(Session.h, 5);
    EXPECT_EQ(std::fmod(Session.h, 5), 0);  // whole steps of R
}

TEST_F(CircularRun, FailureIsToldOnceAndFlagged) {
    Session.Es = 0;
    Compute();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host_.Messages.size(), 1U);
    EXPECT_TRUE(Session.ResultText.empty());
    EXPECT_TRUE(folder_.Names().empty());
}

// What a run had changed before it failed stays changed.
TEST_F(CircularRun, FailureKeepsTheDepthOfNothing) {
    Session.z = 2;
    Session.AnalysisType = true;
    Session.Es = 0;
    Compute();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(Session.z, 0);
}

TEST_F(CircularRun, TooManyDivisionsFail) {
    Session.PrefND = 182;
    Compute();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(CircularRun, ProgressGrowsToItsEndAndCanBeCancelled) {
    Compute();
    ASSERT_FALSE(host_.ProgressReports.empty());
    EXPECT_TRUE(std::is_sorted(host_.ProgressReports.begin(), host_.ProgressReports.end()));
    EXPECT_GE(host_.ProgressReports.front(), 0);
    EXPECT_DOUBLE_EQ(host_.ProgressReports.back(), 1);
    EXPECT_FALSE(Session.CalcAborted);

    host_.ProgressReports.clear();
    host_.CancelAtProgress(1);
    Compute();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host_.ProgressReports.size(), 1U);
}

// --- goldens ---

struct GoldenCase {
    const char* Name;
    int ProblemType, SoilPropertyType;
    bool AnalysisType, SettlementAt;
    double h, e;
};

class GoldenCircularRaft : public CircularRun, public testing::WithParamInterface<GoldenCase> {};

TEST_P(GoldenCircularRaft, ReportStaysAsItIs) {
    const GoldenCase& c = GetParam();
    const std::pair<Language, const char*> languages[] = {
        {Language::German, "de"}, {Language::English, "en"}, {Language::Arabic, "ar"}, {Language::Ids, "ids"}};
    for (const auto& [language, code] : languages) {
        Start(language);
        Session.ProblemType = c.ProblemType;
        Session.SoilPropertyType = c.SoilPropertyType;
        Session.AnalysisType = c.AnalysisType;
        Session.SettlementAt = c.SettlementAt;
        Session.h = c.h;
        Session.Exz_x = c.e;
        Compute();
        ASSERT_FALSE(Session.CalcAborted) << host_.LastMessage().Text;
        EXPECT_TRUE(MatchesGolden(std::string("raft/circle_") + c.Name + "_" + code + ".txt", Session.ResultText));
    }
}

INSTANTIATE_TEST_SUITE_P(MainCases, GoldenCircularRaft,
                         testing::Values(GoldenCase{"elastic_punch", 9, 1, true, true, 5, 0},
                                         GoldenCase{"elastic_layer", 9, 1, false, true, 5, 0.5},
                                         GoldenCase{"clay_es_punch", 10, 1, true, false, 5, 0.5},
                                         GoldenCase{"clay_es_layer", 10, 1, false, true, 5, 0},
                                         GoldenCase{"clay_cc_punch", 10, 2, true, true, 5, 0.5},
                                         GoldenCase{"clay_cc_thin", 10, 2, false, true, 3, 0.5},
                                         GoldenCase{"clay_cc_thick", 10, 2, false, true, 12, 0.5}),
                         [](const auto& instance) { return std::string(instance.param.Name); });

}  // namespace
}  // namespace lithmark::tests
