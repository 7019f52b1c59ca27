#include <bit>
#include <cmath>
#include <random>

#include "services/storage/DataFile.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"
#include "support/Files.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class DataFile : public ::testing::Test {
  protected:
    void SetUp() override { LanguageTexts().SetCurrent(Language::English); }
    void TearDown() override {
        DropNumberedFile(1);
        LanguageTexts().SetCurrent(Language::English);
    }
    // Opens a file of this content for reading as number 1.
    void Open(const std::string& content) {
        WriteBytes(folder / "A.SSD", content);
        OpenNumberedFile(1, folder / "A.SSD", FileMode::Input);
    }
    void StartWriting(const std::string& name = "A.SSD") { OpenNumberedFile(1, folder / name, FileMode::Output); }
    TestFolder folder;
};

void ExpectFailure(auto&& action, FailureKind kind, long line) {
    const auto failure = FailureOf(action);
    ASSERT_TRUE(failure) << "no failure";
    EXPECT_EQ(failure->Kind(), kind);
    EXPECT_EQ(failure->Line(), line);
}

// --- reading -------------------------------------------------------------------------------------------------------

TEST_F(DataFile, ReadsEveryLineEndAlike) {
    Open("1\r\n2\n3\r.5\r\nlast");
    EXPECT_EQ(ReadInteger(1), 1);
    EXPECT_EQ(ReadInteger(1), 2);
    EXPECT_EQ(ReadInteger(1), 3);
    EXPECT_EQ(ReadSingle(1), Single(0.5));
    EXPECT_EQ(ReadRawLine(1), "last");
    ExpectFailure([] { ReadRawLine(1); }, FailureKind::EndOfFile, 5);
}

TEST_F(DataFile, AnEmptyLineIsALineAndAnEmptyFileHasNone) {
    Open("\r\n\n\r");
    for (int i = 0; i < 3; ++i) EXPECT_EQ(ReadRawLine(1), "");
    ExpectFailure([] { ReadRawLine(1); }, FailureKind::EndOfFile, 4);
    CloseNumberedFile(1);
    Open("");
    ExpectFailure([] { ReadSingle(1); }, FailureKind::EndOfFile, 1);
}

TEST_F(DataFile, ReadsNumbersAsTheyAreWritten) {
    Open("  1.5E-06 \r\n-.25\r\n+7\r\n1D3\r\n1e2\r\n-32768\r\n2147483647\r\n3.28083989501312\r\n");
    EXPECT_EQ(ReadSingle(1), Single(1.5e-6));
    EXPECT_EQ(ReadSingle(1), Single(-0.25));
    EXPECT_EQ(ReadSingle(1), Single(7));
    EXPECT_EQ(ReadSingle(1), Single(1000));
    EXPECT_EQ(ReadSingle(1), Single(100));
    EXPECT_EQ(ReadInteger(1), -32768);
    EXPECT_EQ(ReadLong(1), 2147483647);
    EXPECT_EQ(ReadDouble(1), 3.28083989501312);
}

TEST_F(DataFile, ASingleIsRoundedOnceFromItsText) {
    // A little more than 1 + 2^-24, the middle between 1 and the next Single. Rounded to 64 bits first it would be that
    // middle itself, and go to the even 1.
    Open("1.000000059604644775390625867\r\n");
    EXPECT_EQ(static_cast<double>(ReadSingle(1)), 1.00000011920928955078125);
}

TEST_F(DataFile, ACommaEndsAValueAndTheRestOfTheLineIsTheNext) {
    Open("1,25\r\n3\r\n4,rest, of it\r\n5\r\n");
    EXPECT_EQ(ReadSingle(1), Single(1));
    EXPECT_EQ(ReadSingle(1), Single(25));
    EXPECT_EQ(ReadSingle(1), Single(3));
    EXPECT_EQ(ReadSingle(1), Single(4));
    EXPECT_EQ(ReadRawLine(1), "rest, of it");
    EXPECT_EQ(LineToRead(1), 4);
    EXPECT_EQ(ReadSingle(1), Single(5));
}

TEST_F(DataFile, FlagsAreTheKeywordsAndNothingElse) {
    Open("#TRUE#\r\n#FALSE#\r\n #true# \r\nTRUE\r\n");
    EXPECT_TRUE(ReadFlag(1));
    EXPECT_FALSE(ReadFlag(1));
    EXPECT_TRUE(ReadFlag(1));
    ExpectFailure([] { ReadFlag(1); }, FailureKind::BadFlag, 4);
}

