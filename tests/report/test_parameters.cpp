// The parameter block of a report: label, symbol, unit, "=", value.
#include <gtest/gtest.h>

#include "report/ToolLib.h"
#include "support/Lines.h"
#include "support/Matchers.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class Parameters : public testing::Test {
  protected:
    void SetUp() override {
        FreshSession(Language::Ids);
        AddParameter();
        ReportParameters();  // leaves erased lists
        Session.ResultText.clear();
    }
    static std::vector<std::string> Report() {
        ReportParameters();
        return ReportLinesOf(Session.ResultText);
    }
};

TEST_F(Parameters, AreAlignedInOneBlock) {
    AddParameter("Load", "Pt", "[kN]", 6350.0, "0.0");
    AddParameter("Layer thickness", "h", "[m]", 8.0, "0.00");
    // 60 - 2 - 4 - 6 - 15 = 33 blanks would fit; the gap is 8.
    EXPECT_THAT(Report(), ElementsAre("Load                   Pt [kN] = 6350.0",  //
                                      "Layer thickness        h  [m]  = 8.00"));
}

TEST_F(Parameters, StartWithAnEmptyLineForTheSlotThatClearingLeaves) {
    ClearParameters();
    AddParameter("a line");
    EXPECT_THAT(Report(), ElementsAre("", "a line"));
}

TEST_F(Parameters, OfAClearedBlockAreOneEmptyLine) {
    ClearParameters();
    EXPECT_THAT(Report(), ElementsAre(""));
}

TEST_F(Parameters, StartAtTheFirstLineAfterABlockWasReported) {
    AddParameter("first");
    ReportParameters();
    AddParameter("second");
    EXPECT_THAT(Report(), ElementsAre("first", "second"));
}

TEST_F(Parameters, OfTwoBlocksHaveOneEmptyLineBetweenThem) {
    AddParameter("first");
    ReportParameters();
    AddParameter();
    AddParameter("second");
    EXPECT_THAT(Report(), ElementsAre("first", "", "second"));
}

TEST_F(Parameters, WithLabelsAloneStandAtTheLeftMarginWithoutAnEqualsSign) {
    AddParameter("a heading");
    AddParameter(Ruler());
    AddParameter(101_text);
    EXPECT_THAT(Report(), ElementsAre("a heading", std::string(60, '-'), "T<101>"));
}

TEST_F(Parameters, TakeALabelOfDigitsForATextNumber) {
    AddParameter("101");
    AddParameter("101 a");
    EXPECT_THAT(Report(), ElementsAre("T<101>", "101 a"));
}

TEST_F(Parameters, MeasureLinesOfTextToo) {
    AddParameter(std::string(20, 'x'));
    AddParameter("a", "b", "[m]", 1.0, "0");
    // The label column is 20 wide; gap 8.
    EXPECT_THAT(Report(), ElementsAre(std::string(20, 'x'), "a" + std::string(27, ' ') + "b [m] = 1"));
}

TEST_F(Parameters, HaveAGapOfOneWhenTheColumnsFillTheLine) {
    AddParameter(std::string(60, 'x'));
    AddParameter("a", "b", "[m]", 1.0, "0");
    EXPECT_THAT(Report(), ElementsAre(std::string(60, 'x'), "a" + std::string(60, ' ') + "b [m] = 1"));
}

TEST_F(Parameters, HaveTheGapThatFillsTheLine) {
    AddParameter(std::string(50, 'x'), "b", "[m]", 1.0, "0");
    // 60 - 1 - 3 - 1 - 50 = 5; the blank and " = " around the unit are not counted.
    EXPECT_THAT(Report(), ElementsAre(std::string(50, 'x') + std::string(5, ' ') + "b [m] = 1"));
}

TEST_F(Parameters, PrintTheValueZeroWithItsFormat) {
    AddParameter("x", "x", "[m]", 0.0, "0.00");
    EXPECT_THAT(Report(), ElementsAre("x        x [m] = 0.00"));
}

TEST_F(Parameters, OfANumberWithoutUnitGetTheDimensionlessMark) {
    AddParameter("Ratio", "eo", "", 0.85, "0.00");
    AddParameter("Ratio", "eo", "", "text");
    EXPECT_THAT(Report(), ElementsAre("Ratio        eo [-] = 0.85", "Ratio        eo [-] = text"));
}

TEST_F(Parameters, WithAnEmptyTextAsValueAreLabelAndSymbol) {
    Session.SymbolSuffix = ":";
    AddParameter("Ratio", "eo", "", "");
    AddParameter("Length", "a", "[m]", 5.0, "0.0");
    // The unit stays empty, no "[-]"; the symbol still has its suffix.
    EXPECT_THAT(Report(), ElementsAre("Ratio         eo:", "Length        a:  [m] = 5.0"));
}

TEST_F(Parameters, WithAnEmptyTextAsValueDoNotWidenTheUnits) {
    AddParameter("Ratio", "e", "", "");
    AddParameter("Length", "a", "m", 5.0, "0.0");
    EXPECT_THAT(Report(), ElementsAre("Ratio         e", "Length        a m = 5.0"));
}

TEST_F(Parameters, WithoutValueTakeNoPartInTheWidths) {
    AddParameter("a", "a long symbol", "[a long unit]");
    AddParameter("b", "c", "[m]", 1.0, "0");
    EXPECT_THAT(Report(), ElementsAre("a", "b        c [m] = 1"));
}

TEST_F(Parameters, FormatAValueThatIsATextOfDigits) {
    AddParameter("Time", "t", "[d]", "12", "0.00");
    AddParameter("Date", "d", "[-]", "12.5.", "0.00");
    EXPECT_THAT(Report(), ElementsAre("Time        t [d] = 12.00", "Date        d [-] = 12.5."));
}

TEST_F(Parameters, WithoutFormatPrintThePlainTextOfTheSingle) {
    AddParameter("Cc", "Cc", "[-]", 0.16);
    AddParameter("Cc", "Cc", "[-]", Single(0.16));
    EXPECT_THAT(Report(), ElementsAre("Cc        Cc [-] = .16", "Cc        Cc [-] = .16"));
}

TEST_F(Parameters, AppendTheSuffixToEverySymbolWithAValue) {
    Session.SymbolSuffix = "()";
    AddParameter("a", "Sc", "[cm]", 1.0, "0");
    AddParameter("a label");
    EXPECT_THAT(Report(), ElementsAre("a              Sc() [cm] = 1", "a label"));
}

TEST_F(Parameters, AreMeasuredInCharacters) {
    AddParameter("Fröhlich", "σ", "[kN/m²]", 1.0, "0");
    AddParameter("Terzaghi", "s", "[m]", 1.0, "0");
    EXPECT_THAT(Report(), ElementsAre("Fröhlich        σ [kN/m²] = 1", "Terzaghi        s [m]     = 1"));
}

TEST_F(Parameters, BeginValuesAtOneColumnHoweverLongTheyAre) {
    AddParameter("a", "b", "[m]", 1.0, "0.0");
    AddParameter("a", "b", "[m]", -123456.0, "0.0");
    EXPECT_THAT(Report(), ElementsAre("a        b [m] = 1.0", "a        b [m] = -123456.0"));
}

TEST_F(Parameters, OfASectionBeginWithAnEmptyLineAndTheHeading) {
    LanguageTexts().SetCurrent(Language::English);
    AddSection(140095_text);
    AddSection(140162_text);
    EXPECT_THAT(Report(), ElementsAre("", "Data:", "", "Soil properties:"));
}

}  // namespace
}  // namespace lithmark::tests
