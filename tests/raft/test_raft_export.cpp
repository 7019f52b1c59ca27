// The eleven export files of a raft run, taken apart again by a reader of their bytes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/RaftRun.h"
#include "raft/ExportReader.h"
#include "raft/RaftRunCase.h"

namespace lithmark::tests {
namespace {

using Records = std::vector<RecordValue>;

constexpr std::int16_t kZero = 0, kOne = 1;
const std::string kVersion = "Version 9";

std::vector<std::string> ElevenFiles() {
    return {"Raft1.BAU", "Raft1.P21", "Raft1.PC1", "Raft1.PH1", "Raft1.PH2", "Raft1.PL4",
            "Raft1.PL6", "Raft1.PL8", "Raft1.PO1", "Raft1.PW1", "Raft1.TO1"};
}

float Stored(double value) {
    return static_cast<float>(value);
}

class RaftExport : public tests::RaftRunCase {
  protected:
    int Nodes() const { return Session.NodeX.Upper(); }
};

TEST_F(RaftExport, EachRunWritesElevenFiles) {
    Run();
    EXPECT_EQ(folder_.Names(), ElevenFiles());
    const std::string before = Bytes("PH1");
    Session.Es = 10000;
    Run();
    EXPECT_EQ(folder_.Names(), ElevenFiles());
    EXPECT_NE(Bytes("PH1"), before);
}

TEST_F(RaftExport, MeshHoldsNodesAndElements) {
    Session.A = 3.1;
    Session.PrefDx = 0.5;  // 6 by 4
    Run();
    LineReader file(Bytes("TO1"));
    ASSERT_EQ(file.Whole(), 35);
    const float x[] = {0, 0.517f, 1.033f, 1.55f, 2.067f, 2.583f, 3.1f};
    for (int i = 0; i < 35; ++i) {
        EXPECT_EQ(file.Number(), x[i % 7]);
        EXPECT_EQ(file.Number(), 1.25f * static_cast<float>(i / 7));
    }
    ASSERT_EQ(file.Whole(), 24);
    for (int e = 0; e < 24; ++e) {
        EXPECT_EQ(file.Whole(), 4);
        const int first = e / 6 * 7 + e % 6 + 1;  // the corners do not run round the element
        EXPECT_EQ(file.Whole(), first);
        EXPECT_EQ(file.Whole(), first + 1);
        EXPECT_EQ(file.Whole(), first + 7);
        EXPECT_EQ(file.Whole(), first + 8);
    }
}

TEST_F(RaftExport, RunOptionsTellTheAnalysis) {
    const auto expected = [](const std::string& analysis) {
        std::string text = "Version 9\r\n1\r\n" + analysis + "\r\n";
        for (int i = 0; i < 13; ++i) text += "2\r\n";
        return text + "0\r\n";
    };
    Run();
    EXPECT_EQ(Bytes("PO1"), expected("7"));
    Session.AnalysisType = true;
    Run();
    EXPECT_EQ(Bytes("PO1"), expected("19"));
}

TEST_F(RaftExport, AreasFollowTheirCount) {
    Run();
    LineReader file(Bytes("PL4"));
    ASSERT_EQ(file.Whole(), 25);
    for (int i = 1; i <= 25; ++i) EXPECT_EQ(file.Number(), Session.NodeArea(i).Stored());
}

// Elements as polygons: corners run round the element, and each edge has one number, shared by the elements on both
// sides.
TEST_F(RaftExport, MeshWithEdgesRunsRoundTheElements) {
    Run();
    LineReader file(Bytes("PL6"));
    ASSERT_EQ(file.Whole(), 25);
    for (int i = 1; i <= 25; ++i) {
        EXPECT_EQ(file.Number(), Session.NodeX(i).Stored());
        EXPECT_EQ(file.Number(), Session.NodeY(i).Stored());
    }
    ASSERT_EQ(file.Whole(), 16);
    std::map<int, std::multiset<std::set<int>>> uses;
    for (int e = 0; e < 16; ++e) {
        ASSERT_EQ(file.Whole(), 4);
        int node[4], edge[4];
        for (int k = 0; k < 4; ++k) {
            node[k] = file.Whole();
            edge[k] = file.Whole();
        }
        const int first = e / 4 * 5 + e % 4 + 1;
        EXPECT_THAT(node, testing::ElementsAre(first + 1, first, first + 5, first + 6));
        for (int k = 0; k < 4; ++k) uses[edge[k]].insert({node[k], node[(k + 1) % 4]});
    }
    ASSERT_EQ(uses.size(), 40u);  // 5 by 4 in each direction
    EXPECT_EQ(uses.begin()->first, 1);
    EXPECT_EQ(uses.rbegin()->first, 40);
    int shared = 0;
    for (const auto& [number, ends] : uses) {
        EXPECT_EQ(std::set(ends.begin(), ends.end()).size(), 1u) << number;
        shared += ends.size() == 2;
    }
    EXPECT_EQ(shared, 24);
}

TEST_F(RaftExport, OutlineAndGrid) {
    Session.B = 2.5;
    Session.PrefDx = 2.5;
    Run();
    EXPECT_EQ(Bytes("PL8"),
              "4\r\n"
              "#FALSE#,0,0,5,0,0,0,#FALSE#\r\n"
              "#FALSE#,5,0,5,2.5,0,0,#FALSE#\r\n"
              "#FALSE#,5,2.5,0,2.5,0,0,#FALSE#\r\n"
              "#FALSE#,0,2.5,0,0,0,0,#FALSE#\r\n"
              "0,0\r\n0,0\r\n"
              "12\r\n0,0,0\r\n"
              "2,2\r\n"
              "\"0.000\"\r\n\"2.500\"\r\n\"5.000\"\r\n"
              "\"0.000\"\r\n\"1.250\"\r\n\"2.500\"\r\n");
}

TEST_F(RaftExport, LoadStandsOffTheCentre) {
    Session.Exz_x = 0.5;
    Session.Exz_y = 0.25;
    Session.B = 4;
    Run();
    EXPECT_TRUE(HoldsRecords(Bytes("PC1"), {kZero, kZero, kOne, kZero, kZero, kZero, kZero, kOne, kVersion, kOne,
                                            7854.f, 3.f, 2.25f, 0.5f, 0.5f}));
}

TEST_F(RaftExport, MaterialOfAllElements) {
    Run();
    Records expected = {0.f, kOne, kVersion, 0.f, 0.f, 0.f, 0.f, std::string(), 0.f, 1.f, 20000000.f, 0.25f};
    expected.insert(expected.end(), 16, kOne);
    EXPECT_TRUE(HoldsRecords(Bytes("P21"), expected));
}

// --- the soil file, branch by branch ---

struct Layer {
    float depth, modulus1, modulus2, unitWeight;
    std::string soil;
    float friction, cohesion, poisson;
    std::int16_t kind;
};
Records SoilFile(float nue, float value, const std::vector<Layer>& layers, float shift1, float shift2, float gamma,
                 std::int16_t code) {
    Records r = {1.f, nue, 1.f, kOne, value, 0.f, 0.f, std::string("BP1"), static_cast<std::int16_t>(layers.size()),
                 0.f};
    for (const Layer& layer : layers)
        r.insert(r.end(), {layer.depth, layer.modulus1, layer.modulus2, layer.unitWeight, layer.soil});
    for (const Layer& layer : layers) r.insert(r.end(), {layer.friction, layer.cohesion});
    r.insert(r.end(), {0.f, shift1, shift2});
    for (const Layer& layer : layers) r.insert(r.end(), {layer.poisson, layer.kind});
    r.insert(r.end(), {gamma, code, 100.f, kOne, kOne, std::int16_t(2), kVersion});
    return r;
}
const Layer kNone{0, 0, 0, 0, "", 0, 0, 0, 0};

TEST_F(RaftExport, SoilOfTheElasticLayer) {
    Run();
    EXPECT_TRUE(
        HoldsRecords(Bytes("BAU"), SoilFile(0.25f, 0, {{5, 5000, 5000, 8.69f, "G/ge", 30, 0, 0.25f, 1}}, 0, 0, 0, 0)));
}

TEST_F(RaftExport, SoilOfTheHalfSpace) {
    Session.AnalysisType = true;
    Run();
    EXPECT_TRUE(HoldsRecords(Bytes("BAU"), SoilFile(0.25f, 5000, {kNone}, 30, 0, 8.69f, 4)));
    EXPECT_EQ(Session.Nue, 0.25);
}

// Deliberate: Poisson's ratio in the record becomes that of the soil file as the run ends and stays so.
TEST_F(RaftExport, AnalyticalClaySetsPoissonsRatio) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.AnalysisType = true;
    Run();
    EXPECT_TRUE(HoldsRecords(Bytes("BAU"), SoilFile(0, 5000, {kNone}, 0, 30, 8.69f, 5)));
    EXPECT_EQ(Session.Nue, 0);
    Session.SoilPropertyType = 2;
    Run();
    EXPECT_TRUE(HoldsRecords(Bytes("BAU"), SoilFile(0.85f, 0.16f, {kNone}, 0, 30, 8.69f, 6)));
    EXPECT_EQ(Session.Nue, Single(0.85));
}

TEST_F(RaftExport, NumericalClayLeavesPoissonsRatio) {
    Session.ProblemType = Problem::RaftConsolidation;
    const Layer above{0.5f, 200000000, 200000000, 18, "G/ge", 30, 0, 0, 2};
    const Layer stiff{5, 5000, 5000, 18, "T/vi", 0, 30, 0, 2};
    Run();
    EXPECT_TRUE(HoldsRecords(Bytes("BAU"), SoilFile(0.25f, 0, {stiff}, 0, 0, 0, 0)));
    Session.z = 0.5;
    Run();
    Layer deep = stiff;
    deep.depth = 5.5f;
    EXPECT_TRUE(HoldsRecords(Bytes("BAU"), SoilFile(0.25f, 0, {above, deep}, 0, 0, 0, 0)));
    Session.SoilPropertyType = 2;
    Run();
    Layer weighed = above;
    weighed.unitWeight = Stored(Single(51.82) / 0.5);
    const Layer soft{5.5f, 0.16f, 0.16f, 8.69f, "T/vi", 0, 30, 0.85f, 3};
    EXPECT_TRUE(HoldsRecords(Bytes("BAU"), SoilFile(0.25f, 0, {weighed, soft}, 0, 0, 0, 0)));
    EXPECT_EQ(Session.Nue, 0.25);
}

// A layer whose top is above the ground, which no dialog lets through: two layers are counted, the first has no values.
TEST_F(RaftExport, LayerAboveTheGroundLeavesTheFirstLayerEmpty) {
    RaftResult result;
    result.Input.z = -1;
    result.Input.h = 5;
    result.Input.Es = 5000;
    Session.ProblemType = Problem::RaftConsolidation;
    ExportRaft(result);
    const Layer clay{4, 5000, 5000, 18, "T/vi", 0, 30, 0, 2};
    EXPECT_TRUE(HoldsRecords(Bytes("BAU"), SoilFile(0.25f, 0, {kNone, clay}, 0, 0, 0, 0)));
}

// --- node values ---

TEST_F(RaftExport, NodeValuesHaveNoCount) {
    Run();
    LineReader settlement(Bytes("PH1")), pressure(Bytes("PH2")), modulus(Bytes("PW1"));
    for (int i = 1; i <= Nodes(); ++i) {
        EXPECT_EQ(settlement.Number(), Stored(Session.NodeSettlement(i) / 100));
        EXPECT_EQ(pressure.Number(), Session.NodePressure(i).Stored());
        EXPECT_EQ(modulus.Number(), Stored(Session.NodePressure(i) / (Session.NodeSettlement(i) / 100)));
    }
}

TEST_F(RaftExport, NoSettlementCountsAsNextToNothing) {
    RaftResult result;
    for (Array<Single>* values : {&Session.NodeX, &Session.NodeY, &Session.NodeArea, &Session.NodeForce,
                                  &Session.NodePressure, &Session.NodeSettlement})
        values->Redim(1, 1);
    Session.NodePressure(1) = 2;
    ExportRaft(result);
    EXPECT_EQ(Bytes("PW1"), "2E+20\r\n");
    EXPECT_EQ(Bytes("PH1"), "0\r\n");
    EXPECT_EQ(Bytes("PH2"), "2\r\n");
}

// --- circle ---

// A circle of two divisions: a disc and four sectors. Coordinates count from the centre in the mesh file and are
// positive in the file with edges.
TEST_F(RaftExport, CircleCountsFromItsCentre) {
    const PolarMesh mesh = BuildPolarMesh(2, 3);
    RaftResult result;
    result.Circular = true;
    result.Input.A = 3;
    result.Input.Q = 100;
    result.Input.Exz_x = 0.5;
    result.Input.Es = 5000;
    result.Elements = PlotElements(mesh);
    ASSERT_EQ(result.Elements.size(), 4u);
    Session.B = 7;  // whatever the record holds
    Session.LoadType = 3;
    Session.NodeX = mesh.NodeX;
    Session.NodeY = mesh.NodeY;
    Session.NodeArea = mesh.NodeArea;
    Session.NodeForce = Session.NodePressure = Session.NodeSettlement = mesh.NodeArea;
    ExportRaft(result);

    LineReader plain(Bytes("TO1")), edged(Bytes("PL6"));
    EXPECT_EQ(plain.Whole(), 5);
    EXPECT_EQ(edged.Whole(), 5);
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(plain.Number(), mesh.NodeX(i).Stored());
        EXPECT_EQ(plain.Number(), mesh.NodeY(i).Stored());
        EXPECT_EQ(edged.Number(), Stored(mesh.NodeX(i) + 3));
        EXPECT_EQ(edged.Number(), Stored(mesh.NodeY(i) + 3));
    }
    EXPECT_EQ(plain.Whole(), 4);
    EXPECT_EQ(edged.Whole(), 4);
    std::set<int> edges;
    for (int e = 0; e < 4; ++e) {
        const int ray = e + 2, next = e == 3 ? 2 : e + 3;
        EXPECT_EQ(plain.Whole(), 3);
        for (const int node : {1, ray, next}) EXPECT_EQ(plain.Whole(), node);
        EXPECT_EQ(edged.Whole(), 3);
        for (const int node : {ray, 1, next}) {  // the first two change places
            EXPECT_EQ(edged.Whole(), node);
            edges.insert(edged.Whole());
        }
    }
    EXPECT_EQ(edges.size(), 8u);

