// The words of a command line: short forms, order, what is said of words that are not known, help in every language.
#include <string_view>

#include "base/Utf8.h"
#include "cli/CliCase.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class CliWords : public CliTest {};

TEST_F(CliWords, ShortFormsAreTheLongOnes) {
    EXPECT_EQ(RunPlain({"-V"}).Out, RunPlain({"--version"}).Out);
    EXPECT_EQ(RunPlain({"report", "-V"}).Out, RunPlain({"--version"}).Out);
    EXPECT_EQ(RunPlain({"-h"}).Out, RunPlain({"--help"}).Out);
    EXPECT_EQ(RunPlain({"report", "-h"}).Out, RunPlain({"report", "--help"}).Out);
    const std::string project = New("Footing", 1);
    EXPECT_EQ(Run({"report", project, "-o", work / "short.txt"}).Status, 0);
    EXPECT_EQ(Run({"report", project, "--output", work / "long.txt"}).Status, 0);
    EXPECT_EQ(ReadBytes(work / "short.txt"), ReadBytes(work / "long.txt"));
}

TEST_F(CliWords, AMinusIsStandardOutput) {
    const std::string project = New("Footing", 1), plain = Run({"report", project}).Out;
    ASSERT_FALSE(plain.empty());
    EXPECT_EQ(Run({"report", project, "--output", "-"}).Out, plain);
    EXPECT_EQ(Run({"report", project, "-o-"}).Out, plain);
    EXPECT_FALSE(std::filesystem::exists(work / "-"));
    const CliResult rows = Run({"study", project, "--vary", "Q=1,2", "--output", "-", "--format", "csv"});
    EXPECT_EQ(LinesOf(rows.Out).size(), 3u) << rows.Err;
}

TEST_F(CliWords, OptionsStandBeforeAndBehindTheWords) {
    const std::string project = New("Footing", 1);
    const std::string report = Run({"report", project, "--lang", "de", "--set", "P=12.5", "--set", "z=2"}).Out;
    ASSERT_THAT(report, HasSubstr("12.5"));
    EXPECT_EQ(Run({"report", "--lang", "de", "--set", "P=12.5", project, "--set", "z=2"}).Out, report);
    EXPECT_EQ(Run({"--lang", "de", "--set", "P=12.5", "report", "--set", "z=2", project}).Out, report);
    EXPECT_EQ(Run({"report", "--format", "txt", "--set", "P=12.5", "--set=z=2", "--lang=de", "--", project}).Out, "")
        << "behind -- there are words alone, and those that follow are too many";
}

TEST_F(CliWords, AJoinTakesItsProjectBeforeAndBehindTheParts) {
    const std::string project = New("Footing", 1);
    for (const char* part : {"1/2", "2/2"})
        ASSERT_EQ(Run({"study", project, "--vary", "Q=1,2,3", "--take", "Sigma_z", "--shard", part, "--output",
                       work / (std::string("part") + part[0] + ".csv")})
                      .Status,
                  0);
    const std::vector<std::string> parts = {work / "part1.csv", work / "part2.csv"};
    const CliResult before =
        Run({"study", project, "--vary", "Q=1,2,3", "--take", "Sigma_z", "--join", parts[0], parts[1]});
    const CliResult behind =
        Run({"study", "--vary", "Q=1,2,3", "--take", "Sigma_z", "--join", parts[0], parts[1], project});
    EXPECT_EQ(before.Status, 0) << before.Err;
    EXPECT_EQ(behind.Out, before.Out) << behind.Err;
    EXPECT_EQ(LinesOf(before.Out).size(), 4u);
}

TEST_F(CliWords, AnUnknownCommandOrOptionIsNamedWithTheNearest) {
    const std::string project = New("Footing", 1);
    ExpectFailure(Run({"reprot", project}), 2, {"\"reprot\"", "the nearest is report."});
    ExpectFailure(Run({"contuor", project}), 2, {"\"contuor\"", "the nearest is contour."});
    ExpectFailure(Run({"help", "studies"}), 2, {"\"studies\"", "the nearest is study."});
    ExpectFailure(Run({"report", project, "--formt", "json"}), 2, {"\"--formt\"", "the nearest is --format."});
    ExpectFailure(Run({"report", project, "--outptu=x"}), 2, {"\"--outptu\"", "the nearest is --output."});
    ExpectFailure(Run({"report", project, "--langs", "de"}), 2, {"\"--langs\"", "the nearest is --lang."});
    ExpectFailure(Run({"chart", project, "--curves", "Tab1"}), 2, {"\"--curves\"", "the nearest is --curve."});
    ExpectFailure(Run({"report", project, "again"}), 2, {"\"again\"", "too many"});
}

