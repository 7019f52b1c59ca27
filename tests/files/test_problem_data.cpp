// The problem data files: their bytes, their way back, and what surrounds reading and writing.
#include "core/SessionFields.h"
#include "files/ProjectFiles.h"
#include "files/ProjectTest.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class ProblemData : public ProjectTest {};

// --- bytes ---------------------------------------------------------------------------------------------------------

TEST_F(ProblemData, DefaultsGiveTheseBytes) {
    for (const DefaultFile& file : DefaultFiles()) {
        SCOPED_TRACE(file.Extension);
        StartProblem(file.ProblemType);
        WriteProblemData();
        EXPECT_TRUE(Session.FileSaved);
        EXPECT_EQ(ReadBytes(Path(file.Extension)), JoinLines(file.Lines));
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProblemData, TheStressDefaultsAreThisFileToTheByte) {
    StartProblem(2);
    WriteProblemData();
    EXPECT_EQ(ReadBytes(Path("SSD")), "1\r\n1\r\n0\r\n7854\r\n100\r\n5\r\n5\r\n.25\r\n5000\r\n2\r\n");
}

TEST_F(ProblemData, ProblemsOfOneFamilyShareOneLayout) {
    for (const auto& family : std::vector<std::vector<int>>{{1, 2, 3}, {6, 7, 8}}) {
        std::vector<std::string> files;
        for (const int problem : family) {
            StartProblem(problem);
            WriteProblemData();
            files.push_back(ReadBytes(Path(problem <= 3 ? "SSD" : "TST")));
        }
        EXPECT_EQ(files[0], files[1]);
        EXPECT_EQ(files[0], files[2]);
    }
}

TEST_F(ProblemData, InATableTheValueStandsAheadOfItsTime) {
    StartProblem(6);
    Session.NLoad = 1;
    Session.LoadTime = Array<Integer>::Of({3});
    Session.LoadValue = Array<Single>::Of({60});
    Session.NSts = 1;
    Session.StsTime = Array<Single>::Of({0.5});
    Session.StsValue = Array<Single>::Of({70});
    Session.NOed = 1;
    Session.OedTime = Array<Single>::Of({8});
    Session.OedSettlement = Array<Single>::Of({0.9});
    Session.OedUnit = "[%]";
    WriteProblemData();
    EXPECT_THAT(ReadBytes(Path("TST")),
                testing::EndsWith("\r\ndays\r\n1\r\n60\r\n3\r\n1\r\n70\r\n.5\r\n[%]\r\n1\r\n.9\r\n8\r\n"));
}

TEST_F(ProblemData, TheLayerTableHasItsLastTwoColumnsInTheOrderNineEight) {
    StartProblem(11);
    Session.NScA = 2;
    int value = 10;
    for (auto* column : {&Session.ScA1, &Session.ScA2, &Session.ScA3, &Session.ScA4, &Session.ScA5, &Session.ScA6,
                         &Session.ScA7, &Session.ScA8, &Session.ScA9}) {
        *column = Array<Single>::Of({double(value), double(value + 1)});
        value += 10;
    }
    Session.ScFlag = false;
    WriteProblemData();
    const std::string written = ReadBytes(Path("SC1"));
    EXPECT_EQ(written,
              "25\r\n2\r\n.5\r\n.2\r\n#FALSE#\r\n1\r\n2\r\n"
              "10\r\n20\r\n30\r\n40\r\n50\r\n60\r\n70\r\n90\r\n80\r\n"
              "11\r\n21\r\n31\r\n41\r\n51\r\n61\r\n71\r\n91\r\n81\r\n"
              "1\r\n50\r\n50000\r\n150000\r\n.5\r\n18\r\n");
    SetProblemDefaults();
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.ScA8(2), 81.0);
    EXPECT_EQ(Session.ScA9(2), 91.0);
}

// --- there and back ------------------------------------------------------------------------------------------------

