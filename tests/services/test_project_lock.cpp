// A project is open in one program at a time.

#include <memory>

#include "services/ProjectStore.h"
#include "services/storage/ProjectLock.h"
#include "services/storage/TemporaryFile.h"
#include "services/texts/LanguageTexts.h"
#include "support/Files.h"
#include "support/Matchers.h"
#include "support/OtherProcess.h"
#include "support/ScriptedHost.h"
#include "support/System.h"

namespace lithmark::tests {
namespace {

class ProjectLockTest : public ::testing::Test {
  protected:
    void SetUp() override { LanguageTexts().SetCurrent(Language::English); }
    void TearDown() override { ProjectStore().LeaveProject(); }

    TestFolder folder;
    ScriptedHost host;
};

TEST_F(ProjectLockTest, ALockHasItsFileAsLongAsItIsHeld) {
    {
        const ProjectLock lock(folder / "Raft1");
        EXPECT_THAT(folder.Names(), ElementsAre(".lithmark-Raft1.lock"));
    }
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(ProjectLockTest, TheSecondOpenerIsToldWhoHasTheProject) {
    LITHMARK_NEEDS(CopyOfAProcess);
    const OtherProcess other([this] { new ProjectLock(folder / "Raft1"); });
    EXPECT_FALSE(ProjectStore().TakeProject(folder / "Raft1"));
    ASSERT_THAT(host.Messages, SizeIs(1));
    const std::string process = "process " + std::to_string(other.Process());
    EXPECT_THAT(host.LastMessage().Text, HasSubstr("The project " + (folder / "Raft1") + " is open already: by "));
    EXPECT_THAT(host.LastMessage().Text, HasSubstr(process));
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft2"));  // another project of the folder
}

TEST_F(ProjectLockTest, ALockDoesNotOutliveItsHolder) {
    LITHMARK_NEEDS(CopyOfAProcess);
    OtherProcess other([this] { new ProjectLock(folder / "Raft1"); });
    other.Kill();
    EXPECT_THAT(folder.Names(), SizeIs(1));  // the file, without its lock
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft1"));
    EXPECT_THAT(host.Messages, IsEmpty());
    ProjectStore().LeaveProject();
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(ProjectLockTest, AProgramThatIsAskedToEndTakesItsLockAndItsTemporariesAlong) {
    LITHMARK_NEEDS(CopyOfAProcess);
    OtherProcess other([this] {
        EndCleanlyOnSignals();
        new ProjectLock(folder / "Raft1");
        new TemporaryFile(folder.Dir(), "target");
    });
    EXPECT_THAT(folder.Names(), SizeIs(2));
    other.AskToEnd();
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(ProjectLockTest, TheProjectThatThisProgramHasIsItsOwn) {
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft1"));
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft1"));
    EXPECT_FALSE(ProjectStore().BeginSave(folder / "Raft1"));  // nothing to be locked beside it
    EXPECT_THAT(folder.Names(), ElementsAre(".lithmark-Raft1.lock"));
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft2"));
    EXPECT_THAT(folder.Names(), ElementsAre(".lithmark-Raft2.lock"));
}

TEST_F(ProjectLockTest, AProjectThatCannotBeTakenLeavesTheOldOne) {
    LITHMARK_NEEDS(CopyOfAProcess);
    const OtherProcess other([this] { new ProjectLock(folder / "Raft1"); });
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft2"));
    EXPECT_FALSE(ProjectStore().TakeProject(folder / "Raft1"));
    EXPECT_THAT(folder.Names(), ElementsAre(".lithmark-Raft1.lock", ".lithmark-Raft2.lock"));
}

TEST_F(ProjectLockTest, ASaveIntoAProjectThatIsOpenElsewhereIsRefused) {
    LITHMARK_NEEDS(CopyOfAProcess);
    const OtherProcess other([this] { new ProjectLock(folder / "Raft1"); });
    EXPECT_EQ(KindOf([this] { return ProjectStore().BeginSave(folder / "Raft1"); }), FailureKind::ProjectInUse);
}

TEST_F(ProjectLockTest, AFolderWithoutPermissionToWriteNeedsNoLock) {
    LITHMARK_NEEDS(FilePermissions);
    if (IsRoot()) GTEST_SKIP() << "root may write everywhere";
    std::filesystem::permissions(folder.Dir(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft1"));
    std::filesystem::permissions(folder.Dir(), std::filesystem::perms::owner_all);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectLockTest, ALinkInThePlaceOfTheLockLeadsNowhere) {
    LITHMARK_NEEDS(SymbolicLinks);
    WriteBytes(folder / "precious", "data");
    std::filesystem::create_symlink("precious", folder / ".lithmark-Raft1.lock");
    EXPECT_TRUE(ProjectStore().TakeProject(folder / "Raft1"));
    EXPECT_EQ(ReadBytes(folder / "precious"), "data");
}

// --- what crashes leave ---

TEST_F(ProjectLockTest, WhatACrashLeftIsTidiedUpAtTheNextOpening) {
    LITHMARK_NEEDS(CopyOfAProcess);
    OtherProcess other([this] {
        new ProjectLock(folder / "Raft1");
        new TemporaryFile(folder.Dir(), "target");
    });
    const TemporaryFile mine(folder.Dir(), "target");
    other.Kill();
    WriteBytes(folder / "Raft1.PO3", "Version 9\r\n1\r\n0\r\n");
    WriteBytes(folder / ".lithmark-notes.txt", "the user's own");
    EXPECT_TRUE(ProjectStore().UnpackProject(folder / "Raft1", ".po3"));
    const std::string name = std::filesystem::path(mine.Name()).filename().string();
    EXPECT_THAT(folder.Names(), ::testing::UnorderedElementsAre(name, ".lithmark-notes.txt", "Raft1.PO3"));
}

TEST_F(ProjectLockTest, WhatAnotherProgramIsWritingStays) {
    LITHMARK_NEEDS(CopyOfAProcess);
    const OtherProcess other([this] { new TemporaryFile(folder.Dir(), "target"); });
    EXPECT_TRUE(ProjectStore().UnpackProject(folder / "Raft1", ".po3"));
    EXPECT_THAT(folder.Names(), SizeIs(1));
}

}  // namespace
}  // namespace lithmark::tests
