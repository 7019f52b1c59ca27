// A calculation that fails names the input that it fails by: each input of each problem, set to nothing, to less and to
// too much, one at a time.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "base/Utf8.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "files/ProblemData.h"
#include "kernels/RunKernel.h"
#include "kernels/raft/RaftRun.h"
#include "report/Causes.h"
#include "services/SharedServices.h"
#include "support/Files.h"
#include "support/Matchers.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

// What a report calls the fields.
const std::map<std::string, std::string>& Names() {
    static const std::map<std::string, std::string> names = {
        {"x", "x-coordinate"},
        {"y", "y-coordinate"},
        {"z", "z-coordinate"},
        {"Q", "point load"},
        {"P", "uniform load"},
        {"A", "length|radius"},
        {"B", "width"},
        {"Nue", "Poisson's ratio"},
        {"Es", "modulus of compressibility"},
        {"h", "layer thickness|thickness of the compressible layer"},
        {"eo", "initial void ratio"},
        {"Po", "overburden pressure"},
        {"Gamma", "unit weight of the clay"},
        {"Cc", "compression index"},
        {"U", "constant pore water pressure"},
        {"T", "time of consolidation"},
        {"hLayer(1)", "layer thickness 1"},
        {"hLayer(2)", "layer thickness 2"},
        {"CvLayer(1)", "coefficient of consolidation"},
        {"CvLayer(2)", "coefficient of consolidation"},
        {"KLayer(1)", "coefficient of permeability 1"},
        {"KLayer(2)", "coefficient of permeability 2"},
        {"CvTS", "coefficient of consolidation"},
        {"kf", "coefficient of permeability"},
        {"EsTS", "mean modulus for first loading"},
        {"Ws", "mean modulus for reloading"},
        {"qv", "preload under the foundation"},
        {"qe", "first loading under the foundation"},
        {"Hm", "thickness of the oedometer specimen"},
        {"Sc", "calculated final settlement"},
        {"Pt", "total load"},
        {"DesignCode", "time of the measurement"},
        {"TimePeriod", "time period"},
        {"Exz_x", "eccentricity"},
        {"Exz_y", "eccentricity"},
        {"LoadTime(1)", "load step"},
        {"LoadTime(5)", "load step"},
        {"PrefDx", "element size in x-direction"},
        {"PrefDy", "element size in y-direction"},
        {"PrefDz", "thickness of the sublayers"},
        {"PrefND", "number of divisions of a circle"},
    };
    return names;
}

struct Variant {
    int ProblemType;
    std::vector<std::pair<const char*, const char*>> Sets;
};

const std::vector<Variant>& Variants() {
    static const std::vector<Variant> variants = {
        {1, {{"LoadType", "1"}}},
        {1, {{"LoadType", "2"}}},
        {1, {{"LoadType", "3"}}},
        {2, {{"LoadType", "1"}}},
        {2, {{"LoadType", "2"}}},
        {2, {{"LoadType", "3"}}},
        {3, {{"LoadType", "1"}}},
        {3, {{"LoadType", "2"}, {"z", "1"}}},
        {3, {{"LoadType", "3"}, {"z", "1"}}},
        {4, {{"LoadType", "1"}, {"SoilPropertyType", "1"}, {"x", "1"}}},
        {4, {{"LoadType", "2"}, {"SoilPropertyType", "1"}}},
        {4, {{"LoadType", "2"}, {"SoilPropertyType", "2"}}},
        {4, {{"LoadType", "3"}, {"SoilPropertyType", "2"}}},
        {5, {{"NumLayers", "1"}}},
        {5, {{"NumLayers", "2"}}},
        {5, {{"NumLayers", "1"}, {"Pressure", "false"}}},
        {6, {}},
        {7, {}},
        {8, {{"CvChoice", "1"}, {"Ms", "true"}}},
        {8, {{"CvChoice", "3"}, {"Ms", "true"}}},
        {9, {{"LoadType", "2"}, {"AnalysisType", "true"}}},
        {9, {{"LoadType", "2"}, {"AnalysisType", "false"}}},
        {9, {{"LoadType", "3"}, {"AnalysisType", "true"}}},
        {9, {{"LoadType", "3"}, {"AnalysisType", "false"}}},
        {10, {{"LoadType", "2"}, {"SoilPropertyType", "1"}, {"AnalysisType", "false"}}},
        {10, {{"LoadType", "2"}, {"SoilPropertyType", "2"}, {"AnalysisType", "false"}}},
        {10, {{"LoadType", "3"}, {"SoilPropertyType", "1"}, {"AnalysisType", "false"}}},
        {10, {{"LoadType", "3"}, {"SoilPropertyType", "2"}, {"AnalysisType", "true"}}},
    };
    return variants;
}

