#include <zip.h>

#include <map>
#include <random>

#include "services/ProjectStore.h"
#include "services/storage/ProjectArchive.h"
#include "services/texts/LanguageTexts.h"
#include "support/Files.h"
#include "support/Matchers.h"
#include "support/ScriptedHost.h"
#include "support/System.h"

namespace lithmark::tests {
namespace {

using Files = std::map<std::string, std::string>;  // by name

constexpr long kOn = 7, kOff = 0, kNoSetting = 2;

// A project of text and record files, and files beside it that are none of its business.
const Files kProject = {{"Raft1.PO3", "Version 9\r\n9\r\n0\r\n"},
                        {"Raft1.AUF", "Auftrag\r\nDatum\r\nProjekt\r\n"},
                        {"Raft1.RDE", "7854\r\n5\r\n"},
                        {"Raft1.TO1", std::string(100000, '1')},
                        {"Raft1.PC1", std::string("\0\0\3\0BP1", 7)},
                        {"Raft1.PH1", ""}};
const Files kBeside = [] {
    Files files = {{"Raft1.txt", "notes"}, {"Raft10.RDE", "another project"}};
    if (SystemHas(Ability::NamesByCase)) files["raft1.RDE"] = "a third";
    return files;
}();

class ProjectStoreTest : public ::testing::Test {
  protected:
    void SetUp() override {
        LanguageTexts().SetCurrent(Language::English);
        Write(kProject);
        Write(kBeside);
    }
    void TearDown() override { ProjectStore().BetweenSteps = nullptr; }

    void Write(const Files& files) {
        for (const auto& [name, bytes] : files) WriteBytes(folder / name, bytes);
    }
    // What lies in the folder, without what lies beside the project.
    Files Content() const {
        Files files;
        for (const std::string& name : folder.Names())
            if (!kBeside.contains(name)) files[name] = ReadBytes(folder / name);
        return files;
    }
    bool Pack(long flags = kOn, const std::string& next = "") {
        return ProjectStore().PackProject(folder / "Raft1", flags, next, ".po3");
    }
    bool Unpack() { return ProjectStore().UnpackProject(folder / "Raft1", ".po3"); }
    void ExpectBesideUntouched() const {
        for (const auto& [name, bytes] : kBeside) EXPECT_EQ(ReadBytes(folder / name), bytes) << name;
    }