    std::string grid = "\r\n";
    for (int i = 1; i <= 10; ++i) grid += std::to_string(i) + "\r\n";
    EXPECT_EQ(Bytes("PL8"),
              "4\r\n"
              "#FALSE#,0,0,3,0,0,0,#FALSE#\r\n"
              "#FALSE#,3,0,3,7,0,0,#FALSE#\r\n"
              "#FALSE#,3,7,0,7,0,0,#FALSE#\r\n"
              "#FALSE#,0,7,0,0,0,0,#FALSE#\r\n"
              "0,0\r\n0,0\r\n8\r\n0,0,0\r\n10,10\r\n" +
                  grid + grid);
    EXPECT_TRUE(HoldsRecords(Bytes("PC1"), {kZero, kZero, kOne, kZero, kZero, kZero, kZero, kOne, kVersion, kOne, 100.f,
                                            3.5f, 3.f, 0.5f, 0.5f}));
}

// Quadrangles of a circle: second, first, third, fourth node.
TEST_F(RaftExport, CircleQuadranglesChangeTheirFirstTwo) {
    const PolarMesh mesh = BuildPolarMesh(4, 3);
    RaftResult result;
    result.Circular = true;
    result.Input.A = 3;
    result.Elements = PlotElements(mesh);
    Session.NodeX = mesh.NodeX;
    Session.NodeY = mesh.NodeY;
    Session.NodeArea = Session.NodeForce = Session.NodePressure = Session.NodeSettlement = mesh.NodeArea;
    ExportRaft(result);
    const std::vector<std::string> lines = ExportLines(Bytes("PL6"));
    std::size_t at = 1 + 2 * 17 + 1;
    for (const RaftElement& element : result.Elements) {
        EXPECT_EQ(lines[at++], std::to_string(element.Count));
        std::vector<int> order = {element.Nodes[1], element.Nodes[0], element.Nodes[2]};
        if (element.Count == 4) order.push_back(element.Nodes[3]);
        for (const int node : order) {
            EXPECT_EQ(lines[at], std::to_string(node));
            at += 2;
        }
    }
    EXPECT_EQ(at, lines.size());
}

