// Directories, units, company lines, language, and the store behind them.
#include "services/ServicesTest.h"
#include "support/Matchers.h"
#include "support/System.h"

namespace lithmark::tests {
namespace {

class Settings : public ServicesTest {};

// --- the store -----------------------------------------------------------------------------------------------------

TEST_F(Settings, ValuesOfEveryTypeComeBack) {
    SharedServices().SaveSetting("App", "Settings", "File Bar", false);
    SharedServices().SaveSetting("App", "Settings", "Count", 70000L);
    SharedServices().SaveSetting("App", "Other", "File Bar", std::string("Größe \"1\"\nمشروع"));
    EXPECT_FALSE(SharedServices().GetSetting("App", "Settings", "File Bar", true));
    EXPECT_EQ(SharedServices().GetSetting("App", "Settings", "Count", 1L), 70000);
    EXPECT_EQ(SharedServices().GetSetting("App", "Other", "File Bar", ""), "Größe \"1\"\nمشروع");
    SharedServices().SaveSetting("App", "Settings", "File Bar", true);
    EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "File Bar", false));
    EXPECT_THAT(folder.Names(), ElementsAre("settings.json"));
}

TEST_F(Settings, WhatIsMissingOrOfAnotherTypeGivesTheDefault) {
    EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "File Bar", true));
    SharedServices().SaveSetting("App", "Settings", "File Bar", std::string("yes"));
    EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "File Bar", true));
    EXPECT_EQ(SharedServices().GetSetting("App", "Settings", "File Bar", 3L), 3);
    EXPECT_EQ(SharedServices().GetSetting("Another", "Settings", "File Bar", "none"), "none");
}

TEST_F(Settings, ADamagedStoreIsSetAsideToldOnceAndDefaultsServe) {
    for (const std::string& damage : {std::string("{\"App\": {"), std::string("[1, 2]"), std::string(),
                                      std::string("\0\xFF\x80junk", 7), std::string(200000, '[')}) {
        WriteBytes(folder / "settings.json", damage);
        host.Messages.clear();
        EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "File Bar", true));
        EXPECT_EQ(ReadBytes(folder / "settings.json.damaged"), damage);
        SharedServices().SaveSetting("App", "Settings", "File Bar", false);
        EXPECT_FALSE(SharedServices().GetSetting("App", "Settings", "File Bar", true));
        ASSERT_THAT(host.Messages, SizeIs(1));
        EXPECT_THAT(host.LastMessage().Text, HasSubstr("settings.json.damaged"));
    }
}

TEST_F(Settings, SectionsOfAnUnexpectedShapeDoNoHarm) {
    WriteBytes(folder / "settings.json", R"({"App": 5, "Other": {"Settings": [1], "Key": {}}})");
    EXPECT_EQ(SharedServices().GetSetting("App", "Settings", "Key", "d"), "d");
    EXPECT_EQ(SharedServices().GetSetting("Other", "Settings", "Key", "d"), "d");
    SharedServices().SaveSetting("App", "Settings", "Key", std::string("v"));
    EXPECT_EQ(SharedServices().GetSetting("App", "Settings", "Key", "d"), "v");
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(Settings, AStoreThatCannotBeWrittenIsToldOnce) {
    std::filesystem::create_directory(folder / "settings.json");
    SharedServices().SaveSetting("App", "Settings", "A", true);
    SharedServices().SaveSetting("App", "Settings", "B", true);
    ASSERT_THAT(host.Messages, SizeIs(1));
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("settings.json"));
    EXPECT_FALSE(SharedServices().GetSetting("App", "Settings", "A", false));
}

// What cannot be read may hold everything that its user set.
TEST_F(Settings, AStoreThatCannotBeReadIsToldOnceAndNotReplaced) {
    LITHMARK_NEEDS(SymbolicLinks);
    SharedServices().SaveSetting("App", "Settings", "A", true);
    const std::string store = ReadBytes(folder / "settings.json");
    std::filesystem::rename(folder / "settings.json", folder / "real");
    std::filesystem::create_symlink("settings.json", folder / "settings.json");  // a ring of links
    EXPECT_FALSE(SharedServices().GetSetting("App", "Settings", "A", false));
    SharedServices().SaveSetting("App", "Settings", "A", false);
    SharedServices().SaveSetting("App", "Settings", "B", false);
    ASSERT_THAT(host.Messages, SizeIs(1));
    EXPECT_THAT(host.LastMessage().Text, AllOf(HasSubstr("settings.json"), HasSubstr("stay as they are")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "settings.json"));
    std::filesystem::rename(folder / "real", folder / "settings.json");
    EXPECT_EQ(ReadBytes(folder / "settings.json"), store);
    EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "A", false));
}