    TestFolder folder;
    ScriptedHost host;
};

// An archive with entries of any names, as an attacker or another program might make it.
std::string RawArchive(const std::vector<std::pair<std::string, std::string>>& entries) {
    const TestFolder folder;
    zip_t* archive = zip_open((folder / "a.zip").c_str(), ZIP_CREATE, nullptr);
    for (const auto& [name, bytes] : entries)
        zip_file_add(archive, name.c_str(), zip_source_buffer(archive, bytes.data(), bytes.size(), 0), 0);
    EXPECT_EQ(zip_close(archive), 0);
    return ReadBytes(folder / "a.zip");
}

// --- packing and unpacking -----------------------------------------------------------------------------------------

TEST_F(ProjectStoreTest, APackedProjectIsOneFileUnderTheProjectsName) {
    EXPECT_TRUE(Pack());
    EXPECT_EQ(Content().size(), 1u);
    EXPECT_TRUE(IsArchiveFile(folder / "Raft1.PO3"));
    EXPECT_LT(ReadBytes(folder / "Raft1.PO3").size(), 2000u);  // the mesh of equal digits shrinks
    ExpectBesideUntouched();
}

TEST_F(ProjectStoreTest, UnpackingBringsEveryByteBack) {
    EXPECT_TRUE(Pack());
    EXPECT_TRUE(Unpack());
    EXPECT_EQ(Content(), kProject);
    ExpectBesideUntouched();
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectStoreTest, NothingIsPackedWhenPackingIsOffOrNeverWasSet) {
    EXPECT_TRUE(Pack(kOff));
    EXPECT_TRUE(Pack(kNoSetting));
    EXPECT_EQ(Content(), kProject);
}

TEST_F(ProjectStoreTest, TheProjectThatIsOpenedNextIsNotPacked) {
    EXPECT_TRUE(Pack(kOn, folder / "Raft1.PO3"));
    EXPECT_TRUE(Pack(kOn, folder / "Raft1.po3"));
    EXPECT_TRUE(Pack(kOn, folder.Dir() + "./Raft1.PO3"));
    EXPECT_EQ(Content(), kProject);
    EXPECT_TRUE(Pack(kOn, folder / "Raft2.PO3"));
    EXPECT_EQ(Content().size(), 1u);
}

TEST_F(ProjectStoreTest, WithoutAProjectThereIsNothingToPackOrUnpack) {
    const Files before = Content();
    EXPECT_TRUE(ProjectStore().PackProject(folder.Dir(), kOn, "", ".po3"));
    EXPECT_TRUE(ProjectStore().PackProject("", kOn, "", ".po3"));
    EXPECT_TRUE(ProjectStore().PackProject(folder / "Raft2", kOn, "", ".po3"));
    EXPECT_TRUE(ProjectStore().UnpackProject(folder / "Raft2", ".po3"));
    EXPECT_TRUE(Unpack());  // not packed
    EXPECT_EQ(Content(), before);
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectStoreTest, PackingTwiceAndUnpackingTwiceAreHarmless) {
    EXPECT_TRUE(Pack());
    const Files packed = Content();
    EXPECT_TRUE(Pack());
    EXPECT_EQ(Content(), packed);
    EXPECT_TRUE(Unpack());
    EXPECT_TRUE(Unpack());
    EXPECT_EQ(Content(), kProject);
}

TEST_F(ProjectStoreTest, FilesOfAnyLetterCaseArePackedAndComeBackInUpperCase) {
    LITHMARK_NEEDS(NamesByCase);
    std::filesystem::rename(folder / "Raft1.PO3", folder / "Raft1.po3");
    std::filesystem::rename(folder / "Raft1.TO1", folder / "Raft1.To1");
    EXPECT_TRUE(Pack());
    EXPECT_THAT(Content(), SizeIs(1));
    EXPECT_TRUE(Unpack());
    Files expected = kProject;
    expected["Raft1.po3"] = expected["Raft1.PO3"];
    expected.erase("Raft1.PO3");
    EXPECT_EQ(Content(), expected);
}

TEST_F(ProjectStoreTest, APackedProjectCanBeRenamedLikeAnyFile) {
    EXPECT_TRUE(Pack());
    std::filesystem::rename(folder / "Raft1.PO3", folder / "Raft.v2.PO3");
    EXPECT_TRUE(ProjectStore().UnpackProject(folder / "Raft.v2", ".po3"));
    const Files content = Content();
    EXPECT_THAT(content, SizeIs(kProject.size()));
    EXPECT_EQ(content.at("Raft.v2.TO1"), kProject.at("Raft1.TO1"));
}

TEST_F(ProjectStoreTest, AFileSavedBesideAPackedProjectIsKept) {
    EXPECT_TRUE(Pack());
    WriteBytes(folder / "Raft1.RDE", "newer");
    WriteBytes(folder / "Raft1.AUF", "older");
    const auto packed = std::filesystem::last_write_time(folder / "Raft1.PO3");
    std::filesystem::last_write_time(folder / "Raft1.RDE", packed + std::chrono::seconds(5));
    std::filesystem::last_write_time(folder / "Raft1.AUF", packed - std::chrono::seconds(5));
    EXPECT_TRUE(Unpack());
    EXPECT_EQ(ReadBytes(folder / "Raft1.RDE"), "newer");
    EXPECT_EQ(ReadBytes(folder / "Raft1.AUF"), kProject.at("Raft1.AUF"));
}

TEST_F(ProjectStoreTest, ALinkIsTheUsersOwnAndStays) {
    LITHMARK_NEEDS(SymbolicLinks);
    WriteBytes(folder / "elsewhere", "shared");
    std::filesystem::create_symlink("elsewhere", folder / "Raft1.BAU");
    EXPECT_TRUE(Pack());
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "Raft1.BAU"));
    EXPECT_EQ(ReadBytes(folder / "Raft1.BAU"), "shared");
}

