// The lines of a report on pages and on the columns of its fixed pitch.
#include <set>

#include "base/Utf8.h"
#include "render/DisplayLines.h"
#include "render/RenderCase.h"
#include "render/ReportLines.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class ReportPages : public RenderTest {};

std::vector<std::size_t> Starts(const std::vector<PageOfLines>& pages) {
    std::vector<std::size_t> starts;
    for (const PageOfLines& page : pages) starts.push_back(page.First);
    return starts;
}

std::vector<std::string> WithTables() {
    std::vector<std::string> lines(20, "text");
    for (const char* line :
         {"", "Table T1", "----------", "Loads:", "---------------", "  Time   Load", "---------------",
          "     1     10", "     2     20", "     3     30", "---------------", "", "Table T2", "----------"})
        lines.emplace_back(line);
    return lines;
}

TEST_F(ReportPages, ATableIsFoundWithItsTitleAndSums) {
    const auto tables = TablesOf(WithTables());
    ASSERT_EQ(tables.size(), 1u);
    EXPECT_EQ(tables[0].First, 21u);
    EXPECT_EQ(tables[0].Head, 24u);
    EXPECT_EQ(tables[0].Rows, 27u);
    EXPECT_EQ(tables[0].Sums, 31u);
    EXPECT_EQ(tables[0].End, 31u);
    const auto summed = TablesOf(
        {"", "Steps:", "-----------", " z", "-----------", " 1", "-----------", "Sum 1", "-----------", "a note"});
    ASSERT_EQ(summed.size(), 1u);
    EXPECT_EQ(summed[0].First, 1u);
    EXPECT_EQ(summed[0].Sums, 7u);
    EXPECT_EQ(summed[0].End, 9u);
}

// The box of notices has rulers, too, and no rows.
TEST_F(ReportPages, RulersAloneAreNoTable) {
    const std::string ruler(60, '-');
    EXPECT_TRUE(TablesOf({"", ruler, "Notices:", ruler, "raft-tension: a pressure is negative", ruler}).empty());
    EXPECT_TRUE(TablesOf({ruler, "", "Settlements", ruler, "", "Data:", "Load Q [kN] = 1"}).empty());
}

TEST_F(ReportPages, EveryTableOfTheExamplesIsFound) {
    for (const auto& [example, count] :
         {std::pair{"OfficeBuilding", 4u}, {"EccentricRaft", 2u}, {"PointLoad", 0u}, {"TwoClayLayers", 1u}})
        for (const Language language : {Language::German, Language::Arabic}) {
            RunExample(example, language);
            EXPECT_EQ(TablesOf(ReportLinesOf(Session.ResultText)).size(), count) << example;
        }
}

TEST_F(ReportPages, PagesAreFilledWhereNothingMustStayTogether) {
    const std::vector<std::string> lines(100, "text");
    EXPECT_THAT(Starts(PagesOf(lines, 30)), ElementsAre(0, 30, 60, 90));
    EXPECT_EQ(PagesOf(lines, 30).back().End, 100u);
    ASSERT_EQ(PagesOf({}, 30).size(), 1u);
    EXPECT_EQ(PagesOf({}, 30)[0].Count(), 0u);
}

TEST_F(ReportPages, ATableGoesToTheNextPageWithItsTitle) {
    // Lines 21 to 28 belong together: title, rulers, head and two rows; so do 28 to 30, the last rows and the ruler.
    for (const std::size_t perPage : {22u, 25u, 27u})
        EXPECT_EQ(PagesOf(WithTables(), perPage)[1].First, 21u) << perPage;
    EXPECT_EQ(PagesOf(WithTables(), 29)[1].First, 28u);
    EXPECT_EQ(PagesOf(WithTables(), 31)[1].First, 31u);
}

TEST_F(ReportPages, ATableThatGoesOnHasItsHeadAgain) {
    std::vector<std::string> lines = {"Loads:", "---------------", "  Time   Load", "---------------"};
    for (int i = 0; i < 50; ++i) lines.emplace_back("     1     10");
    lines.emplace_back("---------------");
    const auto pages = PagesOf(lines, 20);
    ASSERT_GT(pages.size(), 2u);
    EXPECT_EQ(pages[0].HeadEnd, 0u);
    for (std::size_t p = 1; p < pages.size(); ++p) {
        EXPECT_EQ(pages[p].HeadFirst, 1u);
        EXPECT_EQ(pages[p].HeadEnd, 4u);
        EXPECT_LE(pages[p].Count(), 20u);
        EXPECT_EQ(pages[p].First, pages[p - 1].End) << "no line is lost and none stands twice";
    }
    EXPECT_GE(pages.back().End - pages.back().First, 3u) << "the ruler at the end is not alone";
}

