// The text service: styles, replacements, languages.
#include <gtest/gtest.h>

#include <string>

#include "base/Utf8.h"
#include "services/texts/LanguageCodes.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark::tests {
namespace {

LanguageTextsService In(Language language) {
    LanguageTextsService service;
    service.SetCurrent(language);
    return service;
}

TEST(LanguageTextsTest, GivesTheTextInTheCurrentLanguage) {
    EXPECT_EQ(In(Language::German).Text(40081_text), "Setzung");
    EXPECT_EQ(In(Language::English).Text(40081_text), "Settlement");
    EXPECT_EQ(In(Language::Arabic).Text(40081_text), "الهبوط");
    EXPECT_EQ(In(Language::Ids).Text(40081_text), "T<40081>");
}

TEST(LanguageTextsTest, OneInstanceServesTheProcess) {
    const Language before = LanguageTexts().Current();
    LanguageTexts().SetCurrent(Language::German);
    EXPECT_EQ(Text(90029_text), "Steifemodul");
    LanguageTexts().SetCurrent(Language::English);
    EXPECT_EQ(Text(90029_text), "Modulus of Compressibility");
    LanguageTexts().SetCurrent(before);
}

TEST(LanguageTextsTest, Text140156NamesTheLanguage) {
    EXPECT_EQ(In(Language::German).Text(140156_text), "German");
    EXPECT_EQ(In(Language::English).Text(140156_text), "English");
    EXPECT_EQ(In(Language::Arabic).Text(140156_text), "Arabic");
    EXPECT_EQ(In(Language::Ids).Text(140156_text), "English");
}

TEST(LanguageTextsTest, OnlyArabicRunsFromRightToLeft) {
    EXPECT_TRUE(In(Language::Arabic).RightToLeft());
    EXPECT_FALSE(In(Language::German).RightToLeft());
    EXPECT_FALSE(In(Language::English).RightToLeft());
    EXPECT_FALSE(In(Language::Ids).RightToLeft());
}

TEST(LanguageTextsTest, AnUnknownNumberShowsItselfInEveryLanguage) {
    for (const Language language : {Language::German, Language::English, Language::Arabic, Language::Ids})
        EXPECT_EQ(In(language).Text(TextId{424242}, Style{4}), "?424242?");
}

TEST(LanguageTextsTest, ButtonsKeepTheirMnemonicAndPlainTextsLoseIt) {
    const auto german = In(Language::German);
    EXPECT_EQ(german.Text(111_text, Style{1}), "S&peichern");
    EXPECT_EQ(german.Text(111_text), "Speichern");
    EXPECT_EQ(german.Text(140096_text, Style{1}), "&Ergebnisse");
    EXPECT_EQ(german.Text(140096_text, Style{32}), "Ergebnisse");
    EXPECT_EQ(german.Text(140096_text, Style{7}), "Ergebnisse");
}

TEST(LanguageTextsTest, ButtonsThatOpenAFileDialogEndInThreeDots) {
    EXPECT_EQ(In(Language::German).Text(9_text, Style{3}), "&Speichern unter...");
    EXPECT_EQ(In(Language::German).Text(10016_text, Style{3}), "&Laden...");
    EXPECT_EQ(In(Language::English).Text(10016_text, Style{3}), "&Load...");
    EXPECT_EQ(In(Language::German).Text(9_text), "Speichern unter");
}

TEST(LanguageTextsTest, HeadingsEndInOneColon) {
    const auto english = In(Language::English);
    EXPECT_EQ(english.Text(140096_text, Style{4}), "Results:");
    EXPECT_EQ(english.Text(140095_text, Style{4}), "Data:");
    EXPECT_EQ(english.Text(140162_text, Style{4}), "Soil properties:");  // brings its own colon
    EXPECT_EQ(english.Text(140162_text), "Soil properties:");
}

TEST(LanguageTextsTest, HeadingLinesLeaveABlankBeforeTheirValue) {
    const auto german = In(Language::German);
    EXPECT_EQ(german.Text(11_text, Style{4}), "Auftrag: ");
    EXPECT_EQ(german.Text(12_text, Style{4}), "Datum: ");
    EXPECT_EQ(german.Text(95_text, Style{4}), "Projekt: ");
    EXPECT_EQ(german.Text(107_text, Style{4}), "Datei: ");  // a menu's heading too, so its mark goes
    EXPECT_EQ(german.Text(107_text, Style{1}), "&Datei");
    EXPECT_EQ(In(Language::Arabic).Text(107_text, Style{4}), "ملف: ");
}

TEST(LanguageTextsTest, ColumnTitlesAreBrokenByLineFeeds) {
    EXPECT_EQ(In(Language::English).Text(90098_text, Style{16}), "Contact\npressure");
    EXPECT_EQ(In(Language::English).Text(90098_text), "Contact pressure");
    EXPECT_EQ(In(Language::English).Text(300018_text, Style{16}), "Depth");  // short enough as it stands
}

TEST(LanguageTextsTest, PlaceHoldersAreReplaced) {
    const auto english = In(Language::English);
    EXPECT_EQ(english.Text(90001_text, {{"|1", "x"}}), "x-coordinate");
    EXPECT_EQ(english.Text(140180_text, Style{32}, {{"|1", "y"}, {"|2", "z"}}), "Shear stress in the y-z plane");
    EXPECT_EQ(english.Text(91_text, {{"|1", "1.0.0"}}), "Version 1.0.0");
    EXPECT_EQ(english.Text(91_text), "Version |1");
    EXPECT_EQ(english.Text(91_text, {{"", "never"}}), "Version |1");
}

// A directory may be called anything: what comes in is neither read as a mark nor as a place-holder.
TEST(LanguageTextsTest, WhatIsPutInStaysAsItIs) {
    EXPECT_EQ(In(Language::English).Text(190008_text, {{"|1", "C:\\R&D\\|2"}, {"|2", "no"}}),
              "The directory C:\\R&D\\|2 does not exist.");
}

TEST(LanguageTextsTest, ArabicKeepsAPathTogether) {
    EXPECT_EQ(In(Language::Arabic).Text(190008_text, {{"|1", "C:\\Daten"}}), "المجلد \u2066C:\\Daten\u2069 غير موجود.");
}

TEST(LanguageTextsTest, IdsShowTheNumberAndTheReplacementsWhateverTheStyle) {
    const auto ids = In(Language::Ids);
    for (const int style : {0, 1, 3, 4, 16, 32}) EXPECT_EQ(ids.Text(90098_text, Style{style}), "T<90098>") << style;
    EXPECT_EQ(ids.Text(90001_text, {{"|1", "x"}}), "T<90001>(x)");
    EXPECT_EQ(ids.Text(140180_text, Style{32}, {{"|1", "x"}, {"|2", "y"}}), "T<140180>(x,y)");
    EXPECT_EQ(ids.Text(10001_text), "T<10001>");
    EXPECT_EQ(ids.Text(11_text, Style{4}), "T<11>");
}

TEST(LanguageTextsTest, IdsKeepTheTextsThatTheProgramTakesApart) {
    const auto ids = In(Language::Ids);
    EXPECT_EQ(ids.Text(28_text), "[m]");
    EXPECT_EQ(ids.Text(33_text), "[°C]");
    EXPECT_EQ(ids.Text(42_text), "[mm]");
    EXPECT_EQ(ids.Text(61_text), "[MN]");
    EXPECT_EQ(ids.Text(75_text), "[rad]");
    EXPECT_EQ(ids.Text(76_text), "[s]");
    EXPECT_EQ(ids.Text(77_text), "²");
    EXPECT_EQ(ids.Text(78_text), "³");
    EXPECT_EQ(ids.Text(123_text), "");
    EXPECT_EQ(ids.Text(160020_text), "E");
    EXPECT_EQ(ids.Text(160017_text), "DejaVu Sans Mono");
    EXPECT_EQ(ids.Text(28_text, Style{4}), "[m]");
    EXPECT_EQ(ids.Text(34_text), "T<34>");  // the long name of a unit is an ordinary text
}

TEST(LanguageTextsTest, AxesHaveTheirOwnLettersInArabic) {
    for (const Language language : {Language::German, Language::English, Language::Ids}) {
        EXPECT_EQ(In(language).AxisName(Axis::X), "x");
        EXPECT_EQ(In(language).AxisName(Axis::Y), "y");
        EXPECT_EQ(In(language).AxisName(Axis::Z), "z");
    }
    EXPECT_EQ(In(Language::Arabic).AxisName(Axis::X), "س");
    EXPECT_EQ(In(Language::Arabic).AxisName(Axis::Y), "ص");
    EXPECT_EQ(In(Language::Arabic).AxisName(Axis::Z), "ع");
}

TEST(LanguageTextsTest, HeadingOfAReportFitsItsLine) {
    for (const Language language : {Language::German, Language::English, Language::Arabic, Language::Ids}) {
        const auto service = In(language);
        EXPECT_LE(CharacterCount(service.Text(160030_text)), 60u);
        EXPECT_LE(CharacterCount(service.Text(91_text, {{"|1", service.VersionText()}})), 60u);
        EXPECT_LE(CharacterCount(service.Text(90_text) + service.AuthorsText()), 60u);
    }
    EXPECT_EQ(In(Language::English).VersionText(), LITHMARK_VERSION);
    EXPECT_FALSE(In(Language::English).AuthorsText().empty());
}

TEST(LanguageCodesTest, EveryLanguageHasACodeAndIsFoundByIt) {
    for (const Language language : {Language::German, Language::English, Language::Arabic, Language::Ids})
        EXPECT_EQ(LanguageOfCode(LanguageCode(language)), language);
    EXPECT_STREQ(LanguageCode(Language::German), "de");
    EXPECT_STREQ(LanguageCode(Language::Arabic), "ar");
    EXPECT_STREQ(LanguageCode(Language::Ids), "ids");
    EXPECT_EQ(LanguageOfCode("fr"), Language::English);
    EXPECT_EQ(LanguageOfCode(""), Language::English);
}

TEST(LanguageCodesTest, NumbersForTextsAreEnglishToOthers) {
    EXPECT_STREQ(PublicLanguageCode(Language::Ids), "en");
    EXPECT_STREQ(PublicLanguageCode(Language::Arabic), "ar");
}

}  // namespace
}  // namespace lithmark::tests