// A file system or a copy may keep whole seconds alone.
TEST_F(ProjectStoreTest, ANewerFileWinsInTheSameSecondToo) {
    EXPECT_TRUE(Pack());
    const auto packed = std::filesystem::last_write_time(folder / "Raft1.PO3");
    const auto second = std::chrono::floor<std::chrono::seconds>(packed);
    WriteBytes(folder / "Raft1.RDE", "saved at once");
    std::filesystem::last_write_time(folder / "Raft1.RDE", second);
    WriteBytes(folder / "Raft1.AUF", "a second older");
    std::filesystem::last_write_time(folder / "Raft1.AUF", second - std::chrono::nanoseconds(1));
    EXPECT_TRUE(Unpack());
    EXPECT_EQ(ReadBytes(folder / "Raft1.RDE"), "saved at once");
    EXPECT_EQ(ReadBytes(folder / "Raft1.AUF"), kProject.at("Raft1.AUF"));
}

// Only a regular file is passed over for: anything else in the way stops the unpacking, and the archive stays.
TEST_F(ProjectStoreTest, ANewerFolderOrPipeIsNoNewerFile) {
    EXPECT_TRUE(Pack());
    const std::string archive = ReadBytes(folder / "Raft1.PO3");
    std::filesystem::create_directory(folder / "Raft1.RDE");
    EXPECT_FALSE(Unpack());
    EXPECT_EQ(ReadBytes(folder / "Raft1.PO3"), archive);
    std::filesystem::remove(folder / "Raft1.RDE");
    LITHMARK_NEEDS(NamedPipes);
    MakePipe(folder / "Raft1.RDE");
    EXPECT_FALSE(Unpack());
    EXPECT_EQ(ReadBytes(folder / "Raft1.PO3"), archive);
    EXPECT_THAT(host.Messages, SizeIs(2));
    std::filesystem::remove(folder / "Raft1.RDE");
    EXPECT_TRUE(Unpack());
    EXPECT_EQ(Content(), kProject);
}

// --- other programs ------------------------------------------------------------------------------------------------

// Saves a file as programs do, by a rename, and as others do, in place.
void SaveMeanwhile(const std::string& path, const std::string& content, bool byRename) {
    if (!byRename) return WriteBytes(path, content);
    WriteBytes(path + "~", content);
    std::filesystem::rename(path + "~", path);
}

TEST_F(ProjectStoreTest, AFileThatAnotherProgramSavesWhileItIsPackedIsNeverLost) {
    for (const bool byRename : {true, false})
        for (int step = 0; step < 8; ++step) {
            Write(kProject);
            int left = step;
            ProjectStore().BetweenSteps = [&] {
                if (left-- == 0) SaveMeanwhile(folder / "Raft1.RDE", "saved meanwhile", byRename);
            };
            EXPECT_TRUE(Pack());
            ProjectStore().BetweenSteps = nullptr;
            if (left >= 0) break;  // the packing has no such step
            EXPECT_TRUE(Unpack());
            Files expected = kProject;
            expected["Raft1.RDE"] = "saved meanwhile";
            EXPECT_EQ(Content(), expected) << step << byRename;
        }
}

