// The project file .PO3 and the order file .AUF.
#include "files/ProjectFiles.h"
#include "files/ProjectTest.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class ProjectFiles : public ProjectTest {
  protected:
    void SetHeading() {
        Session.Auftr = " A 17, \"Nord\" ";
        Session.Datum = "1. März 2024";
        Session.Proj = "مشروع";
    }
};

TEST_F(ProjectFiles, ProjectDataAreTheseBytes) {
    SetHeading();
    Session.ProblemType = 10;
    WriteProjectData();
    EXPECT_TRUE(Session.FileSaved);
    EXPECT_EQ(ReadBytes(Path("AUF")), " A 17, \"Nord\" \r\n1. März 2024\r\nمشروع\r\n");
    EXPECT_EQ(ReadBytes(Path("PO3")), "Version 9\r\n10\r\n0\r\n");
    EXPECT_THAT(folder.Names(), ElementsAre("Raft1.AUF", "Raft1.PO3"));
    EXPECT_THAT(host.Pointers, ElementsAre(PointerShape::Hourglass, PointerShape::Default));
    EXPECT_THAT(host.FileStatuses,
                ElementsAre(FileStatus::Writing, FileStatus::None, FileStatus::Writing, FileStatus::None));
}

TEST_F(ProjectFiles, ProjectDataComeBack) {
    SetHeading();
    Session.ProblemType = 8;
    WriteProjectData();
    Session.Auftr = Session.Datum = Session.Proj = "";
    Session.ProblemType = 1;
    EXPECT_EQ(ReadProjectData(), ReadOutcome::Read);
    EXPECT_EQ(Session.Auftr, " A 17, \"Nord\" ");
    EXPECT_EQ(Session.Datum, "1. März 2024");
    EXPECT_EQ(Session.Proj, "مشروع");
    EXPECT_EQ(Session.ProblemType, 8);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectFiles, EmptyHeadingLinesAreLines) {
    Session.Auftr = Session.Datum = Session.Proj = "";
    WriteProjectData();
    EXPECT_EQ(ReadBytes(Path("AUF")), "\r\n\r\n\r\n");
    Session.Auftr = Session.Proj = "old";
    EXPECT_EQ(ReadProjectData(), ReadOutcome::Read);
    EXPECT_EQ(Session.Auftr + Session.Proj, "");
}

