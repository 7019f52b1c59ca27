// Projects made and shown, and how a command ends that cannot do its work.
#include "cli/CliCase.h"
#include "services/ProjectStore.h"
#include "services/storage/ProjectArchive.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class CliCommands : public CliTest {};

TEST_F(CliCommands, EveryProblemIsMadeShownAndReported) {
    for (int problem = 1; problem <= 10; ++problem) {
        const std::string project = New("P" + std::to_string(problem), problem);
        const CliResult shown = Run({"show", project});
        EXPECT_EQ(shown.Status, 0) << shown.Err;
        EXPECT_THAT(shown.Out, HasSubstr("ProblemType = " + std::to_string(problem) + "\n"));
        // Defaults of 5 to 8 hold no load history; whatever comes of them is told by an exit status of its own.
        const CliResult report = Run({"report", project});
        if (problem <= 4 || problem >= 9) {
            EXPECT_EQ(report.Status, 0) << problem << report.Err;
            EXPECT_FALSE(report.Out.empty());
        } else {
            EXPECT_THAT(report.Status, testing::AnyOf(0, 3)) << problem << report.Err;
        }
    }
}

TEST_F(CliCommands, NewWritesTheFieldsThatAreSet) {
    const std::string project = New("Footing", 1, {"LoadType=2", "P=150.5", "Proj=Halle 7"});
    const CliResult shown = Run({"show", project});
    for (const char* line : {"LoadType = 2\n", "P = 150.5\n", "Proj = Halle 7\n"})
        EXPECT_THAT(shown.Out, HasSubstr(line));
    EXPECT_THAT(work.Names(), ElementsAre("Footing.AUF", "Footing.PO3", "Footing.SSD"));
}

TEST_F(CliCommands, NewLeavesAProjectThatIsThere) {
    const std::string project = New("Footing", 1, {"P=150.5"});
    const std::string before = ReadBytes(work / "Footing.SSD");
    ExpectFailure(Run({"new", work / "Footing", "--problem", "1"}), 1, {"Footing.PO3"});
    EXPECT_EQ(ReadBytes(work / "Footing.SSD"), before);
}

TEST_F(CliCommands, NewRefusesAFolderThatIsNotThereAndAWrongProblem) {
    ExpectFailure(Run({"new", work / "nowhere/Footing", "--problem", "1"}), 1, {"nowhere"});
    ExpectFailure(Run({"new", work / "Footing", "--problem", "12"}), 2, {"12"});
    ExpectFailure(Run({"new", work / "Footing", "--problem", "1", "--set", "ProblemType=4"}), 2, {"ProblemType"});
    for (const char* noName : {"", ".", ".."})
        ExpectFailure(Run({"new", work / noName, "--problem", "1"}), 2, {"name"});
    EXPECT_TRUE(work.Names().empty());
}

TEST_F(CliCommands, AWrongCommandLineIsToldInOneLine) {
    const std::string project = New("Footing", 1);
    ExpectFailure(Run({"draw", project}), 2, {"draw"});
    ExpectFailure(Run({"report"}), 2, {});
    ExpectFailure(Run({"report", project, "--format", "docx"}), 2, {"docx"});
    ExpectFailure(Run({"report", project, "--lang", "fr"}), 2, {"fr"});
    ExpectFailure(Run({"report", project, "--colour", "red"}), 2, {"--colour"});
    ExpectFailure(Run({"report", project, "--output", work / "report.docx"}), 2, {"docx"});
    ExpectFailure(Run({"report", project, "--set", "Es"}), 2, {"Es"});
    ExpectFailure(Run({"report", project, "--set", "Young=3"}), 2, {"Young"});
    ExpectFailure(Run({"report", project, "--set", "Es=stiff"}), 2, {"stiff"});
    ExpectFailure(Run({"report", project, "--set", "Es=1e39"}), 2, {"1e39"});
    ExpectFailure(Run({"show", project, "--set", "ProblemType=12"}), 2, {"ProblemType=12"});
    ExpectFailure(Run({"report", project, "--set", "ProblemType=0"}), 2, {"ProblemType=0"});
    EXPECT_THAT(work.Names(), ElementsAre("Footing.AUF", "Footing.PO3", "Footing.SSD"));
}

