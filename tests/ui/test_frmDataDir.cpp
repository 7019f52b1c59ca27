// The dialog of the data directory.
#include <map>
#include <string>

#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/frmDataDir.h"

namespace lithmark::tests {
namespace {

class DataDirDialog : public FormTest {};

TEST_F(DataDirDialog, CaptionsComeByTheirNumbers) {
    LanguageTexts().SetCurrent(Language::Ids);
    OnShown<frmDataDir>([](frmDataDir& form) {
        EXPECT_EQ(form.Caption, "T<140161>");
        EXPECT_EQ(form.Frame3D1.Caption, "T<140161>");
        EXPECT_EQ(form.FraCompressFlag.Caption, "T<10271>");
        EXPECT_EQ(form.chkCompressFlag[0].Caption, "T<10271>");
        EXPECT_EQ(form.cmdSave.Caption, "T<111>");
        EXPECT_EQ(form.CmdCancel.Caption, "T<7>");
        EXPECT_EQ(form.cmdHelp.Caption, "T<8>");
    });
}

TEST_F(DataDirDialog, WithoutAFileTheProgramDirectoryIsShown) {
    OnShown<frmDataDir>([](frmDataDir& form) {
        EXPECT_EQ(form.txtDataDir.Text, Session.ProgramDir);
        EXPECT_FALSE(form.chkCompressFlag[0].Value);
        EXPECT_EQ(Session.CompressFlag, 2);
    });
}

TEST_F(DataDirDialog, TheBoxIsTickedWhenProjectsArePackedOnLeaving) {
    const std::map<std::string, bool> ticked = {{"7", true}, {"1", true}, {"0", false}, {"2", true}, {"6", true}};
    for (const auto& [flag, value] : ticked) {
        WriteBytes(SettingsFile("STEU"), Lines({"/somewhere/", flag.c_str()}));
        OnShown<frmDataDir>([&, flag = flag, value = value](frmDataDir& form) {
            EXPECT_EQ(form.txtDataDir.Text, "/somewhere/");
            EXPECT_EQ(form.chkCompressFlag[0].Value, value) << flag;
            EXPECT_EQ(Session.CompressFlag, std::stol(flag));
        });
    }
}

TEST_F(DataDirDialog, ASaveWithoutAnEditStoresWhatWasStored) {
    const std::string dir = DataDir();
    for (const char* flag : {"7", "0"}) {
        WriteBytes(SettingsFile("STEU"), Lines({dir.c_str(), flag}));
        OnShown<frmDataDir>([](frmDataDir& form) { Click(form, "cmdSave"); });
        EXPECT_EQ(ReadBytes(SettingsFile("STEU")), Lines({dir.c_str(), flag}));
    }
}

TEST_F(DataDirDialog, ADamagedSettingIsToldAndTicksNothing) {
    WriteBytes(SettingsFile("STEU"), Lines({"/somewhere/", "seven"}));
    OnShown<frmDataDir>([this](frmDataDir& form) {
        EXPECT_EQ(host.Messages.size(), 1u);
        EXPECT_FALSE(form.chkCompressFlag[0].Value);
    });
}

TEST_F(DataDirDialog, ASaveWritesTheDirectoryAndTheFlag) {
    const std::string dir = DataDir();
    OnShown<frmDataDir>([&](frmDataDir& form) {
        Type(form, "txtDataDir", dir);
        Click(form, "chkCompressFlag(0)");
        Click(form, "cmdSave");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(ReadBytes(SettingsFile("STEU")), Lines({dir.c_str(), "7"}));
    EXPECT_EQ(Session.CompressFlag, 7);
    EXPECT_TRUE(Session.FileSaved);

    std::filesystem::remove(SettingsFile("STEU"));
    OnShown<frmDataDir>([&](frmDataDir& form) {
        form.chkCompressFlag[0].Value = false;
        Type(form, "txtDataDir", dir);
        PressEnter(form, "txtDataDir");
        EXPECT_TRUE(form.Unloaded());
    });
    EXPECT_EQ(ReadBytes(SettingsFile("STEU")), Lines({dir.c_str(), "0"}));
    EXPECT_EQ(Session.CompressFlag, 0);
}

TEST_F(DataDirDialog, ADirectoryThatDoesNotExistIsRefused) {
    WriteBytes(DataFile("file"), "");
    for (const std::string& path : {DataFile("none/"), DataFile("file"), std::string()})
        OnShown<frmDataDir>([&](frmDataDir& form) {
            Session.FileSaved = true;  // from another dialog
            Type(form, "txtDataDir", path);
            form.Focus = nullptr;
            form.cmdSave_Click();
            EXPECT_FALSE(form.Unloaded());
            EXPECT_EQ(form.Focus, &form.txtDataDir);
            EXPECT_EQ(host.LastMessage().Text, "The directory " + path + " does not exist.");
            EXPECT_EQ(host.LastMessage().Icon, MessageIcon::Information);
        });
    EXPECT_FALSE(std::filesystem::exists(SettingsFile("STEU")));
    EXPECT_EQ(Session.CompressFlag, 2);
}

TEST_F(DataDirDialog, BrowsingStartsAtTheTextAndEndsInASeparator) {
    OnShown<frmDataDir>([this](frmDataDir& form) {
        Type(form, "txtDataDir", "/start/");
        host.AnswerFolder("/data/projects");
        Click(form, "CmdBrowse");
        EXPECT_EQ(form.txtDataDir.Text, "/data/projects/");
        host.AnswerFolder("/data/other/");
        Click(form, "CmdBrowse");
        EXPECT_EQ(form.txtDataDir.Text, "/data/other/");
        host.AnswerFolder(std::nullopt);
        Click(form, "CmdBrowse");
        EXPECT_EQ(form.txtDataDir.Text, "/data/other/");
    });
    EXPECT_THAT(host.FolderQuestions, ElementsAre("/start/", "/data/projects/", "/data/other/"));
}

TEST_F(DataDirDialog, TheOpenProjectsDirectoryStays) {
    std::filesystem::create_directory(DataFile("sub"));
    OnShown<frmDataDir>([this](frmDataDir& form) {
        Type(form, "txtDataDir", DataFile("sub/"));
        Click(form, "cmdHelp");
        Click(form, "cmdSave");
    });
    EXPECT_EQ(Session.DataDir, DataDir());
    EXPECT_EQ(SharedServices().GetDirectories().DataDir, DataFile("sub/"));
    EXPECT_THAT(host.HelpTopics, ElementsAre("7_2"));
}

}  // namespace
}  // namespace lithmark::tests