TEST_F(DataFile, RawLinesKeepBlanksCommasAndQuotes) {
    Open("  a, \"b\"  \r\n");
    EXPECT_EQ(ReadRawLine(1), "  a, \"b\"  ");
}

TEST_F(DataFile, ListItemsLoseTheirQuotesAndEndAtTheComma) {
    Open("\"[m]\",1\r\n[cm]\r\n \"a,b\" ,,\"open\r\n\"\"\r\n");
    EXPECT_EQ(ReadListItem(1), "[m]");
    EXPECT_EQ(ReadDouble(1), 1);
    EXPECT_EQ(ReadListItem(1), "[cm]");
    EXPECT_EQ(ReadListItem(1), "a,b");
    EXPECT_EQ(ReadListItem(1), "");
    EXPECT_EQ(ReadListItem(1), "open");
    EXPECT_EQ(ReadListItem(1), "");
    ExpectFailure([] { ReadListItem(1); }, FailureKind::EndOfFile, 5);
}

TEST_F(DataFile, DamagedNumbersAreFailuresWithTheirLine) {
    const struct {
        const char* Text;
        FailureKind Kind;
    } cases[] = {{"abc", FailureKind::BadNumber},  {"1.5m", FailureKind::BadNumber},  {"", FailureKind::BadNumber},
                 {"1 2", FailureKind::BadNumber},  {"0x10", FailureKind::BadNumber},  {"nan", FailureKind::BadNumber},
                 {"inf", FailureKind::BadNumber},  {"--1", FailureKind::BadNumber},   {"1e", FailureKind::BadNumber},
                 {"1E+39", FailureKind::Overflow}, {"-1E+39", FailureKind::Overflow}, {"1e999", FailureKind::Overflow}};
    for (const auto& one : cases) {
        SCOPED_TRACE(one.Text);
        Open("1\r\n" + std::string(one.Text) + "\r\n3\r\n");
        ReadSingle(1);
        ExpectFailure([] { ReadSingle(1); }, one.Kind, 2);
        CloseNumberedFile(1);
    }
}

TEST_F(DataFile, WholeNumbersBeyondTheirWidthAreFailures) {
    Open("32768\r\n-32769\r\n2147483648\r\n-2147483649\r\n32767.4\r\n");
    ExpectFailure([] { ReadInteger(1); }, FailureKind::Overflow, 1);
    ExpectFailure([] { ReadInteger(1); }, FailureKind::Overflow, 2);
    ExpectFailure([] { ReadLong(1); }, FailureKind::Overflow, 3);
    ExpectFailure([] { ReadLong(1); }, FailureKind::Overflow, 4);
    EXPECT_EQ(ReadInteger(1), 32767);
}

TEST_F(DataFile, ANumberTooSmallForItsTypeIsZero) {
    Open("1E-60\r\n-0.0000000001E-400\r\n1.5e-99999999999999999999\r\n");
    EXPECT_EQ(ReadSingle(1), Single(0));
    EXPECT_EQ(ReadDouble(1), 0);
    EXPECT_EQ(ReadDouble(1), 0);
}

TEST_F(DataFile, TheFailureShowsAShortPrintablePieceOfTheLine) {
    Open(std::string(100000, 'x') + "\r\n\x01\x02z\r\n");
    const auto longLine = FailureOf([] { ReadSingle(1); });
    ASSERT_TRUE(longLine);
    EXPECT_EQ(longLine->Detail(), std::string(40, 'x') + "...");
    EXPECT_EQ(FailureOf([] { ReadSingle(1); })->Detail(), "\uFFFD\uFFFDz");
}

TEST_F(DataFile, BinaryContentIsAFailureOfEveryReader) {
    const std::string zeros("\0\0\0,\0", 5);
    Open(zeros);
    ExpectFailure([] { ReadSingle(1); }, FailureKind::BadNumber, 1);
    CloseNumberedFile(1);
    Open(zeros);
    ExpectFailure([] { ReadRawLine(1); }, FailureKind::ReadError, 1);
    CloseNumberedFile(1);
    Open(zeros);
    ExpectFailure([] { ReadListItem(1); }, FailureKind::ReadError, 1);
    CloseNumberedFile(1);
    Open("1\r\n" + zeros + "\r\n3\r\n");
    ReadSingle(1);
    ExpectFailure([] { ReadRawLine(1); }, FailureKind::ReadError, 2);
}

