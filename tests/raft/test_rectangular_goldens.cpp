// Reports and export files of the rectangular raft as goldens, and the report row by row.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>

#include "core/Units.h"
#include "raft/ExportReader.h"
#include "raft/RaftRunCase.h"
#include "support/Golden.h"
#include "support/Lines.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

struct RectangularCase {
    const char* name;
    void (*set)();
};

// With nodes 1.25 m apart each: the mesh of the tests of whole runs.
const RectangularCase kCases[] = {
    {"layer",
     [] {
         Session.Exz_x = 0.5;
         Session.Exz_y = 0.25;
     }},
    {"punch_centre", [] { Session.AnalysisType = true; }},
    {"punch_nodes",
     [] {
         Session.AnalysisType = true;
         Session.SettlementAt = false;
     }},
    {"clay_modulus",
     [] {
         Session.ProblemType = Problem::RaftConsolidation;
         Session.z = 0.5;
     }},
    {"clay_thin",
     [] {
         Session.ProblemType = Problem::RaftConsolidation;
         Session.SoilPropertyType = 2;
         Session.h = 2;
         Session.Exz_x = 0.5;
     }},
    {"clay_thick",
     [] {
         Session.ProblemType = Problem::RaftConsolidation;
         Session.SoilPropertyType = 2;
         Session.h = 7;
     }},
    {"clay_punch",
     [] {
         Session.ProblemType = Problem::RaftConsolidation;
         Session.SoilPropertyType = 2;
         Session.AnalysisType = true;
     }},
};

class GoldenRaftReports : public tests::RaftRunCase, public testing::WithParamInterface<RectangularCase> {};