TEST_F(CliCommands, HelpAndVersionAreNoFailures) {
    EXPECT_EQ(RunPlain({"--version"}).Out, "lithmark-cli " LITHMARK_VERSION "\n");
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--help"}, {"report", "--help"}, {"study", "--help", "--lang", "de"}}) {
        const CliResult result = RunPlain(words);
        EXPECT_EQ(result.Status, 0);
        EXPECT_THAT(result.Out, HasSubstr("--help"));
        EXPECT_EQ(result.Err, "");
    }
    EXPECT_NE(RunPlain({"report", "--help", "--lang", "de"}).Out, RunPlain({"report", "--help"}).Out);
}

TEST_F(CliCommands, MissingAndDamagedFilesAreNamed) {
    ExpectFailure(Run({"report", work / "Nothing.PO3"}), 1, {"Nothing.PO3"});
    ExpectFailure(Run({"report", work / "Nothing.txt"}), 1, {"Nothing.txt"});
    const std::string project = New("Footing", 1);
    const std::string data = ReadBytes(work / "Footing.SSD");
    WriteBytes(work / "Footing.SSD", data.substr(0, data.size() / 2));
    ExpectFailure(Run({"report", project}), 1, {"Footing.SSD"});
    WriteBytes(work / "Footing.SSD", "rubbish\r\n" + data);
    ExpectFailure(Run({"report", project}), 1, {"Footing.SSD"});
    std::filesystem::remove(work / "Footing.SSD");
    ExpectFailure(Run({"report", project}), 1, {"Footing.SSD"});
    EXPECT_EQ(Run({"show", project}).Status, 0) << "the project itself can be shown";
    WriteBytes(project, "Version 9\r\n77\r\n0\r\n");
    ExpectFailure(Run({"report", project}), 1, {"Footing.PO3"});
    WriteBytes(project, "PK\x03\x04 no archive");
    ExpectFailure(Run({"report", project}), 1, {"Footing.PO3"});
    EXPECT_EQ(ReadBytes(project), "PK\x03\x04 no archive");
}

TEST_F(CliCommands, DamagedOrMissingSettingsAreTold) {
    const std::string project = New("Footing", 1);
    Settings("Units", "not a number\r\n");
    ExpectFailure(Run({"report", project}), 1, {"Units"});
    ExpectFailure(RunPlain({"report", project, "--settings", work / "nowhere"}), 1, {"nowhere"});
}

TEST_F(CliCommands, AnOutputThatCannotBeWrittenIsNamedAndNothingIsLeft) {
    const std::string project = New("Footing", 1);
    const auto before = work.Names();
    ExpectFailure(Run({"report", project, "--output", work / "nowhere/report.txt"}), 1, {"nowhere/report.txt"});
    std::filesystem::create_directory(work / "report.txt");
    ExpectFailure(Run({"report", project, "--output", work / "report.txt"}), 1, {"report.txt"});
    std::filesystem::remove(work / "report.txt");
    EXPECT_EQ(work.Names(), before);
    LITHMARK_NEEDS(DeviceFiles);
    const CliResult full = RunPlain({"report", project}, "/dev/full");
    EXPECT_EQ(full.Status, 1);
    EXPECT_EQ(LinesOf(full.Err).size(), 1u) << full.Err;
}

TEST_F(CliCommands, AnAbortedRunLeavesNoOutputAndKeepsAnOlderOne) {
    const std::string project = New("Footing", 1, {"LoadType=2"});
    WriteBytes(work / "report.txt", "of yesterday");
    ExpectFailure(Run({"report", project, "--set", "Es=0", "--output", work / "report.txt"}), 3, {"Footing.PO3"});
    EXPECT_EQ(ReadBytes(work / "report.txt"), "of yesterday");
    ExpectFailure(Run({"report", project, "--set", "Es=0", "--output", work / "other.txt"}), 3, {"Footing.PO3"});
    EXPECT_FALSE(std::filesystem::exists(work / "other.txt"));
}

TEST_F(CliCommands, AProblemOrLoadWithoutACalculationIsToldAndNotReportedAsEmpty) {
    ExpectFailure(Run({"report", New("Table", 11)}), 3, {"Table.PO3", "no calculation"});
    const std::string raft = New("Raft", 9);
    ExpectFailure(Run({"report", raft, "--set", "LoadType=1"}), 3, {"Raft.PO3", "no calculation"});
    const CliResult json = Run({"report", raft, "--set", "LoadType=1", "--format", "json"});
    EXPECT_EQ(json.Status, 3);
    EXPECT_TRUE(Json::parse(json.Out)["aborted"].get<bool>());
}

