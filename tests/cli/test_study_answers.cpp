// What a study answers beside its rows: the summary, the tornado, and where a result crosses its limit.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "cli/StudyCliCase.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class CliAnswers : public CliStudy {
  protected:
    // Under a point load, on its axis: Sigma_z = 3 Q/(2 pi z^2) (Boussinesq).
    void SetUp() override { project = New("Axis", 1, {"LoadType=1", "x=0", "y=0", "z=2", "Q=1000"}); }

    static double OnAxis(double load, double depth) { return 3 * load / (2 * std::numbers::pi * depth * depth); }
    Json Answer(const std::vector<std::string>& more, int status = 0) const {
        const CliResult result = Run(With({"study", project, "--format", "json"}, more));
        EXPECT_EQ(result.Status, status) << result.Err;
        return Json::parse(result.Out);
    }
    Json Summary(const std::vector<std::string>& more) const {
        EXPECT_EQ(
            Run(With({"study", project, "--output", work / "rows.csv", "--summary", work / "sum.json"}, more)).Status,
            0);
        return Json::parse(ReadBytes(work / "sum.json"));
    }

    std::string project;
};

const std::vector<std::string> kSamples = {"--random", "Q=lognormal:1000:20%", "--samples", "500", "--take", "Sigma_z",
                                           "--limit",  "Sigma_z=150"};

TEST_F(CliAnswers, TheSummaryIsThatOfTheRows) {
    const Json summary = Summary(kSamples);
    ASSERT_EQ(summary.size(), 1u);
    EXPECT_THAT(Keys(summary[0]),
                ElementsAre("Result", "count", "aborted", "noticed", "mean", "se_mean", "sd", "min", "p5", "p50", "p95",
                            "max", "limit", "beyond", "se_beyond", "low", "high", "beyond_worst", "beta"));
    std::vector<double> values;
    for (const Json& row : Study(project, kSamples)) values.push_back(row["Sigma_z"]);
    std::sort(values.begin(), values.end());
    double sum = 0, squares = 0;
    for (const double value : values) sum += value;
    for (const double value : values) squares += (value - sum / 500) * (value - sum / 500);
    const auto told = [&](const char* key) { return summary[0][key].get<double>(); };
    EXPECT_EQ(summary[0]["count"], 500);
    EXPECT_NEAR(told("mean"), sum / 500, 1e-5 * sum / 500);
    EXPECT_NEAR(told("sd"), std::sqrt(squares / 499), 1e-5 * told("sd"));
    EXPECT_NEAR(told("se_mean"), std::sqrt(squares / 499 / 500), 1e-5 * told("sd"));
    EXPECT_EQ(told("min"), values.front());
    EXPECT_EQ(told("max"), values.back());
    EXPECT_NEAR(told("p50"), (values[249] + values[250]) / 2, 1e-4);
    const auto beyond =
        static_cast<double>(std::count_if(values.begin(), values.end(), [](double value) { return value > 150; }));
    EXPECT_NEAR(told("beyond"), beyond / 500, 1e-7);
    EXPECT_GT(beyond, 0);
    EXPECT_LT(told("low"), told("beyond"));
    EXPECT_GT(told("high"), told("beyond"));
}

TEST_F(CliAnswers, NoneOfAThousandBeyondHasAnUpperBound) {
    const Json summary = Summary(
        {"--random", "Q=uniform:900:1100", "--samples", "1000", "--take", "Sigma_z", "--limit", "Sigma_z=1000"});
    EXPECT_EQ(summary[0]["beyond"], 0);
    EXPECT_EQ(summary[0]["low"], 0);
    EXPECT_THAT(summary[0]["high"].dump(), StartsWith("0.0038"));
    EXPECT_TRUE(summary[0]["beta"].is_null());
}

TEST_F(CliAnswers, PartsHaveTheSummaryOfTheWholeWhenJoined) {
    for (const std::string design : {"random", "sobol"}) {
        const auto words = With(kSamples, {"--design", design});
        const Json whole = Summary(words);
        std::vector<std::string> join = {"--join"};
        for (int k = 1; k <= 3; ++k) {
            join.push_back(work / "part" + std::to_string(k) + ".csv");
            ASSERT_EQ(Run(With(With({"study", project}, words),
                               {"--shard", std::to_string(k) + "/3", "--output", join.back()}))
                          .Status,
                      0);
        }
        EXPECT_EQ(Summary(With(words, join)), whole);
        ExpectFailure(Run(With(With({"study", project}, words), {"--shard", "1/3", "--summary", work / "s.csv"})), 2,
                      {"--summary", "--shard"});
    }
}

