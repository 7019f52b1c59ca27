// Damaged and foreign data files, and writing that fails.
#include <random>

#include "files/ProjectFiles.h"
#include "files/ProjectTest.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class Damaged : public ProjectTest {
  protected:
    // Reads a file of this content for the problem, over its defaults, and forgets earlier messages.
    ReadOutcome ReadContent(const DefaultFile& file, const std::string& content) {
        StartProblem(file.ProblemType);
        // A new file, not an old one cut to nothing: some file systems write the latter to the disk at once.
        std::filesystem::remove(Path(file.Extension));
        WriteBytes(Path(file.Extension), content);
        host.Messages.clear();
        return ReadProblemData();
    }
    void ExpectMessage(const DefaultFile& file, TextId text, std::size_t line, const std::string& shown = "") {
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.LastMessage().Text,
                  Text(text, {{"|1", Path(file.Extension)}, {"|2", std::to_string(line)}, {"|3", shown}}));
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
        EXPECT_EQ(host.FileStatuses.back(), FileStatus::None);
    }
};

bool Holds(const std::vector<int>& lines, std::size_t line) {
    return std::find(lines.begin(), lines.end(), static_cast<int>(line)) != lines.end();
}

// --- too short, too long -------------------------------------------------------------------------------------------

TEST_F(Damaged, AFileThatEndsTooEarlyIsToldWithTheLineThatIsMissing) {
    for (const DefaultFile& file : DefaultFiles())
        for (std::size_t count = 0; count < file.Lines.size(); ++count) {
            SCOPED_TRACE(file.Extension + " with lines: " + std::to_string(count));
            EXPECT_EQ(ReadContent(file, JoinLines(file.Lines, count)), ReadOutcome::Failed);
            ExpectMessage(file, 900006_text, count + 1);
        }
}

TEST_F(Damaged, WhatWasReadBeforeTheEndStays) {
    StartProblem(1);
    FillFields(2);
    const FieldTexts before = TakeFields();
    WriteBytes(Path("SSD"), "11\r\n12\r\n13\r\n14\r\n15\r\n16\r\n17\r\n.18\r\n19\r\n");
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Failed);
    FieldTexts expected = before;
    for (const auto& [name, text] : FieldTexts{{"x", "11"},
                                               {"y", "12"},
                                               {"z", "13"},
                                               {"Q", "14"},
                                               {"P", "15"},
                                               {"A", "16"},
                                               {"B", "17"},
                                               {"Nue", ".18"},
                                               {"Es", "19"}})
        expected[name] = text;
    EXPECT_EQ(TakeFields(), expected);
}

