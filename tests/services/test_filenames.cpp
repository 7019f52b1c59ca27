#include <gmock/gmock.h>

#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "services/storage/FileNames.h"
#include "support/Files.h"
#include "support/ScriptedHost.h"

namespace lithmark::tests {
namespace {

TEST(FileNames, TheExtensionIsWhatStandsBehindTheLastPointOfTheLastPart) {
    EXPECT_EQ(ExtensionOf("/a.b/Raft1.v2.PO3"), "PO3");
    EXPECT_EQ(ExtensionOf("/a.b/Units"), "");
    EXPECT_EQ(ExtensionOf("C:\\a.b\\Units"), "");
    EXPECT_EQ(ExtensionOf("name."), "");
}

TEST(FileNames, ProjectExtensionsAreFoldedToUpperCaseAndOthersKept) {
    const TestFolder folder;
    EXPECT_EQ(MappedFileName(folder / "Raft1.po3"), folder / "Raft1.PO3");
    EXPECT_EQ(MappedFileName(folder / "Raft1.To1"), folder / "Raft1.TO1");
    EXPECT_EQ(MappedFileName(folder / "Raft1.Auf"), folder / "Raft1.AUF");
    EXPECT_EQ(MappedFileName(folder / "Preferen.tol"), folder / "Preferen.tol");
    EXPECT_EQ(MappedFileName(folder / "Units"), folder / "Units");
}

TEST(FileNames, BackslashesBecomeThePlatformsSeparators) {
    EXPECT_EQ(MappedFileName("data\\sub\\Raft1.ssd"), "data/sub/Raft1.SSD");
}

TEST(FileNames, AnExistingFileOfAnotherLetterCaseIsFoundByItsExtensionAlone) {
    LITHMARK_NEEDS(NamesByCase);
    const TestFolder folder;
    WriteBytes(folder / "Raft1.ssd", "1");
    WriteBytes(folder / "raft1.CON", "other project");
    EXPECT_EQ(MappedFileName(folder / "Raft1.SSD"), folder / "Raft1.ssd");
    EXPECT_EQ(MappedFileName(folder / "Raft1.CON"), folder / "Raft1.CON");
    WriteBytes(folder / "Raft1.SSD", "2");
    EXPECT_EQ(MappedFileName(folder / "Raft1.ssd"), folder / "Raft1.SSD");
}

TEST(FileNames, TheServiceGivesBackTheNameThatIsOpened) {
    LITHMARK_NEEDS(NamesByCase);
    const TestFolder folder;
    WriteBytes(folder / "Raft1.tO1", "1");
    SharedServices().SetFileName(folder / "Raft1.To1");
    EXPECT_EQ(SharedServices().GetFileName(), folder / "Raft1.tO1");
    EXPECT_FALSE(SharedServices().FileMissing(folder / "Raft1.TO1", false));
    EXPECT_TRUE(SharedServices().FileMissing(folder / "Raft2.TO1", false));
}

TEST(FileNames, AFolderInTheWayIsNotAMissingFile) {
    const TestFolder folder;
    std::filesystem::create_directory(folder / "Raft1.SSD");
    EXPECT_FALSE(SharedServices().FileMissing(folder / "Raft1.SSD", false));
}

// --- dialogs and paths ---------------------------------------------------------------------------------------------

TEST(FileDialogs, OpeningGivesFileFolderAndBareName) {
    LITHMARK_NEEDS(NamesByCase);
    const TestFolder folder;
    WriteBytes(folder / "Raft1.po3", "");
    ScriptedHost host;
    host.AnswerFileToOpen(folder / "Raft1.po3");
    std::string file, dir = "/start/", name;
    EXPECT_TRUE(FileDialogs().OpenFileDialog(file, dir, dir, name, "*.PO3"));
    EXPECT_EQ(file, folder / "Raft1.po3");
    EXPECT_EQ(dir, folder.Dir());
    EXPECT_EQ(name, "Raft1");
    EXPECT_EQ(host.OpenQuestions[0].StartDir, "/start/");
    EXPECT_EQ(host.OpenQuestions[0].Pattern, "*.PO3");
    EXPECT_EQ(host.OpenQuestions[0].Title, Text(124_text));
}

TEST(FileDialogs, ACancelledDialogChangesNothing) {
    ScriptedHost host;
    host.AnswerFileToOpen(std::nullopt);
    host.AnswerFileToSave(std::nullopt);
    std::string file = "f", dir = "d/", name = "n";
    EXPECT_FALSE(FileDialogs().OpenFileDialog(file, dir, dir, name, "*.SSD"));
    EXPECT_FALSE(FileDialogs().SaveFileDialog(file, dir, dir, name, "SSD"));
    EXPECT_EQ(file + dir + name, "fd/n");
}

TEST(FileDialogs, SavingPutsTheExtensionBehindANameWithoutIt) {
    const TestFolder folder;
    const struct {
        std::string Chosen, File, Name;
    } cases[] = {{"Raft2", "Raft2.PO3", "Raft2"},
                 {"Raft2.po3", "Raft2.PO3", "Raft2"},
                 {"Raft.v2", "Raft.v2.PO3", "Raft.v2"},
                 {"Raft2.SSD", "Raft2.SSD.PO3", "Raft2.SSD"}};
    for (const auto& one : cases) {
        ScriptedHost host;
        host.AnswerFileToSave(folder / one.Chosen);
        std::string file, dir, name = "Raft1";
        EXPECT_TRUE(FileDialogs().SaveFileDialog(file, folder.Dir(), dir, name, "PO3"));
        EXPECT_EQ(file, folder / one.File);
        EXPECT_EQ(name, one.Name);
        EXPECT_EQ(host.SaveQuestions[0].Name, "Raft1");
    }
}

TEST(FileDialogs, ARelativePathIsSplitIntoAnAbsoluteFolderAndAName) {
    std::string dir, name;
    FileDialogs().SplitProjectPath("sub/../Raft1.PO3", dir, name);
    EXPECT_EQ(dir, std::filesystem::current_path().generic_string() + "/");
    EXPECT_EQ(name, "Raft1");
}

TEST(FileDialogs, APathFromTheCommandLineNamesAnExistingProjectFile) {
    const TestFolder folder;
    WriteBytes(folder / "Raft1.PO3", "");
    WriteBytes(folder / "Raft1.SSD", "");
    std::filesystem::create_directory(folder / "Dir.PO3");
    std::string file, dir, name;
    for (const char* path : {"Raft1.PO3", "Raft1.po3", "Raft1"}) {
        ASSERT_TRUE(FileDialogs().ResolveProjectPath(folder / path, file, dir, name, "", 6)) << path;
        EXPECT_EQ(file, folder / "Raft1.PO3");
        EXPECT_EQ(dir, folder.Dir());
        EXPECT_EQ(name, "Raft1");
    }
    file = dir = name = "kept";
    for (const char* path : {"Raft2.PO3", "Raft1.SSD", "Dir.PO3", ""})
        EXPECT_FALSE(FileDialogs().ResolveProjectPath(folder / path, file, dir, name, "", 6)) << path;
    EXPECT_EQ(file + dir + name, "keptkeptkept");
}

}  // namespace
}  // namespace lithmark::tests
