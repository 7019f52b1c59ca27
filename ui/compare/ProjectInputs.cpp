#include "ui/compare/ProjectInputs.h"

#include <algorithm>

#include "core/FieldMeanings.h"
#include "core/Problems.h"
#include "core/Units.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

bool Reached(const Control& control) {
    return control.Visible && control.Enabled;
}

// A caption without its mark and its colon.
std::string Plain(std::string caption) {
    std::erase(caption, '&');
    if (caption.ends_with(':')) caption.pop_back();
    return caption;
}

std::string UnitIn(const FieldRow& row) {
    if (row.In.On == nullptr) return {};
    std::string unit = row.In.On->Caption;
    if (unit.starts_with('[') && unit.ends_with(']')) unit = unit.substr(1, unit.size() - 2);
    return unit == "-" ? "" : unit;
}

std::string TextOf(const Control& control) {
    if (control.Kind != ControlKind::ComboBox) return control.Text;
    const bool chosen = control.ListIndex >= 0 && control.ListIndex < static_cast<int>(control.Items.size());
    return chosen ? control.Items[static_cast<std::size_t>(control.ListIndex)] : std::string();
}

std::string LabelOf(const FieldRow& row) {
    return Plain(row.Label.On != nullptr ? row.Label.On->Caption : row.MessageName());
}

// A list has the label of its line, a check box its own words, options those of the field.
std::string LabelOf(const ProblemForm& form, const ChoiceRow& choice) {
    const Control& first = choice.Of[0];
    if (const FieldRow* line = form.RowOf(first)) return LabelOf(*line);
    if (first.Kind == ControlKind::CheckBox) return Plain(first.Caption);
    // The one choice that a form stores itself is the unit of its readings.
    const std::string_view name = choice.Field.Exists() ? choice.Field.FieldName() : "OedUnit";
    const FieldMeaning* meaning = FindMeaning(Session.ProblemType, name);
    return meaning != nullptr ? MeaningText(*meaning) : std::string(name);
}

ProjectInput InputOf(const ProblemForm& form, const ChoiceRow& choice) {
    const Control& first = choice.Of[0];
    ProjectInput input;
    input.Key = first.Name;
    input.Label = LabelOf(form, choice);
    const int position = choice.Position();
    if (first.Kind == ControlKind::CheckBox)
        input.Text = position == 1 ? Text(903001_text) : Text(903002_text);
    else if (position >= 0 && position < static_cast<int>(choice.Captions.size()))
        input.Text = Plain(choice.Captions[static_cast<std::size_t>(position)].Text());
    input.Counts = Reached(first);
    return input;
}

ProjectInput InputOf(const FieldRow& row) {
    ProjectInput input;
    input.Key = row.Box.Name;
    input.Label = LabelOf(row);
    if (row.Symbol.On != nullptr) input.Symbol = row.Symbol.On->Caption;
    input.Unit = UnitIn(row);
    input.Text = TextOf(row.Box);
    input.Counts = Reached(row.Box);
    if (!row.Field.Exists()) return input;
    input.Number = row.Field.Get(Session);
    input.Factor = FactorOf(row.In.In);
    return input;
}

// "4: 83" for a row of two columns.
template <typename Time>
void AddTable(std::vector<ProjectInput>& inputs, const std::string& key, TextId title, int rows,
              const Array<Time>& times, const Array<Single>& values) {
    for (int row = 1; row <= rows; ++row) {
        const std::string number = std::to_string(row);
        ProjectInput input;
        input.Key = key;
        input.Key.append("(").append(number).append(")");
        input.Label = Text(913538_text, {{"|1", Text(title)}, {"|2", number}});
        input.Text = FormatValue(times(row), "") + ": " + FormatValue(values(row), "");
        inputs.push_back(std::move(input));
    }
}

}  // namespace

std::string ProjectInput::AllDigits() const {
    return Number ? FormatValue(*Number * Factor, "") : Text;
}

std::vector<ProjectInput> InputsOf(const ProblemForm& form) {
    std::vector<ProjectInput> inputs;
    std::vector<std::string> choices;
    for (const ChoiceRow& choice : form.Choices()) {
        inputs.push_back(InputOf(form, choice));
        choices.push_back(inputs.back().Key);
    }
    for (const FieldRow& row : form.Fields())
        if (std::ranges::find(choices, row.Box.Name) == choices.end()) inputs.push_back(InputOf(row));
    const SessionRecord& r = Session;
    if (!IsTimeSettlement(r.ProblemType)) return inputs;
    AddTable(inputs, "LoadTime", 400125_text, r.NLoad, r.LoadTime, r.LoadValue);
    if (r.ProblemType == Problem::TimeDirect) AddTable(inputs, "StsTime", 300044_text, r.NSts, r.StsTime, r.StsValue);
    if (r.ProblemType == Problem::TimeOedometer)
        AddTable(inputs, "OedTime", 300036_text, r.NOed, r.OedTime, r.OedSettlement);
    return inputs;
}

}  // namespace lithmark