TEST_F(CliCommands, ATableTakesTheRowsThatItsCountAsksFor) {
    const std::string project = New("Building", 6, {"NLoad=6", "LoadTime(6)=15", "LoadValue(6)=100"});
    const CliResult shown = Run({"show", project});
    EXPECT_THAT(shown.Out, HasSubstr("NLoad = 6\n"));
    EXPECT_THAT(shown.Out, HasSubstr("LoadTime = (1, 2, 4, 7, 12, 15)\n"));
    EXPECT_THAT(shown.Out, HasSubstr("LoadValue = (19, 42, 83, 94, 100, 100)\n"));
}

TEST_F(CliCommands, AFolderWithoutWritingIsEnoughToRead) {
    LITHMARK_NEEDS(FilePermissions);
    const std::string project = New("Footing", 1), raft = New("Raft", 9, {"LoadType=2", "A=4", "B=4", "h=5"});
    asOrdinaryUser = true;
    std::filesystem::permissions(work.Dir(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const CliResult report = Run({"report", project}), made = Run({"new", work / "Other", "--problem", "1"}),
                    raftReport = Run({"report", raft});
    std::filesystem::permissions(work.Dir(), std::filesystem::perms::owner_all);
    EXPECT_EQ(report.Status, 0) << report.Err;
    ExpectFailure(made, 1, {"Other"});
    ExpectFailure(raftReport, 3, {"Raft"});
}

TEST_F(CliCommands, APackedProjectStaysPacked) {
    const std::string project = New("Raft1", 9, {"LoadType=2", "A=4", "B=4", "h=5"});
    ASSERT_TRUE(ProjectStore().PackProject(work / "Raft1", 1, "", ".po3"));
    ASSERT_THAT(work.Names(), ElementsAre("Raft1.PO3"));
    const auto packed = [&] { return IsArchiveFile(project) && work.Names() == std::vector<std::string>{"Raft1.PO3"}; };

    EXPECT_THAT(Run({"show", project}).Out, HasSubstr("ProblemType = 9\n"));
    EXPECT_TRUE(packed());
    const CliResult report = Run({"report", project});
    EXPECT_EQ(report.Status, 0) << report.Err;
    EXPECT_TRUE(packed());
    // The files that the run wrote went into the archive with the rest.
    EXPECT_TRUE(ReadArchive(ReadBytes(project)).contains("TO1"));
    EXPECT_EQ(Run({"contour", project}).Status, 0);
    EXPECT_TRUE(packed());
    ExpectFailure(Run({"report", project, "--set", "Es=0"}), 3, {});
    EXPECT_TRUE(packed());
    ExpectFailure(Run({"report", project, "--set", "Young=0"}), 2, {});
    EXPECT_TRUE(packed());
    EXPECT_EQ(Run({"study", project, "--vary", "Q=1000:2000:1000"}).Status, 0);
    EXPECT_TRUE(packed());
}

TEST_F(CliCommands, UnitsOfTheSettingsAreInForce) {
    const std::string project = Example("BridgePier");
    const CliResult report = Run({"report", project});
    EXPECT_EQ(report.Status, 0) << report.Err;
    EXPECT_THAT(report.Out, HasSubstr("[ft]"));
    EXPECT_THAT(report.Out, HasSubstr("kip"));
    EXPECT_THAT(report.Out, testing::Not(HasSubstr("[m]")));
    // Fields are told in base units all the same.
    TestFolder other;
    EXPECT_EQ(Run({"show", project}).Out, RunPlain({"show", project, "--settings", other.Dir()}).Out);
}

TEST_F(CliCommands, TheLanguageIsTheOneAskedFor) {
    const std::string project = New("Footing", 1, {"LoadType=2"});
    const std::string english = Run({"report", project, "--lang", "en"}).Out;
    const std::string german = Run({"report", project, "--lang", "de"}).Out;
    const std::string arabic = Run({"report", project, "--lang", "ar"}).Out;
    const std::string ids = Run({"report", project, "--lang", "ids"}).Out;
    EXPECT_EQ(Run({"report", project}).Out, english);
    EXPECT_NE(german, english);
    EXPECT_THAT(arabic, HasSubstr("\xD8"));
    EXPECT_THAT(ids, HasSubstr("T<"));
    EXPECT_THAT(ids, testing::Not(HasSubstr("\xC3")));
}

}  // namespace
}  // namespace lithmark::tests
