// A table of numbers while it is edited.
#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/model/TableEditing.h"

namespace lithmark::tests {
namespace {

using Rows = std::vector<std::vector<std::string>>;

class TableEditingTest : public FormTest {
  protected:
    static TableEditing Loads() {
        TableEdit table;
        table.Columns = {{"Time\nN\ndays", TableEdit::Kind::Whole, 32000, 1}, {"Load\nP\n[kN]", TableEdit::Kind::Real}};
        table.Rows = {{"1", "19.0"}, {"2", "42.1"}, {"4", "83.0"}};
        table.Digits = {{"1", "19"}, {"2", "42.125"}, {"4", "83"}};
        return TableEditing(table);
    }
};

TEST_F(TableEditingTest, OneCheckTellsWhyACellCannotBeTaken) {
    TableEditing rows = Loads();
    EXPECT_FALSE(rows.FirstFault());
    rows.SetCell(2, 0, "4.5");
    EXPECT_THAT(rows.Fault(2, 0).value(), HasSubstr("must be whole"));
    rows.SetCell(2, 0, "32001");
    EXPECT_THAT(rows.Fault(2, 0).value(), HasSubstr("too large"));
    rows.SetCell(2, 0, "");
    EXPECT_THAT(rows.Fault(2, 0).value(), HasSubstr("empty"));
    rows.SetCell(2, 1, "ab");
    EXPECT_THAT(rows.Fault(2, 1).value(), StartsWith("Load:"));
    EXPECT_EQ(rows.FirstFault()->Row, 2);
    EXPECT_EQ(rows.FirstFault()->Column, 0);
}

TEST_F(TableEditingTest, APositiveColumnTakesNothingBelowZero) {
    TableEdit table;
    table.Columns = {{"t", TableEdit::Kind::Positive}};
    table.Rows = {{"-0.5"}};
    TableEditing rows(table);
    EXPECT_TRUE(rows.Fault(0, 0));
    rows.SetCell(0, 0, "0");
    EXPECT_FALSE(rows.Fault(0, 0));
}

TEST_F(TableEditingTest, ACellThatHidesDigitsIsKnownUntilItIsTyped) {
    TableEditing rows = Loads();
    EXPECT_FALSE(rows.HidesDigits(0, 1));
    EXPECT_TRUE(rows.HidesDigits(1, 1));
    EXPECT_EQ(rows.AllDigits(1, 1), "42.125");
    EXPECT_EQ(rows.Copied(0, 0, 1, 1), "1\t19.0\n2\t42.125\n");
    rows.SetCell(1, 1, "42.1");  // the same text: nothing was typed
    EXPECT_TRUE(rows.HidesDigits(1, 1));
    rows.SetCell(1, 1, "42.2");
    EXPECT_FALSE(rows.HidesDigits(1, 1));
}

TEST_F(TableEditingTest, RowsComeGoAndMoveAndEachIsOneStepBack) {
    TableEditing rows = Loads();
    const Rows before = rows.Texts();
    rows.InsertRow(3);
    EXPECT_THAT(rows.Texts().back(), ElementsAre("5", "0"));
    EXPECT_TRUE(rows.MoveRows(1, 2, -1));
    EXPECT_EQ(rows.Cell(0, 0), "2");
    EXPECT_EQ(rows.Cell(2, 0), "1");
    EXPECT_FALSE(rows.MoveRows(0, 1, -1));
    EXPECT_TRUE(rows.MoveRows(0, 1, 1));
    EXPECT_EQ(rows.Cell(0, 0), "1");
    rows.DeleteRows(0, 1);
    EXPECT_EQ(rows.Rows(), 2);
    rows.DeleteRows(0, 1);  // one row stays, so this does nothing
    EXPECT_EQ(rows.Rows(), 2);
    for (int step = 0; step < 4; ++step) rows.Undo();
    EXPECT_EQ(rows.Texts(), before);
    EXPECT_FALSE(rows.CanUndo());
    rows.Redo();
    EXPECT_EQ(rows.Rows(), 4);
}

TEST_F(TableEditingTest, ABlockOfASpreadsheetIsOneStep) {
    TableEditing rows = Loads();
    const Rows before = rows.Texts();
    EXPECT_EQ(rows.Paste(1, 0, "Time\tLoad\r\n3\t12,5\r\n5\t50\r\n9\t100\r\n"),
              "3 rows pasted, decimal comma, head row left out");
    EXPECT_THAT(rows.Texts(), ElementsAre(ElementsAre("1", "19.0"), ElementsAre("3", "12.5"), ElementsAre("5", "50"),
                                          ElementsAre("9", "100")));
    EXPECT_FALSE(rows.FirstFault());
    rows.Undo();
    EXPECT_EQ(rows.Texts(), before);
}

TEST_F(TableEditingTest, TheDecimalSignOfABlockIsFoundFromAllOfIt) {
    SharedServices().DecimalSign = ',';
    TableEditing rows = Loads();
    EXPECT_EQ(rows.Paste(0, 0, "1;1.5\n2;3"), "2 rows pasted, decimal point");
    EXPECT_EQ(rows.Cell(0, 1), "1,5");
    // "1.500" and "2,5" in one block: the sign in force counts, and what it cannot read is marked.
    rows.Paste(0, 0, "1\t1.500\n2\t2,5\n");
    EXPECT_TRUE(rows.Fault(0, 1));
    EXPECT_FALSE(rows.Fault(1, 1));
}

TEST_F(TableEditingTest, WhatLiesBesideTheTableIsLeftOutAndAnEmptyTextDoesNothing) {
    TableEditing rows = Loads();
    EXPECT_EQ(rows.Paste(0, 0, ""), "");
    EXPECT_FALSE(rows.CanUndo());
    rows.Paste(0, 1, "7\t8\t9");
    EXPECT_THAT(rows.Texts().front(), ElementsAre("1", "7"));
    rows.Paste(0, 0, "words only");
    EXPECT_TRUE(rows.Fault(0, 0));
}

// The same number as in a box: "1,5" is one and a half in either sign, "1,500" only where the comma is the sign, since
// it may be fifteen hundred.
TEST_F(TableEditingTest, TheOtherDecimalSignIsReadWhereItCanMeanNothingElse) {
    EXPECT_EQ(SharedServices().NumberOf("1,5"), 1.5);
    EXPECT_EQ(SharedServices().NumberOf("-0,25"), -0.25);
    EXPECT_EQ(SharedServices().NumberOf("1,5e3"), 1500);
    EXPECT_FALSE(SharedServices().NumberOf("1,500"));
    EXPECT_FALSE(SharedServices().NumberOf("-12,500"));
    EXPECT_FALSE(SharedServices().NumberOf("+123,500"));
    // Nobody parts thousands so.
    EXPECT_EQ(SharedServices().NumberOf("0,125"), 0.125);
    EXPECT_EQ(SharedServices().NumberOf("-0,001"), -0.001);
    EXPECT_EQ(SharedServices().NumberOf(",333"), 0.333);
    EXPECT_EQ(SharedServices().NumberOf("1500,250"), 1500.25);
    EXPECT_EQ(SharedServices().NumberOf("012,345"), 12.345);
    EXPECT_FALSE(SharedServices().NumberOf("1,5,5"));
    EXPECT_FALSE(SharedServices().NumberOf("1,234.5"));
    EXPECT_THAT(SharedServices().TextFault("1,500", 2, 10, 0, "Width").value(), HasSubstr("decimal sign is \".\""));
    SharedServices().DecimalSign = ',';
    EXPECT_EQ(SharedServices().NumberOf("1,500"), 1.5);
    EXPECT_EQ(SharedServices().NumberOf("1.5"), 1.5);
    EXPECT_FALSE(SharedServices().NumberOf("1.500"));
    EXPECT_EQ(SharedServices().NumberOf("0.001"), 0.001);
}

}  // namespace
}  // namespace lithmark::tests