TEST_F(CliWords, AMissingWordOrValueIsNamed) {
    const std::string project = New("Footing", 1);
    ExpectFailure(Run({"report"}), 2, {"PROJECT is missing."});
    ExpectFailure(Run({"new", "--problem", "1"}), 2, {"DIR/NAME is missing."});
    ExpectFailure(Run({"new", work / "Other"}), 2, {"--problem is missing."});
    ExpectFailure(RunPlain({"report", project, "--lang"}), 2, {"--lang needs a value."});
    ExpectFailure(Run({"report", project, "--format", "txt", "--format", "json"}), 2,
                  {"--format is given more than once."});
    ExpectFailure(Run({"report", project, "--tables=many"}), 2, {"--tables takes no such value."});
}

TEST_F(CliWords, AValueThatIsNoneOfTheChoiceIsToldWithTheChoice) {
    const std::string project = New("Footing", 1);
    ExpectFailure(Run({"report", project, "--format", "docx"}), 2,
                  {"--format", "\"docx\" is none of txt, json, html, pdf, rtf, csv, xlsx"});
    ExpectFailure(Run({"report", project, "--lang", "fr"}), 2, {"--lang", "\"fr\" is none of de, en, ar, ids"});
    ExpectFailure(Run({"new", work / "Other", "--problem", "twelve"}), 2,
                  {"--problem", "\"twelve\" is no whole number from 1 to 11"});
    ExpectFailure(Run({"contour", project, "--size", "9000"}), 2,
                  {"--size", "\"9000\" is no whole number from 1 to 8192"});
    ExpectFailure(Run({"study", project, "--vary", "Q=1,2", "--jobs", "0"}), 2, {"--jobs", "from 1 to 4096"});
    ExpectFailure(Run({"study", project, "--random", "Q=uniform:1:2", "--samples", "-5"}), 2, {"--samples", "\"-5\""});
}

TEST_F(CliWords, WithoutACommandThereIsAShortHelp) {
    const CliResult none = RunPlain({});
    EXPECT_EQ(none.Status, 2);
    EXPECT_EQ(none.Out, "");
    for (const char* word :
         {"Usage", "new", "show", "report", "chart", "contour", "study", "help", "lithmark-cli help"})
        EXPECT_THAT(none.Err, HasSubstr(word));
    EXPECT_LT(LinesOf(none.Err).size(), 15u);
    EXPECT_EQ(RunPlain({"--lang", "en"}).Err, none.Err);
}

TEST_F(CliWords, HelpTellsDefaultsExamplesAndExitStatuses) {
    for (const char* command : {"new", "show", "report", "chart", "contour", "study"}) {
        SCOPED_TRACE(command);
        const CliResult help = RunPlain({"help", command});
        EXPECT_EQ(help.Status, 0) << help.Err;
        EXPECT_EQ(help.Out, RunPlain({command, "--help"}).Out);
        EXPECT_THAT(help.Out, HasSubstr("Examples:\n  lithmark-cli " + std::string(command)));
        EXPECT_THAT(help.Out, HasSubstr("Exit status:\n  0     done\n"));
        for (const char* common :
             {"--lang de|en|ar|ids", "--settings DIR", "--set FIELD=VALUE", "-h,--help", "-V,--version"})
            EXPECT_THAT(help.Out, HasSubstr(common));
        for (const std::string& line : LinesOf(help.Out)) EXPECT_LE(line.size(), 90u) << line;
    }
    EXPECT_THAT(RunPlain({"help", "report"}).Out, HasSubstr("(default: txt)"));
    EXPECT_THAT(RunPlain({"help", "contour"}).Out, HasSubstr("(default: settlement)"));
    EXPECT_THAT(RunPlain({"help", "study"}).Out, HasSubstr("  130 "));
    EXPECT_THAT(RunPlain({"help"}).Out, HasSubstr("Exit status:"));
}