TEST_F(Damaged, TheLastLineNeedsNoEndAndWhatFollowsItIsIgnored) {
    for (const DefaultFile& file : DefaultFiles()) {
        SCOPED_TRACE(file.Extension);
        std::string content = JoinLines(file.Lines);
        EXPECT_EQ(ReadContent(file, content + "anything\r\n\x01\x02 more"), ReadOutcome::Read);
        content.resize(content.size() - 2);
        EXPECT_EQ(ReadContent(file, content), ReadOutcome::Read);
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

// --- lines that hold something else --------------------------------------------------------------------------------

TEST_F(Damaged, LettersAreToldWithLineAndContentExceptWhereATextStands) {
    for (const DefaultFile& file : DefaultFiles())
        for (std::size_t line = 1; line <= file.Lines.size(); ++line) {
            SCOPED_TRACE(file.Extension + " line " + std::to_string(line));
            auto lines = file.Lines;
            lines[line - 1] = "abc";
            const ReadOutcome outcome = ReadContent(file, JoinLines(lines));
            if (Holds(file.RawLines, line)) {
                EXPECT_EQ(outcome, ReadOutcome::Read);
                continue;
            }
            EXPECT_EQ(outcome, ReadOutcome::Failed);
            ExpectMessage(file, Holds(file.FlagLines, line) ? 900008_text : 900007_text, line, "abc");
        }
}

TEST_F(Damaged, ANumberThatItsFieldCannotHoldIsTold) {
    for (const DefaultFile& file : DefaultFiles()) {
        SCOPED_TRACE(file.Extension);
        auto lines = file.Lines;
        lines[0] = "1E+39";
        EXPECT_EQ(ReadContent(file, JoinLines(lines)), ReadOutcome::Failed);
        ExpectMessage(file, 900010_text, 1, "1E+39");
    }
}

TEST_F(Damaged, ZeroBytesAreToldInEveryLine) {
    for (const DefaultFile& file : DefaultFiles())
        for (std::size_t line = 1; line <= file.Lines.size(); ++line) {
            SCOPED_TRACE(file.Extension + " line " + std::to_string(line));
            auto lines = file.Lines;
            lines[line - 1] = std::string("1\0002", 3);
            EXPECT_EQ(ReadContent(file, JoinLines(lines)), ReadOutcome::Failed);
            ASSERT_EQ(host.Messages.size(), 1u);
            EXPECT_THAT(host.LastMessage().Text, HasSubstr("ine " + std::to_string(line) + " "));
        }
}

TEST_F(Damaged, AFileOfZeroBytesFailsAtItsFirstLine) {
    for (const DefaultFile& file : DefaultFiles()) {
        EXPECT_EQ(ReadContent(file, std::string(5000, '\0')), ReadOutcome::Failed);
        EXPECT_THAT(host.LastMessage().Text, HasSubstr("ine 1 "));
    }
}

TEST_F(Damaged, ACommaInANumberLineMakesTwoValuesAndShiftsTheRest) {
    StartProblem(1);
    WriteBytes(Path("SSD"), "1,5\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n.25\r\n9\r\n");
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.x, 1.0);
    EXPECT_EQ(Session.y, 5.0);
    EXPECT_EQ(Session.z, 2.0);
    EXPECT_EQ(Session.Es, 0.25);
    EXPECT_EQ(Session.LoadType, 9);
}

TEST_F(Damaged, ValuesAreNotCheckedBeyondTheirType) {
    StartProblem(1);
    WriteBytes(Path("SSD"), "-1\r\n-2\r\n-3\r\n-4\r\n-5\r\n0\r\n0\r\n7\r\n-8\r\n-9\r\n");
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.Nue, 7.0);
    EXPECT_EQ(Session.LoadType, -9);
}

// --- counts --------------------------------------------------------------------------------------------------------

TEST_F(Damaged, ACountThatNoTableCanHaveIsToldWithItsLineAndChangesNeitherCountNorTable) {
    for (const DefaultFile& file : DefaultFiles())
        for (const int line : file.CountLines)
            for (const char* count : {"0", "-1", "-32768", "32768", "1000000", "-1000000", "1E+30"}) {
                SCOPED_TRACE(file.Extension + " line " + std::to_string(line) + ": " + count);
                auto lines = file.Lines;
                lines[static_cast<std::size_t>(line) - 1] = count;
                StartProblem(file.ProblemType);
                const FieldTexts defaults = TakeFields();
                EXPECT_EQ(ReadContent(file, JoinLines(lines)), ReadOutcome::Failed);
                ExpectMessage(file, 900009_text, static_cast<std::size_t>(line));
                EXPECT_EQ(TakeFields(), defaults);  // the lines before it hold the defaults too
            }
}

TEST_F(Damaged, TheGreatestCountIsReadWhenItsRowsAreThere) {
    StartProblem(6);
    Session.NSts = 32767;
    Session.StsTime.Redim(1, 32767);
    Session.StsValue.Redim(1, 32767);
    for (int i = 1; i <= 32767; ++i) Session.StsTime(i) = i * 0.5;
    WriteProblemData();
    ASSERT_TRUE(Session.FileSaved);
    StartProblem(6);
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.NSts, 32767);
    EXPECT_EQ(Session.StsTime(32767), 16383.5);
}

TEST_F(Damaged, ACountBeyondTheRowsEndsAtTheEndOfTheFileWithATableOfThatSize) {
    const DefaultFile& file = DefaultFiles()[3];
    auto lines = file.Lines;
    lines[41] = "12";  // NOed; ten rows follow
    EXPECT_EQ(ReadContent(file, JoinLines(lines)), ReadOutcome::Failed);
    ExpectMessage(file, 900006_text, 63);
    EXPECT_EQ(Session.NOed, 12);
    EXPECT_EQ(Session.OedTime.Upper(), 12);
    EXPECT_EQ(Session.OedTime(10), 1440.0);
    EXPECT_EQ(Session.OedTime(12), 0.0);  // nothing of the old rows stays
}