TEST_F(ProjectStoreTest, AProjectThatKeepsChangingStaysPlain) {
    int change = 0;
    ProjectStore().BetweenSteps = [&] { WriteBytes(folder / "Raft1.RDE", std::string(++change, 'x')); };
    EXPECT_TRUE(Pack());
    EXPECT_FALSE(IsArchiveFile(folder / "Raft1.PO3"));
    EXPECT_EQ(ReadBytes(folder / "Raft1.RDE"), std::string(change, 'x'));
    EXPECT_EQ(Content().size(), kProject.size());
    EXPECT_THAT(host.Messages, IsEmpty());
}

TEST_F(ProjectStoreTest, AProjectFileSavedMeanwhileIsNotReplaced) {
    ProjectStore().BetweenSteps = [&] { SaveMeanwhile(folder / "Raft1.PO3", "Version 9\r\n10\r\n0\r\n", true); };
    EXPECT_TRUE(Pack());
    EXPECT_EQ(ReadBytes(folder / "Raft1.PO3"), "Version 9\r\n10\r\n0\r\n");
}

TEST_F(ProjectStoreTest, AProjectThatAnArchiveMustNotHoldStaysPlain) {
    std::filesystem::resize_file(folder / "Raft1.TO1", kMostArchivedBytes);
    EXPECT_TRUE(Pack());
    EXPECT_FALSE(IsArchiveFile(folder / "Raft1.PO3"));
    EXPECT_TRUE(std::filesystem::exists(folder / "Raft1.RDE"));
}

// --- an archive is replaced by unpacking alone ---------------------------------------------------------------------

TEST_F(ProjectStoreTest, ASaveIntoAPackedProjectUnpacksItFirst) {
    EXPECT_TRUE(Pack());
    const auto lock = ProjectStore().BeginSave(folder / "Raft1");
    EXPECT_NE(lock, nullptr);
    Files content = Content();
    content.erase(".lithmark-Raft1.lock");
    EXPECT_EQ(content, kProject);
}

TEST_F(ProjectStoreTest, ASaveIntoADamagedArchiveIsRefused) {
    WriteBytes(folder / "Raft1.PO3", "PK\x03\x04 broken");
    EXPECT_EQ(KindOf([this] { return ProjectStore().BeginSave(folder / "Raft1"); }), FailureKind::DamagedArchive);
    EXPECT_EQ(ReadBytes(folder / "Raft1.PO3"), "PK\x03\x04 broken");
}

// --- damage --------------------------------------------------------------------------------------------------------

TEST_F(ProjectStoreTest, ADamagedArchiveIsToldAndLeftAlone) {
    EXPECT_TRUE(Pack());
    const std::string whole = ReadBytes(folder / "Raft1.PO3");
    std::string flipped = whole;
    flipped[60] = static_cast<char>(flipped[60] ^ 0x10);
    for (const std::string& damaged : {whole.substr(0, whole.size() / 2), whole.substr(0, 4), flipped}) {
        host.Messages.clear();
        WriteBytes(folder / "Raft1.PO3", damaged);
        EXPECT_FALSE(Unpack());
        ASSERT_THAT(host.Messages, SizeIs(1));
        EXPECT_THAT(host.LastMessage().Text, HasSubstr("packed project " + (folder / "Raft1.PO3") + " is damaged"));
        EXPECT_EQ(Content(), (Files{{"Raft1.PO3", damaged}}));
        EXPECT_TRUE(Pack());  // nor does the way out touch it
        EXPECT_EQ(Content(), (Files{{"Raft1.PO3", damaged}}));
    }
}

