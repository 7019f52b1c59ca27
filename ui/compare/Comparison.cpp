#include "ui/compare/Comparison.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/CsvCell.h"
#include "base/NumberText.h"
#include "core/Catalogue.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

const std::string kNothing = "–";

bool SameFile(const std::string& one, const std::string& other) {
    std::error_code unknown;
    return one == other || std::filesystem::equivalent(one, other, unknown);
}

std::string ProblemOf(const StoredProject& project) {
    return Text(FindProblem(project.Record.ProblemType)->Subject);
}

// "Crane", or with its folder where the other has the same name; with the path where their folders have it, too.
std::string NameBeside(const StoredProject& project, const StoredProject& other) {
    if (project.Name != other.Name) return project.Name;
    const auto folder = [](const StoredProject& of) {
        return std::filesystem::path(of.File).parent_path().filename().string();
    };
    return folder(project) != folder(other) ? folder(project) + "/" + project.Name : project.File;
}

const ProjectInput* Find(const std::vector<ProjectInput>& inputs, const std::string& key) {
    const auto found = std::ranges::find(inputs, key, &ProjectInput::Key);
    return found == inputs.end() ? nullptr : &*found;
}

bool Counts(const ProjectInput* input) {
    return input != nullptr && input->Counts;
}

bool Same(const ProjectInput& one, const ProjectInput& other) {
    if (one.Counts != other.Counts || one.Unit != other.Unit) return false;
    return one.Number && other.Number ? one.Number == other.Number : one.Text == other.Text;
}

std::string ChangeOf(double from, double to) {
    AnswerValue before, after;
    before.Number = from;
    after.Number = to;
    return DifferenceText(after, before);
}

std::string WithUnit(const std::string& text, const std::string& unit) {
    return unit.empty() ? text : text + " " + unit;
}

std::string Joined(const std::string& one, const std::string& other) {
    return one == other || other.empty() ? one : one.empty() ? other : one + " / " + other;
}

// Either may be null, not both.
ComparedRow RowOf(const ProjectInput* one, const ProjectInput* other) {
    const ProjectInput& first = one != nullptr ? *one : *other;
    ComparedRow row{first.Label, first.Symbol, first.Unit, kNothing, kNothing, {}};
    if (one != nullptr && other != nullptr) row.Label = Joined(one->Label, other->Label);
    const bool both = Counts(one) && Counts(other);
    const bool twoUnits = both && one->Unit != other->Unit;
    // Two values that read the same differ in digits that are not shown.
    const bool alike = both && one->Text == other->Text && one->Number != other->Number;
    const auto shown = [&](const ProjectInput& input) {
        const std::string text = alike ? input.AllDigits() : input.Text;
        return twoUnits ? WithUnit(text, input.Unit) : text;
    };
    if (Counts(one)) row.One = shown(*one);
    if (Counts(other)) row.Other = shown(*other);
    if (twoUnits) row.Unit.clear();
    if (both && !twoUnits && one->Number && other->Number) row.Change = ChangeOf(*one->Number, *other->Number);
    return row;
}

std::string Bare(std::string unit) {
    if (unit.starts_with('[') && unit.ends_with(']')) unit = unit.substr(1, unit.size() - 2);
    return unit == "-" ? "" : unit;
}

ComparedRow RowOf(const AnswerValue* one, const AnswerValue* other) {
    const AnswerValue& first = one != nullptr ? *one : *other;
    ComparedRow row{first.Label, first.Symbol, Bare(first.Unit), kNothing, kNothing, {}};
    const bool both = one != nullptr && other != nullptr;
    const bool twoUnits = both && one->Unit != other->Unit;
    if (both) row.Label = Joined(one->Label, other->Label);
    const auto shown = [&](const AnswerValue& value) {
        return twoUnits ? WithUnit(value.Text, Bare(value.Unit)) : value.Text;
    };
    if (one != nullptr) row.One = shown(*one);
    if (other != nullptr) row.Other = shown(*other);
    if (twoUnits) row.Unit.clear();
    if (both && !twoUnits) row.Change = DifferenceText(*other, *one);
    return row;
}

}  // namespace