// --- failures ---

// A file that cannot be written ends the run; the files before it stand, those behind it are as they were.
TEST_F(RaftExport, FailedWriteKeepsWhatStands) {
    Run();
    const std::string options = Bytes("PO1"), soil = Bytes("BAU");
    std::filesystem::remove(folder_ / "Raft1.PC1");
    std::filesystem::create_directory(folder_ / "Raft1.PC1");
    Session.AnalysisType = true;
    Session.ResultText = "the old report";
    RunRectangle();
    EXPECT_TRUE(Session.CalcAborted);
    ASSERT_EQ(host_.Messages.size(), 1u);
    EXPECT_THAT(host_.LastMessage().Text, testing::HasSubstr("Raft1.PC1"));
    EXPECT_NE(Bytes("PO1"), options);
    EXPECT_EQ(Bytes("BAU"), soil);
    EXPECT_EQ(Session.ResultText, "the old report");
    EXPECT_EQ(folder_.Names(), ElevenFiles());  // nothing temporary is left
}

// The texts wait in memory for the end; the first records do not.
TEST_F(RaftExport, AFullDiskIsToldForTheFileThatFailsAndLeavesNone) {
    LITHMARK_NEEDS(CopyOfAProcess);
    EXPECT_TRUE(tests::OnAFullDisk(20, [this] {
        RunRectangle();
        return Session.CalcAborted && host_.Messages.size() == 1 &&
               host_.LastMessage().Text.find("Raft1.PC1 cannot be written") != std::string::npos;
    }));
    EXPECT_EQ(folder_.Names(), std::vector<std::string>{});
}