// As a user would copy them, with projects of these names.
TEST_F(CliWords, TheExamplesOfTheHelpRun) {
    LITHMARK_NEEDS(PosixShell);
    const std::string building = Example("OfficeBuilding");
    New("Raft", 9, {"LoadType=2", "A=4", "B=4", "h=5"});
    New("Clay", 4, {"LoadType=2", "A=2", "B=2", "z=1", "h=2", "P=100", "Es=5000"});
    std::filesystem::create_directory(work / "work");
    runner = "cd '" + work.Dir() + "' && ";
    int run = 0;
    for (const char* command : {"new", "show", "report", "chart", "contour", "study"}) {
        for (const std::string& line : LinesOf(RunPlain({"help", command}).Out)) {
            constexpr std::string_view kStart = "  lithmark-cli ";
            if (!line.starts_with(kStart)) continue;
            std::vector<std::string> words;
            for (std::string word : Split(line.substr(kStart.size()), ' ')) {
                std::erase(word, '"');
                words.push_back(word == "Building.PO3" ? building : word);
            }
#ifndef LITHMARK_RENDER
            if (line.find(".pdf") != line.npos || line.find(".svg") != line.npos || line.find(".png") != line.npos)
                continue;
#endif
            const CliResult result = Run(words);
            EXPECT_EQ(result.Status, 0) << line << "\n" << result.Err;
            ++run;
        }
    }
    EXPECT_GE(run, 8);
}

TEST_F(CliWords, HelpAndErrorsSpeakTheLanguageAskedForOrTheStoredOne) {
    const auto both = [&](const std::string& language) {
        return std::pair(RunPlain({"--lang", language, "help", "report"}).Out,
                         RunPlain({"report", "--lang", language, "--formt", "x"}).Err);
    };
    EXPECT_THAT(both("de").first, HasSubstr("Beispiele:"));
    EXPECT_THAT(both("de").second, HasSubstr("am ähnlichsten ist --format"));
    EXPECT_THAT(both("ar").first, HasSubstr("أمثلة:"));
    EXPECT_THAT(both("ar").second, HasSubstr("لا يوجد خيار"));
    EXPECT_THAT(both("ids").first, HasSubstr("T<911243>"));
    EXPECT_THAT(both("ids").second, HasSubstr("T<911206>(--formt,--format)"));
    // No English words of the parser are left in a help.
    for (const char* language : {"de", "ar", "ids"})
        for (const char* word : {"Usage", "Options", "Positionals", "TEXT", "REQUIRED", "SUBCOMMAND"})
            EXPECT_THAT(both(language).first, Not(HasSubstr(word)));

    Settings("settings.json", R"({"Lithmark": {"Settings": {"Language": "German"}}})");
    EXPECT_THAT(Run({"help", "report"}).Out, HasSubstr("Beispiele:"));
    EXPECT_THAT(Run({"reprot"}).Err, HasSubstr("Den Befehl"));
    EXPECT_THAT(Run({"reprot", "--lang", "en"}).Err, HasSubstr("command"));
}

TEST_F(CliWords, AnUnknownFieldIsNamedWithTheNearestAndAllFieldsOfTheProblem) {
    const std::string project = New("Footing", 1);
    ExpectFailure(Run({"report", project, "--set", "Nu=0.3"}), 2,
                  {"Nu=0.3: ", "the nearest is Nue.", "Fields of this problem: Nue (Nue_s), ", "LoadType", "P (p)"});
    ExpectFailure(Run({"study", project, "--vary", "Loadtype=1:3:1"}), 2,
                  {"the nearest is LoadType.", "Fields of this problem: LoadType, "});
    ExpectFailure(Run({"study", project, "--vary", "Q=1,2", "--take", "Sigmaz"}), 2, {"the nearest is Sigma_z."});
}

