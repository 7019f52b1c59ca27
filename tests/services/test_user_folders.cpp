// Where a user's own files lie, and that nothing lies beside the program.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "services/storage/UserFolders.h"
#include "support/Files.h"
#include "support/ScriptedHost.h"
#include "support/System.h"
#include "support/Variable.h"

namespace lithmark::tests {
namespace {

class UserFolders : public ::testing::Test {
  protected:
    void SetUp() override {
        LITHMARK_NEEDS(FoldersOfHome);
        SharedServices().UseSettingsDirectory("");
        home.Set(folder / "home");
        config.Unset();
        std::filesystem::create_directories(folder / "home");
    }
    void Name(const std::string& line) const {
        std::filesystem::create_directories(folder / "home/.config");
        WriteBytes(folder / "home/.config/user-dirs.dirs", "# written by a tool\nXDG_DESKTOP_DIR=\"$HOME/D\"\n" + line);
    }
    std::string Home(const std::string& name) const { return folder / ("home/" + name); }

    TestFolder folder;
    Variable home{"HOME"}, config{"XDG_CONFIG_HOME"};
    ScriptedHost host;
};

TEST_F(UserFolders, SettingsLieInTheConfigurationOfTheUser) {
    EXPECT_EQ(UserSettingsDir(), Home(".config/lithmark/"));
    EXPECT_EQ(SharedServices().GetDirectories().ProgramDir, Home(".config/lithmark/"));
    config.Set(folder / "config");
    EXPECT_EQ(UserSettingsDir(), folder / "config/lithmark/");
    EXPECT_EQ(SharedServices().GetDirectories().ProgramDir, folder / "config/lithmark/");
    config.Set("relative");
    EXPECT_EQ(UserSettingsDir(), Home(".config/lithmark/"));
}

TEST_F(UserFolders, TheStateHasAFolderOfItsOwn) {
    const Variable state("XDG_STATE_HOME");
    state.Unset();
    EXPECT_EQ(SharedServices().StateDir(), Home(".local/state/lithmark/"));
    state.Set(folder / "state");
    EXPECT_EQ(SharedServices().StateDir(), folder / "state/lithmark/");
}

TEST_F(UserFolders, ReadingMakesNoFolder) {
    SharedServices().GetDirectories();
    SharedServices().GetUnits(UserSettingsDir());
    SharedServices().GetSetting("App", "Settings", "A", true);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "home"));
}

TEST_F(UserFolders, TheStoreMakesItsFolder) {
    SharedServices().SaveSetting("App", "Settings", "A", true);
    EXPECT_TRUE(std::filesystem::exists(Home(".config/lithmark/settings.json")));
}

TEST_F(UserFolders, OnlyTheUsersOwnDirectoryIsMade) {
    MakeSettingsDir(Home("elsewhere/"));
    MakeSettingsDir("");
    EXPECT_TRUE(std::filesystem::is_empty(folder / "home"));
    MakeSettingsDir(UserSettingsDir());
    EXPECT_TRUE(std::filesystem::is_directory(Home(".config/lithmark")));
}

TEST_F(UserFolders, ProjectsLieInTheDocumentsWhileNoDirectoryIsSet) {
    EXPECT_EQ(SharedServices().GetDirectories().DataDir, Home("Lithmark/"));
    std::filesystem::create_directories(Home("Documents"));
    EXPECT_EQ(SharedServices().GetDirectories().DataDir, Home("Documents/Lithmark/"));
    EXPECT_EQ(DataDirUnset(folder.Dir()), folder.Dir());
    MakeSettingsDir(UserSettingsDir());
    WriteBytes(UserSettingsDir() + "STEU", "/data/projects\r\n7\r\n");
    EXPECT_EQ(SharedServices().GetDirectories().DataDir, "/data/projects/");
}

TEST_F(UserFolders, TheFolderOfProjectsIsMadeForTheFirstOfThem) {
    MakeProjectsDir(Home("elsewhere/"));
    EXPECT_TRUE(std::filesystem::is_empty(folder / "home"));
    MakeProjectsDir(Home("Lithmark"));
    EXPECT_TRUE(std::filesystem::is_directory(Home("Lithmark")));
}

TEST_F(UserFolders, TheDialogsOfFilesBeginWhereProjectsLie) {
    std::string file, dir, name;
    host.AnswerFileToOpen(std::nullopt);
    FileDialogs().OpenFileDialog(file, Home("Lithmark/"), dir, name, "*.PO3");
    EXPECT_EQ(host.OpenQuestions.back().StartDir, Home(""));  // the next folder that is there
    EXPECT_TRUE(std::filesystem::is_empty(folder / "home"));
    host.AnswerFileToSave(std::nullopt);
    FileDialogs().SaveFileDialog(file, Home("Lithmark/"), dir, name, "PO3");
    EXPECT_EQ(host.SaveQuestions.back().StartDir, Home("Lithmark/"));
    EXPECT_TRUE(std::filesystem::is_directory(Home("Lithmark")));
}

TEST_F(UserFolders, TheDesktopsNameOfTheDocumentsIsTaken) {
    std::filesystem::create_directories(Home("Dokumente"));
    std::filesystem::create_directories(folder / "elsewhere");
    Name("XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
    EXPECT_EQ(UserDocumentsDir(), Home("Dokumente/"));
    Name("XDG_DOCUMENTS_DIR=\"" + (folder / "elsewhere") + "\"\n");
    EXPECT_EQ(UserDocumentsDir(), folder / "elsewhere/");
    Name("XDG_DOCUMENTS_DIR=\"$HOME/\"\n");
    EXPECT_EQ(UserDocumentsDir(), Home(""));
    for (const char* useless : {"XDG_DOCUMENTS_DIR=\"$HOME/gone\"\n", "XDG_DOCUMENTS_DIR=\"\n", "XDG_DOCUMENTS_DIR=\n",
                                "XDG_DOCUMENTS_DIR=\"$HOMES\"\n", "XDG_DOCUMENTS_DIR=\"relative\"\n"}) {
        Name(useless);
        EXPECT_EQ(UserDocumentsDir(), Home("")) << useless;
    }
}

// Opening a pipe would wait for somebody who writes into it.
TEST_F(UserFolders, APipeInThePlaceOfTheDesktopsNamesIsNotWaitedFor) {
    std::filesystem::create_directories(Home(".config"));
    std::filesystem::create_directories(Home("Documents"));
    MakePipe(Home(".config/user-dirs.dirs"));
    EXPECT_EQ(UserDocumentsDir(), Home("Documents/"));
}

TEST_F(UserFolders, WhatTheProgramBringsIsBesideItWhileItIsNotInstalled) {
    const std::string own = std::filesystem::read_symlink("/proc/self/exe").parent_path().string() + "/";
    EXPECT_EQ(SharedServices().ResourceDir(), own);
    EXPECT_EQ(SharedServices().GetHelpFile("verda"), own + "help/verda.html");
}

}  // namespace
}  // namespace lithmark::tests
