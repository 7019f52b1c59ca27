// The sign of a study: the same for the same rows in whatever words they are asked for, another one as soon as a number
// could be another.
#include <set>

#include "cli/StudyCliCase.h"
#include "support/Matchers.h"
#include "support/Pattern.h"

namespace lithmark::tests {
namespace {

// The sign of a study changes with all that its numbers depend on, and with nothing else.
TEST_F(CliStudy, TheSignOfAStudyFollowsItsInput) {
    const std::string project = Example("RectangularFooting");
    const std::vector<std::string> words = {"--vary", "z=1,2", "--take", "s"};
    const auto sign = [&](const std::vector<std::string>& more) {
        return Study(project, With(words, more))[0]["Study"].get<std::string>();
    };
    const std::string plain = sign({});
    EXPECT_THAT(plain, HasPattern("^[0-9a-f]{8}$"));
    EXPECT_EQ(sign({"--jobs", "1"}), plain);
    EXPECT_EQ(sign({"--shard", "1/2"}), plain);
    EXPECT_EQ(sign({"--lang", "de"}), plain);
    std::set<std::string> signs = {plain};
    for (const std::vector<std::string>& more : std::vector<std::vector<std::string>>{{"--set", "Es=1"},
                                                                                      {"--set", "PrefND=14"},
                                                                                      {"--take", "w"},
                                                                                      {"--limit", "s=1"},
                                                                                      {"--vary", "x=0"},
                                                                                      {"--limit", "s=2"},
                                                                                      {"--case", "A:Q=*1"},
                                                                                      {"--case", "A:Q=*2"},
                                                                                      {"--case", "B:Q=*1"},
                                                                                      {"--random", "y=uniform:0:1"}})
        EXPECT_TRUE(signs.insert(sign(more)).second) << more[0];
}

class CliSign : public CliStudy {
  protected:
    std::string Sign(const std::string& project, const std::vector<std::string>& words) const {
        const CliResult result = Run(With({"study", project, "--format", "jsonl"}, words));
        EXPECT_THAT(result.Status, testing::AnyOf(0, 3, 4)) << result.Err;
        return Json::parse(LinesOf(result.Out).at(0))["Study"];
    }
    // All ask for the same rows.
    void ExpectOne(const std::string& project, const std::vector<std::vector<std::string>>& ways) const {
        for (const auto& way : ways)
            EXPECT_EQ(Sign(project, way), Sign(project, ways[0])) << way[1] << " " << way.back();
    }
    // No two ask for the same rows.
    void ExpectMany(const std::string& project, const std::vector<std::vector<std::string>>& ways) const {
        std::set<std::string> signs;
        for (const auto& way : ways)
            EXPECT_TRUE(signs.insert(Sign(project, way)).second) << way[1] << " " << way.back();
    }
};

TEST_F(CliSign, AFieldOrResultHasOneNameAndANumberOneSpelling) {
    const std::string clay = Example("OneClayLayer");
    ExpectOne(clay, {{"--vary", "T=1,2", "--take", "Uc"},
                     {"--vary", "Tc=1,2", "--take", "Uc"},
                     {"--vary", "T=1.0,2.00", "--take", "Uc"},
                     {"--vary", "T= 1, 2e0", "--take", "Uc"}});
    ExpectOne(clay, {{"--vary", "hLayer(1)=1:3:1", "--take", "Uc"},
                     {"--vary", "h1=1:3:1", "--take", "Uc"},
                     {"--vary", "hLayer[1]=1.0:3e0:1", "--take", "Uc"},
                     {"--vary", "hLayer(01)=1:3:1", "--take", "Uc"}});
    const std::string tower = New("Tower", 8);
    ExpectOne(tower, {{"--vary", "h=3,4", "--take", "ConsolidationEnd", "--limit", "Tb=5"},
                      {"--vary", "Hb=3,4", "--take", "Tb", "--limit", "ConsolidationEnd=5.0"}});
    ExpectMany(clay, {{"--vary", "T=1,2", "--take", "Uc"},
                      {"--vary", "T=2,1", "--take", "Uc"},
                      {"--vary", "T=1,2,3", "--take", "Uc"},
                      {"--vary", "hLayer(1)=1,2", "--take", "Uc"},
                      {"--vary", "T=1:2:1", "--vary", "hLayer(1)=3", "--take", "Uc"},
                      {"--vary", "hLayer(1)=3", "--vary", "T=1:2:1", "--take", "Uc"}});
}

TEST_F(CliSign, RandomFieldsAreToldByTheirSamples) {
    const std::string project = Example("RectangularFooting");
    const auto words = [](const std::string& es, const std::vector<std::string>& more = {},
                          const std::string& samples = "16") {
        return With({"--random", es, "--random", "z=uniform:1:2", "--samples", samples, "--take", "s"}, more);
    };
    ExpectOne(project, {words("Es=lognormal:8000:30%"), words("Es=lognormal:8e3:2400"),
                        words("Es=lognormal:8000.0:30.0%", {"--seed", "1", "--design", "random"})});
    ExpectOne(project, {words("Es=uniform:0:9:-5:4"), words("Es=uniform:0:9:0:4")});
    ExpectOne(project,
              {words("Es=normal:9:1", {"--design", "sobol"}), words("Es=normal:9:1", {"--design", "sobol"}, "9")});
    const std::string third = "Nue=uniform:0:0.4";
    ExpectOne(project,
              {words("Es=normal:9:1", {"--random", third, "--correlate", "Es,z=0.5", "--correlate", "z,Nue=-0.1"}),
               words("Es=normal:9:1", {"--random", third, "--correlate", "Nue_s,z=-.10", "--correlate", "z,Es=.5"}),
               words("Es=normal:9:1", {"--random", third, "--correlate", "Es,z=0.5", "--correlate", "z,Nue=-0.1",
                                       "--correlate", "Nue,Es=0"})});
    ExpectMany(
        project,
        {words("Es=lognormal:8000:30%"), words("Es=normal:8000:30%"), words("Es=lognormal:8000:31%"),
         words("Es=lognormal:8001:2400"), words("Es=lognormal:8000:30%:0:9000"), words("Es=lognormal:8000:30%:0:9001"),
         words("Es=triangular:1:2:4"), words("Es=triangular:1:3:4"), words("Es=lognormal:8000:30%", {"--seed", "2"}),
         words("Es=lognormal:8000:30%", {}, "17"), words("Es=lognormal:8000:30%", {"--design", "sobol"}),
         words("Es=lognormal:8000:30%", {"--correlate", "Es,z=0.5"}),
         words("Es=lognormal:8000:30%", {"--correlate", "Es,z=0.25"})});
    ExpectFailure(
        Run(With({"study", project}, words("Es=normal:9:1", {"--correlate", "Es,z=0.5", "--correlate", "z,Es=0.5"}))),
        2, {"z,Es=0.5"});
}

TEST_F(CliSign, LimitsHaveNoOrderAndCasesOne) {
    const std::string project = Example("RectangularFooting");
    ExpectOne(project, {{"--vary", "z=1", "--take", "s", "--take", "w", "--limit", "s=1", "--limit", "w=2"},
                        {"--vary", "z=1", "--take", "s", "--take", "w", "--limit", "w=2.0", "--limit", "s=1"}});
    ExpectOne(project, {{"--case", "A:P=*1.35", "--take", "s"}, {"--case", "A:P=*1.350", "--take", "s"}});
    ExpectMany(project, {{"--case", "A:P=*1.5", "--case", "B:P=*1", "--take", "s"},
                         {"--case", "B:P=*1", "--case", "A:P=*1.5", "--take", "s"},
                         {"--case", "A:P=*1.5,Es=/2", "--case", "B:P=*1", "--take", "s"}});
}

TEST_F(CliSign, AFileOfRowsIsToldByItsCells) {
    const std::string project = Example("RectangularFooting");
    const auto with = [&](const std::string& name, const std::string& bytes) {
        WriteBytes(work / name, bytes);
        return std::vector<std::string>{"--rows", work / name, "--take", "s"};
    };
    ExpectOne(project,
              {with("a.csv", "z,Nue\r\n1,0.25\r\n2,\r\n"), with("b.csv", "\xEF\xBB\xBFz,Nue_s\n1.0,.25\n\"2\",\n\n"),
               with("c.csv", "z,Nue\n 1 ,0.250\n2e0,")});
    ExpectMany(project, {with("a.csv", "z,Nue\n1,0.25\n2,\n"), with("b.csv", "z,Nue\n1,0.26\n2,\n"),
                         with("c.csv", "z,Nue\n2,\n1,0.25\n"), with("d.csv", "z,Nue\n1,0.25\n2,\n2,\n")});
}

// The word of the project's time unit is that of the language in force.
TEST_F(CliSign, NoLanguageTakesPart) {
    for (const int problem : {5, 6, 7, 8}) {
        const std::string project = New("Clay" + std::to_string(problem), problem);
        std::set<std::string> signs;
        for (const char* lang : {"de", "en", "ar"}) signs.insert(Sign(project, {"--lang", lang, "--vary", "Cc=1,2"}));
        EXPECT_EQ(signs.size(), 1u) << project;
    }
    const std::string tower = New("Tower", 8);
    const auto unit = [&](const std::string& word) {
        return Sign(tower, {"--lang", "en", "--vary", "TimePeriod=1", "--set", "TimeUnit=" + word});
    };
    EXPECT_NE(unit("days"), unit("weeks"));
    EXPECT_NE(unit("fortnights"), unit("decades"));
}

}  // namespace
}  // namespace lithmark::tests