TEST_F(ProjectFiles, TheVersionLineMayHoldAnythingAndTheThirdLineIsNotRead) {
    for (const char* content : {"Version 9\r\n7\r\n0\r\n", "Version 1\r\n7\r\n0\r\n", "\r\n7\r\n", "1,2,3\r\n7\r\nabc",
                                "Version 9\n7", "Version 9\r7\r"}) {
        Session.ProblemType = 1;
        WriteBytes(Path("PO3"), content);
        EXPECT_EQ(ReadProjectFile(), ReadOutcome::Read) << content;
        EXPECT_EQ(Session.ProblemType, 7) << content;
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectFiles, TheProblemNumberIsNotChecked) {
    WriteBytes(Path("PO3"), "Version 9\r\n12\r\n0\r\n");
    EXPECT_EQ(ReadProjectFile(), ReadOutcome::Read);
    EXPECT_EQ(Session.ProblemType, 12);
}

TEST_F(ProjectFiles, ADamagedProjectFileIsToldAndLeavesTheProblem) {
    Session.ProblemType = 4;
    const struct {
        const char* Content;
        std::string Line;
    } cases[] = {{"", "1"}, {"Version 9\r\n", "2"}, {"Version 9\r\nraft\r\n", "2"}, {"Version 9\r\n40000\r\n", "2"}};
    for (const auto& one : cases) {
        WriteBytes(Path("PO3"), one.Content);
        host.Messages.clear();
        EXPECT_EQ(ReadProjectFile(), ReadOutcome::Failed);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_THAT(host.LastMessage().Text, HasSubstr(Path("PO3")));
        EXPECT_THAT(host.LastMessage().Text, HasSubstr("ine " + one.Line));
    }
    EXPECT_EQ(Session.ProblemType, 4);
}

TEST_F(ProjectFiles, AShortOrderFileKeepsWhatWasRead) {
    WriteBytes(Path("AUF"), "New order\r\n");
    Session.Auftr = Session.Datum = Session.Proj = "old";
    EXPECT_EQ(ReadOrderFile(), ReadOutcome::Failed);
    EXPECT_EQ(Session.Auftr, "New order");
    EXPECT_EQ(Session.Datum, "old");
    EXPECT_EQ(host.Messages.size(), 1u);
    // The project keeps its problem.
    WriteBytes(Path("PO3"), "Version 9\r\n7\r\n0\r\n");
    EXPECT_EQ(ReadProjectData(), ReadOutcome::Failed);
    EXPECT_EQ(Session.ProblemType, 7);
}

TEST_F(ProjectFiles, OlderOrderFilesAreReadInTheirCodePage) {
    WriteBytes(Path("AUF"), "Gr\xFC\nndung\r\n\x80 100\r\nx\r\n");
    EXPECT_EQ(ReadOrderFile(), ReadOutcome::Read);
    EXPECT_EQ(Session.Auftr, "Grü");
    EXPECT_EQ(Session.Datum, "ndung");
    EXPECT_EQ(Session.Proj, "€ 100");
    StartIn(Language::Arabic);
    WriteBytes(Path("AUF"), "\xE3\xD4\xD1\xE6\xDA\r\n\r\n\r\n");
    EXPECT_EQ(ReadOrderFile(), ReadOutcome::Read);
    EXPECT_EQ(Session.Auftr, "مشروع");
}

TEST_F(ProjectFiles, MissingFilesEndReadingWithoutAWord) {
    Session.Auftr = "old";
    Session.ProblemType = 5;
    EXPECT_EQ(ReadProjectFile(), ReadOutcome::Missing);
    EXPECT_EQ(ReadOrderFile(), ReadOutcome::Missing);
    EXPECT_EQ(ReadProjectData(), ReadOutcome::Missing);
    WriteBytes(Path("PO3"), "Version 9\r\n7\r\n0\r\n");
    // A project without an order file keeps its problem; heading and order are empty.
    EXPECT_EQ(ReadProjectData(), ReadOutcome::Read);
    EXPECT_EQ(Session.ProblemType, 7);
    EXPECT_EQ(Session.Auftr, "");
    std::filesystem::remove(Path("PO3"));
    WriteBytes(Path("AUF"), "new\r\n\r\n\r\n");
    EXPECT_EQ(ReadProjectData(), ReadOutcome::Missing);
    EXPECT_EQ(Session.Auftr, "new");
    EXPECT_EQ(Session.ProblemType, 7);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectFiles, ProjectAndOrderFileAreThoseOfTheProjectAndProjectDataThoseOfTheWorkingName) {
    SetHeading();
    Session.WorkName = "Copy";
    Session.ProblemType = 9;
    WriteProjectData();
    EXPECT_THAT(folder.Names(), ElementsAre("Copy.AUF", "Copy.PO3"));
    EXPECT_EQ(ReadProjectFile(), ReadOutcome::Missing);
    EXPECT_EQ(ReadOrderFile(), ReadOutcome::Missing);
    EXPECT_EQ(ReadProjectData(), ReadOutcome::Read);
    Session.ProjectName = "Copy";
    Session.WorkName = "Raft1";
    EXPECT_EQ(ReadProjectFile(), ReadOutcome::Read);
    EXPECT_EQ(ReadOrderFile(), ReadOutcome::Read);
}

TEST_F(ProjectFiles, WritingThatFailsIsToldOnceAndNotSaved) {
    LITHMARK_NEEDS(CopyOfAProcess);
    std::filesystem::create_directory(Path("AUF"));
    Session.FileSaved = true;
    WriteProjectData();
    EXPECT_FALSE(Session.FileSaved);
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(Path("PO3")));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
    std::filesystem::remove(Path("AUF"));
    EXPECT_TRUE(OnAFullDisk(8, [&] {
        host.Messages.clear();
        WriteProjectData();
        return !Session.FileSaved && host.Messages.size() == 1 &&
               host.LastMessage().Text.find(" cannot be written") != std::string::npos;
    }));
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(ProjectFiles, AProjectHasAFileInWhateverLetterCase) {
    LITHMARK_NEEDS(NamesByCase);
    EXPECT_FALSE(ProjectHasFile("SSD"));
    WriteBytes(folder / "Raft1.Ssd", "");
    EXPECT_TRUE(ProjectHasFile("SSD"));
    EXPECT_TRUE(ProjectHasFile("ssd"));
    EXPECT_FALSE(ProjectHasFile("CON"));
    WriteBytes(folder / "raft1.CON", "");  // another project: the stem keeps its letter case
    EXPECT_FALSE(ProjectHasFile("CON"));
}

// --- the wrappers --------------------------------------------------------------------------------------------------

class Wrappers : public ProjectTest {};

TEST_F(Wrappers, AMissingFileToReadIsRefusedWithoutANotice) {
    for (const FileMode mode : {FileMode::Input, FileMode::RandomInput}) {
        EXPECT_EQ(OpenDataFile(Path("SSD"), mode, 1), -1);
        EXPECT_FALSE(IsNumberedFileOpen(1));
    }
    EXPECT_THAT(host.FileStatuses, IsEmpty());
    EXPECT_EQ(SharedServices().CurrentFile(), Path("SSD"));
}

TEST_F(Wrappers, OpeningAndClosingShowAndClearTheNotice) {
    EXPECT_EQ(OpenDataFile(Path("SSD"), FileMode::Output, 1), 0);
    WriteRawLine(1, "text");
    EXPECT_THAT(host.FileStatuses, ElementsAre(FileStatus::Writing));
    CloseDataFile(1);
    EXPECT_EQ(OpenDataFile(Path("SSD"), FileMode::Input, 1), 0);
    CloseDataFile(1);
    EXPECT_EQ(OpenDataFile(Path("P21"), FileMode::RandomOutput, 1), 0);
    CloseDataFile(1);
    EXPECT_THAT(host.FileStatuses, ElementsAre(FileStatus::Writing, FileStatus::None, FileStatus::Reading,
                                               FileStatus::None, FileStatus::Writing, FileStatus::None));
    EXPECT_EQ(ReadBytes(Path("SSD")), "text\r\n");
}

TEST_F(Wrappers, TheCommonStepTellsTheFailureDropsTheFileAndClearsTheNotice) {
    WriteBytes(Path("SSD"), "old");
    OpenDataFile(Path("SSD"), FileMode::Output, 1);
    WriteRawLine(1, "new");
    FileError(Failure(FailureKind::DivisionByZero));
    EXPECT_FALSE(IsNumberedFileOpen(1));
    EXPECT_EQ(ReadBytes(Path("SSD")), "old");
    EXPECT_THAT(folder.Names(), ElementsAre("Raft1.SSD"));
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(host.FileStatuses.back(), FileStatus::None);
    FileError(Failure(FailureKind::Overflow));  // with no file open as well
    EXPECT_EQ(host.Messages.size(), 2u);
}

TEST_F(Wrappers, ADataFileNameIsFoldedToUpperCaseUnlessAnotherFormExists) {
    LITHMARK_NEEDS(NamesByCase);
    EXPECT_EQ(DataFileName(folder.Dir(), "Raft1", "po3"), Path("PO3"));
    WriteBytes(folder / "Raft1.Auf", "");
    EXPECT_EQ(DataFileName(folder.Dir(), "Raft1", "AUF"), folder / "Raft1.Auf");
}

}  // namespace
}  // namespace lithmark::tests