class RoundTrip : public ProjectTest, public testing::WithParamInterface<int> {};

TEST_P(RoundTrip, EveryFieldOfTheFileComesBackAndNoOtherIsTouched) {
    Session.ProblemType = GetParam();
    for (const int variant : {0, 1, 2}) {
        FillFields(variant);
        const FieldTexts written = TakeFields();
        WriteProblemData();
        ASSERT_TRUE(Session.FileSaved);
        FillFields(variant + 3);
        FieldTexts expected = TakeFields();
        for (const std::string_view name : ProblemFieldNames(GetParam())) {
            EXPECT_NE(expected.at(std::string(name)), written.at(std::string(name))) << name << " proves nothing";
            expected[std::string(name)] = written.at(std::string(name));
        }
        EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
        const FieldTexts actual = TakeFields();
        for (const auto& [name, text] : expected) EXPECT_EQ(actual.at(name), text) << name;
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_P(RoundTrip, TheFieldsOfAFileStandOnceAndAreKnownToTheSession) {
    std::vector<std::string_view> seen;
    for (const std::string_view name : ProblemFieldNames(GetParam())) {
        EXPECT_NE(FindSessionField(name), nullptr) << name;
        EXPECT_THAT(seen, testing::Not(testing::Contains(name)));
        seen.push_back(name);
    }
    EXPECT_FALSE(seen.empty());
}

INSTANTIATE_TEST_SUITE_P(EveryProblem, RoundTrip, testing::Range(1, 12));

TEST_F(ProblemData, FieldNamesStandInTheOrderOfTheFile) {
    EXPECT_THAT(ProblemFieldNames(3), ElementsAre("x", "y", "z", "Q", "P", "A", "B", "Nue", "Es", "LoadType"));
    EXPECT_THAT(ProblemFieldNames(11), ElementsAre("ScLoad", "NScA", "ScValue1", "ScValue2", "ScFlag", "ScValue3",
                                                   "ScValue4", "ScA1", "ScA2", "ScA3", "ScA4", "ScA5", "ScA6", "ScA7",
                                                   "ScA9", "ScA8", "NScB", "ScB1", "ScB2", "ScB3", "ScB4", "ScB5"));
}

TEST_F(ProblemData, AFileWrittenByOneMethodIsReadByAnother) {
    StartProblem(8);
    Session.OedSettlement(10) = 1.5;
    WriteProblemData();
    StartProblem(6);
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.OedSettlement(10), Single(1.5));
    EXPECT_EQ(Session.ProblemType, Problem::TimeDirect);
}

TEST_F(ProblemData, ATimeUnitOfAnotherLanguageIsTheSameUnitOfTheLanguageInForce) {
    StartIn(Language::Arabic);
    StartProblem(5);
    WriteProblemData();
    StartIn(Language::German);
    StartProblem(5);
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.TimeUnit, "Jahre");
}

TEST_F(ProblemData, TheUnitOfTheReadingsIsReadAsAListItem) {
    StartProblem(6);
    auto lines = DefaultFiles()[3].Lines;
    lines[40] = "\"[%]\"";
    WriteBytes(Path("TST"), JoinLines(lines));
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.OedUnit, "[%]");
    // A comma ends the item; what follows it is taken as the count.
    lines[40] = "[in],1";
    lines.erase(lines.begin() + 41, lines.begin() + 60);
    WriteBytes(Path("TST"), JoinLines(lines));
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.OedUnit, "[in]");
    EXPECT_EQ(Session.NOed, 1);
    EXPECT_EQ(Session.OedSettlement(1), Single(1.309));
}

// --- names ---------------------------------------------------------------------------------------------------------

TEST_F(ProblemData, FilesStandUnderWorkDirAndWorkName) {
    StartProblem(1);
    Session.WorkName = "Other name";
    Session.DataDir = "/nowhere/";
    Session.ProjectName = "Nothing";
    WriteProblemData();
    EXPECT_THAT(folder.Names(), ElementsAre("Other name.SSD"));
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
}

