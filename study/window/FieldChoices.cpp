#include "study/window/FieldChoices.h"

#include <algorithm>
#include <cmath>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "core/FieldNames.h"

namespace lithmark {

namespace {

// "m" of "[m]"; nothing of "[-]".
std::string PlainUnit(const std::string& label) {
    const bool bracketed = label.starts_with('[') && label.ends_with(']');
    const std::string unit = bracketed ? label.substr(1, label.size() - 2) : label;
    return unit == "-" ? std::string() : unit;
}

std::string PlainLabel(const std::string& caption) {
    std::string label = Trim(ReplaceAll(caption, "&", ""));
    if (label.ends_with(':')) label.pop_back();
    return label;
}

FieldChoice ChoiceOf(const FieldRow& row, const SessionRecord& draft) {
    FieldChoice choice;
    choice.Name = row.Field.Name();
    if (row.Symbol.On != nullptr) choice.Symbol = row.Symbol.On->Caption;
    if (choice.Symbol.empty()) choice.Symbol = SymbolOfField(draft.ProblemType, choice.Name);
    choice.Label = PlainLabel(row.MessageName());
    if (row.In.On != nullptr) choice.Unit = PlainUnit(row.In.On->Caption);
    choice.Factor = FactorOf(row.In.In);
    // The decimal number that the 32 bits stand for: 0.48, not 0.479999989.
    const double stored = row.Field.Get(draft);
    choice.Value = ParseNumber(JsonNumber(Single(stored))).value_or(stored) * choice.Factor;
    choice.Least = row.Limits.Lower.Shown(choice.Factor, -kNoLimit);
    choice.Greatest = row.Limits.Upper.Shown(choice.Factor, kNoLimit);
    choice.Whole = row.Field.Whole();
    return choice;
}

}  // namespace

std::vector<FieldChoice> FieldChoicesOf(const ProblemForm& form, const SessionRecord& draft) {
    std::vector<FieldChoice> choices;
    for (const FieldRow& row : form.Fields())
        if (row.Field.Exists() && row.Box.Visible && row.Box.Enabled) choices.push_back(ChoiceOf(row, draft));
    return choices;
}

FieldRange ProposedRange(const FieldChoice& field) {
    const double half = field.Value / 2, more = field.Value * 1.5;
    FieldRange range{std::min(half, more), std::max(half, more)};
    if (field.Value == 0) range = {0, 1};
    if (field.Whole) range = {std::floor(range.From), std::ceil(range.To)};
    range.From = std::clamp(range.From, field.Least, field.Greatest);
    range.To = std::clamp(range.To, field.Least, field.Greatest);
    return range;
}

}  // namespace lithmark
