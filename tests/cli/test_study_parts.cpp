// Shards of a study, their joining, and a study that goes on from where it was ended.
#include <algorithm>

#include "cli/StudyCliCase.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

class CliParts : public CliStudy {
  protected:
    void SetUp() override { project = Example("RectangularFooting"); }

    // A row that aborts and 29 that do not.
    std::vector<std::string> Words(const std::vector<std::string>& more = {}) const {
        return With({"study", project, "--vary", "Es=0:2000:1000", "--vary", "z=1:5.5:0.5", "--take", "s"}, more);
    }
    void Shards(int count, const std::string& ending = "csv") const {
        for (int k = 1; k <= count; ++k) {
            const std::string shard = std::to_string(k) + "/" + std::to_string(count);
            EXPECT_EQ(Run(Words({"--shard", shard, "--output", Part(k, ending)})).Status, 0) << "aborted rows or not";
        }
    }
    std::string Part(int k, const std::string& ending = "csv") const {
        return work / "part" + std::to_string(k) + "." + ending;
    }
    std::vector<std::string> JoinWords(int count, const std::string& ending = "csv") const {
        std::vector<std::string> words = {"--join"};
        for (int k = 1; k <= count; ++k) words.push_back(Part(k, ending));
        return words;
    }

    std::string project;
};

TEST_F(CliParts, JoinedShardsAreTheWholeStudyByteForByte) {
    const CliResult whole = Run(Words());
    EXPECT_EQ(whole.Status, 4);
    for (const int count : {1, 3, 7, 40}) {
        Shards(count);
        const CliResult joined = Run(Words(JoinWords(count)));
        EXPECT_EQ(joined.Status, 4) << "as a whole study does";
        EXPECT_EQ(joined.Out, whole.Out);
        EXPECT_EQ(joined.Err, whole.Err);
    }
}

// Samples depend on neither workers nor shards, and a shard that was asked for by symbols is a part all the same.
TEST_F(CliParts, RandomRowsAreTheSameForAnyWorkersAndShards) {
    for (const std::string design : {"random", "sobol"}) {
        const auto words = [&](const std::string& es, const std::string& nue) {
            return std::vector<std::string>{"study",       project,
                                            "--random",    es + "=lognormal:8000:30%",
                                            "--random",    nue + "=uniform:0:0.4",
                                            "--correlate", "Es,Nue=0.5",
                                            "--samples",   "64",
                                            "--design",    design,
                                            "--take",      "s"};
        };
        const auto byName = words("Es", "Nue"), bySymbol = words("Es", "Nue_s");
        const std::string whole = Run(With(byName, {"--jobs", "1"})).Out;
        EXPECT_EQ(LinesOf(whole).size(), 65u);
        EXPECT_EQ(Run(With(byName, {"--jobs", "5"})).Out, whole);
        for (int k = 1; k <= 3; ++k)
            EXPECT_EQ(Run(With(k == 2 ? bySymbol : byName, {"--shard", std::to_string(k) + "/3", "--output", Part(k)}))
                          .Status,
                      0);
        EXPECT_EQ(Run(With(byName, JoinWords(3))).Out, whole);
        WriteBytes(work / "begun.csv", whole.substr(0, whole.size() / 2));
        EXPECT_EQ(Run(With(bySymbol, {"--resume", work / "begun.csv"})).Status, 0);
        EXPECT_EQ(ReadBytes(work / "begun.csv"), whole);
    }
}

// What a whole study ends with: good rows 0, aborted ones 3. A shard of nothing but aborted rows is done too.
TEST_F(CliParts, JoiningEndsAsTheWholeStudyDoes) {
    for (const auto& [es, status] : {std::pair<std::string, int>{"1,2", 0}, {"0,0", 3}}) {
        const std::vector<std::string> words = {"study", project, "--vary", "Es=" + es, "--take", "s"};
        for (const int k : {1, 2})
            EXPECT_EQ(Run(With(words, {"--shard", std::to_string(k) + "/2", "--output", Part(k)})).Status, 0);
        const CliResult joined = Run(With(words, JoinWords(2))), whole = Run(words);
        EXPECT_EQ(joined.Status, status);
        EXPECT_EQ(whole.Status, status);
        EXPECT_EQ(joined.Out, whole.Out);
        EXPECT_EQ(joined.Err, whole.Err);
    }
}

