// The folder of a project's exports is offered again: to that project, as long as it is there, from the user's
// settings.
#include <filesystem>

#include "FormTest.h"
#include "support/Matchers.h"
#include "ui/model/ExportFolder.h"

namespace lithmark::tests {
namespace {

class ExportFolders : public FormTest {
  protected:
    ExportFolders() {
        for (const char* name : {"reports", "other"}) std::filesystem::create_directory(DataFile(name));
        Session.WorkDir = DataDir();
    }
    // The project of a name in a folder of its own.
    void Open(const std::string& name) {
        std::filesystem::create_directories(DataFile(name));
        Session.WorkDir = DataFile(name + "/");
        Session.ProjectName = Session.WorkName = name;
    }
};

TEST_F(ExportFolders, TheProjectsOwnFolderIsTheFirst) {
    EXPECT_EQ(ExportFolder(), DataDir());
}

TEST_F(ExportFolders, TheLastOneIsOfferedAgainAfterAnEndOfTheProgramToo) {
    RememberExportFolder(DataFile("reports"));
    EXPECT_EQ(ExportFolder(), DataFile("reports/"));
    RememberExportFolder(DataFile("other/"));
    EXPECT_EQ(ExportFolder(), DataFile("other/"));
    StartIn(Language::German);
    Session.WorkDir = DataDir();
    EXPECT_EQ(ExportFolder(), DataFile("other/"));
}

TEST_F(ExportFolders, AnotherProjectHasAnotherOne) {
    RememberExportFolder(DataFile("reports"));
    Open("Silo");
    EXPECT_EQ(ExportFolder(), DataFile("Silo/"));
    RememberExportFolder(DataFile("other"));
    Open("Crane");
    EXPECT_EQ(ExportFolder(), DataFile("Crane/"));
    Open("Silo");
    EXPECT_EQ(ExportFolder(), DataFile("other/"));
}

TEST_F(ExportFolders, AFolderThatIsGoneIsNotOffered) {
    RememberExportFolder(DataFile("reports"));
    std::filesystem::remove(DataFile("reports"));
    EXPECT_EQ(ExportFolder(), DataDir());
    WriteBytes(DataFile("reports"), "a file");
    EXPECT_EQ(ExportFolder(), DataDir());
}

TEST_F(ExportFolders, BackInItsOwnFolderAProjectHasNoOther) {
    RememberExportFolder(DataFile("reports"));
    RememberExportFolder(DataDir());
    EXPECT_EQ(ExportFolder(), DataDir());
    EXPECT_THAT(ReadBytes(SettingsFile("settings.json")), Not(HasSubstr("reports")));
}

TEST_F(ExportFolders, WithoutAProjectNothingIsKept) {
    Session.ProjectName.clear();
    RememberExportFolder(DataFile("reports"));
    EXPECT_EQ(ExportFolder(), DataDir());
}

// A name that would break the list is not kept, and harms no other.
TEST_F(ExportFolders, ALineBreakInANameIsNotKept) {
    RememberExportFolder(DataFile("reports"));
    Open("Silo\nCrane");
    RememberExportFolder(DataFile("other"));
    EXPECT_EQ(ExportFolder(), Session.WorkDir);
    Open("P1");
    Session.WorkDir = DataDir();
    EXPECT_EQ(ExportFolder(), DataFile("reports/"));
}

TEST_F(ExportFolders, OfManyProjectsTheLastFiftyAreKept) {
    for (int i = 1; i <= 52; ++i) {
        Open("S" + std::to_string(i));
        RememberExportFolder(DataFile("reports"));
    }
    Open("S3");
    EXPECT_EQ(ExportFolder(), DataFile("reports/"));
    Open("S2");
    EXPECT_EQ(ExportFolder(), DataFile("S2/"));
}

}  // namespace
}  // namespace lithmark::tests
