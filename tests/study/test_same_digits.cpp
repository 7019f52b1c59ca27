// A row worked by a worker has the digits, the messages and the end of a program run for this row alone: for all ten
// problems, for every choice that their data and settings offer, and whatever the worker did before.
#include "cli/CliCase.h"
#include "services/host/ConsoleHost.h"
#include "study/StudyProblem.h"

namespace lithmark::tests {
namespace {

struct ProblemRows {
    int ProblemType;
    std::vector<RowInput> Rows;
};

void PrintTo(const ProblemRows& rows, std::ostream* out) {
    *out << "problem " << rows.ProblemType;
}

// Rows that abort stand between good ones, so that nothing of a run may reach the next.
const std::vector<ProblemRows> kProblems = {
    {1,
     {{},
      {{"LoadType", "1"}, {"Q", "1234.5"}},
      {{"Nue", "0.5"}, {"z", "0"}},
      {{"LoadType", "3"}, {"x", "1.7"}, {"PrefND", "20"}},
      {{"LoadType", "1.5"}},
      {{"LoadType", "2"}, {"x", "0.1"}, {"y", "-2.25"}, {"z", "7.125"}}}},
    {2,
     {{{"Es", "0"}}, {}, {{"LoadType", "1"}, {"z", "3"}}, {{"LoadType", "3"}, {"PrefND", "6"}}, {{"Es", "12345.678"}}}},
    {3, {{{"LoadType", "3"}, {"z", "0"}}, {{"Es", "0"}}, {{"LoadType", "1"}}, {{"LoadType", "2"}, {"B", "0.75"}}, {}}},
    {4,
     {{},
      {{"SoilPropertyType", "1"}, {"Es", "4000"}},
      {{"SoilPropertyType", "1"}, {"Es", "0"}},
      {{"LoadType", "3"}, {"x", "1"}, {"PrefDz", "0.5"}},
      {{"LoadType", "1"}, {"h", "12.5"}},
      {{"Cc", "0.31"}, {"eo", "1.1"}, {"Gamma", "9.81"}, {"Po", "33"}}}},
    {5,
     {{},
      {{"NumLayers", "2"}, {"hLayer(2)", "3"}, {"KLayer(2)", "1e-8"}},
      {{"DrainageCondition", "2"}, {"T", "2"}},
      {{"Pressure", "#FALSE#"}, {"LoadType", "1"}},
      {{"Pressure", "#FALSE#"}, {"LoadType", "3"}, {"PrefDz", "0.5"}},
      {{"CvLayer(1)", "0"}},
      {{"TimeUnit", "days"}, {"T", "400"}},
      {{"TimeUnit", "fortnights"}}}},
    {6, {{}, {{"Ms", "#TRUE#"}}, {{"NLoad", "2"}}, {{"Pt", "0"}}, {{"StsValue(2)", "33"}}}},
    {7, {{{"Hm", "0"}}, {}, {{"Ms", "#TRUE#"}, {"Sm", "1.5"}}, {{"h", "0"}}, {{"h", "9"}, {"DrainageFaces", "1"}}}},
    {8, {{}, {{"kf", "1e-14"}}, {{"CvChoice", "3"}, {"CvTS", "3e-7"}}, {{"EsTS", "0"}}, {{"qv", "0"}, {"qe", "9"}}}},
    {9,
     {{},
      {{"AnalysisType", "#FALSE#"}, {"PrefDx", "1"}, {"PrefDy", "1"}},
      {{"AnalysisType", "#FALSE#"}, {"Exz_x", "0.5"}, {"Exz_y", "0.25"}},
      {{"LoadType", "3"}, {"AnalysisType", "#FALSE#"}},
      {{"LoadType", "3"}, {"SettlementAt", "#FALSE#"}},
      {{"Es", "0"}},
      {{"LoadType", "1"}},
      {{"SettlementAt", "#FALSE#"}, {"A", "6"}}}},
    {10,
     {{{"AnalysisType", "#FALSE#"}},
      {{"AnalysisType", "#FALSE#"}, {"z", "1"}, {"h", "3"}},
      {{"AnalysisType", "#FALSE#"}, {"z", "1"}, {"h", "0.5"}, {"Exz_x", "0.3"}},
      {{"AnalysisType", "#FALSE#"},
       {"SoilPropertyType", "2"},
       {"eo", "0.9"},
       {"Cc", "0.2"},
       {"Po", "40"},
       {"Gamma", "9"}},
      {{"LoadType", "3"}, {"AnalysisType", "#FALSE#"}, {"z", "0.5"}},
      {{"LoadType", "3"}},
      {{"PrefTol", "1e-4"}, {"PrefImax", "3"}, {"AnalysisType", "#FALSE#"}, {"z", "0.5"}},
      {}}},
};

class SameDigits : public CliTest, public testing::WithParamInterface<ProblemRows> {
  protected:
    Json Program(const std::string& project, const RowInput& input) const {
        std::vector<std::string> words = {"report", project, "--format", "json", "--lang", "en"};
        for (const FieldChange& change : input) {
            words.emplace_back("--set");
            words.push_back(change.Name + "=" + change.Value);
        }
        const CliResult result = Run(words);
        if (result.Status == 2) return Json{{"refused", result.Err}};
        return Json::parse(result.Out);
    }
};

// A number as text tells more of its digits than a comparison within a tolerance.
Json NumbersOf(const RowOutcome& outcome, int problemType) {
    Json results = Json::object();
    std::size_t number = 0, list = 0;
    for (const RunResult& result : ResultsOf(problemType)) {
        const std::string name(result.Name);
        if (result.IsList()) {
            results[name] = outcome.Lists.at(list++);
        } else if (const float value = outcome.Numbers.at(number++); !IsMissing(value)) {
            results[name] = value;
        }
    }
    return results;
}

void ExpectSameRun(const RowOutcome& outcome, const Json& program, int problemType) {
    if (program.contains("refused")) {
        EXPECT_TRUE(outcome.Aborted);
        EXPECT_THAT(program["refused"].get<std::string>(), testing::HasSubstr(outcome.Message()));
        return;
    }
    EXPECT_EQ(outcome.Aborted, program["aborted"].get<bool>());
    std::vector<std::string> messages;
    for (const Json& message : program["messages"]) messages.push_back(OneLine(message["text"]));
    EXPECT_EQ(outcome.Messages, messages);
    if (outcome.Aborted) return;
    const Json numbers = NumbersOf(outcome, problemType);
    ASSERT_EQ(Keys(numbers), Keys(program["results"]));
    for (const auto& [name, value] : program["results"].items()) {
        if (value.is_array()) {
            EXPECT_EQ(numbers[name].get<std::vector<float>>(), value.get<std::vector<float>>()) << name;
        } else {
            EXPECT_EQ(numbers[name].get<float>(), value.get<float>()) << name;
        }
    }
}

TEST_P(SameDigits, AsOneProgramPerRow) {
    LITHMARK_NEEDS(WorkersByCopying);
    const auto& [problemType, inputs] = GetParam();
    const std::string project = New("Row", problemType);
    StartProblem(problemType);
    // One worker works every row twice, in both directions, so that each follows on another.
    std::vector<RowInput> twice = inputs;
    twice.insert(twice.end(), inputs.rbegin(), inputs.rend());
    WorkerPool pool(Session, AllTakes(problemType), 1);
    const auto outcomes = OutcomesOf(pool, twice);
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        SCOPED_TRACE("row " + std::to_string(i));
        const Json program = Program(project, inputs[i]);
        ExpectSameRun(outcomes[i], program, problemType);
        ExpectSameRun(outcomes[twice.size() - 1 - i], program, problemType);
    }
    EXPECT_TRUE(std::ranges::any_of(outcomes, [](const RowOutcome& outcome) { return !outcome.Aborted; }));
}

INSTANTIATE_TEST_SUITE_P(Problems, SameDigits, testing::ValuesIn(kProblems),
                         [](const auto& problem) { return "Problem" + std::to_string(problem.param.ProblemType); });

}  // namespace
}  // namespace lithmark::tests