TEST_F(CliAnswers, TheSummaryIsWrittenInEveryForm) {
    const auto words = With({"study", project}, kSamples);
    ASSERT_EQ(Run(With(words, {"--output", work / "rows.csv", "--summary", work / "sum.csv"})).Status, 0);
    EXPECT_THAT(ReadBytes(work / "sum.csv"), StartsWith("Result,count,aborted,noticed,mean,se_mean,sd,min,p5,p50,"));
    const CliResult shown = Run(With(words, {"--output", work / "rows.csv", "--summary", "-"}));
    EXPECT_EQ(shown.Out, ReadBytes(work / "sum.csv"));
    ExpectFailure(Run(With(words, {"--summary", "-"})), 2, {"--summary", "--output"});
    ExpectFailure(Run(With(words, {"--output", work / "rows.csv", "--summary", work / "sum.txt"})), 2, {"txt"});
    ExpectFailure(Run(With(words, {"--output", work / "rows.csv", "--summary", work / "none" + "/sum.csv"})), 1,
                  {"none"});
}

TEST_F(CliAnswers, ATornadoShowsTheGreatestInfluenceFirst) {
    const Json rows = Answer({"--tornado", "--random", "Q=normal:1000:100", "--vary", "z=1.9,2.1,2.05", "--vary",
                              "Nue=0:0.4:0.2", "--take", "Sigma_z"});
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_THAT(Keys(rows[0]), ElementsAre("Result", "Field", "low", "high", "at_low", "at_high", "swing"));
    // Q at its 5 and 95 %: 1000 -+ 1.645*100; z at the ends of what it is varied over; each with the other one at
    // median or project value. Poisson's ratio does not move a vertical stress under a point load.
    EXPECT_EQ(rows[0]["Field"], "Q");
    EXPECT_NEAR(rows[0]["low"].get<double>(), 1000 - 164.485, 0.001);
    EXPECT_NEAR(rows[0]["high"].get<double>(), 1000 + 164.485, 0.001);
    EXPECT_NEAR(rows[0]["at_low"].get<double>(), OnAxis(1000 - 164.485, 2), 1e-3);
    EXPECT_NEAR(rows[0]["at_high"].get<double>(), OnAxis(1000 + 164.485, 2), 1e-3);
    EXPECT_NEAR(rows[0]["swing"].get<double>(), OnAxis(328.971, 2), 1e-3);
    EXPECT_EQ(rows[1]["Field"], "z");
    EXPECT_EQ(rows[1]["low"].get<double>(), 1.9);
    EXPECT_EQ(rows[1]["high"].get<double>(), 2.1);
    EXPECT_NEAR(rows[1]["at_low"].get<double>(), OnAxis(1000, 1.9), 1e-3);
    EXPECT_NEAR(rows[1]["at_high"].get<double>(), OnAxis(1000, 2.1), 1e-3);
    EXPECT_EQ(rows[2]["Field"], "Nue");
    EXPECT_EQ(rows[2]["swing"], 0);
}

TEST_F(CliAnswers, ATornadoIsDrawn) {
    const std::vector<std::string> words = {"study",    project,          "--tornado", "--random", "Q=normal:1000:100",
                                            "--random", "z=normal:2:0.1", "--take",    "Sigma_z"};
#ifdef LITHMARK_RENDER
    const CliResult svg = Run(With(words, {"--format", "svg"}));
    EXPECT_EQ(svg.Status, 0) << svg.Err;
    EXPECT_THAT(svg.Out, HasSubstr("<svg"));
    EXPECT_THAT(svg.Out, HasSubstr("835.514"));
    EXPECT_THAT(svg.Out, HasSubstr("Influence of the fields on Sigma_z"));
    EXPECT_EQ(Run(With(words, {"--output", work / "t.png"})).Status, 0);
    EXPECT_THAT(ReadBytes(work / "t.png"), StartsWith("\x89PNG"));
    EXPECT_EQ(Run(With(words, {"--output", work / "t.pdf"})).Status, 0);
    EXPECT_THAT(ReadBytes(work / "t.pdf"), StartsWith("%PDF"));
    ExpectFailure(Run(With(words, {"--take", "s", "--format", "svg"})), 2, {"--take"});
    ExpectFailure(Run({"study", project, "--vary", "z=1,2", "--format", "svg"}), 2, {"svg"});
#endif
    ExpectFailure(Run(With(words, {"--format", "jsonl"})), 2, {"jsonl"});
}

