// Tables of a report: header rows, widths, gaps, rulers, cells.
#include <gtest/gtest.h>

#include "report/ToolLib.h"
#include "support/Files.h"
#include "support/Lines.h"
#include "support/Matchers.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class Table : public testing::Test {
  protected:
    void SetUp() override {
        FreshSession(Language::English);
        Session.ResultText.clear();
    }
    static std::vector<std::string> Report() {
        ReportTable();
        return ReportLinesOf(Session.ResultText);
    }
    static std::vector<std::string> Header(int column) {
        Matrix<std::string> header;
        BuildTableHeader(header);
        std::vector<std::string> cells;
        for (int row = 0; row <= Session.HeaderRows; ++row) cells.push_back(header(row, column));
        return cells;
    }
    // The printed gap of a table of two columns whose titles have these lengths.
    static int GapOfTwoColumns(int first, int second) {
        TableColumns(1, 0, "T");
        TableColumn(0, std::string(first, 'a'), "", "");
        TableColumn(1, std::string(second, 'b'), "", "");
        std::string ruler;
        Array<Integer> widths;
        PrintTableHeader(ruler, widths);
        EXPECT_EQ(ruler, std::string(widths(0) + widths(1), '-'));
        EXPECT_EQ(widths(0), first);
        return widths(1) - second;
    }
};

TEST_F(Table, IsTitleRulerHeaderRulerRowsRuler) {
    TableColumns(2, 2, "Load");
    TableColumn(0, "No.", "i", "[-]");
    TableColumn(1, "Time", "t", "[d]");
    TableColumn(2, "Load", "El", "[%]");
    Session.TableCells(1, 0) = "1";
    Session.TableCells(1, 1) = "0.50";
    Session.TableCells(1, 2) = "19.0";
    Session.TableCells(2, 0) = "2";
    Session.TableCells(2, 1) = "1.00";
    Session.TableCells(2, 2) = "42.0";
    // Widths 3, 4, 4; gap round((60 - 11) / 2) held to 6.
    EXPECT_THAT(Report(), ElementsAre("Load:",                    //
                                      "-----------------------",  //
                                      "No.      Time      Load",  //
                                      "  i         t        El",  //
                                      "[-]       [d]       [%]",  //
                                      "-----------------------",  //
                                      "  1      0.50      19.0",  //
                                      "  2      1.00      42.0",  //
                                      "-----------------------"));
    EXPECT_EQ(Session.HeaderRows, 2);  // reused for the last data row
}

TEST_F(Table, TakesItsRowsFromTheCellsNotFromTheRowCount) {
    TableColumns(1, 3, "T");
    TableColumn(0, "a", "", "");
    TableColumn(1, "b", "", "");
    Session.TableLastRow = 1;
    EXPECT_EQ(Report().size(), 1u + 3u + 3u + 1u);
}

TEST_F(Table, HasTitlesByNumberInTheStyleOfColumns) {
    TableColumns(1, 0, "T");
    TableColumn(0, 13_text, "", "");
    TableColumn(1, "13", "", "");  // a text of digits is no number here
    EXPECT_THAT(Header(0), ElementsAre("Point", "No."));
    EXPECT_THAT(Header(1), ElementsAre("13", ""));
    EXPECT_EQ(Session.ColumnTitles(0), Label("Point\nNo."));  // replaced in the state record too
}

TEST_F(Table, HangsTitlesFromTheTopAndTrimsTheirPieces) {
    TableColumns(1, 0, "T");
    TableColumn(0, "one\n two \nthree", "", "");
    TableColumn(1, "single", "", "");
    EXPECT_THAT(Header(0), ElementsAre("one", "two", "three"));
    EXPECT_THAT(Header(1), ElementsAre("single", "", ""));
}

TEST_F(Table, HasAnEmptyHeaderRowForALineFeedAtTheEndOfATitle) {
    TableColumns(1, 0, "T");
    TableColumn(0, "a\n", "s", "[m]");
    TableColumn(1, "b", "", "");
    EXPECT_THAT(Header(0), ElementsAre("a", "", "s", "[m]"));
}

TEST_F(Table, HasNoRowsForSymbolsAndUnitsThatNoColumnHas) {
    TableColumns(1, 0, "T");
    TableColumn(0, "a", "", "");
    TableColumn(1, "b", "", {});
    EXPECT_THAT(Header(0), ElementsAre("a"));
}

TEST_F(Table, HasASymbolsRowWithoutUnits) {
    TableColumns(1, 0, "T");
    TableColumn(0, "a", "", "");
    TableColumn(1, "b", "s", "");
    EXPECT_THAT(Header(1), ElementsAre("b", "s"));
}

TEST_F(Table, HasAUnitsRowWithoutSymbols) {
    TableColumns(1, 0, "T");
    TableColumn(0, "a", "", "");
    TableColumn(1, "b", "", "[%]");
    EXPECT_THAT(Header(0), ElementsAre("a", ""));
    EXPECT_THAT(Header(1), ElementsAre("b", "[%]"));
}

TEST_F(Table, CountsASingleBlankAsAUnit) {
    TableColumns(1, 0, "T");
    TableColumn(0, "a", "", "");
    TableColumn(1, " ", "", " ");
    EXPECT_THAT(Header(1), ElementsAre("", " "));
}

TEST_F(Table, LooksUpUnitsGivenByNumber) {
    TableColumns(1, 0, "T");
    TableColumn(0, "a", "", 0L);
    TableColumn(1, "b", "", 3L);
    EXPECT_THAT(Header(0), ElementsAre("a", "[kN/m²]"));
    EXPECT_THAT(Header(1), ElementsAre("b", "[kN/m³]"));
}

