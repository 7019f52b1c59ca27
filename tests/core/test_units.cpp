// Units, labels and number formats.
#include <gmock/gmock.h>

#include "base/NumberText.h"
#include "core/Units.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "support/Files.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

class Units : public testing::Test {
  protected:
    void SetUp() override { FreshSession(); }
    void TearDown() override {
        SharedServices().DecimalSign = '.';
        FreshSession();
    }
};

// --- derived units -------------------------------------------------------------------------------------------------

TEST_F(Units, InBaseUnitsEveryFactorIsOne) {
    for (long selector = 0; selector <= 11; ++selector) EXPECT_EQ(UnitFactor(selector), 1) << selector;
}

TEST_F(Units, FactorsFollowTheirFormulas) {
    // Powers of two, so that each product is exact: L1 = 2, L2 = 8, F1 = 32, F2 = 128.
    Session.Len1Factor = 2;
    Session.Len2Factor = 8;
    Session.Force1Factor = 32;
    Session.Force2Factor = 128;
    const double expected[] = {32.0 / 4, 32, 64, 32.0 / 8, 32.0 / 2, 16, 4, 64.0 / 2, 128.0 / 4, 64, 4, 2};
    for (long selector = 0; selector <= 11; ++selector) EXPECT_EQ(UnitFactor(selector), expected[selector]) << selector;
}

TEST_F(Units, WithLengthsInMillimetresAPressureIsAMillionthAndAUnitWeightABillionth) {
    Session.Len1Factor = 1000;
    EXPECT_EQ(UnitFactor(0), 0.000001);
    EXPECT_EQ(UnitFactor(3), 0.000000001);
    EXPECT_EQ(UnitFactor(10), 1000000);
    EXPECT_EQ(UnitFactor(11), 1000);
}

TEST_F(Units, WithLengthsInFeetAndForcesInKipsTheFactorsAreThoseOfTheTables) {
    Session.Len1Factor = 3.28083989501312;
    Session.Force1Factor = 0.224808923655339;
    // 1 kip = 4.4482216152605 kN; the table's factor is 9E-08 below that.
    constexpr double kKip = 1 / 4.4482216152605, kFoot = 0.3048;
    EXPECT_NEAR(UnitFactor(0) / (kKip * kFoot * kFoot), 1, 1e-7);
    EXPECT_NEAR(UnitFactor(3) / (kKip * kFoot * kFoot * kFoot), 1, 1e-7);
    EXPECT_NEAR(UnitFactor(10) * kFoot * kFoot, 1, 1e-14);
}

TEST_F(Units, AnotherSelectorGivesZeroAndEmptyBrackets) {
    for (const long selector : {-1L, 12L, 100000L}) {
        EXPECT_EQ(UnitFactor(selector), 0);
        EXPECT_EQ(UnitLabel(selector), "[]");
    }
}

TEST_F(Units, AQuantityHasTheFactorAndTheLabelOfItsUnit) {
    Session.Len1Factor = 10;
    Session.Len2Factor = 2;
    Session.Force1Factor = 3;
    const struct {
        Unit In;
        double Factor;
        const char* Label;
    } expected[] = {{Unit::None, 1, "[-]"},
                    {Unit::PerCent, 1, "[%]"},
                    {Unit::Length, 10, "[m]"},
                    {Unit::Settlement, 2, "[cm]"},
                    {Unit::Force, 3, "[kN]"},
                    {Unit::Pressure, 0.03, "[kN/m²]"},
                    {Unit::Moment, 30, "[kN.m]"},
                    {Unit::UnitWeight, 0.003, "[kN/m³]"},
                    {Unit::AreaPerTime, 100, "[m²/s]"},
                    {Unit::LengthPerTime, 10, "[m/s]"}};
    for (const auto& row : expected) {
        EXPECT_DOUBLE_EQ(FactorOf(row.In), row.Factor) << row.Label;
        EXPECT_EQ(LabelOf(row.In), row.Label);
    }
}

TEST_F(Units, ALengthFactorOfZeroUnderTheLineIsADivisionByZero) {
    Session.Len1Factor = 0;
    for (const long selector : {0L, 3L, 4L, 7L, 8L})
        EXPECT_EQ(KindOf([&] { UnitFactor(selector); }), FailureKind::DivisionByZero) << selector;
}