TEST_F(CliAnswers, ACrossingIsFoundForEveryOtherRow) {
    const Json rows = Answer({"--find", "Q=100:100000", "--limit", "Sigma_z=200", "--vary", "z=1,2,20"});
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_THAT(Keys(rows[0]), ElementsAre("Row", "z", "Q", "Sigma_z", "Beyond", "Status", "Notices"));
    for (int i = 0; i < 2; ++i) {
        const Json& row = rows[static_cast<std::size_t>(i)];
        const double z = i + 1, exact = 200 * 2 * std::numbers::pi * z * z / 3;
        EXPECT_NEAR(row["Q"].get<double>(), exact, 3e-6 * exact);
        EXPECT_LE(row["Sigma_z"].get<double>(), 200) << "what is told is not beyond";
        EXPECT_EQ(row["Beyond"], "above");
        EXPECT_EQ(row["Status"], "ok");
    }
    EXPECT_EQ(rows[2]["Row"], 3);
    EXPECT_EQ(rows[2]["Q"], "none");
    EXPECT_TRUE(rows[2]["Sigma_z"].is_null());
}

TEST_F(CliAnswers, AllCrossingsAreTold) {
    // Beyond the limit near the axis alone: from x = -r to r.
    const Json rows = Answer({"--find", "x=-5:5.5", "--limit", "Sigma_z=60", "--set", "z=2"});
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0]["Beyond"], "above");
    EXPECT_EQ(rows[1]["Beyond"], "below");
    EXPECT_EQ(rows[0]["Row"], rows[1]["Row"]);
    EXPECT_NEAR(rows[0]["x"].get<double>(), -rows[1]["x"].get<double>(), 1e-5);
    // Boussinesq: 3 Q z^3/(2 pi R^5).
    const double z = 2, r = rows[1]["x"].get<double>(), distance = std::sqrt(r * r + z * z);
    EXPECT_NEAR(3 * 1000 * z * z * z / (2 * std::numbers::pi * std::pow(distance, 5)), 60, 1e-3);
}

TEST_F(CliAnswers, ACrossingWithTrialsThatAbortSaysSo) {
    const std::string footing = Example("RectangularFooting");
    const CliResult some = Run({"study", footing, "--find", "Es=0:16000", "--limit", "s=1", "--format", "json"});
    EXPECT_EQ(some.Status, 0) << some.Err;
    const Json rows = Json::parse(some.Out);
    EXPECT_THAT(rows[0]["Status"].get<std::string>(), StartsWith("ok: 1 of "));
    const CliResult all = Run({"study", footing, "--find", "Q=1:2", "--limit", "s=1", "--set", "Es=0"});
    EXPECT_EQ(all.Status, 3);
}

// The smallest depth at which at most a share is beyond: Sigma_z falls with the square of the depth and is proportional
// to the load, so it is known from the sorted loads alone.
TEST_F(CliAnswers, TheSmallestValueWithAShareBeyondIsThatOfTheSamples) {
    for (const std::string design : {"random", "sobol"}) {
        const std::vector<std::string> random = {
            "--random", "Q=lognormal:1000:20%", "--design", design, "--samples", "1024", "--seed", "7"};
        std::vector<double> loads;
        for (const Json& row : Study(project, With(random, {"--take", "Sigma_z"}))) loads.push_back(row["Q"]);
        std::sort(loads.rbegin(), loads.rend());
        const Json rows = Answer(With(random, {"--find", "z=1:9", "--limit", "Sigma_z=100", "--share", "5%"}));
        ASSERT_EQ(rows.size(), 1u);
        EXPECT_THAT(Keys(rows[0]),
                    ElementsAre("Row", "z", "z_low", "z_high", "beyond", "se_beyond", "low", "high", "Status"));
        // 51 of 1024 may be beyond: the 52nd greatest load may just not.
        const double depth = std::sqrt(OnAxis(loads[51], 1) / 100);
        EXPECT_NEAR(rows[0]["z"].get<double>(), depth, 1.1e-4 * depth);
        EXPECT_NEAR(rows[0]["beyond"].get<double>(), 51.0 / 1024, 1e-6);
        EXPECT_LT(rows[0]["low"].get<double>(), 0.05);
        EXPECT_GT(rows[0]["high"].get<double>(), 0.05);
        EXPECT_LT(rows[0]["z_low"].get<double>(), depth);
        EXPECT_GT(rows[0]["z_high"].get<double>(), depth);
        if (design == "sobol") continue;
        // The interval: where Wilson's bounds come down to 5 %.
        const auto bound = [](double beyond, double sign) {
            const double n = 1024, p = beyond / n, z = 1.959963984540054;
            return (p + z * z / (2 * n) + sign * z * std::sqrt(p * (1 - p) / n + z * z / (4 * n * n))) /
                   (1 + z * z / n);
        };
        const auto depthOf = [&](double sign) {
            std::size_t beyond = 0;
            while (bound(static_cast<double>(beyond + 1), sign) <= 0.05) ++beyond;
            return std::sqrt(OnAxis(loads[beyond], 1) / 100);
        };
        EXPECT_NEAR(rows[0]["z_high"].get<double>(), depthOf(1), 1.1e-4 * depth);
        EXPECT_NEAR(rows[0]["z_low"].get<double>(), depthOf(-1), 1.1e-4 * depth);
    }
}