// --- runs without files ---

class RaftWithoutExport : public RaftExport {
  protected:
    RaftWithoutExport() { SetRaftExport(false); }
    ~RaftWithoutExport() override { SetRaftExport(true); }
};

TEST_F(RaftWithoutExport, WritesNoFileAndChangesNoResult) {
    for (const bool analytical : {false, true}) {
        for (const int problem : {9, 10}) {
            const auto result = [&](bool on) {
                Fresh();
                Session.ProblemType = problem;
                Session.AnalysisType = analytical;
                SetRaftExport(on);
                Run();
                return std::pair(Session.ResultText, Session.Nue);
            };
            const auto without = result(false);
            EXPECT_TRUE(folder_.Names().empty());
            EXPECT_EQ(without, result(true));
            EXPECT_EQ(folder_.Names(), ElevenFiles());
            for (const std::string& name : ElevenFiles()) std::filesystem::remove(folder_ / name);
        }
    }
}

TEST_F(RaftWithoutExport, NeedsNoFolder) {
    Session.WorkDir = folder_ / "nowhere/";
    Run();
}

// A number that fails on its way into a file fails without the file too: a pressure over a settlement of nothing.
TEST_F(RaftWithoutExport, FailsWhereTheExportWould) {
    RaftResult result;
    for (Array<Single>* values : {&Session.NodeX, &Session.NodeY, &Session.NodeArea, &Session.NodeForce,
                                  &Session.NodePressure, &Session.NodeSettlement})
        values->Redim(1, 1);
    Session.NodePressure(1) = 1e20;
    EXPECT_EQ(tests::KindOf([&] { ExportRaft(result); }), FailureKind::Overflow);
}

TEST_F(RaftExport, MissingFolderFails) {
    Session.WorkDir = folder_ / "nowhere/";
    RunRectangle();
    EXPECT_TRUE(Session.CalcAborted);
    EXPECT_EQ(host_.Messages.size(), 1u);
}

}  // namespace
}  // namespace lithmark::tests