TEST_F(Units, LabelsAreBuiltFromTheLabelsInForce) {
    const char* expected[] = {"[kN/m²]", "[kN.m/m]", "[kN.m]",  "[kN/m³]",    "[kN/m]", "[m4]",
                              "[m²]",    "[cm²/m]",  "[MN/m²]", "[kN.m/rad]", "[m²/s]", "[m/s]"};
    for (long selector = 0; selector <= 11; ++selector) EXPECT_EQ(UnitLabel(selector), expected[selector]);
    Session.Len1Label = "[ft]";
    Session.Len2Label = "[in]";
    Session.Force1Label = "[kip]";
    Session.Force2Label = "[tonf]";
    const char* imperial[] = {"[kip/ft²]", "[kip.ft/ft]", "[kip.ft]",   "[kip/ft³]",    "[kip/ft]", "[ft4]",
                              "[ft²]",     "[in²/ft]",    "[tonf/ft²]", "[kip.ft/rad]", "[ft²/s]",  "[ft/s]"};
    for (long selector = 0; selector <= 11; ++selector) EXPECT_EQ(UnitLabel(selector), imperial[selector]);
}

TEST_F(Units, BracketsAreCutByCharactersAndNotByBytes) {
    Session.Len1Label = "«م»";  // brackets of two bytes, and a unit of two
    EXPECT_EQ(UnitLabel(11), "[م/s]");
    Session.Len1Label = "";
    EXPECT_EQ(UnitLabel(11), "[/s]");
    Session.Len1Label = "[]";
    EXPECT_EQ(UnitLabel(11), "[/s]");
}

// --- tables --------------------------------------------------------------------------------------------------------

void ExpectRows(std::span<const UnitRow> rows, std::initializer_list<UnitRow> expected) {
    ASSERT_EQ(rows.size(), expected.size());
    auto row = rows.begin();
    for (const UnitRow& e : expected) {
        EXPECT_EQ(row->Name.Number, e.Name.Number) << e.InFiles;
        EXPECT_EQ(row->UnitLabel.Number, e.UnitLabel.Number) << e.InFiles;
        EXPECT_STREQ(row->InFiles, e.InFiles);
        EXPECT_EQ(row->Factor, e.Factor) << e.InFiles;
        ++row;
    }
}

constexpr UnitRow Row(int name, int label, const char* inFiles, double factor) {
    return {TextId{name}, TextId{label}, inFiles, factor};
}

TEST_F(Units, TheTablesHoldTheirUnitsInOrder) {
    ExpectRows(LengthUnits(),
               {Row(34, 28, "[m]", 1), Row(35, 36, "[ft]", 3.28083989501312), Row(37, 38, "[in]", 39.3700787401575),
                Row(39, 40, "[cm]", 100), Row(41, 42, "[mm]", 1000), Row(43, 44, "[yd]", 1.09361329833771)});
    ExpectRows(ForceUnits(), {Row(45, 29, "[kN]", 1), Row(46, 47, "[N]", 1000), Row(48, 49, "[kgf]", 101.971621297793),
                              Row(50, 51, "[kip]", 0.224808923655339), Row(52, 53, "[lbf]", 224.808923655339),
                              Row(54, 55, "[tonf]", 0.112404474462434), Row(56, 57, "[kg]", 100),
                              Row(58, 59, "[ton]", 0.1), Row(60, 61, "[MN]", 0.001)});
    ExpectRows(TemperatureUnits(),
               {Row(63, 33, "[°C]", 1), Row(64, 30, "[°K]", 1), Row(65, 31, "[°F]", 1), Row(66, 32, "[°R]", 1)});
}

TEST_F(Units, TheLengthFactorsAreThoseOfTheInternationalFoot) {
    // 0.3048 m = 1 ft, 0.0254 m = 1 in, 0.9144 m = 1 yd.
    EXPECT_NEAR(LengthUnits()[1].Factor * 0.3048, 1, 1e-14);
    EXPECT_NEAR(LengthUnits()[2].Factor * 0.0254, 1, 1e-14);
    EXPECT_NEAR(LengthUnits()[5].Factor * 0.9144, 1, 1e-14);
}

