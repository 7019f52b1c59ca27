// Files that are read whole: regular ones, of a size that a reader can use.
#include <gmock/gmock.h>

#include "services/storage/DataFile.h"
#include "services/storage/ProjectArchive.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"
#include "support/Files.h"

namespace lithmark::tests {
namespace {

class ReadFileTest : public ::testing::Test {
  protected:
    TestFolder folder;
};

TEST_F(ReadFileTest, TheBytesComeBack) {
    const std::string bytes("a\0b\r\n\xFF", 6);
    WriteBytes(folder / "f", bytes);
    EXPECT_EQ(ReadWholeFile(folder / "f"), bytes);
    WriteBytes(folder / "empty", "");
    EXPECT_EQ(ReadWholeFile(folder / "empty"), "");
}

TEST_F(ReadFileTest, AFailureNamesItsFile) {
    const auto failure = FailureOf([this] { ReadWholeFile(folder / "none"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Kind(), FailureKind::FileMissing);
    EXPECT_EQ(failure->File(), folder / "none");
    EXPECT_EQ(failure->Detail(), "");  // the system's words are English
}

// The file has no content on the disk, so that reading it would be what takes memory and time.
TEST_F(ReadFileTest, AHugeFileIsRefusedBeforeItIsRead) {
    WriteBytes(folder / "f", "");
    MakeLarge(folder / "f", std::uint64_t{600} << 30);
    const auto failure = FailureOf([this] { ReadWholeFile(folder / "f"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Kind(), FailureKind::TooLarge);
    EXPECT_EQ(failure->Detail(), "32");
    EXPECT_EQ(KindOf([this] { OpenNumberedFile(1, folder / "f", FileMode::Input); }), FailureKind::TooLarge);
}

TEST_F(ReadFileTest, TheLimitItselfCanBeRead) {
    WriteBytes(folder / "f", std::string(1000, 'x'));
    EXPECT_EQ(ReadWholeFile(folder / "f", 1000).size(), 1000u);
    EXPECT_EQ(KindOf([this] { ReadWholeFile(folder / "f", 999); }), FailureKind::TooLarge);
}

// A pipe without a writer would hold its reader for ever, and one without a reader its writer.
TEST_F(ReadFileTest, APipeOrADeviceIsNoDataFile) {
    LITHMARK_NEEDS(DeviceFiles);
    MakePipe(folder / "pipe");
    std::filesystem::create_symlink("/dev/null", folder / "device");
    for (const char* name : {"pipe", "device"}) {
        EXPECT_EQ(KindOf([&] { ReadWholeFile(folder / name); }), FailureKind::NotAFile) << name;
        EXPECT_FALSE(IsArchiveFile(folder / name)) << name;
        EXPECT_FALSE(MarkOf(folder / name)) << name;
        EXPECT_EQ(KindOf([&] { OpenNumberedFile(1, folder / name, FileMode::Output); }), FailureKind::NotAFile) << name;
    }
    // What a command writes may go to a device that its user names.
    EXPECT_NO_THROW(WriteWholeFile("/dev/null", "report", WrittenFile::Target::FileOrDevice));
    EXPECT_EQ(KindOf([this] { WriteWholeFile(folder.Dir(), "", WrittenFile::Target::FileOrDevice); }),
              FailureKind::NotAFile);
}

TEST_F(ReadFileTest, AMarkTellsAChangedFile) {
    WriteBytes(folder / "f", "one");
    const auto mark = MarkOf(folder / "f");
    ASSERT_TRUE(mark);
    EXPECT_EQ(MarkOf(folder / "f"), mark);
    WriteBytes(folder / "g", "one");
    std::filesystem::last_write_time(folder / "g", std::filesystem::last_write_time(folder / "f"));
    std::filesystem::rename(folder / "g", folder / "f");  // the same size and time
    EXPECT_NE(MarkOf(folder / "f"), mark);
}

}  // namespace
}  // namespace lithmark::tests