TEST_F(Damaged, ATableThatBreaksOffHasNothingOfTheOldRowsBehindTheBreak) {
    const DefaultFile& file = DefaultFiles()[3];
    EXPECT_EQ(ReadContent(file, JoinLines(file.Lines, 22)), ReadOutcome::Failed);  // NLoad and one and a half rows
    EXPECT_EQ(Session.LoadValue.Upper(), 5);
    EXPECT_EQ(Session.LoadValue(2), 42.0);
    EXPECT_EQ(Session.LoadTime(1), 1);
    EXPECT_EQ(Session.LoadTime(2), 0);
    EXPECT_EQ(Session.LoadValue(3), 0.0);
    EXPECT_EQ(Session.NSts, 5);  // the tables behind it are the defaults
    EXPECT_EQ(Session.StsValue(1), 49.0);
}

TEST_F(Damaged, ASmallerCountLeavesNothingOfTheOldRows) {
    StartProblem(6);
    Session.NLoad = 1;
    WriteProblemData();
    StartProblem(6);
    EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
    EXPECT_EQ(Session.LoadTime.Upper(), 1);
    EXPECT_EQ(Session.LoadValue.Upper(), 1);
}

// --- line ends and code pages --------------------------------------------------------------------------------------

TEST_F(Damaged, EveryLineEndIsRead) {
    for (const DefaultFile& file : DefaultFiles()) {
        StartProblem(file.ProblemType);
        const FieldTexts expected = TakeFields();
        for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
            StartIn(Language::English);
            Session.ProblemType = file.ProblemType;
            Session.x = Session.y = 99;
            WriteBytes(Path(file.Extension), JoinLines(file.Lines, lineEnd));
            EXPECT_EQ(ReadProblemData(), ReadOutcome::Read);
            const FieldTexts actual = TakeFields();
            for (const std::string_view name : ProblemFieldNames(file.ProblemType))
                EXPECT_EQ(actual.at(std::string(name)), expected.at(std::string(name))) << name;
        }
    }
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(Damaged, OlderFilesAreReadInTheirCodePage) {
    const DefaultFile& file = DefaultFiles()[3];
    auto lines = file.Lines;
    lines[13] = "1. M\xE4rz 2024";
    EXPECT_EQ(ReadContent(file, JoinLines(lines)), ReadOutcome::Read);
    EXPECT_EQ(Session.StartDate, "1. März 2024");
    lines[13] = "1 January 2024";
    lines[17] = "\xED\xE6\xE3";
    StartIn(Language::Arabic);
    EXPECT_EQ(ReadContent(file, JoinLines(lines)), ReadOutcome::Read);
    EXPECT_EQ(Session.TimeUnit, "يوم");
    lines[17] = "سنة";  // and UTF-8 in the same language
    EXPECT_EQ(ReadContent(file, "\xEF\xBB\xBF" + JoinLines(lines)), ReadOutcome::Read);
    EXPECT_EQ(Session.TimeUnit, "سنة");
}

// --- what is no file -----------------------------------------------------------------------------------------------

TEST_F(Damaged, AFolderInPlaceOfTheFileIsToldWhenReadingAndWriting) {
    for (const DefaultFile& file : DefaultFiles()) {
        StartProblem(file.ProblemType);
        std::filesystem::create_directory(Path(file.Extension));
        const FieldTexts before = TakeFields();
        host.Messages.clear();
        EXPECT_EQ(ReadProblemData(), ReadOutcome::Failed);
        Session.FileSaved = true;
        WriteProblemData();
        EXPECT_FALSE(Session.FileSaved);
        ASSERT_EQ(host.Messages.size(), 2u);
        for (const auto& message : host.Messages)
            EXPECT_THAT(message.Text, testing::StartsWith(Text(900001_text, {{"|1", Path(file.Extension)}})));
        EXPECT_EQ(TakeFields(), before);
        EXPECT_EQ(host.Pointer(), PointerShape::Default);
    }
}