TEST_F(Units, AllLanguagesHaveLabelsWithBracketsThatAreToldApart) {
    for (const Language language : {Language::German, Language::English, Language::Arabic, Language::Ids}) {
        LanguageTexts().SetCurrent(language);
        for (const auto units : {LengthUnits(), ForceUnits(), TemperatureUnits()}) {
            std::vector<std::string> labels;
            for (const UnitRow& unit : units) {
                const std::string label = Text(unit.UnitLabel);
                EXPECT_TRUE(label.starts_with('[') && label.ends_with(']')) << label;
                EXPECT_THAT(labels, testing::Not(testing::Contains(label)));
                labels.push_back(label);
            }
        }
    }
}

// --- numbers -------------------------------------------------------------------------------------------------------

TEST_F(Units, AnEmptyFormatGivesThePlainTextOfTheValueAsASingle) {
    EXPECT_EQ(FormatValue(1.25, ""), "1.25");
    EXPECT_EQ(FormatValue(0.5, ""), ".5");
    EXPECT_EQ(FormatValue(-0.5, ""), "-.5");
    EXPECT_EQ(FormatValue(12, ""), "12");
    EXPECT_EQ(FormatValue(0.0000015, ""), "1.5E-06");
    EXPECT_EQ(FormatValue(1.0 / 3, ""), ".33333334");  // the shortest text of the Single, not of the double
    EXPECT_EQ(KindOf([] { FormatValue(1e39, ""); }), FailureKind::Overflow);
}

// The format of dates, where a damaged file has it for a number.
TEST_F(Units, AFormatOfDatesTellsNumbersBeyondTheCalendarAsTheyAre) {
    EXPECT_EQ(*TextTools().DayNumber(100, 1, 1), kFirstDay);
    EXPECT_EQ(*TextTools().DayNumber(9999, 12, 31), kLastDay);
    EXPECT_EQ(FormatValue(25569, kLongDate), "Thursday, January 1, 1970");
    EXPECT_EQ(FormatValue(kLastDay, kLongDate), "Friday, December 31, 9999");
    EXPECT_EQ(FormatValue(kLastDay + 1.0, kLongDate), "2958466");
    EXPECT_EQ(FormatValue(-1e30, kLongDate), "-1E+30");
}

TEST_F(Units, APatternRoundsHalfAwayFromZero) {
    EXPECT_EQ(FormatValue(0.3125, "0.000"), "0.313");
    EXPECT_EQ(FormatValue(-0.04, "0.0"), "0.0");
    EXPECT_EQ(FormatValue(7854, Session.FmtForce), "7854.0");
}

TEST_F(Units, TheDecimalSignIsTheCurrentOneWithAndWithoutAPattern) {
    SharedServices().DecimalSign = ',';
    EXPECT_EQ(FormatValue(1.25, "0.00"), "1,25");
    EXPECT_EQ(FormatValue(0.001, ""), ",001");
    EXPECT_EQ(ParseNumber(FormatValue(0.001, ""), ','), 0.001);  // what a dialog shows it can read back
}

TEST_F(Units, LongDateTakesADayNumber) {
    const int day = TextTools().DayNumber(2026, 11, 21).value();
    EXPECT_EQ(FormatValue(day, "Long Date"), TextTools().LongDate(day));
    EXPECT_EQ(FormatValue(day + 0.75, "Long Date"), TextTools().LongDate(day));  // the time of day is cut
    EXPECT_THAT(FormatValue(day, "Long Date"), testing::AllOf(testing::HasSubstr("21"), testing::HasSubstr("2026")));
    for (const int far : {-1000000, 10000000})
        EXPECT_EQ(KindOf([&] { TextTools().LongDate(far); }), FailureKind::Overflow) << far;
}

// --- number formats ------------------------------------------------------------------------------------------------

