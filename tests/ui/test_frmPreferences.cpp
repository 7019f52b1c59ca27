// The dialog of the default settings.
#include <map>
#include <string>
#include <vector>

#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/frmPreferences.h"

namespace lithmark::tests {
namespace {

class PreferencesDialog : public FormTest {
  protected:
    // The dialog saves these and closes.
    void SaveWith(const std::map<std::string, std::string>& texts) {
        OnShown<frmPreferences>([&](frmPreferences& form) {
            for (const auto& [name, text] : texts) Type(form, name, text);
            Click(form, "cmdSave");
            EXPECT_TRUE(form.Unloaded());
        });
    }
    // The dialog refuses a text: it names the field, goes to it on its tab, and writes nothing.
    void ExpectRefused(const std::string& name, const std::string& text, int tab, const std::string& label) {
        OnShown<frmPreferences>([&](frmPreferences& form) {
            Session.FileSaved = true;  // from another dialog
            Type(form, name, text);
            form.Focus = nullptr;
            host.Messages.clear();
            form.cmdSave_Click();
            EXPECT_FALSE(form.Unloaded()) << name << " " << text;
            ASSERT_EQ(host.Messages.size(), 1u) << name << " " << text;
            EXPECT_THAT(host.LastMessage().Text, HasSubstr(label));
            EXPECT_EQ(form.Focus, form.Find(name));
            EXPECT_EQ(form.sstMainData.ListIndex, tab) << name;
        });
        EXPECT_FALSE(std::filesystem::exists(SettingsFile("Preferen.tol")));
    }
};

TEST_F(PreferencesDialog, CaptionsComeByTheirNumbers) {
    LanguageTexts().SetCurrent(Language::Ids);
    OnShown<frmPreferences>([](frmPreferences& form) {
        EXPECT_EQ(form.Caption, "T<92>");
        EXPECT_THAT(form.sstMainData.Items, ElementsAre("T<400129>", "T<400130>"));
        const std::map<std::string, std::string> captions = {
            {"fraGeometry", "T<400129>"}, {"fraIteration", "T<400130>"}, {"lblDx", "T<400131>"},
            {"lblDy", "T<400132>"},       {"lblDz", "T<400148>"},        {"lblND", "T<400149>"},
            {"lblTol", "T<400134>"},      {"lblImax", "T<400105>"},      {"lblUnitDx", "[m]"},
            {"lblUnitDy", "[m]"},         {"lblUnitDz", "[m]"},          {"lblUnitNd", "[-]"},
            {"cmdSave", "T<111>"},        {"CmdCancel", "T<7>"},         {"cmdHelp", "T<8>"}};
        for (const auto& [name, caption] : captions) EXPECT_EQ(form.Find(name)->Caption, caption) << name;
    });
    LanguageTexts().SetCurrent(Language::English);
    OnShown<frmPreferences>([](frmPreferences& form) {
        EXPECT_EQ(form.Caption, "Default settings");
        EXPECT_EQ(form.fraGeometry.Caption, "Geometry:");
        EXPECT_EQ(form.fraIteration.Caption, "Iteration");
        EXPECT_EQ(form.sstMainData.ListIndex, 0);
    });
}

TEST_F(PreferencesDialog, WithoutAFileTheDefaultsAreShown) {
    Session.PrefND = 40;
    OnShown<frmPreferences>([](frmPreferences& form) {
        EXPECT_EQ(form.txtDx.Text, "0.50");
        EXPECT_EQ(form.txtDy.Text, "0.50");
        EXPECT_EQ(form.txtDz.Text, "0.25");
        EXPECT_EQ(form.txtND.Text, "12");
        EXPECT_EQ(form.txtTol.Text, ".001");
        EXPECT_EQ(form.txtImax.Text, "1000");
    });
}

TEST_F(PreferencesDialog, TheFileIsShown) {
    WriteBytes(SettingsFile("Preferen.tol"), Lines({"1", ".75", ".3", "24", "1E-06", "50"}));
    OnShown<frmPreferences>([](frmPreferences& form) {
        EXPECT_EQ(form.txtDx.Text, "1.00");
        EXPECT_EQ(form.txtDy.Text, "0.75");
        EXPECT_EQ(form.txtDz.Text, "0.30");
        EXPECT_EQ(form.txtND.Text, "24");
        EXPECT_EQ(form.txtTol.Text, "1E-06");
        EXPECT_EQ(form.txtImax.Text, "50");
    });
}

TEST_F(PreferencesDialog, ASaveWritesTheFile) {
    SaveWith({{"txtDx", "1.25"},
              {"txtDy", "2"},
              {"txtDz", "0.4"},
              {"txtND", "20"},
              {"txtTol", "0.00002"},
              {"txtImax", "77"}});
    EXPECT_EQ(ReadBytes(SettingsFile("Preferen.tol")), Lines({"1.25", "2", ".4", "20", "2E-05", "77"}));
    EXPECT_EQ(Session.PrefDx, 1.25);
    EXPECT_EQ(Session.PrefImax, 77);
    EXPECT_TRUE(Session.FileSaved);
}

TEST_F(PreferencesDialog, TheDivisionsOfACircleAreMadeEven) {
    const std::map<std::string, int> divisions = {{"2", 2},     {"3", 4},         {"12", 12},      {"13", 14},
                                                  {"12.6", 14}, {"31999", 32000}, {"32000", 32000}};
    for (const auto& [typed, kept] : divisions) {
        SaveWith({{"txtND", typed}});
        EXPECT_EQ(Session.PrefND, kept) << typed;
        EXPECT_EQ(ReadBytes(SettingsFile("Preferen.tol")),
                  Lines({".5", ".5", ".25", std::to_string(kept).c_str(), ".001", "1000"}));
    }
}

TEST_F(PreferencesDialog, ValuesOutsideTheirRangesAreRefused) {
    for (const char* text : {"0.24", "0", "-1", "2E38", "", "abc"}) {
        ExpectRefused("txtDx", text, 0, "Element size in x-direction");
        ExpectRefused("txtDy", text, 0, "Element size in y-direction");
        ExpectRefused("txtDz", text, 0, "Thickness of the sublayers");
    }
    for (const char* text : {"1", "32001", "", "abc"})
        ExpectRefused("txtND", text, 0, "Number of divisions of a circle");
    for (const char* text : {"0", "1E-15", "2E38", ""}) ExpectRefused("txtTol", text, 1, "Iteration tolerance");
    for (const char* text : {"0", "32001", "abc"}) ExpectRefused("txtImax", text, 1, "Maximum number of iterations");
}

TEST_F(PreferencesDialog, TheLimitsThemselvesAreTaken) {
    SaveWith({{"txtDx", "0.25"}, {"txtDy", "1E38"}, {"txtND", "2"}, {"txtTol", "1E-14"}, {"txtImax", "1"}});
    EXPECT_EQ(ReadBytes(SettingsFile("Preferen.tol")), Lines({".25", "1E+38", ".25", "2", "1E-14", "1"}));
    SaveWith({{"txtImax", "32000"}});
    EXPECT_EQ(Session.PrefImax, 32000);
}

TEST_F(PreferencesDialog, TheFirstBadFieldIsToldAndNothingIsStored) {
    OnShown<frmPreferences>([this](frmPreferences& form) {
        Type(form, "txtDx", "3");
        Type(form, "txtDz", "0");
        Type(form, "txtTol", "0");
        Click(form, "cmdSave");
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_THAT(host.LastMessage().Text, HasSubstr("Thickness of the sublayers"));
        EXPECT_EQ(form.Focus, &form.txtDz);
    });
    EXPECT_EQ(Session.PrefDx, 0.5);
}

TEST_F(PreferencesDialog, AnotherUnitChangesWhatIsShownAndNotWhatIsStored) {
    SaveWith({{"txtDx", "1.5"}});
    Session.Len1Label = "[mm]";
    Session.Len1Factor = 1000;
    OnShown<frmPreferences>([](frmPreferences& form) {
        EXPECT_EQ(form.txtDx.Text, "1500.00");
        EXPECT_EQ(form.lblUnitDx.Caption, "[mm]");
        EXPECT_EQ(form.txtND.Text, "12");
        Click(form, "cmdSave");
    });
    EXPECT_EQ(Session.PrefDx, 1.5);
    EXPECT_EQ(ReadBytes(SettingsFile("Preferen.tol")), Lines({"1.5", ".5", ".25", "12", ".001", "1000"}));
}

// 0.25 m are 0.8202... ft: the box shows 0.82, which must pass as the default that it is.
TEST_F(PreferencesDialog, TheDefaultsPassInEveryUnit) {
    const std::vector<std::pair<const char*, double>> units = {{"[ft]", 3.28083989501312},
                                                               {"[in]", 39.3700787401575},
                                                               {"[cm]", 100},
                                                               {"[mm]", 1000},
                                                               {"[yd]", 1.09361329833771}};
    for (const auto& [label, factor] : units) {
        std::filesystem::remove(SettingsFile("Preferen.tol"));
        Session.Len1Label = label;
        Session.Len1Factor = factor;
        SaveWith({});
        EXPECT_NEAR(Session.PrefDz, 0.25, 0.005) << label;
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(PreferencesDialog, EnterMovesOnAndSavesAtTheEndOfEachTab) {
    OnShown<frmPreferences>([](frmPreferences& form) {
        const std::vector<std::pair<const char*, Control*>> path = {
            {"txtDx", &form.txtDy}, {"txtDy", &form.txtDz}, {"txtDz", &form.txtND}, {"txtTol", &form.txtImax}};
        for (const auto& [from, to] : path) {
            PressEnter(form, from);
            EXPECT_EQ(form.Focus, to) << from;
        }
        EXPECT_FALSE(form.Unloaded());
        PressEnter(form, "txtND");
        EXPECT_TRUE(form.Unloaded());
    });
    std::filesystem::remove(SettingsFile("Preferen.tol"));
    OnShown<frmPreferences>([](frmPreferences& form) { PressEnter(form, "txtImax"); });
    EXPECT_TRUE(std::filesystem::exists(SettingsFile("Preferen.tol")));
}

TEST_F(PreferencesDialog, AFileThatCannotBeWrittenIsToldAndTheDialogStays) {
    std::filesystem::create_directory(SettingsFile("Preferen.tol"));
    OnShown<frmPreferences>([this](frmPreferences& form) {
        host.Messages.clear();
        Click(form, "cmdSave");
        EXPECT_FALSE(form.Unloaded());
        EXPECT_EQ(host.Messages.size(), 1u);
    });
    EXPECT_FALSE(Session.FileSaved);
}

TEST_F(PreferencesDialog, HelpIsOneSentence) {
    LanguageTexts().SetCurrent(Language::Arabic);
    OnShown<frmPreferences>([this](frmPreferences& form) {
        Click(form, "cmdHelp");
        EXPECT_EQ(host.HelpTexts.back().Text, "في هذه القائمة يمكن تحديد المعطيات الافتراضية للحسابات.");
        EXPECT_EQ(host.HelpTexts.back().Title, form.Caption);
    });
}

}  // namespace
}  // namespace lithmark::tests