PairReading ReadPair(const std::string& one, const std::string& other) {
    PairReading reading;
    const auto refuse = [&](std::string fault) {
        reading.Fault = std::move(fault);
        return reading;
    };
    if (SameFile(one, other)) return refuse(Text(913532_text, {{"|1", other}}));
    ComparedPair pair;
    for (auto [file, into] : {std::pair(&one, &pair.One), std::pair(&other, &pair.Other)}) {
        ProjectReading project = ReadStoredProject(*file);
        if (!project.Project) return refuse(project.Fault);
        *into = std::move(*project.Project);
    }
    if (pair.One.Record.ProblemType != pair.Other.Record.ProblemType)
        return refuse(Text(913531_text, {{"|1", other}, {"|2", ProblemOf(pair.Other)}, {"|3", ProblemOf(pair.One)}}));
    pair.NameOfOne = NameBeside(pair.One, pair.Other);
    pair.NameOfOther = NameBeside(pair.Other, pair.One);
    reading.Pair = std::move(pair);
    return reading;
}

std::vector<ComparedRow> DifferingInputs(const ComparedPair& pair) {
    std::vector<ComparedRow> rows;
    const auto take = [&rows](const ProjectInput* one, const ProjectInput* other) {
        const bool same = one != nullptr && other != nullptr && Same(*one, *other);
        if (!same && (Counts(one) || Counts(other))) rows.push_back(RowOf(one, other));
    };
    for (const ProjectInput& input : pair.One.Inputs) take(&input, Find(pair.Other.Inputs, input.Key));
    // Rows of a table that the first has no more.
    for (const ProjectInput& input : pair.Other.Inputs)
        if (Find(pair.One.Inputs, input.Key) == nullptr) take(nullptr, &input);
    return rows;
}

std::vector<CommandWords> ComparisonCommands(const ComparedPair& pair) {
    const SessionRecord &one = pair.One.Record, &other = pair.Other.Record;
    return AnswerCommands(IsSoilStress(one.ProblemType) && DeepestShown(other) > DeepestShown(one) ? other : one);
}

ComparedAnswer AnswerOfProject(const StoredProject& project, const std::vector<CommandOutput>& outputs) {
    ComparedAnswer answer;
    if (outputs.empty() || outputs.front().Status != 0) {
        answer.Failure = outputs.empty() ? project.Stopped : WhyFailed(outputs.front());
        return answer;
    }
    answer.Is = AnswerOf(project.Record, outputs);
    if (!IsSoilStress(project.Record.ProblemType)) return answer;
    // Its own point, which the other has not got, is left out of the curve.
    std::vector<CommandOutput> places = outputs;
    places.front().Numbers.clear();
    answer.Is.Curves = AnswerCurves(project.Record, places);
    return answer;
}

std::vector<ComparedRow> ComparedResults(const Answer& one, const Answer& other) {
    std::vector<ComparedRow> rows;
    for (const AnswerValue& value : one.Values) rows.push_back(RowOf(&value, other.Find(value.Symbol)));
    for (const AnswerValue& value : other.Values)
        if (one.Find(value.Symbol) == nullptr) rows.push_back(RowOf(nullptr, &value));
    return rows;
}

std::vector<std::vector<std::string>> ComparisonTable(const ComparedPair& pair, const std::vector<ComparedRow>& inputs,
                                                      const std::vector<ComparedRow>& results) {
    // A number has a point in files.
    const auto cell = [](std::string text) {
        if (ParseNumber(text, SharedServices().DecimalSign))
            std::ranges::replace(text, SharedServices().DecimalSign, '.');
        return text;
    };
    std::vector<std::vector<std::string>> table = {{Text(913535_text), Text(913524_text), Text(913525_text),
                                                    pair.NameOfOne, pair.NameOfOther, Text(913526_text),
                                                    Text(913527_text)}};
    for (const auto& [part, rows] : {std::pair(913521_text, &inputs), std::pair(913522_text, &results)})
        for (const ComparedRow& row : *rows)
            table.push_back({Text(part), row.Label, row.Symbol, cell(row.One), cell(row.Other), row.Unit, row.Change});
    return table;
}

std::string ComparisonCsv(const std::vector<std::vector<std::string>>& table) {
    std::string text;
    for (const std::vector<std::string>& row : table) {
        for (std::size_t i = 0; i < row.size(); ++i) text += (i > 0 ? "," : "") + CsvWords(row[i]);
        text += "\r\n";
    }
    return text;
}

}  // namespace lithmark