TEST_F(DataFile, DecodesUtf8WithAndWithoutMarkAndTheOlderCodePages) {
    Open(
        "\xEF\xBB\xBF"
        "12\r\nGr\xC3\xB6\xC3\x9F"
        "e\r\n");
    EXPECT_EQ(ReadInteger(1), 12);
    EXPECT_EQ(ReadRawLine(1), "Größe");
    CloseNumberedFile(1);
    Open(
        "Gr\xF6\xDF"
        "e \x80\r\n");  // ö, ß and the euro sign of Windows-1252
    EXPECT_EQ(ReadRawLine(1), "Größe €");
    CloseNumberedFile(1);
    LanguageTexts().SetCurrent(Language::Arabic);
    Open("\xE3\xD4\xD1\xE6\xDA\r\n");  // "project" in Windows-1256: meem, sheen, reh, waw, ain
    EXPECT_EQ(ReadRawLine(1), "مشروع");
}

TEST_F(DataFile, AMillionLinesAreReadAndWritten) {
    StartWriting();
    for (int i = 1; i <= 1000000; ++i) WriteNumber(1, static_cast<long>(i));
    CloseNumberedFile(1);
    OpenNumberedFile(1, folder / "A.SSD", FileMode::Input);
    std::int64_t sum = 0;
    for (int i = 1; i <= 1000000; ++i) sum += ReadLong(1);
    EXPECT_EQ(sum, 500000500000);
    ExpectFailure([] { ReadLong(1); }, FailureKind::EndOfFile, 1000001);
}

// Whatever the bytes, a reader gives a value or fails, and comes to the end of the file.
TEST_F(DataFile, ArbitraryBytesNeverCrashAReaderNorKeepItFromTheEnd) {
    std::mt19937 random(20261121);
    const std::string alphabet("0123456789.,-+eED#TRUEFALSE\"\r\n\t \0\xFF\xC3\xA4", 37);
    for (int round = 0; round < 600; ++round) {
        LanguageTexts().SetCurrent(round % 2 ? Language::Arabic : Language::German);
        std::string bytes;
        for (unsigned n = random() % 60; n > 0; --n)
            bytes += round % 3 ? alphabet[random() % alphabet.size()] : static_cast<char>(random());
        Open(bytes);
        int steps = 0;
        bool ended = false;
        while (!ended) {
            ASSERT_LT(++steps, 200) << "the reader does not move on";
            const auto failure = FailureOf([&] {
                switch (random() % 7) {
                    case 0:
                        ReadSingle(1);
                        break;
                    case 1:
                        ReadInteger(1);
                        break;
                    case 2:
                        ReadLong(1);
                        break;
                    case 3:
                        ReadDouble(1);
                        break;
                    case 4:
                        ReadFlag(1);
                        break;
                    case 5:
                        ReadRawLine(1);
                        break;
                    default:
                        ReadListItem(1);
                        break;
                }
            });
            if (!failure) continue;
            EXPECT_GE(failure->Line(), 1);
            ended = failure->Kind() == FailureKind::EndOfFile || failure->Kind() == FailureKind::ReadError;
        }
        CloseNumberedFile(1);
    }
}

// --- opening -------------------------------------------------------------------------------------------------------

TEST_F(DataFile, WhatCannotBeOpenedForReadingFailsWithItsKind) {
    const auto open = [&](const std::string& path) {
        return KindOf([&] { OpenNumberedFile(1, path, FileMode::Input); });
    };
    EXPECT_EQ(open(folder / "NONE.SSD"), FailureKind::FileMissing);
    EXPECT_EQ(open(folder.Dir()), FailureKind::NotAFile);
    EXPECT_FALSE(IsNumberedFileOpen(1));
    LITHMARK_NEEDS(DeviceFiles);
    EXPECT_EQ(open("/dev/zero"), FailureKind::NotAFile);
    EXPECT_FALSE(IsNumberedFileOpen(1));
    if (IsRoot()) return;  // root reads everything
    WriteBytes(folder / "LOCKED.SSD", "1");
    std::filesystem::permissions(folder / "LOCKED.SSD", std::filesystem::perms::none);
    EXPECT_EQ(open(folder / "LOCKED.SSD"), FailureKind::PermissionDenied);
}