TEST_F(ProblemData, AnExistingFileOfAnotherLetterCaseIsReadAndWritten) {
    StartProblem(1);
    WriteBytes(folder / "Raft1.ssd", "7\r\n1\r\n0\r\n7854\r\n100\r\n5\r\n5\r\n.25\r\n5000\r\n2\r\n");
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.x, 7.0);
    Session.x = 8;
    WriteProblemData();
    EXPECT_THAT(folder.Names(), ElementsAre("Raft1.ssd"));
    EXPECT_THAT(ReadBytes(folder / "Raft1.ssd"), testing::StartsWith("8\r\n"));
}

// --- the project file of the time-settlement problems --------------------------------------------------------------

TEST_F(ProblemData, TheTimeSettlementProblemsWriteTheirProjectFileToo) {
    for (const int problem : {6, 7, 8}) {
        StartProblem(problem);
        WriteProblemData();
        EXPECT_EQ(ReadBytes(Path("PO3")), "Version 9\r\n" + std::to_string(problem) + "\r\n0\r\n");
    }
    EXPECT_THAT(folder.Names(), ElementsAre("Raft1.PO3", "Raft1.TST"));
}

TEST_F(ProblemData, TheOthersLeaveTheProjectFileAlone) {
    for (const DefaultFile& file : DefaultFiles()) {
        if (file.Extension == "TST") continue;
        StartProblem(file.ProblemType);
        WriteProblemData();
    }
    EXPECT_FALSE(std::filesystem::exists(Path("PO3")));
}

// --- pointer, notices, flags ---------------------------------------------------------------------------------------

TEST_F(ProblemData, AMissingFileLeavesTheDefaultsTheHourglassAndNoWord) {
    for (int problem = 1; problem <= 11; ++problem) {
        StartProblem(problem);
        const FieldTexts before = TakeFields();
        host.Pointers.clear();
        EXPECT_EQ(ReadProblemData(), ReadOutcome::Missing);
        EXPECT_EQ(TakeFields(), before);
        EXPECT_THAT(host.Pointers, ElementsAre(PointerShape::Hourglass));
    }
    EXPECT_THAT(host.Messages, IsEmpty());
    EXPECT_THAT(host.FileStatuses, IsEmpty());
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(ProblemData, ReadingAndWritingShowTheHourglassAndTheirNotice) {
    StartProblem(4);
    WriteProblemData();
    EXPECT_THAT(host.Pointers, ElementsAre(PointerShape::Hourglass, PointerShape::Default));
    EXPECT_THAT(host.FileStatuses, ElementsAre(FileStatus::Writing, FileStatus::None));
    host.Pointers.clear();
    host.FileStatuses.clear();
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_THAT(host.Pointers, ElementsAre(PointerShape::Hourglass, PointerShape::Default));
    EXPECT_THAT(host.FileStatuses, ElementsAre(FileStatus::Reading, FileStatus::None));
}

TEST_F(ProblemData, ReadingDoesNotTouchTheSavedFlag) {
    StartProblem(1);
    WriteProblemData();
    for (const bool saved : {false, true}) {
        Session.FileSaved = saved;
        ReadProblemData();
        EXPECT_EQ(Session.FileSaved, saved);
    }
}

TEST_F(ProblemData, AProblemOutsideTheCatalogueIsAToldFailure) {
    for (const int problem : {0, 12, -1}) {
        Session.ProblemType = problem;
        Session.FileSaved = true;
        EXPECT_EQ(ReadProblemData(), ReadOutcome::Failed);
        WriteProblemData();
        EXPECT_FALSE(Session.FileSaved);
    }
    EXPECT_THAT(host.Messages, testing::SizeIs(6));
    EXPECT_EQ(host.Pointer(), PointerShape::Default);
    EXPECT_THAT(folder.Names(), IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