class Causes : public testing::TestWithParam<std::size_t> {
  protected:
    void SetUp() override { SetRaftExport(false); }
    void TearDown() override {
        SetRaftExport(true);
        FreshSession();
    }
    // The session of a variant; clay has what its problem's defaults leave out.
    void Prepare() {
        const Variant& variant = Variants()[GetParam()];
        FreshSession();
        Session.DataDir = Session.WorkDir = folder.Dir();
        Session.ProblemType = variant.ProblemType;
        SetProblemDefaults();
        if (variant.ProblemType == Problem::RaftConsolidation)
            for (const auto& [name, value] :
                 {std::pair("eo", ".85"), {"Cc", ".16"}, {"Po", "51.82"}, {"Gamma", "8.69"}})
                Set(name, value);
        for (const auto& [name, value] : variant.Sets) Set(name, value);
        host.Messages.clear();
    }
    static void Set(const std::string& name, const std::string& value) {
        ASSERT_EQ(SetSessionField(name, value), SetFieldOutcome::Done) << name << "=" << value;
    }
    // The message of a failure, empty when the run went through or ended with an advice of its own. Advice may go ahead
    // of a failure, which is told once.
    std::string Run() {
        Session.A0 = Session.A;
        Session.CalcAborted = false;
        RunProblemKernel();
        if (!Session.CalcAborted) return {};
        std::vector<std::string> failures;
        for (const auto& message : host.Messages)
            if (message.Text.find("The calculation was stopped") != std::string::npos) failures.push_back(message.Text);
        EXPECT_LE(failures.size(), 1u);
        return failures.empty() ? std::string() : failures.front();
    }
    static std::vector<std::string> Inputs() {
        std::vector<std::string> inputs;
        for (const std::string_view field : ProblemFieldNames(Session.ProblemType))
            if (Names().contains(std::string(field))) inputs.emplace_back(field);
        const int problem = Session.ProblemType;
        if (problem == Problem::ConsolidationRate)
            for (const char* layer : {"hLayer", "CvLayer", "KLayer"})
                for (int i = 1; i <= Session.NumLayers; ++i)
                    inputs.push_back(std::string(layer) + "(" + std::to_string(i) + ")");
        if (IsTimeSettlement(problem)) inputs.insert(inputs.end(), {"LoadTime(1)", "LoadTime(5)"});
        if (IsRaft(problem)) inputs.insert(inputs.end(), {"PrefDx", "PrefDy", "PrefND"});
        if (problem <= Problem::ConsolidationRate) inputs.insert(inputs.end(), {"PrefDz", "PrefND"});
        return inputs;
    }
    static bool IsNamed(const std::string& input, const std::string& message) {
        for (const std::string& name : Split(Names().at(input), '|'))
            if (message.find(name) != std::string::npos) return true;
        return false;
    }

    TestFolder folder;
    ScriptedHost host;
};

TEST_P(Causes, AFailureNamesTheInputItComesFrom) {
    Prepare();
    ASSERT_EQ(Run(), "") << "the run must go through untouched";
    const std::vector<std::string> inputs = Inputs();
    std::vector<std::string> unnamed;
    for (const std::string& input : inputs)
        for (const char* value : {"0", "-3", "1E+30", "300"}) {
            if (value == std::string("300") && input != "PrefND") continue;
            Prepare();
            if (SetSessionField(input, value) != SetFieldOutcome::Done) continue;
            const std::string message = Run();
            if (!message.empty() && !IsNamed(input, message)) unnamed.push_back(input + " = " + value + ": " + message);
        }
    EXPECT_THAT(unnamed, IsEmpty());
}