// On every page height of every example: pages follow each other and are not too long, no heading ends a page, no head
// of a table is torn.
TEST_F(ReportPages, NoHeadingStandsAloneAtThePagesEnd) {
    for (const char* example : {"OfficeBuilding", "WaterTower", "EccentricRaft", "TwoClayLayers", "PointLoad"}) {
        RunExample(example);
        const auto lines = ReportLinesOf(Session.ResultText);
        const auto tables = TablesOf(lines);
        const auto headings = HeadingsOf(lines);
        EXPECT_GE(headings.size(), 3u) << example;
        for (std::size_t perPage = 14; perPage < 80; ++perPage) {
            SCOPED_TRACE(std::string(example) + ", " + std::to_string(perPage) + " lines");
            const auto pages = PagesOf(lines, perPage);
            ASSERT_EQ(pages.front().First, 0u);
            ASSERT_EQ(pages.back().End, lines.size());
            for (std::size_t p = 1; p < pages.size(); ++p) {
                ASSERT_EQ(pages[p].First, pages[p - 1].End);
                ASSERT_LE(pages[p].Count(), perPage);
                const std::size_t at = pages[p].First;
                for (const TablePlace& table : tables)
                    EXPECT_FALSE(at > table.First && at <= table.Rows) << "before \"" << lines[at] << "\"";
                std::size_t last = at - 1;
                while (last > 0 && (lines[last].empty() || IsRuler(lines[last]))) --last;
                // A line with a colon above an empty one and below one is a heading of what follows.
                for (const HeadingPlace& heading : headings)
                    EXPECT_FALSE(heading.Level == 1 && heading.Line == last) << lines[last];
            }
        }
    }
}

TEST_F(ReportPages, HeadingsTellWhatTheReportHas) {
    RunExample("EccentricRaft");
    std::vector<std::string> texts;
    for (const HeadingPlace& heading : HeadingsOf(ReportLinesOf(Session.ResultText))) texts.push_back(heading.Text);
    EXPECT_THAT(texts, ElementsAre("Settlements under a rigid raft", "Data", "Soil properties",
                                   "Table T1: Contact pressure/ Contact force/ Settlement",
                                   "Table T2: Contact pressure/ Settlement"));
}

// --- from right to left ---

std::string RightToLeft(const std::string& line) {
    return DisplayTexts({line}, true).front();
}

TEST_F(ReportPages, NumbersAndUnitsAreKeptWholeBetweenIsolates) {
    EXPECT_EQ(RightToLeft("الهبوط 2.5"), "الهبوط \u20662.5\u2069");
    EXPECT_EQ(RightToLeft("الهبوط"), "الهبوط");
    EXPECT_EQ(RightToLeft(""), "");
    EXPECT_EQ(RightToLeft("   12   34"), "   \u206612\u2069   \u206634\u2069") << "cells stay apart";
    EXPECT_EQ(RightToLeft("1 2"), "\u20661\u2069 \u20662\u2069") << "cells one blank apart too";
    EXPECT_EQ(RightToLeft("21 November 2026"), "\u206621 November 2026\u2069") << "a phrase reads as one";
    EXPECT_EQ(RightToLeft("q-impossible: q = 7.5 kN/m² أكبر"),
              "\u2066q-impossible:\u2069 \u2066q = 7.5 kN/m²\u2069 أكبر")
        << "so does a formula, behind the name of its notice";
    EXPECT_EQ(RightToLeft("t - 1 الزمن"), "\u2066t - 1\u2069 الزمن");
    EXPECT_EQ(DisplayTexts({"a  1"}, false).front(), "a  1") << "other languages need nothing";
}

// A full stop or a bracket behind a value is the Arabic sentence's: it stands left of the value, not right of its unit.
TEST_F(ReportPages, SignsBehindAnIsolateAreLeftToTheSentence) {
    for (const std::string line : {"التكييف \u2066371492\u2069): يمكن", "متوسطه \u206680 kN/m²\u2069. لا يصح",
                                   "\u2066raft-tension\u2069: ينخفض", "(\u206636.56 %\u2069). عزمها"})
        EXPECT_EQ(RightToLeft(line), line);
    EXPECT_EQ(RightToLeft("إلى \u206612 m\u2069 وهو"), "إلى \u2066\u206612 m\u2069\u2069 وهو");
}

