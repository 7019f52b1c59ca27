// Contours of a raft's own export files: what is read, in which units, and what a damaged file leads to.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "contour/BasContour.h"
#include "contour/RecordingSurface.h"
#include "core/Units.h"
#include "kernels/RunKernel.h"
#include "support/Files.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class ContourData : public testing::Test {
  protected:
    void SetUp() override {
        FreshSession();
        Session.DataDir = Session.WorkDir = folder.Dir();
        Session.ProjectName = Session.WorkName = "Raft1";
    }
    // Two elements side by side, three nodes above three: 4 5 6 over 1 2 3. An element's corners stand in the order
    // that the export writes: the first two change places, so 2 1 4 5 runs round as 1 2 4 5 would not.
    void WriteSmallMesh(const std::string& values = "0\r\n1\r\n2\r\n0\r\n1\r\n2\r\n") {
        WriteBytes(folder / "Raft1.TO1",
                   "6\r\n0\r\n0\r\n1\r\n0\r\n2\r\n0\r\n0\r\n1\r\n1\r\n1\r\n2\r\n1\r\n2\r\n"
                   "4\r\n1\r\n2\r\n4\r\n5\r\n4\r\n2\r\n3\r\n5\r\n6\r\n");
        WriteBytes(folder / "Raft1.PH1", values);
        WriteBytes(folder / "Raft1.PH2", values);
    }
    BasContour Read(const std::string& result) {
        Session.ContourResult = result;
        BasContour plot;
        plot.Prepare();
        return plot;
    }

    TestFolder folder;
    ScriptedHost host;
};

TEST_F(ContourData, TheFirstTwoCornersOfAnElementChangePlaces) {
    WriteSmallMesh();
    const BasContour plot = Read("Tab6");
    EXPECT_EQ(plot.NodeCount, 6);
    EXPECT_EQ(plot.ElementCount, 2);
    const int expected[2][4] = {{2, 1, 4, 5}, {3, 2, 5, 6}};
    for (int e = 1; e <= 2; ++e)
        for (int j = 1; j <= 4; ++j) EXPECT_EQ(plot.ElemNode(e, j), expected[e - 1][j - 1]) << e << "," << j;
    // The edge 2-5 is shared; six edges stay.
    int outer = 0;
    for (int e = 1; e <= 2; ++e)
        for (int j = 1; j <= 4; ++j) outer += plot.ElemNext(e, j) > 0;
    EXPECT_EQ(outer, 6);
}

// The file holds metres and the label says cm: the value is shown as it stands.
TEST_F(ContourData, SettlementsAreShownInMetresAgainstTheLabelOfLength2) {
    WriteSmallMesh(".025\r\n.025\r\n.025\r\n.025\r\n.025\r\n.025\r\n");
    Session.FmtSettlement = "0.000";
    const BasContour plot = Read("Tab6");
    EXPECT_EQ(plot.ZFormat, Session.FmtSettlement);
    EXPECT_EQ(plot.ClassLabel(1), "0.025");
    EXPECT_EQ(plot.ZStep, 0.0);
    Session.Len2Factor = 10;
    EXPECT_EQ(Read("Tab6").ClassLabel(1), "0.250");
}

TEST_F(ContourData, PressuresTakeTheFactorOfThePressureUnit) {
    WriteSmallMesh();
    WriteBytes(folder / "Raft1.PH2", "10\r\n20\r\n30\r\n10\r\n20\r\n30\r\n");
    Session.Force1Factor = 2;
    const BasContour plot = Read("Tab5");
    EXPECT_EQ(plot.ZFormat, Session.FmtStress);
    EXPECT_EQ(plot.ZMin, 20.0);
    EXPECT_EQ(plot.ZMax, 60.0);
    EXPECT_EQ(plot.ZStep, 4.0);
}