TEST_F(CliParts, PartsMayHaveAnyFormOfRows) {
    Shards(2, "json");
    const CliResult csv = Run(Words(JoinWords(2, "json")));
    EXPECT_EQ(csv.Out, Run(Words()).Out);
    Shards(2, "jsonl");
    const CliResult json = Run(Words(With({"--format", "json"}, JoinWords(2, "jsonl"))));
    EXPECT_EQ(json.Out, Run(Words({"--format", "json"})).Out);
}

TEST_F(CliParts, AShardHasEveryNthRow) {
    Shards(4);
    const auto lines = LinesOf(ReadBytes(Part(3)));
    ASSERT_EQ(lines.size(), 8u);
    EXPECT_THAT(lines[1], testing::StartsWith("3,"));
    EXPECT_THAT(lines[2], testing::StartsWith("7,"));
    EXPECT_THAT(lines[7], testing::StartsWith("27,"));
}

// A file that is no part may be one line without an end: it is not taken whole into the memory.
TEST_F(CliParts, ALineOfEndlessLengthIsRefused) {
    Shards(1);
    const std::string head = ReadBytes(Part(1)).substr(0, ReadBytes(Part(1)).find('\n') + 1);
    WriteBytes(Part(1), head + std::string((std::size_t{1} << 24) + 1, '7'));
    ExpectFailure(Run(Words(JoinWords(1))), 1, {"part1.csv", "2"});
}

TEST_F(CliParts, JoiningNamesTheRowsThatAreMissing) {
    Shards(3);
    WriteBytes(work / "joined.csv", "old");
    ExpectFailure(Run(Words({"--output", work / "joined.csv", "--join", Part(1), Part(3)})), 1,
                  {"10", "2, 5, 8, 11, 14, 17, 20, 23, 26, 29"});
    EXPECT_EQ(ReadBytes(work / "joined.csv"), "old");
    // A last line without its end is missing.
    std::string torn = ReadBytes(Part(2));
    torn.resize(torn.size() - 1);
    WriteBytes(Part(2), torn);
    ExpectFailure(Run(Words(JoinWords(3))), 1, {"29"});
    ExpectFailure(Run(Words({"--join", work / "none.csv"})), 1, {"none.csv"});
}

TEST_F(CliParts, APartOfAnotherStudyIsRefused) {
    Shards(2);
    ASSERT_EQ(Run({"study", project, "--vary", "Es=0:2000:1000", "--vary", "z=1:5.5:0.5", "--take", "s", "--set", "Q=1",
                   "--shard", "2/2", "--output", Part(2)})
                  .Status,
              0);
    ExpectFailure(Run(Words(JoinWords(2))), 1, {Part(2), "row 2"});
    ASSERT_EQ(Run({"study", project, "--vary", "z=1,2", "--output", Part(2)}).Status, 0);
    ExpectFailure(Run(Words(JoinWords(2))), 1, {Part(2), "row 1"});
    ExpectFailure(Run(Words({"--resume", Part(2)})), 1, {Part(2), "row 1"});
    WriteBytes(Part(2), "no table at all\n");
    ExpectFailure(Run(Words({"--resume", Part(2)})), 1, {Part(2)});
    EXPECT_EQ(ReadBytes(Part(2)), "no table at all\n");
}

TEST_F(CliParts, OtherInputValuesAreRefused) {
    Shards(2);
    const std::string part = ReadBytes(Part(1));
    const auto at = part.find("\n9,");
    ASSERT_NE(at, std::string::npos);
    WriteBytes(Part(1), part.substr(0, at) + "\n9,0,5.01" + part.substr(part.find(',', part.find(',', at + 3) + 1)));
    ExpectFailure(Run(Words(JoinWords(2))), 1, {Part(1), "row 9"});
    ExpectFailure(Run(Words({"--resume", Part(1)})), 1, {Part(1), "row 9"});
}