TEST_F(ReportPages, AParameterLineHasItsPartsOnTheirColumns) {
    // A pair lam-alef is drawn as one cell and a mark over a letter takes none; the symbol stands at its place.
    const auto lines = DisplayLines({"الأساس             Pt [kN] = 1.0", "الحمل شاملاً       Q  [m]  = 2.0"}, true);
    for (const DisplayLine& line : lines) {
        std::map<std::string, int> at;
        for (const DisplayPiece& piece : line.Pieces) at[piece.Text] = piece.Column;
        EXPECT_EQ(at.at("="), 27);
    }
    EXPECT_EQ(lines[0].Pieces[0].Cells, 5) << "six letters, two of them one";
}

TEST_F(ReportPages, DecimalSignsStandUnderEachOtherFromRightToLeft) {
    // Right-aligned on column 8: from right to left 10.25 keeps its cells, 9.5 goes under it by its sign.
    const std::vector<std::string> table = {"الجدول:",      "------------", "   الحمل    ", "------------",
                                            "   10.25    ", "     9.5    ", "------------"};
    const auto lines = DisplayLines(table, true);
    EXPECT_EQ(lines[4].Pieces[0].Column, 3);  // "10.25" ends with "5" at 3: its sign is 3 + 2 = column 5
    EXPECT_EQ(lines[5].Pieces[0].Column, 4);  // "9.5" from column 4: its sign is 4 + 1 = column 5
    for (const char* example : {"OfficeBuilding", "EccentricRaft", "TwoClayLayers", "WaterTower"}) {
        RunExample(example, Language::Arabic);
        const auto report = ReportLinesOf(Session.ResultText);
        const auto display = DisplayLines(report, true);
        for (const TablePlace& place : TablesOf(report)) {
            // The places of the signs, by the column of the table: all rows have the same numbers first.
            std::vector<std::set<int>> signs;
            for (std::size_t i = place.Rows; i + 1 < place.End; ++i) {
                std::size_t column = 0;
                for (const DisplayPiece& piece : display[i].Pieces) {
                    const auto sign = piece.Text.find('.');
                    if (piece.RightToLeft || sign == std::string::npos) continue;
                    if (signs.size() <= column) signs.emplace_back();
                    signs[column++].insert(piece.Column + piece.Cells - 1 - static_cast<int>(sign));
                }
            }
            for (const auto& places : signs) EXPECT_EQ(places.size(), 1u) << example;
            EXPECT_FALSE(signs.empty());
        }
    }
}

TEST_F(ReportPages, ALineForDisplayKeepsItsTextAndClosesEveryIsolate) {
    const auto squeezed = [](std::string text) {
        text = ReplaceAll(ReplaceAll(text, "\u2066", ""), "\u2069", "");
        std::string result;
        for (const char c : text)
            if (c != ' ' || (!result.empty() && result.back() != ' ')) result += c;
        return result;
    };
    for (const char* example : {"OfficeBuilding", "EccentricRaft", "PointLoad", "ClayUnderTank"}) {
        RunExample(example, Language::Arabic);
        const auto lines = ReportLinesOf(Session.ResultText), texts = DisplayTexts(lines, true);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_EQ(squeezed(texts[i]), squeezed(lines[i]));
            int open = 0;
            for (const char32_t c : CodePoints(texts[i])) {
                open += c == 0x2066 ? 1 : c == 0x2069 ? -1 : 0;
                ASSERT_TRUE(open == 0 || open == 1) << lines[i];
            }
            EXPECT_EQ(open, 0) << lines[i];
        }
    }
}

// No piece of a line covers another one, in any language.
TEST_F(ReportPages, PiecesStandBesideEachOther) {
    for (const Language language : {Language::German, Language::English, Language::Arabic})
        for (const char* example : {"OfficeBuilding", "EccentricRaft", "PointLoad", "BridgePier", "TwoClayLayers"}) {
            RunExample(example, language);
            const auto lines = ReportLinesOf(Session.ResultText);
            for (const DisplayLine& line : DisplayLines(lines, language == Language::Arabic)) {
                int end = 0;
                for (const DisplayPiece& piece : line.Pieces) {
                    EXPECT_GE(piece.Column, end) << piece.Text;
                    end = piece.Column + piece.Cells;
                }
            }
        }
}

}  // namespace
}  // namespace lithmark::tests