TEST_F(ContourData, ATriangleIsReadAndItsThreeEdgesAreDrawn) {
    WriteBytes(folder / "Raft1.TO1", "3\r\n0\r\n0\r\n1\r\n0\r\n0\r\n1\r\n1\r\n3\r\n1\r\n2\r\n3\r\n");
    WriteBytes(folder / "Raft1.PH1", "0\r\n1\r\n2\r\n");
    BasContour plot = Read("Tab6");
    RecordingSurface surface(20, 20);
    plot.Redraw(surface, {.ColorContours = false, .Displaylines = false, .DrawGrid = true, .DisplayValues = false});
    EXPECT_EQ(surface.Lines.size(), 3u);
}

TEST_F(ContourData, MissingAndDamagedFilesAreFailures) {
    const auto kind = [&](const std::string& result) { return KindOf([&] { Read(result); }); };
    EXPECT_EQ(kind("Tab5"), FailureKind::FileMissing);
    WriteSmallMesh();
    EXPECT_EQ(kind("Tab5"), std::nullopt);
    std::filesystem::remove(folder / "Raft1.PH2");
    EXPECT_EQ(kind("Tab5"), FailureKind::FileMissing);
    EXPECT_EQ(kind("Tab6"), std::nullopt);

    WriteSmallMesh("0\r\n1\r\n2\r\n0\r\n1\r\n");
    EXPECT_EQ(kind("Tab6"), FailureKind::EndOfFile);
    WriteSmallMesh("0\r\n1\r\nmuch\r\n0\r\n1\r\n2\r\n");
    EXPECT_EQ(kind("Tab6"), FailureKind::BadNumber);

    WriteSmallMesh();
    const std::string mesh = ReadBytes(folder / "Raft1.TO1");
    const auto damaged = [&](const std::string& bytes) {
        WriteBytes(folder / "Raft1.TO1", bytes);
        return kind("Tab6");
    };
    EXPECT_EQ(damaged(mesh.substr(0, mesh.size() - 9)), FailureKind::EndOfFile);
    EXPECT_EQ(damaged("0\r\n" + mesh), FailureKind::BadCount);
    EXPECT_EQ(damaged("-4\r\n" + mesh), FailureKind::BadCount);
    EXPECT_EQ(damaged("40000\r\n" + mesh.substr(3)), FailureKind::Overflow);
    EXPECT_EQ(damaged(mesh.substr(0, mesh.size() - 3) + "7\r\n"), FailureKind::SubscriptRange);
    EXPECT_EQ(damaged(""), FailureKind::EndOfFile);
    // After a failure the file number is free again.
    EXPECT_EQ(damaged(mesh), std::nullopt);
}

TEST_F(ContourData, ARunsOwnFilesGiveTheNodesOfTheRun) {
    Session.ProblemType = Problem::RaftDisplacement;
    Session.LoadType = 2;
    Session.Q = 20000;
    Session.A = Session.B = 6;
    Session.h = 8;
    Session.Es = 9000;
    Session.Nue = 0.3;
    Session.z = 0;
    Session.PrefDx = Session.PrefDy = 1;
    RunProblemKernel();
    ASSERT_FALSE(Session.CalcAborted);
    const BasContour plot = Read("Tab5");
    const int nodes = Session.NodePressure.Upper();
    ASSERT_EQ(plot.NodeCount, nodes);
    EXPECT_EQ(plot.ElementCount, 36);
    double least = 1e30, greatest = 0;
    for (int i = 1; i <= nodes; ++i) {
        EXPECT_NEAR(plot.CtrZ(i), Session.NodePressure(i), 1e-4 * Session.NodePressure(i)) << i;
        least = std::min<double>(least, plot.CtrZ(i));
        greatest = std::max<double>(greatest, plot.CtrZ(i));
    }
    EXPECT_EQ(plot.ZMin, least);
    EXPECT_EQ(plot.ZMax, greatest);
    // 6 m and a margin of a twentieth on each side.
    EXPECT_NEAR(plot.Window.XMax - plot.Window.XMin, 6.6, 1e-5);
    const BasContour settlements = Read("Tab6");
    for (int i = 1; i <= nodes; ++i)
        EXPECT_NEAR(settlements.CtrZ(i), Session.NodeSettlement(i) / 100, 1e-6 * settlements.CtrZ(i) + 1e-9) << i;
}

}  // namespace
}  // namespace lithmark::tests