TEST_F(CliWords, ASymbolOfTheReportNamesAFieldAndAResult) {
    const std::string footing = New("Footing", 1, {"LoadType=2"});
    EXPECT_EQ(Run({"report", footing, "--set", "p=77", "--set", "a=3"}).Out,
              Run({"report", footing, "--set", "P=77", "--set", "A=3"}).Out);
    const std::string raft = New("Raft", 9, {"e=0.25"});
    EXPECT_THAT(Run({"show", raft}).Out, HasSubstr("Exz_x = .25\n"));
    const std::string clay = New("Clay", 5, {"Tc=2.5", "h2=1.5"});
    EXPECT_THAT(Run({"show", clay}).Out, HasSubstr("\nT = 2.5\n"));
    EXPECT_THAT(Run({"show", clay}).Out, HasSubstr("1.5)\n"));
    // The field's own name goes first: problem 8 prints EsTS as Es, and has no use for Es.
    const std::string building = New("Building", 8, {"Es=123"});
    EXPECT_THAT(Run({"show", building}).Out, Not(HasSubstr("EsTS = 123\n")));
    EXPECT_THAT(Run({"study", clay, "--vary", "Tc=1,2", "--take", "Uc"}).Out, testing::StartsWith("Row,T,Uc,"));
}

TEST_F(CliWords, AFolderThatDoesNotExistIsToldAsSuch) {
    const std::string project = New("Footing", 1);
    const std::string told = "The directory " + (work / "nowhere") + " does not exist.";
    ExpectFailure(Run({"report", work / "nowhere/Footing.PO3"}), 1, {told});
    ExpectFailure(Run({"show", work / "nowhere/Footing.PO3"}), 1, {told});
    ExpectFailure(Run({"new", work / "nowhere/Footing", "--problem", "1"}), 1, {told});
    ExpectFailure(Run({"report", project, "-o", work / "nowhere/report.txt"}), 1, {told});
    ExpectFailure(Run({"show", project, "-o", work / "nowhere/data.json"}), 1, {told});
    ExpectFailure(RunPlain({"report", project, "--settings", work / "nowhere"}), 1, {told});
    WriteBytes(work / "file", "");
    ExpectFailure(RunPlain({"report", project, "--settings", work / "file"}), 1, {"not a directory"});
}

TEST_F(CliWords, AProjectFileIsTakenInAnyLetterCaseOfItsEnding) {
    const std::string project = New("Footing", 1), report = Run({"report", project}).Out;
    for (const char* ending : {"po3", "Po3", "pO3"}) {
        SCOPED_TRACE(ending);
        const std::string other = work / (std::string("Footing.") + ending);
        EXPECT_EQ(Run({"report", other}).Out, report) << "as it is asked for";
        std::filesystem::rename(project, other);
        EXPECT_EQ(Run({"report", other}).Out, report) << "as it is called";
        EXPECT_EQ(Run({"report", project}).Out, report) << "asked for in capitals";
        std::filesystem::rename(other, project);
    }
    EXPECT_EQ(Run({"new", work / "Second.po3", "--problem", "1"}).Status, 0);
    EXPECT_TRUE(std::filesystem::exists(work / "Second.PO3"));
}

TEST_F(CliWords, WithoutExportARaftRunsInAFolderWithoutWriting) {
    LITHMARK_NEEDS(FilePermissions);
    const std::string raft = New("Raft", 9, {"LoadType=2", "A=4", "B=4", "h=5"});
    const auto before = work.Names();
    const std::string report = Run({"report", raft, "--no-export"}).Out;
    ASSERT_FALSE(report.empty());
    EXPECT_EQ(work.Names(), before) << "no files beside the project";
    const std::string contour = Run({"contour", raft, "--no-export"}).Out,
                      chart = Run({"chart", raft, "--no-export"}).Out;
    EXPECT_EQ(work.Names(), before);

    asOrdinaryUser = true;
    std::filesystem::permissions(work.Dir(), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const CliResult refused = Run({"report", raft}), read = Run({"report", raft, "--no-export"}),
                    drawn = Run({"contour", raft, "--no-export"}), curve = Run({"chart", raft, "--no-export"});
    std::filesystem::permissions(work.Dir(), std::filesystem::perms::owner_all);
    EXPECT_EQ(refused.Status, 3);
    EXPECT_EQ(read.Out, report) << read.Err;
    EXPECT_EQ(drawn.Out, contour) << drawn.Err;
    EXPECT_EQ(curve.Out, chart) << curve.Err;

    // The same as with the files, which are written where nothing forbids it.
    EXPECT_EQ(Run({"report", raft}).Out, report);
    EXPECT_EQ(Run({"contour", raft}).Out, contour);
    EXPECT_NE(work.Names(), before);
}

}  // namespace
}  // namespace lithmark::tests