TEST_F(ProjectStoreTest, EntriesThatAreNoProjectFilesOrWouldLeaveTheFolderAreRefused) {
    const std::pair<std::string, std::string> project{"Raft1.PO3", kProject.at("Raft1.PO3")};
    const std::vector<std::pair<std::string, std::string>> bad[] = {{project, {"../Raft1.SSD", "evil"}},
                                                                    {project, {"/tmp/Raft1.SSD", "evil"}},
                                                                    {project, {"a\\..\\R.SSD", "evil"}},
                                                                    {project, {"Raft1.exe", "evil"}},
                                                                    {project, {"Raft1", "evil"}},
                                                                    {project, {".bashrc", "evil"}},
                                                                    {project, {"sub/", ""}},
                                                                    {{"Raft1.SSD", "no project file"}},
                                                                    {project, {"Raft2.PO3", "twice"}}};
    for (const auto& entries : bad) {
        SCOPED_TRACE(entries.back().first);
        const std::string archive = RawArchive(entries);
        WriteBytes(folder / "Raft1.PO3", archive);
        host.Messages.clear();
        EXPECT_FALSE(Unpack());
        EXPECT_THAT(host.Messages, SizeIs(1));
        EXPECT_EQ(ReadBytes(folder / "Raft1.PO3"), archive);
        EXPECT_FALSE(std::filesystem::exists(folder / "Raft1.SSD"));
        EXPECT_FALSE(
            std::filesystem::exists(std::filesystem::path(folder.Dir()).parent_path().parent_path() / "Raft1.SSD"));
    }
}

TEST_F(ProjectStoreTest, AnArchiveThatSwellsBeyondAllMeasureIsRefused) {
    const std::string archive = BuildArchive("Raft1", {{"PO3", "p"}, {"TO1", std::string(999, '0')}});
    EXPECT_EQ(KindOf([&] { ReadArchive(archive, 999); }), FailureKind::ArchiveTooLarge);
    EXPECT_EQ(ReadArchive(archive, 1000).size(), 2u);
}

// The length that an archive claims is taken for nothing: here 0x3FFFFFFF bytes, out of one.
TEST_F(ProjectStoreTest, WhatAnArchiveSaysOfItsSizeTakesNoMemory) {
    std::string archive = BuildArchive("Raft1", {{"PO3", "p"}, {"SSD", std::string(70, '0')}});
    const std::string size("\x46\0\0\0", 4), claimed("\xFF\xFF\xFF\x3F", 4);
    int places = 0;
    for (std::size_t at = 0; (at = archive.find(size, at)) != std::string::npos; ++places)
        archive.replace(at, 4, claimed);
    ASSERT_EQ(places, 2);  // in the entry's own head and in the archive's list
    const LittleMemory little(std::uint64_t{512} << 20);
    EXPECT_EQ(KindOf([&] { ReadArchive(archive); }), FailureKind::DamagedArchive);
}

// A reader of archives gives files or DamagedArchive, whatever the bytes.
TEST_F(ProjectStoreTest, ArbitraryBytesNeverCrashTheUnpacking) {
    const std::string whole = BuildArchive("Raft1", {{"PO3", "Version 9"}, {"SSD", std::string(500, '7')}});
    std::mt19937 random(6);
    int refused = 0;
    for (int round = 0; round < 3000; ++round) {
        std::string bytes = whole;
        for (unsigned n = 1 + random() % 4; n > 0; --n) bytes[random() % bytes.size()] = static_cast<char>(random());
        if (round % 3 == 0) bytes.resize(random() % bytes.size());
        const auto kind = KindOf([&] { ReadArchive(bytes); });
        EXPECT_TRUE(!kind || *kind == FailureKind::DamagedArchive) << round;
        if (kind) ++refused;
    }
    EXPECT_GT(refused, 1000);
}

// --- whole or not at all -------------------------------------------------------------------------------------------

// Runs an action in a process of its own that ends without a word after so many steps. True when it got to the end.
bool RunsToTheEnd(int steps, const std::function<void()>& action) {
    const auto status = RunInACopy([&] {
        int left = steps;
        ProjectStore().BetweenSteps = [&] {
            if (left-- == 0) EndAtOnce(1);
        };
        action();
        return 0;
    });
    EXPECT_TRUE(status);
    return status == 0;
}

// Without the temporary files that a killed process cannot take away.
Files WithoutTemporaries(Files files) {
    std::erase_if(files, [](const auto& file) { return file.first.starts_with(".lithmark-"); });
    return files;
}