TEST_P(GoldenRaftReports, StayAsTheyAre) {
    const std::pair<Language, const char*> languages[] = {
        {Language::German, "de"}, {Language::English, "en"}, {Language::Arabic, "ar"}, {Language::Ids, "ids"}};
    for (const auto& [language, code] : languages) {
        Fresh(language);
        GetParam().set();
        Run();
        EXPECT_TRUE(
            MatchesGolden(std::string("raft/rectangle_") + GetParam().name + "_" + code + ".txt", Session.ResultText));
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenRaftReports, testing::ValuesIn(kCases),
                         [](const auto& instance) { return std::string(instance.param.name); });

// Text files as they are; record files a line of hexadecimal digits for each record, without the zeros behind a value.
std::string ReadableExport(const std::function<std::string(const std::string&)>& bytesOf) {
    std::string all;
    for (const char* extension : {"TO1", "PO1", "PL4", "PL6", "PL8", "PC1", "P21", "BAU", "PH1", "PH2", "PW1"}) {
        const std::string bytes = bytesOf(extension);
        all += std::string("--- ") + extension + "\n";
        if (bytes.find('\0') == std::string::npos) {
            all += ReplaceAll(bytes, "\r\n", "\n");
            continue;
        }
        for (std::size_t at = 0; at < bytes.size(); at += tests::kRecordBytes) {
            std::string record = bytes.substr(at, tests::kRecordBytes);
            record.erase(record.find_last_not_of('\0') + 1);
            for (const char c : record) {
                char digits[4];
                std::snprintf(digits, sizeof digits, "%02X ", static_cast<unsigned char>(c));
                all += digits;
            }
            all += "\n";
        }
    }
    return all;
}

class GoldenRaftExport : public tests::RaftRunCase {};

TEST_F(GoldenRaftExport, OfTheElasticLayerStays) {
    Session.Exz_x = 0.5;
    Session.Exz_y = 0.25;
    Run();
    EXPECT_TRUE(MatchesGolden("raft/rectangle_layer_export.txt",
                              ReadableExport([this](const std::string& extension) { return Bytes(extension); })));
}

TEST_F(GoldenRaftExport, OfThickClayStays) {
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 2;
    Session.h = 7;
    Session.z = 0.25;
    Run();
    EXPECT_TRUE(MatchesGolden("raft/rectangle_clay_thick_export.txt",
                              ReadableExport([this](const std::string& extension) { return Bytes(extension); })));
}

// --- row by row ---

class RaftReport : public tests::RaftRunCase {
  protected:
    // The report of a case in text numbers, T<101> written T101.
    std::vector<std::string> Lines(const std::function<void()>& set) {
        Fresh(Language::Ids);
        set();
        Run();
        return tests::ReportLinesOf(ReplaceAll(ReplaceAll(Session.ResultText, "<", ""), ">", ""));
    }
    // Label and symbol of each row with a value, in order.
    static std::vector<std::string> Rows(const std::vector<std::string>& lines) {
        std::vector<std::string> rows;
        for (const std::string& line : lines) {
            const auto unit = line.find('[');
            if (line.find(" = ") == std::string::npos || unit == std::string::npos) continue;
            std::string row;
            for (const std::string& word : Split(line.substr(0, unit), ' '))
                if (!word.empty()) row += (row.empty() ? "" : " ") + word;
            rows.push_back(row);
        }
        return rows;
    }
    static std::size_t Position(const std::vector<std::string>& lines, const std::string& line) {
        const auto at = std::find(lines.begin(), lines.end(), line);
        EXPECT_NE(at, lines.end()) << line;
        return static_cast<std::size_t>(at - lines.begin());
    }
};

TEST_F(RaftReport, RowsOfEachProblem) {
    const auto rows = [this](const std::function<void()>& set) { return Rows(Lines(set)); };
    EXPECT_THAT(rows([] {}), testing::ElementsAre("T400186 Q", "T300076 e", "T400001 a", "T101 b", "T40052 h",
                                                  "T90029 Es", "T90004 Nue_s"));
    EXPECT_THAT(
        rows([] { Session.ProblemType = Problem::RaftConsolidation; }),
        testing::ElementsAre("T400186 Q", "T300076 e", "T400001 a", "T101 b", "T90001(z) z", "T40052 h", "T90029 Es"));
    EXPECT_THAT(rows([] {
                    Session.ProblemType = Problem::RaftConsolidation;
                    Session.SoilPropertyType = 2;
                }),
                testing::ElementsAre("T400186 Q", "T300076 e", "T400001 a", "T101 b", "T90001(z) z", "T40052 h",
                                     "T300004 Cc", "T10175 eo", "T10244 Gamma_c", "T120001 Gamma*z"));
    // A circle has its radius, and no width.
    EXPECT_THAT(rows([] { Session.LoadType = 3; }),
                testing::ElementsAre("T400186 Q", "T300076 e", "T400120 a", "T40052 h", "T90029 Es", "T90004 Nue_s"));
    EXPECT_THAT(rows([] { Session.LoadType = 1; }),
                testing::ElementsAre("T400186 Q", "T300076 e", "T40052 h", "T90029 Es", "T90004 Nue_s"));
}

TEST_F(RaftReport, TitlesTellTheAnalysis) {
    const std::vector<std::string> numerical = Lines([] {});
    const std::size_t title = Position(numerical, "T140189");
    EXPECT_EQ(numerical[title + 1], "T300081 T300083");
    EXPECT_EQ(numerical[title + 2], std::string(60, '-'));
    EXPECT_EQ(numerical[title + 3], "");
    EXPECT_EQ(numerical[title + 4], "T140095");
    const std::vector<std::string> centre = Lines([] {
        Session.AnalysisType = true;
        Session.ProblemType = Problem::RaftConsolidation;
    });
    const std::size_t at = Position(centre, "T140190");
    EXPECT_EQ(centre[at + 1], "T300081 T300082");
    EXPECT_EQ(centre[at + 2], "T300084 T300086");
    EXPECT_EQ(centre[at + 3], std::string(60, '-'));
    const std::vector<std::string> nodes = Lines([] {
        Session.AnalysisType = true;
        Session.SettlementAt = false;
    });
    EXPECT_EQ(nodes[Position(nodes, "T140189") + 2], "T300084 T300085");
}

TEST_F(RaftReport, TablesHoldTheMiddleRowAndAllNodes) {
    const std::vector<std::string> lines = Lines([] { Session.Exz_x = 0.5; });
    const std::size_t t1 = Position(lines, "T40079 T1"), t2 = Position(lines, "T40079 T2");
    EXPECT_EQ(lines[t1 + 1], "----------");
    EXPECT_EQ(lines[t1 + 2], "T90098/ T400122/ T90046:");
    EXPECT_EQ(lines[t2 + 2], "T90098/ T90046:");
    const auto cells = [&lines](std::size_t line) {
        std::vector<std::string> words;
        for (const std::string& word : Split(lines[line], ' '))
            if (!word.empty()) words.push_back(word);
        return words;
    };
    EXPECT_THAT(cells(t1 + 4), testing::ElementsAre("T13", "T400005", "T90098", "T400122", "T90046"));
    EXPECT_THAT(cells(t1 + 5), testing::ElementsAre("T90000", "x", "q", "f", "s"));
    EXPECT_THAT(cells(t1 + 6), testing::ElementsAre("[-]", "[m]", "[kN/m²]", "[kN]", "[cm]"));
    EXPECT_THAT(cells(t2 + 5), testing::ElementsAre("T90000", "x", "y", "q", "s_NL"));
    for (int i = 1; i <= 5; ++i) {
        const int node = 10 + i;
        EXPECT_THAT(cells(t1 + 7 + static_cast<std::size_t>(i)),
                    testing::ElementsAre(std::to_string(i), FormatValue(Session.RaftMidX(i), Session.FmtLength),
                                         FormatValue(Session.NodePressure(node), Session.FmtStress),
                                         FormatValue(Session.NodeForce(node), Session.FmtStress),
                                         FormatValue(Session.NodeSettlement(node), Session.FmtSettlement)));
    }
    for (int i = 1; i <= 25; ++i)
        EXPECT_THAT(cells(t2 + 7 + static_cast<std::size_t>(i)),
                    testing::ElementsAre(std::to_string(i), FormatValue(Session.NodeX(i), Session.FmtLength),
                                         FormatValue(Session.NodeY(i), Session.FmtLength),
                                         FormatValue(Session.NodePressure(i), Session.FmtStress),
                                         FormatValue(Session.NodeSettlement(i), Session.FmtSettlement)));
    EXPECT_EQ(lines[t1 + 13], lines[t1 + 3]);  // the closing ruler
    EXPECT_EQ(lines[t1 + 14], "");
    EXPECT_EQ(t2, t1 + 15);
    ASSERT_EQ(lines.size(), t2 + 35);
    EXPECT_EQ(lines.back(), "");

    const std::vector<std::string> clay = Lines([] { Session.ProblemType = Problem::RaftConsolidation; });
    EXPECT_EQ(clay[Position(clay, "T40079 T1") + 2], "T90098/ T400122/ T140186:");
    EXPECT_EQ(clay[Position(clay, "T40079 T2") + 2], "T90098/ T140186:");
    EXPECT_THAT(clay[Position(clay, "T40079 T1") + 4], HasSubstr("T40081"));
}

// The limiting depth stands where the layer's thickness stood; the second eccentricity has no row.
TEST_F(RaftReport, PrintsTheThicknessAfterTheRun) {
    const std::vector<std::string> lines = Lines([] {
        Session.ProblemType = Problem::RaftConsolidation;
        Session.SoilPropertyType = 2;
        Session.AnalysisType = true;
        Session.z = 3;
        Session.Exz_y = 0.123;
    });
    const std::string all = Session.ResultText;
    EXPECT_THAT(all, HasSubstr("= " + FormatValue(Session.h, Session.FmtLength)));
    EXPECT_GT(Session.h, 100);
    EXPECT_THAT(all, Not(HasSubstr("0.12")));
    for (const std::string& line : lines)
        if (line.starts_with("T90001(z)")) {
            EXPECT_THAT(line, testing::EndsWith("= " + FormatValue(0, Session.FmtLength)));
        }
}

// Lengths in feet, forces in tons: values and labels follow; unit weights keep their value.
TEST_F(RaftReport, FollowsTheUnits) {
    Fresh();
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 2;
    Session.Exz_x = 0.5;
    Run();
    const double pressure = Session.RaftMidPressure(1), settlement = Session.RaftMidSettlement(1);
    Fresh();
    Session.ProblemType = Problem::RaftConsolidation;
    Session.SoilPropertyType = 2;
    Session.Exz_x = 0.5;
    Session.Len1Label = "[ft]";
    Session.Len1Factor = 1 / 0.3048;
    Session.Len2Label = "[in]";
    Session.Len2Factor = 1 / 2.54;
    Session.Force1Label = "[t]";
    Session.Force1Factor = 0.1;
    Run();
    const std::string report = Session.ResultText;
    EXPECT_THAT(report, HasSubstr("[t/ft²]"));
    EXPECT_THAT(report, HasSubstr("= " + FormatValue(785.4, Session.FmtForce)));
    EXPECT_THAT(report, HasSubstr("= " + FormatValue(Single(0.5) / 0.3048, Session.FmtLength)));
    EXPECT_THAT(report, HasSubstr("= " + FormatValue(Single(51.82) * 0.1 * Square(0.3048), Session.FmtStress)));
    EXPECT_THAT(report, HasSubstr("= " + FormatValue(Single(8.69), Session.FmtUnitWeight)));
    EXPECT_THAT(report, HasSubstr(FormatValue(pressure * 0.1 * Square(0.3048), Session.FmtStress)));
    EXPECT_THAT(report, HasSubstr(FormatValue(settlement / 2.54, Session.FmtSettlement)));
}

}  // namespace
}  // namespace lithmark::tests