TEST_F(Units, TheDefaultFormatsStandInTheOrderOfTheFile) {
    const char* expected[] = {"0.0",    "0.00",      "0.0",    "0.0",  "0.0",  "0.0",  "0.0", "0.00",  "0.00",
                              "0.0000", "0.0000000", "0.0000", "0.00", "0.00", "0.00", "0.0", "0.000", "0"};
    ASSERT_EQ(NumberFormats().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_STREQ(NumberFormats()[i].Default, expected[i]) << i;
        EXPECT_EQ(Session.*NumberFormats()[i].Field, expected[i]) << i;
    }
    EXPECT_EQ(NumberFormats()[0].Field, &SessionRecord::FmtForce);
    EXPECT_EQ(NumberFormats()[1].Field, &SessionRecord::FmtSettlement);
    EXPECT_EQ(NumberFormats()[2].Field, &SessionRecord::FmtStress);
    EXPECT_EQ(NumberFormats()[6].Field, &SessionRecord::FmtModulus);
    EXPECT_EQ(NumberFormats()[8].Field, &SessionRecord::FmtLength);
    EXPECT_EQ(NumberFormats()[9].Field, &SessionRecord::FmtStrain);
    EXPECT_EQ(NumberFormats()[10].Field, &SessionRecord::FmtPermeability);
    EXPECT_EQ(NumberFormats()[11].Field, &SessionRecord::FmtCv);
    EXPECT_EQ(NumberFormats()[12].Field, &SessionRecord::FmtRatio);
    EXPECT_EQ(NumberFormats()[13].Field, &SessionRecord::FmtTime);
    EXPECT_EQ(NumberFormats()[14].Field, &SessionRecord::FmtPercent);
    EXPECT_EQ(NumberFormats()[15].Field, &SessionRecord::FmtUnitWeight);
    EXPECT_EQ(NumberFormats()[17].Field, &SessionRecord::FmtDialogModulus);
}

std::string Adjusted(std::string format) {
    AdjustFormat(format);
    return format;
}

TEST_F(Units, AFormatIsMadeFinerWhenItIsOneCharacterOrHasAnExponentOrAPoint) {
    EXPECT_EQ(Adjusted("0"), "0000");
    EXPECT_EQ(Adjusted("0.0"), "0.0000");
    EXPECT_EQ(Adjusted("0E+00"), "0E+00000");
    EXPECT_EQ(Adjusted("0.0E+00"), "0.0E+00000");  // once, though it has both
    EXPECT_EQ(Adjusted("E"), "E000");
    EXPECT_EQ(Adjusted("."), ".000");
    EXPECT_EQ(Adjusted("²"), "²000");  // one character of two bytes
}

TEST_F(Units, OtherFormatsStay) {
    for (const char* format : {"", "00", "#,##0", "0e+00"}) EXPECT_EQ(Adjusted(format), format);
}

TEST_F(Units, TheFineFormatsComeFromForceAndStress) {
    EXPECT_EQ(Session.FmtForceFine, "0.0000");
    EXPECT_EQ(Session.FmtStressFine, "0.0000");
    Session.FmtForce = "0";
    Session.FmtStress = "00";
    DeriveNumberFormats();
    EXPECT_EQ(Session.FmtForceFine, "0000");
    EXPECT_EQ(Session.FmtStressFine, "00");
    EXPECT_EQ(Session.FmtForce, "0");
}

// --- the start -----------------------------------------------------------------------------------------------------

TEST_F(Units, ASessionStartsWithBaseUnitsDefaultsAndTheWordsOfTheLanguage) {
    Session.A = 17;
    Session.PrefND = 4;
    Session.Len1Factor = 1000;
    Session.ProjectName = "Old";
    LanguageTexts().SetCurrent(Language::German);
    StartSession();
    EXPECT_EQ(Session.A, 0.0);
    EXPECT_EQ(Session.ProjectName, "");
    EXPECT_EQ(Session.WorkName, "Unbenannt");
    EXPECT_EQ(Session.SymbolSuffix, Text(123_text));
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
    EXPECT_EQ(Session.Datum, TextTools().LongDateOfToday());
    EXPECT_EQ(Session.Len1Label + Session.Len2Label + Session.Force1Label + Session.Force2Label + Session.TempLabel,
              "[m][cm][kN][MN][°C]");
    EXPECT_EQ(Session.Len1Factor, 1);
    EXPECT_EQ(Session.PrefDx, Single(0.5));
    EXPECT_EQ(Session.PrefDy, Single(0.5));
    EXPECT_EQ(Session.PrefDz, Single(0.25));
    EXPECT_EQ(Session.PrefND, 12);
    EXPECT_EQ(Session.PrefTol, Single(0.001));
    EXPECT_EQ(Session.PrefImax, 1000);
}

}  // namespace
}  // namespace lithmark::tests