TEST_F(DataFile, WhatCannotBeOpenedForWritingFailsWithItsKindAndLeavesNothing) {
    const auto open = [&](const std::string& path) {
        return KindOf([&] { OpenNumberedFile(1, path, FileMode::Output); });
    };
    EXPECT_EQ(open(folder.Dir()), FailureKind::NotAFile);
    EXPECT_EQ(open(folder / "nowhere/A.SSD"), FailureKind::FileMissing);
    EXPECT_FALSE(IsNumberedFileOpen(1));
    EXPECT_THAT(folder.Names(), ElementsAre());
    if (IsRoot()) return;  // root writes everywhere
    WriteBytes(folder / "LOCKED.SSD", "1");
    std::filesystem::permissions(folder / "LOCKED.SSD", std::filesystem::perms::owner_read);
    EXPECT_EQ(open(folder / "LOCKED.SSD"), FailureKind::PermissionDenied);
    EXPECT_EQ(ReadBytes(folder / "LOCKED.SSD"), "1");
}

TEST_F(DataFile, ANumberIsInUseUntilItsFileIsClosed) {
    StartWriting();
    EXPECT_TRUE(IsNumberedFileOpen(1));
    EXPECT_EQ(KindOf([&] { OpenNumberedFile(1, folder / "B.SSD", FileMode::Output); }), FailureKind::Other);
    CloseNumberedFile(1);
    EXPECT_FALSE(IsNumberedFileOpen(1));
    EXPECT_EQ(KindOf([] { ReadSingle(1); }), FailureKind::ReadError);
    EXPECT_EQ(KindOf([] { WriteRawLine(1, FlagText(true)); }), FailureKind::WriteError);
    CloseNumberedFile(1);  // closing what is not open does nothing
}

// --- writing -------------------------------------------------------------------------------------------------------

TEST_F(DataFile, WritesOneValueALineEndedByCrLf) {
    StartWriting();
    WriteNumber(1, Single(0.16));
    WriteNumber(1, Single(0.0000015));
    WriteNumber(1, Integer(-7));
    WriteNumber(1, 100000L);
    WriteNumber(1, 39.3700787401575);
    WriteRawLine(1, FlagText(true));
    WriteRawLine(1, FlagText(false));
    WriteRawLine(1, "Version 9, größer");
    CloseNumberedFile(1);
    EXPECT_EQ(ReadBytes(folder / "A.SSD"),
              ".16\r\n1.5E-06\r\n-7\r\n100000\r\n39.3700787401575\r\n#TRUE#\r\n#FALSE#\r\nVersion 9, größer\r\n");
}

TEST_F(DataFile, WritesCommaLists) {
    StartWriting();
    WriteList(1, {std::string("[cm]"), 100.0});
    WriteList(1, {ListItem(), Single(0.5), Integer(3), 4L, true, false});
    WriteList(1, {ListItem()});
    WriteList(1, {});
    CloseNumberedFile(1);
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "\"[cm]\",100\r\n,.5,3,4,#TRUE#,#FALSE#\r\n\r\n\r\n");
}

TEST_F(DataFile, EverySingleComesBackFromItsText) {
    std::mt19937 random(7);
    std::vector<Single> values;
    StartWriting();
    while (values.size() < 20000) {
        const float value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(value)) continue;
        values.emplace_back(value);
        WriteNumber(1, values.back());
    }
    CloseNumberedFile(1);
    OpenNumberedFile(1, folder / "A.SSD", FileMode::Input);
    for (const Single value : values) ASSERT_EQ(ReadSingle(1), value);
}

TEST_F(DataFile, RecordsStandAt128BytesLittleEndian) {
    OpenNumberedFile(1, folder / "A.PC1", FileMode::RandomOutput);
    PutRecord(1, 2, Single(1));
    PutRecord(1, 1, Integer(-2));
    PutRecord(1, 4, std::string("BP1"));
    CloseNumberedFile(1);
    const std::string bytes = ReadBytes(folder / "A.PC1");
    ASSERT_EQ(bytes.size(), 3 * 128 + 5u);
    EXPECT_EQ(bytes.substr(0, 4), std::string("\xFE\xFF\0\0", 4));
    EXPECT_EQ(bytes.substr(128, 5), std::string("\0\0\x80\x3F\0", 5));
    EXPECT_EQ(bytes.substr(256, 128), std::string(128, '\0'));
    EXPECT_EQ(bytes.substr(384), std::string("\3\0BP1", 5));
}

