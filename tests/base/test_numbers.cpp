#include <gtest/gtest.h>

#include "base/Integer.h"
#include "base/NumberText.h"
#include "base/Utf8.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

TEST(Single, RoundsToThe32BitValueWhenAssigned) {
    const Single cc = 0.16;
    EXPECT_EQ(static_cast<double>(cc), 0.1599999964237213);
    EXPECT_EQ(static_cast<double>(PI), 3.1415927410125732);
}

TEST(Single, FailsOnValuesThatAreNotFinite) {
    EXPECT_EQ(KindOf([] {
                  Single s = 1e39;
                  (void)s;
              }),
              FailureKind::Overflow);
    EXPECT_EQ(KindOf([] {
                  Single s = std::nan("");
                  (void)s;
              }),
              FailureKind::InvalidArgument);
    EXPECT_EQ(KindOf([] { Quotient(1, 0); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { Ln(0); }), FailureKind::InvalidArgument);
    EXPECT_EQ(KindOf([] { Sqrt(-1); }), FailureKind::InvalidArgument);
    EXPECT_EQ(KindOf([] { Power(0, -1); }), FailureKind::DivisionByZero);
    EXPECT_EQ(KindOf([] { Exp(1000); }), FailureKind::Overflow);
}

TEST(Integer, RoundsHalvesToEvenAndFailsBeyond16Bits) {
    EXPECT_EQ(Integer::Rounded(2.5), 2);
    EXPECT_EQ(Integer::Rounded(3.5), 4);
    EXPECT_EQ(Integer::Rounded(-2.5), -2);
    EXPECT_EQ(KindOf([] {
                  Integer i = 32768;
                  (void)i;
              }),
              FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { Integer::Rounded(32767.5); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] {
                  Integer i = 32767;
                  ++i;
              }),
              FailureKind::Overflow);
}

TEST(NumberToText, IsTheShortestTextWithoutALeadingZero) {
    EXPECT_EQ(NumberToText(Single(0.16)), ".16");
    EXPECT_EQ(NumberToText(Single(-0.5)), "-.5");
    EXPECT_EQ(NumberToText(Single(1.25)), "1.25");
    EXPECT_EQ(NumberToText(Single(7854)), "7854");
    EXPECT_EQ(NumberToText(Single(0)), "0");
    EXPECT_EQ(NumberToText(Single(0.0000015)), "1.5E-06");
    EXPECT_EQ(NumberToText(Single(0.0001)), ".0001");
    EXPECT_EQ(NumberToText(Single(0.00001)), "1E-05");
    EXPECT_EQ(NumberToText(Single(9999999)), "9999999");
    EXPECT_EQ(NumberToText(Single(1e7)), "1E+07");
    EXPECT_EQ(NumberToText(Single(-1.2345e20)), "-1.2345E+20");
    EXPECT_EQ(NumberToText(39.3700787401575), "39.3700787401575");
}

TEST(FormatNumber, RoundsHalfAwayFromZeroByTheExactValue) {
    EXPECT_EQ(FormatNumber(0.3125, "0.000"), "0.313");
    EXPECT_EQ(FormatNumber(-0.3125, "0.000"), "-0.313");
    EXPECT_EQ(FormatNumber(2.5, "0"), "3");
    EXPECT_EQ(FormatNumber(0.125, "0.00"), "0.13");
    EXPECT_EQ(FormatNumber(Single(1.005), "0.00"), "1.00");  // the Single is 1.00499999523162841796875
    EXPECT_EQ(FormatNumber(999.95, "0.0"), "1000.0");        // the double is 999.950000000000045...
    EXPECT_EQ(FormatNumber(Single(16777216), "0.0"), "16777216.0");
}

TEST(FormatNumber, PrintsNoSignForANegativeValueThatRoundsToZero) {
    EXPECT_EQ(FormatNumber(-0.04, "0.0"), "0.0");
    EXPECT_EQ(FormatNumber(-0.05, "0.0"), "-0.1");  // the double is a little above 0.05 in magnitude
}

TEST(FormatNumber, KnowsTheOtherPlacesOfAPattern) {
    EXPECT_EQ(FormatNumber(1234567.891, "#,##0.00"), "1,234,567.89");
    EXPECT_EQ(FormatNumber(0.5, "#.##"), ".5");
    EXPECT_EQ(FormatNumber(5, "0.##"), "5.");
    EXPECT_EQ(FormatNumber(0.256, "0.0%"), "25.6%");
    EXPECT_EQ(FormatNumber(12345, "0.00E+00"), "1.23E+04");
    EXPECT_EQ(FormatNumber(0.00099999, "0.00E+00"), "1.00E-03");
    EXPECT_EQ(FormatNumber(0, "0.0E+00"), "0.0E+00");
    EXPECT_EQ(FormatNumber(1.5, "0.0", ','), "1,5");
    EXPECT_EQ(FormatNumber(7, "00.0"), "07.0");
    EXPECT_EQ(FormatNumber(7, "text"), "text");
}

TEST(FormatNumber, FailsOnValuesThatAreNotFinite) {
    EXPECT_EQ(KindOf([] { FormatNumber(HUGE_VAL, "0.0"); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { FormatNumber(-HUGE_VAL, "0.00E+00"); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { FormatNumber(1e307, "0.0%"); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { FormatNumber(std::nan(""), "0"); }), FailureKind::InvalidArgument);
}

TEST(ParseNumber, TakesPlainAndExponentFormsAndRefusesAnythingElse) {
    EXPECT_EQ(ParseNumber(" 1.5E-06 "), 1.5e-6);
    EXPECT_EQ(ParseNumber(".5"), 0.5);
    EXPECT_EQ(ParseNumber("+3"), 3.0);
    EXPECT_EQ(ParseNumber("1,5", ','), 1.5);
    EXPECT_EQ(ParseNumber("1D2"), 100.0);
    for (const char* bad : {"", " ", "abc", "1.2.3", "1 2", "--1", "+-1", "inf", "nan", "0x10", "1e400", "1,5", "1e"})
        EXPECT_FALSE(ParseNumber(bad)) << bad;
    EXPECT_FALSE(ParseNumber("1.5", ','));
}

TEST(Utf8, CountsCharactersNotBytes) {
    EXPECT_EQ(CharacterCount("Fröhlich"), 8u);
    EXPECT_EQ(CharacterCount("هبوط"), 4u);
    EXPECT_EQ(CharacterCount("\xff\xfe"), 2u);
    EXPECT_EQ(FirstCharacters("öäü", 2), "öä");
    EXPECT_TRUE(IsUtf8("²³"));
    EXPECT_FALSE(IsUtf8("\xe4"));
    EXPECT_FALSE(IsUtf8("\xc0\x80"));
}

}  // namespace
}  // namespace lithmark::tests
