// The settings files: "NOFORMAT", "Preferen.tol", "Units" and "STEU".
#include "core/Units.h"
#include "files/ProjectTest.h"
#include "files/SettingsFiles.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class SettingsFiles : public ProjectTest {
  protected:
    // All eighteen formats, in the order of the file.
    std::vector<std::string> Formats() {
        std::vector<std::string> formats;
        for (const NumberFormatRow& row : NumberFormats()) formats.push_back(Session.*row.Field);
        return formats;
    }
    std::vector<std::string> Preferences() {
        FieldTexts fields = TakeFields();
        return {fields["PrefDx"], fields["PrefDy"],  fields["PrefDz"],
                fields["PrefND"], fields["PrefTol"], fields["PrefImax"]};
    }
    void SpoilFormats() {
        for (const NumberFormatRow& row : NumberFormats()) Session.*row.Field = "old";
        Session.FmtForceFine = Session.FmtStressFine = "old";
    }
    void SpoilPreferences() {
        Session.PrefDx = Session.PrefDy = Session.PrefDz = Session.PrefTol = 77;
        Session.PrefND = Session.PrefImax = 77;
    }
};

const std::vector<std::string> kDefaultFormats = {"0.0",  "0.00", "0.0",  "0.0",    "0.0",       "0.0",
                                                  "0.0",  "0.00", "0.00", "0.0000", "0.0000000", "0.0000",
                                                  "0.00", "0.00", "0.00", "0.0",    "0.000",     "0"};
const std::vector<std::string> kDefaultPreferences = {".5", ".5", ".25", "12", ".001", "1000"};

// --- number formats ------------------------------------------------------------------------------------------------

TEST_F(SettingsFiles, WithoutTheFileTheDefaultFormatsAreInForceWithoutAWord) {
    SpoilFormats();
    LoadNumberFormats();
    EXPECT_EQ(Formats(), kDefaultFormats);
    EXPECT_EQ(Session.FmtForceFine, "0.0000");
    EXPECT_EQ(Session.FmtStressFine, "0.0000");
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(SettingsFiles, TheFileGivesEighteenFormatsLineByLineAndTheDerivedTwo) {
    std::vector<std::string> lines;
    for (int i = 1; i <= 18; ++i) lines.push_back(" #,##" + std::string(static_cast<std::size_t>(i), '0') + " ");
    lines[2] = "00";
    for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
        SpoilFormats();
        WriteBytes(folder / "NOFORMAT", JoinLines(lines, lineEnd) + "a nineteenth line is not read");
        LoadNumberFormats();
        EXPECT_EQ(Formats(), lines);
        EXPECT_EQ(Session.FmtForceFine, " #,##0 ");  // neither point nor exponent: as it stands
        EXPECT_EQ(Session.FmtStressFine, "00");
    }
    EXPECT_EQ(Session.FmtForce, lines[0]);
    EXPECT_EQ(Session.FmtPermeability, lines[10]);
    EXPECT_EQ(Session.FmtDialogModulus, lines[17]);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(SettingsFiles, AShortFormatFileIsToldAndItsMissingLinesAreDefaults) {
    for (std::size_t count = 0; count < 18; ++count) {
        SCOPED_TRACE(count);
        std::vector<std::string> expected = kDefaultFormats;
        for (std::size_t i = 0; i < count; ++i) expected[i] = "0.00000";
        SpoilFormats();
        WriteBytes(folder / "NOFORMAT", JoinLines(expected, count));
        host.Messages.clear();
        LoadNumberFormats();
        EXPECT_EQ(Formats(), expected);
        EXPECT_EQ(Session.FmtForceFine, count > 0 ? "0.00000000" : "0.0000");
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.LastMessage().Text,
                  Text(900006_text, {{"|1", folder / "NOFORMAT"}, {"|2", std::to_string(count + 1)}}));
    }
}

TEST_F(SettingsFiles, SettingsThatCannotBeOpenedAreDefaultsWithoutAWord) {
    std::filesystem::create_directory(folder / "NOFORMAT");
    std::filesystem::create_directory(folder / "Preferen.tol");
    SpoilFormats();
    SpoilPreferences();
    LoadNumberFormats();
    LoadPreferences();
    EXPECT_EQ(Formats(), kDefaultFormats);
    EXPECT_EQ(Preferences(), kDefaultPreferences);
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_EQ(host.FileStatuses.back(), FileStatus::None);
}

TEST_F(SettingsFiles, AFormatFileOfZeroBytesIsTold) {
    WriteBytes(folder / "NOFORMAT", std::string(100, '\0'));
    LoadNumberFormats();
    EXPECT_EQ(Formats(), kDefaultFormats);
    EXPECT_EQ(host.Messages.size(), 1u);
}

