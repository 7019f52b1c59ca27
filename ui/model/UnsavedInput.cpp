#include "ui/model/UnsavedInput.h"

#include <algorithm>
#include <string>
#include <type_traits>
#include <variant>

#include "base/NumberText.h"
#include "core/SessionFields.h"
#include "core/TimeUnits.h"
#include "core/Units.h"
#include "files/ProblemData.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "ui/model/FieldForm.h"

namespace lithmark {

namespace {

// Whatever the texts of a form's controls depend on: nothing where none of them stands for a number.
std::string HowTextsAreShown(const FieldForm& form) {
    if (std::ranges::none_of(form.Fields(), [](const FieldRow& row) { return row.Field.Exists(); })) return {};
    const UnitSettings units = UnitsInForce();
    std::string shown = std::to_string(static_cast<int>(LanguageTexts().Current())) + SharedServices().DecimalSign;
    for (const std::string& label : {units.Len1Label, units.Len2Label, units.Force1Label, units.Force2Label})
        shown += ' ' + label;
    for (const double factor : {units.Len1Factor, units.Len2Factor, units.Force1Factor, units.Force2Factor})
        shown += ' ' + JsonNumber(factor);
    for (const NumberFormatRow& row : NumberFormats()) shown += ' ' + Session.*row.Field;
    return shown;
}

// A value with all its digits.
template <typename T>
std::string Whole(const T& value) {
    if constexpr (std::is_same_v<T, Single>)
        return JsonNumber(value);
    else
        return NumberToText(static_cast<long>(value));
}

void AppendData(StoredDraft::Pairs& data, std::string_view name, const FieldRef& ref) {
    std::visit(
        [&](const auto* field) {
            using T = std::remove_cvref_t<decltype(*field)>;
            const std::string word(name);
            if constexpr (std::is_same_v<T, std::string>)
                data.emplace_back(word, *field);
            else if constexpr (std::is_same_v<T, bool>)
                data.emplace_back(word, *field ? "1" : "0");
            else if constexpr (std::is_same_v<T, Single> || std::is_same_v<T, Integer>)
                data.emplace_back(word, Whole(*field));
            else
                for (int i = field->Lower(); i <= field->Upper(); ++i)
                    data.emplace_back(word + '(' + std::to_string(i) + ')', Whole((*field)(i)));
        },
        ref);
}

bool IsInput(ControlKind kind) {
    return kind == ControlKind::TextBox || kind == ControlKind::DatePicker || kind == ControlKind::ComboBox ||
           kind == ControlKind::Option || kind == ControlKind::CheckBox;
}

std::string KeptTextOf(const Control& control) {
    if (control.Kind == ControlKind::Option || control.Kind == ControlKind::CheckBox) return control.Value ? "1" : "0";
    if (control.Kind == ControlKind::ComboBox) return std::to_string(control.ListIndex);
    return control.Text;
}

void Choose(Form& form, Control& control, const std::string& text) {
    switch (control.Kind) {
        case ControlKind::Option:
            if (text != "1") return;
            form.SelectOption(control);
            break;
        case ControlKind::CheckBox:
            control.Value = text == "1";
            break;
        case ControlKind::ComboBox: {
            const auto row = ParseNumber(text);
            if (!row || *row < 0 || *row >= static_cast<double>(control.Items.size())) return;
            control.ListIndex = static_cast<int>(*row);
            control.Text = control.Items[static_cast<std::size_t>(control.ListIndex)];
            break;
        }
        default:
            control.Text = text;
            break;
    }
    const bool clicked = control.Kind == ControlKind::Option || control.Kind == ControlKind::CheckBox;
    const auto& event = clicked || !control.OnChange ? control.OnClick : control.OnChange;
    if (event) event();
}

}  // namespace

std::string DraftFolder() {
    const std::string state = SharedServices().StateDir();
    return state.empty() ? "" : state + "drafts/";
}

StoredDraft DraftOf(const FieldForm& form) {
    StoredDraft draft;
    draft.Form = form.Name;
    draft.Shown = HowTextsAreShown(form);
    draft.When = TextTools().LongDateOfToday();
    for (const Control* control : form.Controls())
        if (IsInput(control->Kind)) draft.Texts.emplace_back(control->Name, KeptTextOf(*control));
    return draft;
}

void AddData(StoredDraft& draft) {
    for (const std::string_view name : ProblemFieldNames(Session.ProblemType))
        if (const SessionField* field = FindSessionField(name)) AppendData(draft.Data, name, field->Ref);
}

bool CanTake(const FieldForm& form, const StoredDraft& draft) {
    return !draft.Data.empty() || draft.Shown == HowTextsAreShown(form);
}

void TakeDraftData(const StoredDraft& draft) {
    // A table's rows exist once its count is in force.
    for (const bool ofTables : {false, true})
        for (const auto& [name, value] : draft.Data)
            if ((name.find('(') != std::string::npos) == ofTables) SetSessionField(name, value);
    Session.TimeUnit = TimeUnitInForce(Session.TimeUnit);
}

void TakeDraftTexts(FieldForm& form, const StoredDraft& draft) {
    if (draft.Shown != HowTextsAreShown(form)) return;
    // First what decides which boxes are there and which unit they have, then the boxes; and these once more, since the
    // change of one may be the change of another: a date picker's is that of the date's text.
    for (const bool boxes : {false, true, true})
        for (const auto& [name, text] : draft.Texts) {
            Control* control = form.Find(name);
            if (control == nullptr || !IsInput(control->Kind) || KeptTextOf(*control) == text) continue;
            const bool isBox = control->Kind == ControlKind::TextBox || control->Kind == ControlKind::DatePicker;
            if (isBox == boxes) Choose(form, *control, text);
        }
}

}  // namespace lithmark