TEST_F(Damaged, ArbitraryChangesOfAFileNeverDoMoreThanFail) {
    std::mt19937 random(20261121);
    const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    int read = 0, failed = 0;
    for (int i = 0; i < 4000; ++i) {
        const DefaultFile& file = DefaultFiles()[below(DefaultFiles().size())];
        std::string content = JoinLines(file.Lines);
        for (std::size_t change = 0, changes = 1 + below(3); change < changes; ++change) {
            const std::size_t at = below(content.size());
            switch (below(4)) {
                case 0:
                    content[at] = static_cast<char>(below(256));
                    break;
                case 1:
                    content.erase(at, 1 + below(10));
                    break;
                case 2:
                    content.insert(at, content.substr(below(content.size()), below(12)));
                    break;
                default:
                    content.insert(at, 1, "0123456789-+.,eE\"#\r\n"[below(20)]);
            }
            if (content.empty()) content = "1";
        }
        const ReadOutcome outcome = ReadContent(file, content);
        (outcome == ReadOutcome::Read ? read : failed) += 1;
        EXPECT_EQ(host.Messages.size(), outcome == ReadOutcome::Failed ? 1u : 0u);
        EXPECT_FALSE(IsNumberedFileOpen(1));
        for (const auto& [count, column] :
             {std::pair(Session.NLoad, Session.LoadTime.Upper()), std::pair(Session.NSts, Session.StsTime.Upper()),
              std::pair(Session.NOed, Session.OedTime.Upper()), std::pair(Session.NScA, Session.ScA9.Upper()),
              std::pair(Session.NScB, Session.ScB5.Upper())})
            EXPECT_EQ(int{count}, column);
    }
    EXPECT_GT(read, 100);  // both ways were gone
    EXPECT_GT(failed, 100);
}

// --- writing that fails --------------------------------------------------------------------------------------------

TEST_F(Damaged, WritingOnAFullDiskIsToldAndNotSaved) {
    LITHMARK_NEEDS(CopyOfAProcess);
    for (const DefaultFile& file : DefaultFiles()) {
        SCOPED_TRACE(file.Extension);
        StartProblem(file.ProblemType);
        host.Messages.clear();
        Session.FileSaved = true;
        EXPECT_TRUE(OnAFullDisk(8, [&] {
            WriteProblemData();
            return !Session.FileSaved && host.Messages.size() == 1 &&
                   host.LastMessage().Text.find(" cannot be written") != std::string::npos &&
                   host.Pointer() == PointerShape::Default && host.FileStatuses.back() == FileStatus::None;
        }));
        EXPECT_THAT(folder.Names(), IsEmpty());
    }
}

TEST_F(Damaged, WritingIntoAMissingFolderIsTold) {
    StartProblem(1);
    Session.WorkDir = folder / "gone/";
    WriteProblemData();
    EXPECT_FALSE(Session.FileSaved);
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(Damaged, WritingThatFailsHalfWayLeavesTheOldFileAndNothingElse) {
    StartProblem(6);
    WriteProblemData();
    const std::string before = ReadBytes(Path("TST"));
    Session.Pt = 1;
    Session.NOed = 11;  // one more than there are rows
    WriteProblemData();
    EXPECT_FALSE(Session.FileSaved);
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_EQ(ReadBytes(Path("TST")), before);
    EXPECT_THAT(folder.Names(), ElementsAre("Raft1.PO3", "Raft1.TST"));
    // The next routine finds everything as it should be.
    Session.NOed = 10;
    WriteProblemData();
    EXPECT_TRUE(Session.FileSaved);
    EXPECT_THAT(ReadBytes(Path("TST")), HasSubstr("\r\n12.1\r\n1\r\n18\r\n"));
}

TEST_F(Damaged, WithoutItsProjectFileATimeSettlementIsNotWritten) {
    StartProblem(7);
    std::filesystem::create_directory(Path("PO3"));
    WriteProblemData();
    EXPECT_FALSE(Session.FileSaved);
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_FALSE(std::filesystem::exists(Path("TST")));
}

}  // namespace
}  // namespace lithmark::tests