TEST_F(DataFile, ARecordHoldsNoMoreThanItsLengthAndCountsFromOne) {
    OpenNumberedFile(1, folder / "A.PC1", FileMode::RandomOutput);
    PutRecord(1, 1, std::string(126, 'x'));
    EXPECT_EQ(KindOf([] { PutRecord(1, 1, std::string(127, 'x')); }), FailureKind::Overflow);
    EXPECT_EQ(KindOf([] { PutRecord(1, 0, Single(1)); }), FailureKind::SubscriptRange);
}

// --- whole or not at all -------------------------------------------------------------------------------------------

TEST_F(DataFile, TheOldFileStandsUntilTheNewOneIsClosed) {
    WriteBytes(folder / "A.SSD", "old");
    StartWriting();
    for (int i = 0; i < 100000; ++i) WriteRawLine(1, FlagText(true));
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "old");
    CloseNumberedFile(1);
    EXPECT_EQ(ReadBytes(folder / "A.SSD").size(), 800000u);
    EXPECT_THAT(folder.Names(), ElementsAre("A.SSD"));
}

TEST_F(DataFile, DroppingAFileLeavesTheOldOneAndNothingElse) {
    WriteBytes(folder / "A.SSD", "old");
    StartWriting();
    WriteRawLine(1, "new");
    DropNumberedFile(1);
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "old");
    EXPECT_THAT(folder.Names(), ElementsAre("A.SSD"));
}

TEST_F(DataFile, TheNewFileKeepsTheModeOfTheOldOne) {
    LITHMARK_NEEDS(FilePermissions);
    WriteBytes(folder / "A.SSD", "old");
    const auto mode = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    std::filesystem::permissions(folder / "A.SSD", mode);
    StartWriting();
    WriteRawLine(1, "new");
    CloseNumberedFile(1);
    EXPECT_EQ(std::filesystem::status(folder / "A.SSD").permissions(), mode);
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "new\r\n");
}

TEST_F(DataFile, ASymbolicLinkStaysALink) {
    LITHMARK_NEEDS(SymbolicLinks);
    WriteBytes(folder / "REAL.SSD", "old");
    std::filesystem::create_symlink("REAL.SSD", folder / "A.SSD");
    StartWriting();
    WriteRawLine(1, "new");
    CloseNumberedFile(1);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "A.SSD"));
    EXPECT_EQ(ReadBytes(folder / "REAL.SSD"), "new\r\n");
}

TEST_F(DataFile, ANameAsLongAsTheFileSystemAllowsIsWritten) {
    const std::string name = std::string(251, 'n') + ".SSD";
    StartWriting(name);
    WriteRawLine(1, "new");
    CloseNumberedFile(1);
    EXPECT_THAT(folder.Names(), ElementsAre(name));
}

TEST_F(DataFile, AFullDiskIsAFailureWhereTheFileIsClosedOrBefore) {
    LITHMARK_NEEDS(DeviceFiles);
    WrittenFile shortOne("/dev/full", WrittenFile::Target::FileOrDevice);
    shortOne.Append("new");
    EXPECT_EQ(KindOf([&] { shortOne.Commit(); }), FailureKind::DiskFull);
    WrittenFile longOne("/dev/full", WrittenFile::Target::FileOrDevice);
    const auto failure = FailureOf([&] { longOne.Append(std::string(1000000, 'x')); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Kind(), FailureKind::DiskFull);
    EXPECT_EQ(failure->File(), "/dev/full");
}

TEST_F(DataFile, ADiskThatFillsUpLeavesTheOldFileAndNothingElse) {
    LITHMARK_NEEDS(CopyOfAProcess);
    WriteBytes(folder / "A.SSD", "old");
    EXPECT_TRUE(OnAFullDisk(100000, [&] {
        StartWriting();
        const auto kind = KindOf([] {
            for (int i = 0; i < 100000; ++i) WriteRawLine(1, "many lines");
            CloseNumberedFile(1);
        });
        DropNumberedFile(1);
        return kind == FailureKind::WriteError;
    }));
    EXPECT_TRUE(OnAFullDisk(100, [&] {  // the disk is full only when the buffer goes out, at the close
        StartWriting();
        for (int i = 0; i < 100; ++i) WriteRawLine(1, "few lines");
        return KindOf([] { CloseNumberedFile(1); }) == FailureKind::WriteError;
    }));
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "old");
    EXPECT_THAT(folder.Names(), ElementsAre("A.SSD"));
}