TEST_F(ProjectStoreTest, AProcessThatDiesAtAnyStepOfPackingLosesNothing) {
    LITHMARK_NEEDS(CopyOfAProcess);
    int steps = 0;
    bool ended = false;
    for (; !ended; ++steps) {
        SCOPED_TRACE(steps);
        ended = RunsToTheEnd(steps, [this] { Pack(); });
        if (!IsArchiveFile(folder / "Raft1.PO3")) {
            EXPECT_EQ(WithoutTemporaries(Content()), kProject);
        }
        // Whatever stands there opens as the project it was.
        ASSERT_TRUE(Unpack());
        EXPECT_EQ(WithoutTemporaries(Content()), kProject);
        ExpectBesideUntouched();
    }
    EXPECT_GE(steps, 8);  // archive written, in place, and five plain files gone, and the run that ends
}

TEST_F(ProjectStoreTest, AProcessThatDiesAtAnyStepOfUnpackingLosesNothing) {
    LITHMARK_NEEDS(CopyOfAProcess);
    int steps = 0;
    bool ended = false;
    for (; !ended; ++steps) {
        SCOPED_TRACE(steps);
        ASSERT_TRUE(Pack());
        const std::string archive = ReadBytes(folder / "Raft1.PO3");
        ended = RunsToTheEnd(steps, [this] { Unpack(); });
        if (IsArchiveFile(folder / "Raft1.PO3")) {
            EXPECT_EQ(ReadBytes(folder / "Raft1.PO3"), archive);
        }
        ASSERT_TRUE(Unpack());
        EXPECT_EQ(WithoutTemporaries(Content()), kProject);
        ExpectBesideUntouched();
    }
    EXPECT_GE(steps, 13);  // six files written, six in place, and the run that ends
}

TEST_F(ProjectStoreTest, AnArchiveThatReadsBackWronglyDoesNotTakeTheProjectsPlace) {
    ProjectStore().BetweenSteps = [&] {
        for (const std::string& name : folder.Names())
            if (name.starts_with(".lithmark-")) WriteBytes(folder / name, "PK\x03\x04 a disk that forgets");
    };
    EXPECT_FALSE(Pack());
    EXPECT_EQ(Content(), kProject);
    EXPECT_THAT(host.Messages, SizeIs(1));
}

TEST_F(ProjectStoreTest, AFullDiskLeavesThePlainFilesOrTheArchiveAsTheyWere) {
    LITHMARK_NEEDS(CopyOfAProcess);
    EXPECT_TRUE(OnAFullDisk(50, [this] { return !Pack() && host.Messages.size() == 1; }));
    EXPECT_EQ(Content(), kProject);
    EXPECT_TRUE(Pack());
    const Files packed = Content();
    EXPECT_TRUE(OnAFullDisk(50000, [this] { return !Unpack() && host.Messages.size() == 1; }));
    EXPECT_EQ(Content(), packed);
}

TEST_F(ProjectStoreTest, AFolderInTheWayOfAFileStopsTheUnpackingBeforeAnythingChanges) {
    LITHMARK_NEEDS(TimesOfFolders);
    EXPECT_TRUE(Pack());
    const std::string archive = ReadBytes(folder / "Raft1.PO3");
    std::filesystem::create_directory(folder / "Raft1.RDE");
    std::filesystem::last_write_time(folder / "Raft1.RDE",
                                     std::filesystem::last_write_time(folder / "Raft1.PO3") - std::chrono::hours(1));
    EXPECT_FALSE(Unpack());
    EXPECT_THAT(folder.Names(), ElementsAre("Raft1.PO3", "Raft1.RDE", "Raft1.txt", "Raft10.RDE", "raft1.RDE"));
    EXPECT_EQ(ReadBytes(folder / "Raft1.PO3"), archive);
}

}  // namespace
}  // namespace lithmark::tests