TEST_F(Table, HasNoUnitsRowForTheUnitNumberZeroAlone) {
    TableColumns(1, 0, "T");
    TableColumn(0, "a", "", 0L);
    TableColumn(1, "b", "", "");
    EXPECT_THAT(Header(0), ElementsAre("a"));
}

TEST_F(Table, AppendsNoSuffixToItsSymbols) {
    Session.SymbolSuffix = "()";
    TableColumns(1, 0, "T");
    TableColumn(0, "a", "s", "");
    TableColumn(1, "b", "", "");
    EXPECT_THAT(Header(0), ElementsAre("a", "s"));
}

TEST_F(Table, OfTwoColumnsHasAGapOfAtMostSix) {
    EXPECT_EQ(GapOfTwoColumns(1, 1), 6);
    EXPECT_EQ(GapOfTwoColumns(30, 24), 6);
    EXPECT_EQ(GapOfTwoColumns(30, 25), 5);
}

TEST_F(Table, WiderThanTheLineHasAGapOfOneAndALongerRuler) {
    EXPECT_EQ(GapOfTwoColumns(30, 30), 1);
    EXPECT_EQ(GapOfTwoColumns(40, 40), 1);
}

TEST_F(Table, RoundsHalfAGapToTheEvenNumber) {
    const auto gap = [](int sum) {
        TableColumns(2, 0, "T");
        TableColumn(0, std::string(static_cast<std::size_t>(sum - 2), 'a'), "", "");
        TableColumn(1, "b", "", "");
        TableColumn(2, "c", "", "");
        std::string ruler;
        Array<Integer> widths;
        PrintTableHeader(ruler, widths);
        return widths(1) - 1;
    };
    EXPECT_EQ(gap(55), 2);  // 2.5
    EXPECT_EQ(gap(53), 4);  // 3.5
    EXPECT_EQ(gap(59), 1);  // 0.5 is 0, held to 1
}

TEST_F(Table, OfOneColumnIsADivisionByZero) {
    TableColumns(0, 0, "T");
    TableColumn(0, "a", "", "");
    EXPECT_EQ(KindOf([] { ReportTable(); }), FailureKind::DivisionByZero);
}

TEST_F(Table, ReplacesTheExponentLetterInAllColumnsButTheFirst) {
    LanguageTexts().SetCurrent(Language::Ids);
    ASSERT_EQ(Text(160020_text), "E");
    TableColumns(1, 1, "T");
    TableColumn(0, "aaaaaaa", "", "");
    TableColumn(1, "bbbbbbbbbbbb", "", "");
    Session.TableCells(1, 0) = "1E-05";
    Session.TableCells(1, 1) = "1E-05 End";
    EXPECT_EQ(Report()[4], "  1E-05         1E-05 End");
}

TEST_F(Table, CellWiderThanItsColumnRunsOutOfLine) {
    TableColumns(2, 1, "T");
    TableColumn(0, "a", "", "");
    TableColumn(1, "b", "", "");
    TableColumn(2, "c", "", "");
    Session.TableCells(1, 0) = "12";
    Session.TableCells(1, 1) = "1234567890";
    Session.TableCells(1, 2) = "x";
    EXPECT_EQ(Report()[4], "121234567890      x");
}

TEST_F(Table, MeasuresItsHeaderInCharacters) {
    TableColumns(1, 1, "T");
    TableColumn(0, "größe", "", "");
    TableColumn(1, "²", "", "");
    Session.TableCells(1, 0) = "ä";
    Session.TableCells(1, 1) = "b";
    EXPECT_EQ(Report()[2], "größe      ²");
    EXPECT_EQ(ReportLinesOf(Session.ResultText)[4], "    ä      b");
}

TEST(LamAlef, CountsLamWithEachOfTheFourAlefForms) {
    EXPECT_EQ(LigatureCount("لا"), 1);
    EXPECT_EQ(LigatureCount("لإ"), 1);
    EXPECT_EQ(LigatureCount("لأ"), 1);
    EXPECT_EQ(LigatureCount("لآ"), 1);
    EXPECT_EQ(LigatureCount("ال"), 0);
    EXPECT_EQ(LigatureCount("لل"), 0);
    EXPECT_EQ(LigatureCount("لالا"), 2);
    EXPECT_EQ(LigatureCount("ل ا"), 0);
    EXPECT_EQ(LigatureCount("Load"), 0);
    EXPECT_EQ(LigatureCount(""), 0);
}

TEST_F(Table, PutsOneBlankMoreBeforeATitleForEachLamAlef) {
    TableColumns(1, 1, "T");
    TableColumn(0, "ab", "", "");
    TableColumn(1, "لالا", "", "");
    Session.TableCells(1, 0) = "1";
    Session.TableCells(1, 1) = "لالا";
    // Width 4, gap 6: six blanks, and two more for the two pairs. Neither the ruler nor the cell changes.
    const std::vector<std::string> report = Report();
    EXPECT_EQ(report[1], "------------");
    EXPECT_EQ(report[2], "ab        لالا");
    EXPECT_EQ(report[4], " 1      لالا");
}

TEST_F(Table, HasATitleOfItsOwnAndALineOfDashes) {
    ReportSectionTitle("T1");
    EXPECT_EQ(Session.ResultText, "Table T1\r\n----------\r\n");
}

}  // namespace
}  // namespace lithmark::tests