TEST_F(Settings, AStoreOfBracketsInBracketsTakesNoMemory) {
    const std::string deep = "{\"a\":" + std::string(3000000, '[');
    WriteBytes(folder / "settings.json", deep);
    EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "A", true));
    EXPECT_EQ(ReadBytes(folder / "settings.json.damaged"), deep);
    WriteBytes(folder / "settings.json", R"({"App": {"Settings": {"A": "[[[[[[[[[[[[[[[[[[[[\"[[[[[["}}})");
    EXPECT_EQ(SharedServices().GetSetting("App", "Settings", "A", ""), "[[[[[[[[[[[[[[[[[[[[\"[[[[[[");
}

TEST_F(Settings, AHugeStoreIsNotRead) {
    WriteBytes(folder / "settings.json", "{}");
    MakeLarge(folder / "settings.json", std::uint64_t{600} << 30);
    EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "A", true));
    SharedServices().SaveSetting("App", "Settings", "A", false);
    ASSERT_THAT(host.Messages, SizeIs(1));
    EXPECT_EQ(std::filesystem::file_size(folder / "settings.json"), std::uintmax_t{600} << 30);
}

TEST_F(Settings, TheStoresFolderIsMadeWhenItIsNeeded) {
    SharedServices().UseSettingsDirectory(folder / "new/deep");
    SharedServices().SaveSetting("App", "Settings", "A", true);
    EXPECT_TRUE(SharedServices().GetSetting("App", "Settings", "A", false));
}

// --- directories ---------------------------------------------------------------------------------------------------

TEST_F(Settings, WithoutTheSettingFileTheDataLieInTheProgramDirectory) {
    const Directories directories = SharedServices().GetDirectories();
    EXPECT_EQ(directories.ProgramDir, folder.Dir());
    EXPECT_EQ(directories.DataDir, folder.Dir());
    EXPECT_EQ(directories.CompressFlag, 2);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(Settings, TheSettingFileTellsDataDirectoryAndPacking) {
    WriteBytes(folder / "STEU", "/data/projects\r\n7\r\n");
    Directories directories = SharedServices().GetDirectories();
    EXPECT_EQ(directories.ProgramDir, folder.Dir());
    EXPECT_EQ(directories.DataDir, "/data/projects/");
    EXPECT_EQ(directories.CompressFlag, 7);
    WriteBytes(folder / "STEU", "\\data\\old projects\\\r\n0\r\n");
    directories = SharedServices().GetDirectories();
    EXPECT_EQ(directories.DataDir, "/data/old projects/");
    EXPECT_EQ(directories.CompressFlag, 0);
}

TEST_F(Settings, AnOverlongWordOfAUnitIsCutInTheMessage) {
    WriteBytes(folder / "Units", "[" + std::string(100000, 'x') + "\x1B[2J],1\r\n");
    SharedServices().GetUnits(folder.Dir());
    ASSERT_THAT(host.Messages, SizeIs(1));
    EXPECT_LT(host.LastMessage().Text.size(), 200u + folder.Dir().size());
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("[xxx"));
}

TEST_F(Settings, ADamagedSettingFileIsToldAndCountsAsMissing) {
    WriteBytes(folder / "STEU", "/data/projects\r\nseven\r\n");
    const Directories directories = SharedServices().GetDirectories();
    EXPECT_EQ(directories.DataDir, folder.Dir());
    EXPECT_EQ(directories.CompressFlag, 2);
    EXPECT_THAT(host.LastMessage().Text, AllOf(HasSubstr("STEU"), HasSubstr("Line 2"), HasSubstr("seven")));
}

// --- units ---------------------------------------------------------------------------------------------------------

void ExpectDefaults(const UnitSettings& units) {
    EXPECT_EQ(units.Len1Label + units.Len2Label + units.Force1Label + units.Force2Label + units.TempLabel,
              "[m][cm][kN][MN][°C]");
    EXPECT_EQ(units.Len1Factor * units.Len2Factor * units.Force1Factor * units.Force2Factor, 1);
}

TEST_F(Settings, WithoutTheUnitsFileTheBaseUnitsAreInForce) {
    ExpectDefaults(SharedServices().GetUnits(folder.Dir()));
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(Settings, TheUnitsFileGivesLabelsAndFactors) {
    WriteBytes(
        folder / "Units",
        "\"[ft]\",3.28083989501312\r\n\"[mm]\",10\r\n\"[kip]\",.224808923655339\r\n\"[kN]\",1000\r\n\"[°F]\"\r\n");
    const UnitSettings units = SharedServices().GetUnits(folder.Dir());
    EXPECT_EQ(units.Len1Label + units.Len2Label + units.Force1Label + units.Force2Label + units.TempLabel,
              "[ft][mm][kip][kN][°F]");
    EXPECT_EQ(units.Len1Factor, 3.28083989501312);
    EXPECT_EQ(units.Len2Factor, 10);
    EXPECT_EQ(units.Force1Factor, 0.224808923655339);
    EXPECT_EQ(units.Force2Factor, 1000);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(Settings, AnOlderUnitsFileHasItsDegreeSignInTheOldCodePage) {
    WriteBytes(folder / "Units",
               "\"[m]\",1\r\n\"[cm]\",1\r\n\"[kN]\",1\r\n\"[MN]\",1\r\n\"[\xB0"
               "C]\"\r\n");
    ExpectDefaults(SharedServices().GetUnits(folder.Dir()));
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(Settings, ADamagedUnitsFileIsToldWithItsLineAndCountsAsMissing) {
    const std::string good = "\"[mm]\",1000\r\n\"[mm]\",10\r\n\"[N]\",1000\r\n";
    const struct {
        std::string Rest, Line, Word;
    } cases[] = {{"\"[furlong]\",1\r\n\"[°C]\"\r\n", "4", "[furlong]"},
                 {"\"[kN]\",many\r\n\"[°C]\"\r\n", "4", "many"},
                 {"\"[kN]\",0\r\n\"[°C]\"\r\n", "4", "0"},
                 {"\"[kN]\",-1\r\n\"[°C]\"\r\n", "4", "-1"},
                 {"\"[kN]\",1000\r\n", "5", ""},
                 {"\"[kN]\",1000\r\n\"[°X]\"\r\n", "5", "[°X]"}};
    for (const auto& one : cases) {
        WriteBytes(folder / "Units", good + one.Rest);
        ExpectDefaults(SharedServices().GetUnits(folder.Dir()));
        EXPECT_THAT(host.LastMessage().Text,
                    AllOf(HasSubstr(folder / "Units"), HasSubstr("ine " + one.Line), HasSubstr(one.Word)));
    }
    EXPECT_THAT(host.Messages, SizeIs(std::size(cases)));
}

// --- company and language ------------------------------------------------------------------------------------------

TEST_F(Settings, CompanyLinesAreKeptWhenTheyWereChanged) {
    CompanyLines lines = SharedServices().GetFirmaData();
    EXPECT_EQ(lines.Line1 + lines.Line2, "");
    host.AnswerCompanyLines(std::nullopt);
    EXPECT_FALSE(SharedServices().EditFirmaData(lines));
    host.AnswerCompanyLines(CompanyLines{"", ""});
    EXPECT_FALSE(SharedServices().EditFirmaData(lines));
    EXPECT_THAT(folder.Names(), IsEmpty());
    host.AnswerCompanyLines(CompanyLines{"Grundbau GmbH", "Kassel"});
    EXPECT_TRUE(SharedServices().EditFirmaData(lines));
    EXPECT_EQ(lines.Line2, "Kassel");
    EXPECT_EQ(SharedServices().GetFirmaData().Line1, "Grundbau GmbH");
}

TEST_F(Settings, TheChosenLanguageIsInForceAndKept) {
    host.AnswerLanguage(Language::Arabic);
    SharedServices().ChooseLanguage();
    EXPECT_EQ(LanguageTexts().Current(), Language::Arabic);
    LanguageTexts().SetCurrent(Language::English);
    SharedServices().LoadLanguage();
    EXPECT_EQ(LanguageTexts().Current(), Language::Arabic);
    host.AnswerLanguage(std::nullopt);
    SharedServices().ChooseLanguage();
    EXPECT_EQ(LanguageTexts().Current(), Language::Arabic);
}

TEST_F(Settings, WithoutAStoredLanguageTheGivenOneIsInForce) {
    SharedServices().LoadLanguage();
    EXPECT_EQ(LanguageTexts().Current(), Language::English);
    SharedServices().LoadLanguage(Language::German);
    EXPECT_EQ(LanguageTexts().Current(), Language::German);
    SharedServices().SaveSetting(kApplicationTitle, "Settings", "Language", std::string("Latin"));
    SharedServices().LoadLanguage();
    EXPECT_EQ(LanguageTexts().Current(), Language::English);
}

}  // namespace
}  // namespace lithmark::tests