TEST_F(CliAnswers, AShareThatNoValueKeepsIsNone) {
    const std::vector<std::string> random = {"--random", "Q=uniform:900:1100", "--samples", "100", "--share", "0.01"};
    const Json none = Answer(With(random, {"--find", "z=1:2", "--limit", "Sigma_z=1"}));
    EXPECT_EQ(none[0]["z"], "none");
    EXPECT_TRUE(none[0]["beyond"].is_null());
    // Kept from the first value on; a hundred samples cannot prove one per cent.
    const Json all = Answer(With(random, {"--find", "z=1:2", "--limit", "Sigma_z=1000"}));
    EXPECT_EQ(all[0]["z"].get<double>(), 1);
    EXPECT_EQ(all[0]["z_high"], "none");
}

TEST_F(CliAnswers, QuestionsThatCannotBeAreRefused) {
    struct Wrong {
        std::vector<std::string> Words;
        std::string Named;
    };
    const Wrong wrong[] = {
        {{"--find", "Q=1:2"}, "--limit"},
        {{"--find", "Q=1:2", "--limit", "s=1", "--limit", "w=1"}, "--limit"},
        {{"--find", "Q=2:1", "--limit", "s=1"}, "Q=2:1"},
        {{"--find", "Q=1:2", "--limit", "s=1", "--vary", "Q=1,2"}, "Q"},
        {{"--find", "Q=1:2", "--limit", "s=1", "--share", "5%"}, "--random"},
        {{"--vary", "Q=1,2", "--share", "5%"}, "--find"},
        {{"--find", "Q=1:2", "--limit", "s=1", "--random", "z=uniform:1:2", "--share", "1.5"}, "1.5"},
        {{"--find", "Q=1:2", "--limit", "s=1", "--shard", "1/2"}, "--shard"},
        {{"--find", "Q=1:2", "--limit", "s=1", "--tornado", "--vary", "z=1,2"}, "--tornado"},
        {{"--tornado", "--case", "A:Q=*2"}, "--random"},
        {{"--tornado", "--vary", "LoadType=1,2", "--summary", "s.csv"}, "--summary"},
        {{"--tornado", "--vary", "TimeUnit=days,years"}, "TimeUnit"},
    };
    for (const Wrong& each : wrong) ExpectFailure(Run(With({"study", project}, each.Words)), 2, {each.Named});
}

TEST_F(CliAnswers, SetsTakeNamesAndSymbols) {
    const std::string clay = Example("OneClayLayer");
    const auto rows = [&](const std::string& set) {
        Json list = Study(clay, {"--vary", "h1=3,4", "--take", "Uc", "--set", set});
        return list;
    };
    EXPECT_EQ(rows("Tc=2"), rows("T=2"));
    EXPECT_NE(rows("Tc=2"), rows("Tc=3"));
    EXPECT_EQ(rows("k1=1e-9"), rows("KLayer(1)=1e-9"));
    ExpectFailure(Run({"study", clay, "--vary", "h1=3,4", "--set", "Tcc=2"}), 2, {"Tcc=2", "Tc"});
}

}  // namespace
}  // namespace lithmark::tests