TEST_F(CliParts, AStudyGoesOnFromTheRowsThatStand) {
    const CliResult whole = Run(Words({"--output", work / "whole.csv"}));
    ASSERT_EQ(whole.Status, 4);
    const std::string all = ReadBytes(work / "whole.csv");
    for (const std::size_t length :
         {std::size_t{0}, std::size_t{10}, all.find("\n12,") + 3, all.size() - 1, all.size()}) {
        WriteBytes(work / "begun.csv", all.substr(0, length));
        EXPECT_EQ(Run(Words({"--resume", work / "begun.csv"})).Status, 4);
        EXPECT_EQ(ReadBytes(work / "begun.csv"), all) << length;
    }
    // To another file, in another form; the first one stays.
    const std::string begun = all.substr(0, all.find("\n12,") + 1);
    WriteBytes(work / "begun.csv", begun);
    EXPECT_EQ(Run(Words({"--resume", work / "begun.csv", "--output", work / "on.jsonl"})).Status, 4);
    EXPECT_EQ(ReadBytes(work / "on.jsonl"), Run(Words({"--format", "jsonl"})).Out);
    EXPECT_EQ(ReadBytes(work / "begun.csv"), begun);
    ExpectFailure(Run(Words({"--resume", work / "none.csv", "--output", work / "on.csv"})), 1, {"none.csv"});
}

// Rows that stand are taken over as they are, not worked again: a mark in one of them is still there afterwards.
TEST_F(CliParts, ARowThatStandsIsNotWorkedAgain) {
    ASSERT_EQ(Run(Words({"--output", work / "s.csv"})).Status, 4);
    std::string rows = ReadBytes(work / "s.csv");
    const auto at = rows.find(",ok,", rows.find("\n15,"));
    rows.replace(at, 4, ",ok: marked,");
    WriteBytes(work / "s.csv", rows);
    EXPECT_EQ(Run(Words({"--resume", work / "s.csv"})).Status, 4);
    EXPECT_EQ(ReadBytes(work / "s.csv"), rows);
}

TEST_F(CliParts, AbortedRowsAreWorkedAgainWhenAsked) {
    ASSERT_EQ(Run(Words({"--output", work / "s.csv"})).Status, 4);
    const std::string all = ReadBytes(work / "s.csv");
    std::string rows = all;
    const auto at = rows.find(",ok,", rows.find("\n15,"));
    rows.replace(rows.rfind(',', at - 1) + 1, at - rows.rfind(',', at - 1) + 2, ",The machine was too small");
    WriteBytes(work / "s.csv", rows);
    EXPECT_EQ(Run(Words({"--resume", work / "s.csv"})).Status, 4);
    EXPECT_EQ(ReadBytes(work / "s.csv"), rows);
    EXPECT_EQ(Run(Words({"--resume", work / "s.csv", "--retry-aborted"})).Status, 4);
    EXPECT_EQ(ReadBytes(work / "s.csv"), all);
}

TEST_F(CliParts, AShardGoesOnAsAShard) {
    Shards(3);
    const std::string part = ReadBytes(Part(2));
    WriteBytes(Part(2), part.substr(0, part.find("\n14,") + 1));
    EXPECT_EQ(Run(Words({"--shard", "2/3", "--resume", Part(2)})).Status, 0);
    EXPECT_EQ(ReadBytes(Part(2)), part);
    ExpectFailure(Run(Words({"--shard", "1/3", "--resume", Part(2)})), 1, {Part(2), "row 2"});
}

// The program is killed in the middle: what it wrote so far is a table to go on from.
TEST_F(CliParts, AKilledStudyIsGoneOnFrom) {
    LITHMARK_NEEDS(PosixShell);
    const std::string output = work / "killed.csv", tank = Example("CircularTank");
    const std::vector<std::string> words = {"study",      tank,     "--vary", "z=0.1:60:0.1", "--set",
                                            "PrefND=120", "--take", "s",      "--output",     output};
    // Killed as soon as it has a row to show.
    std::string line = CommandLineTool().string();
    for (const std::string& word : words) line += " " + word;
    line += " & study=$!; until [ -s " + output + " ]; do sleep 0.01; done; kill -9 $study; wait $study";
    EXPECT_NE(std::system(line.c_str()), 0);
    const std::string begun = ReadBytes(output);
    const auto rows = std::count(begun.begin(), begun.end(), '\n') - 1;
    EXPECT_GT(rows, 0);
    ASSERT_LT(rows, 600);
    EXPECT_EQ(Run(With(words, {"--resume", output})).Status, 0);
    const std::string resumed = ReadBytes(output);
    EXPECT_EQ(Run(words).Status, 0);
    EXPECT_EQ(ReadBytes(output), resumed);
}

}  // namespace
}  // namespace lithmark::tests
