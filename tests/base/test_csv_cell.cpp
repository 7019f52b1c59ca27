// Cells of a comma-separated table.
#include <gtest/gtest.h>

#include "base/CsvCell.h"

namespace lithmark::tests {
namespace {

TEST(CellOfACsvTable, IsQuotedWhereItsContentCallsForIt) {
    EXPECT_EQ(CsvCell("plain"), "plain");
    EXPECT_EQ(CsvCell("a, b"), "\"a, b\"");
    EXPECT_EQ(CsvCell("say \"it\""), "\"say \"\"it\"\"\"");
    EXPECT_EQ(CsvCell("two\nlines"), "\"two\nlines\"");
}

// Spreadsheets work out what looks like a formula; numbers are no formulas.
TEST(CellOfACsvTable, IsATextWhereItLooksLikeAFormula) {
    for (const char* formula : {"=1+1", "+cmd|x", "-A1", "@sum", "-2+3", "+A1 %"})
        EXPECT_EQ(CsvWords(formula), "'" + std::string(formula));
    for (const char* number : {"-3.5", "+24.0 %", "-19.3 %", "1E-06", "-1E-06", "-", "+"})
        EXPECT_EQ(CsvWords(number), number);
}

}  // namespace
}  // namespace lithmark::tests