TEST_F(DataFile, AProcessThatDiesWhileWritingLeavesTheOldFile) {
    LITHMARK_NEEDS(CopyOfAProcess);
    WriteBytes(folder / "A.SSD", "old");
    const auto status = RunInACopy([&]() -> int {
        StartWriting();
        for (int i = 0; i < 100000; ++i) WriteRawLine(1, "new");
        EndAtOnce(9);
    });
    EXPECT_EQ(status, 9);
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "old");
    StartWriting();
    WriteRawLine(1, "new");
    CloseNumberedFile(1);
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "new\r\n");
}

TEST_F(DataFile, AFolderThatVanishesWhileWritingIsAFailureAtTheClose) {
    LITHMARK_NEEDS(OpenFilesGo);
    std::filesystem::create_directory(folder / "sub");
    StartWriting("sub/A.SSD");
    WriteRawLine(1, "new");
    std::filesystem::remove_all(folder / "sub");
    EXPECT_EQ(KindOf([] { CloseNumberedFile(1); }), FailureKind::FileMissing);
    EXPECT_FALSE(IsNumberedFileOpen(1));
}

// --- files that belong together ------------------------------------------------------------------------------------

class DataFileSet : public DataFile {
  protected:
    void Write(const std::string& name, const std::string& text) {
        StartWriting(name);
        WriteRawLine(1, text);
        CloseNumberedFile(1);
    }
    std::vector<std::string> told_;
    void Commit(NumberedFileSet& set) {
        set.Commit([this](const std::string& path) { told_.push_back(path); });
    }
};

TEST_F(DataFileSet, NoneTakesItsPlaceBeforeAllAreWritten) {
    WriteBytes(folder / "A.SSD", "old");
    {
        NumberedFileSet set;
        Write("A.SSD", "new");
        Write("B.SSD", "other");
        EXPECT_EQ(ReadBytes(folder / "A.SSD"), "old");
        EXPECT_FALSE(std::filesystem::exists(folder / "B.SSD"));
        Commit(set);
        EXPECT_EQ(ReadBytes(folder / "A.SSD"), "new\r\n");
        EXPECT_EQ(ReadBytes(folder / "B.SSD"), "other\r\n");
    }
    EXPECT_THAT(folder.Names(), ElementsAre("A.SSD", "B.SSD"));
    Write("A.SSD", "alone");  // without a set a file takes its place at once
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "alone\r\n");
}

TEST_F(DataFileSet, WithoutACommitEverythingIsAsItWas) {
    WriteBytes(folder / "A.SSD", "old");
    {
        const NumberedFileSet set;
        Write("A.SSD", "new");
        EXPECT_EQ(KindOf([] { NumberedFileSet second; }), FailureKind::Other);
    }
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "old");
    EXPECT_THAT(folder.Names(), ElementsAre("A.SSD"));
}

// A disk that fills up is met before any file has taken its place.
TEST_F(DataFileSet, ADiskThatFillsUpReplacesNoneOfThem) {
    LITHMARK_NEEDS(CopyOfAProcess);
    WriteBytes(folder / "A.SSD", "old");
    EXPECT_TRUE(OnAFullDisk(100, [&] {
        NumberedFileSet set;
        Write("A.SSD", "new");
        Write("B.SSD", std::string(200, 'x'));
        const auto kind = KindOf([&] { Commit(set); });
        return kind == FailureKind::WriteError && told_.back() == folder / "B.SSD";
    }));
    EXPECT_EQ(ReadBytes(folder / "A.SSD"), "old");
    EXPECT_THAT(folder.Names(), ElementsAre("A.SSD"));
}

// The place of one is taken by something else meanwhile: the file before it is in place, the one behind it is dropped.
TEST_F(DataFileSet, AFailureIsToldForItsFileAndKeepsWhatIsInPlace) {
    NumberedFileSet set;
    for (const std::string name : {"A.SSD", "B.SSD", "C.SSD"}) Write(name, "new");
    std::filesystem::create_directories(folder / "B.SSD/inside");
    EXPECT_EQ(KindOf([&] { Commit(set); }), FailureKind::NotAFile);
    EXPECT_EQ(told_.back(), folder / "B.SSD");
    EXPECT_THAT(folder.Names(), ElementsAre("A.SSD", "B.SSD"));
}

}  // namespace
}  // namespace lithmark::tests