// --- preferences ---------------------------------------------------------------------------------------------------

TEST_F(SettingsFiles, PreferencesAreTheseSixLines) {
    SetProblemDefaults();
    SavePreferences();
    EXPECT_TRUE(Session.FileSaved);
    EXPECT_EQ(ReadBytes(folder / "Preferen.tol"), ".5\r\n.5\r\n.25\r\n12\r\n.001\r\n1000\r\n");
    EXPECT_THAT(folder.Names(), ElementsAre("Preferen.tol"));
}

TEST_F(SettingsFiles, PreferencesComeBackByPosition) {
    Session.PrefDx = 0.3;
    Session.PrefDy = 1e20;
    Session.PrefDz = 2;
    Session.PrefND = 32000;
    Session.PrefTol = 1e-14;
    Session.PrefImax = 1;
    const auto saved = Preferences();
    SavePreferences();
    SpoilPreferences();
    LoadPreferences();
    EXPECT_EQ(Preferences(), saved);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(SettingsFiles, WithoutTheFileThePreferencesAreDefaults) {
    SpoilPreferences();
    LoadPreferences();
    EXPECT_EQ(Preferences(), kDefaultPreferences);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(SettingsFiles, DamagedPreferencesAreToldAndWhatWasNotReadIsDefault) {
    WriteBytes(folder / "Preferen.tol", "1\r\n2\r\nthree\r\n4\r\n5\r\n6\r\n");
    SpoilPreferences();
    LoadPreferences();
    EXPECT_THAT(Preferences(), ElementsAre("1", "2", ".25", "12", ".001", "1000"));
    ASSERT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(host.LastMessage().Text,
              Text(900007_text, {{"|1", folder / "Preferen.tol"}, {"|2", "3"}, {"|3", "three"}}));
    WriteBytes(folder / "Preferen.tol", "1\r\n2\r\n3\r\n4\r\n5\r\n");
    LoadPreferences();
    EXPECT_THAT(Preferences(), ElementsAre("1", "2", "3", "4", "5", "1000"));
    EXPECT_EQ(host.Messages.size(), 2u);
}

TEST_F(SettingsFiles, PreferencesThatCannotBeWrittenAreToldAndTheOldOnesStay) {
    LITHMARK_NEEDS(CopyOfAProcess);
    SavePreferences();
    const std::string before = ReadBytes(folder / "Preferen.tol");
    EXPECT_TRUE(OnAFullDisk(8, [&] {
        SavePreferences();
        return !Session.FileSaved && host.Messages.size() == 1 &&
               host.LastMessage().Text.find(" cannot be written") != std::string::npos;
    }));
    Session.ProgramDir = folder / "gone/";
    Session.FileSaved = true;
    SavePreferences();
    EXPECT_FALSE(Session.FileSaved);
    EXPECT_EQ(ReadBytes(folder / "Preferen.tol"), before);
}

// --- units ---------------------------------------------------------------------------------------------------------

TEST_F(SettingsFiles, BaseUnitsAreTheseFiveLines) {
    EXPECT_TRUE(WriteUnits());
    EXPECT_EQ(ReadBytes(folder / "Units"), "\"[m]\",1\r\n\"[cm]\",1\r\n\"[kN]\",1\r\n\"[MN]\",1\r\n\"[°C]\"\r\n");
}

TEST_F(SettingsFiles, FactorsAreWrittenWithAllTheirDigits) {
    Session.Len1Label = "[ft]";
    Session.Len1Factor = 3.28083989501312;
    Session.Len2Label = "[in]";
    Session.Len2Factor = 0.393700787401575;
    Session.Force1Label = "[kip]";
    Session.Force1Factor = 0.224808923655339;
    Session.Force2Label = "[kN]";
    Session.Force2Factor = 1000;
    Session.TempLabel = "[°F]";
    EXPECT_TRUE(WriteUnits());
    EXPECT_EQ(ReadBytes(folder / "Units"),
              "\"[ft]\",3.28083989501312\r\n\"[in]\",.393700787401575\r\n\"[kip]\",.224808923655339\r\n"
              "\"[kN]\",1000\r\n\"[°F]\"\r\n");
}

TEST_F(SettingsFiles, EveryUnitComesBackInEveryLanguage) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        StartIn(language);
        for (std::size_t i = 0; i < ForceUnits().size(); ++i) {
            const UnitRow& length1 = LengthUnits()[i % 6];
            const UnitRow& length2 = LengthUnits()[(i + 1) % 6];
            const UnitRow& force1 = ForceUnits()[i];
            const UnitRow& force2 = ForceUnits()[(i + 1) % 9];
            const UnitRow& temperature = TemperatureUnits()[i % 4];
            Session.Len1Label = Text(length1.UnitLabel);
            Session.Len1Factor = length1.Factor;
            Session.Len2Label = Text(length2.UnitLabel);
            Session.Len2Factor = length2.Factor / 100;
            Session.Force1Label = Text(force1.UnitLabel);
            Session.Force1Factor = force1.Factor;
            Session.Force2Label = Text(force2.UnitLabel);
            Session.Force2Factor = force2.Factor * 1000;
            Session.TempLabel = Text(temperature.UnitLabel);
            ASSERT_TRUE(WriteUnits());
            SetDefaultUnits();
            LoadUnits();
            EXPECT_EQ(Session.Len1Label, Text(length1.UnitLabel));
            EXPECT_EQ(Session.Len2Label, Text(length2.UnitLabel));
            EXPECT_EQ(Session.Force1Label, Text(force1.UnitLabel));
            EXPECT_EQ(Session.Force2Label, Text(force2.UnitLabel));
            EXPECT_EQ(Session.TempLabel, Text(temperature.UnitLabel));
            EXPECT_EQ(Session.Len1Factor, length1.Factor);
            EXPECT_NEAR(Session.Len2Factor / (length2.Factor / 100), 1, 1e-14);
            EXPECT_EQ(Session.Force1Factor, force1.Factor);
            EXPECT_NEAR(Session.Force2Factor / (force2.Factor * 1000), 1, 1e-14);
        }
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(SettingsFiles, WithoutTheFileTheBaseUnitsAreInForce) {
    Session.Len1Factor = 1000;
    Session.Len1Label = "[mm]";
    LoadUnits();
    EXPECT_EQ(Session.Len1Label + Session.Len2Label + Session.Force1Label + Session.Force2Label + Session.TempLabel,
              "[m][cm][kN][MN][°C]");
    EXPECT_EQ(Session.Len1Factor, 1);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(SettingsFiles, UnitsThatCannotBeWrittenAreTold) {
    Session.ProgramDir = folder / "gone/";
    EXPECT_FALSE(WriteUnits());
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(host.FileStatuses.back(), FileStatus::None);
}

// --- the data directory --------------------------------------------------------------------------------------------

TEST_F(SettingsFiles, TheDataDirectoryIsARawLineAndANumber) {
    for (const long flag : {0L, 7L}) {
        Session.CompressFlag = flag;
        WriteDataDirSettings(" /data, \"Prüfung\"/");
        EXPECT_TRUE(Session.FileSaved);
        EXPECT_EQ(ReadBytes(folder / "STEU"), " /data, \"Prüfung\"/\r\n" + std::to_string(flag) + "\r\n");
        Session.CompressFlag = 99;
        std::string dataDir;
        ReadDataDirSettings(dataDir);
        EXPECT_EQ(dataDir, " /data, \"Prüfung\"/");
        EXPECT_EQ(Session.CompressFlag, flag);
    }
}

TEST_F(SettingsFiles, WithoutTheFileTheDataLieInTheProgramDirectoryAndTheFlagIsTwo) {
    Session.CompressFlag = 7;
    std::string dataDir = "old";
    ReadDataDirSettings(dataDir);
    EXPECT_EQ(dataDir, folder.Dir());
    EXPECT_EQ(Session.CompressFlag, 2);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(SettingsFiles, ADamagedDataDirectoryFileIsTold) {
    for (const char* content : {"", "/data/\r\n", "/data/\r\nx\r\n", "/data/\r\n3000000000\r\n"}) {
        WriteBytes(folder / "STEU", content);
        host.Messages.clear();
        std::string dataDir;
        ReadDataDirSettings(dataDir);
        EXPECT_EQ(dataDir, *content == '\0' ? folder.Dir() : "/data/");
        EXPECT_EQ(Session.CompressFlag, 2);
        EXPECT_EQ(host.Messages.size(), 1u) << content;
    }
    std::filesystem::remove(folder / "STEU");
    std::filesystem::create_directory(folder / "STEU");
    std::string dataDir;
    ReadDataDirSettings(dataDir);
    EXPECT_EQ(dataDir, folder.Dir());
    EXPECT_EQ(host.Messages.size(), 2u);
}

TEST_F(SettingsFiles, ADataDirectoryThatCannotBeStoredIsNotSaved) {
    Session.ProgramDir = folder / "gone/";
    Session.FileSaved = true;
    WriteDataDirSettings("/data/");
    EXPECT_FALSE(Session.FileSaved);
    EXPECT_EQ(host.Messages.size(), 1u);
}

}  // namespace
}  // namespace lithmark::tests
