// The data of a project for scripts.
#include <algorithm>
#include <regex>
#include <set>

#include "cli/CliCase.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

class CliShow : public CliTest {
  protected:
    Json Shown(const std::string& project, const std::string& language = "en") const {
        const CliResult result = Run({"show", project, "--format", "json", "--lang", language});
        EXPECT_EQ(result.Status, 0) << result.Err;
        return Json::parse(result.Out);
    }

    static Json Field(const Json& shown, const std::string& name) {
        for (const Json& field : shown["fields"])
            if (field["name"] == name) return field;
        ADD_FAILURE() << name;
        return Json::object();
    }
};

TEST_F(CliShow, AFieldHasNameSymbolValueUnitAndMeaning) {
    const Json shown = Shown(New("Footing", 1, {"LoadType=2", "P=150.5", "Nue=0.3"}));
    EXPECT_THAT(Keys(shown), ElementsAre("project", "problem", "title", "fields"));
    EXPECT_EQ(shown["project"], "Footing");
    EXPECT_EQ(shown["problem"], 1);
    EXPECT_EQ(shown["title"], "Stresses in soil");
    EXPECT_EQ(Field(shown, "P"),
              Json({{"name", "P"}, {"symbol", "p"}, {"value", 150.5}, {"unit", "kN/m2"}, {"text", "Uniform load"}}));
    EXPECT_EQ(Field(shown, "Nue")["unit"], "");
    EXPECT_EQ(Field(shown, "z")["text"], "z-coordinate");
    EXPECT_EQ(Field(shown, "LoadType")["value"], 2);
}

TEST_F(CliShow, TheFieldsStandInTheOrderOfTheDataFile) {
    std::vector<std::string> names;
    const Json shown = Shown(New("Layers", 5));
    for (const Json& field : shown["fields"]) names.push_back(field["name"]);
    EXPECT_THAT(names, ElementsAre("x", "y", "z", "Q", "P", "A", "B", "LoadType", "U", "T", "NumLayers", "hLayer(1)",
                                   "hLayer(2)", "CvLayer(1)", "CvLayer(2)", "KLayer(1)", "KLayer(2)",
                                   "DrainageCondition", "Pressure", "TimeUnit"));
}

TEST_F(CliShow, TablesAreListsAndUnitsThoseOfTheProject) {
    const Json shown = Shown(New("Building", 7, {"NLoad=2", "LoadTime(2)=5", "LoadValue(2)=100"}));
    EXPECT_EQ(Field(shown, "LoadTime")["value"], Json({1, 5}));
    EXPECT_EQ(Field(shown, "LoadTime")["unit"], "days");
    EXPECT_EQ(Field(shown, "OedSettlement")["unit"], "mm");
    EXPECT_EQ(Field(shown, "OedTime")["unit"], "min");
    EXPECT_EQ(Field(shown, "Ms")["value"], true);
    EXPECT_EQ(Field(shown, "TimeUnit")["value"], "days");
}

TEST_F(CliShow, EveryFieldOfACalculatedProblemSaysWhatItMeansInEveryLanguage) {
    for (int problem = 1; problem <= 10; ++problem) {
        const std::string project = New("P" + std::to_string(problem), problem);
        const Json english = Shown(project), german = Shown(project, "de"), arabic = Shown(project, "ar");
        for (std::size_t i = 0; i < english["fields"].size(); ++i) {
            SCOPED_TRACE(english["fields"][i].dump());
            const std::string text = english["fields"][i]["text"];
            EXPECT_NE(text, "");
            EXPECT_FALSE(text.ends_with(":") || text.find('|') != std::string::npos ||
                         text.find('&') != std::string::npos);
            EXPECT_NE(german["fields"][i]["text"], text);
            EXPECT_NE(arabic["fields"][i]["text"], text);
        }
    }
}

// What is shown can be put back: by name and, where no field has that name, by symbol.
TEST_F(CliShow, ShownFieldsAreThoseThatCanBeSet) {
    for (int problem = 1; problem <= 10; ++problem) {
        const std::string project = New("P" + std::to_string(problem), problem);
        std::vector<std::string> words = {"show", project};
        const Json shown = Shown(project);
        for (const Json& field : shown["fields"]) {
            if (field["value"].is_array() || field["value"].is_boolean() || field["value"] == "") continue;
            const std::string value =
                field["value"].is_string() ? field["value"].get<std::string>() : field["value"].dump();
            words.insert(words.end(), {"--set", field["name"].get<std::string>() + "=" + value});
        }
        EXPECT_EQ(Run(words).Out, Run({"show", project}).Out) << problem;
    }
}

// The symbols of a problem's fields stand in its reports: whatever kind of load, soil or layers it takes to print them.
TEST_F(CliShow, TheSymbolsAreThoseThatReportsPrint) {
    struct Family {
        std::vector<std::string> Examples;
        std::vector<std::vector<std::string>> Sets;
    };
    const std::vector<std::string> plain, point = {"LoadType=1"}, index = {"SoilPropertyType=2"}, even = {"Pressure=1"};
    const std::vector<Family> all = {
        {{"PointLoad", "RectangularFooting", "BridgePier"}, {plain}},
        {{"ClayUnderFooting", "ClayUnderTank"}, {plain, point, index}},
        {{"OneClayLayer", "TwoClayLayers"}, {plain, point, even}},
        {{"OfficeBuilding", "GrainStore", "WaterTower"}, {plain}},
        {{"EccentricRaft", "RaftOnClayEs", "RaftOnThinClay"}, {plain}},
    };
    const std::regex line(R"(\s(\S+)\s+\S+\s+= )");
    for (const Family& family : all) {
        std::set<std::string> told, printed;
        for (const std::string& name : family.Examples) {
            const std::string project = (SourceDir() / "examples" / name / (name + ".PO3")).string();
            const Json shown = Shown(project);
            for (const Json& field : shown["fields"])
                if (field["symbol"] != "") told.insert(field["symbol"]);
            for (const auto& sets : family.Sets) {
                std::vector<std::string> words = {"report", project, "--no-export", "--lang", "en"};
                for (const std::string& set : sets) words.insert(words.end(), {"--set", set});
                const std::string report = Run(words).Out;
                for (std::sregex_iterator it(report.begin(), report.end(), line), end; it != end; ++it)
                    printed.insert((*it)[1]);
            }
        }
        EXPECT_GE(told.size(), 8u);
        EXPECT_TRUE(std::ranges::includes(printed, told)) << Json(told).dump() << " and " << Json(printed).dump();
    }
}

}  // namespace
}  // namespace lithmark::tests