// Values that a user may well type, and those next to nothing and to everything.
TEST(CausesOfSomeInputs, AreNamed) {
    struct Case {
        int ProblemType;
        std::vector<std::pair<const char*, const char*>> Sets;
        const char* Named;
    };
    const Case cases[] = {
        {1, {{"LoadType", "2"}, {"x", "5E+6"}}, "x-coordinate is too large"},
        {1, {{"LoadType", "2"}, {"A", "1E+6"}}, "length is too large"},
        {2, {{"LoadType", "1"}, {"Es", "1E-38"}}, "modulus of compressibility is too small"},
        {3,
         {{"LoadType", "3"}, {"z", "1"}, {"PrefND", "182"}},
         "number of divisions of a circle gives more nodes than can be counted"},
        {9,
         {{"LoadType", "2"}, {"AnalysisType", "false"}, {"A", ".25"}},
         "length is smaller than element size in x-direction"},
        {9,
         {{"LoadType", "2"}, {"AnalysisType", "false"}, {"B", "10"}, {"PrefDy", "20"}},
         "width is smaller than element size in y-direction"},
        {5, {{"NumLayers", "2"}, {"hLayer(2)", "1"}}, "layer thickness 2 is too small"},
        {6, {{"LoadValue(1)", "3.4E+38"}}, "load is too large"},
    };
    for (const Case& each : cases) {
        TestFolder folder;
        ScriptedHost host;
        FreshSession();
        SetRaftExport(false);
        Session.DataDir = Session.WorkDir = folder.Dir();
        Session.ProblemType = each.ProblemType;
        SetProblemDefaults();
        for (const auto& [name, value] : each.Sets) ASSERT_EQ(SetSessionField(name, value), SetFieldOutcome::Done);
        Session.A0 = Session.A;
        RunProblemKernel();
        EXPECT_TRUE(Session.CalcAborted) << each.Named;
        EXPECT_THAT(host.LastMessage().Text, HasSubstr(each.Named));
        host.Messages.clear();
    }
    SetRaftExport(true);
    FreshSession();
}

TEST(CausesWithNumbers, HaveTheirDecimalSignAndADigitAheadOfIt) {
    FreshSession(Language::German);
    SharedServices().DecimalSign = ',';
    const std::string cause = IfOutside("Querdehnzahl", 0.75, 0, 0.5);
    SharedServices().DecimalSign = '.';
    FreshSession();
    EXPECT_EQ(cause, "Querdehnzahl liegt nicht zwischen 0 und 0,5");
}

INSTANTIATE_TEST_SUITE_P(EveryProblem, Causes, testing::Range<std::size_t>(0, Variants().size()),
                         [](const auto& variant) {
                             std::string name = "P" + std::to_string(Variants()[variant.param].ProblemType);
                             for (const auto& [field, value] : Variants()[variant.param].Sets)
                                 name += std::string("_") + field + "_" + value;
                             return name;
                         });

TEST(CausesInOtherLanguages, AreToldOnceInTheLanguageOfTheReport) {
    for (const auto& [language, expected] :
         {std::pair(Language::German, "Die Berechnung wurde abgebrochen: Steifemodul ist 0."),
          {Language::English, "The calculation was stopped: modulus of compressibility is 0."},
          {Language::Arabic, "توقف الحساب: قيمة معاير الانضغاط تساوي صفرًا."}}) {
        ScriptedHost host;
        FreshSession(language);
        Session.ProblemType = Problem::SoilStrain;
        SetProblemDefaults();
        Session.Es = 0;
        RunProblemKernel();
        EXPECT_TRUE(Session.CalcAborted);
        ASSERT_EQ(host.Messages.size(), 1u);
        EXPECT_EQ(host.LastMessage().Text, expected);
    }
    FreshSession();
}

}  // namespace
}  // namespace lithmark::tests
