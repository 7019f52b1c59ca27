#include "core/SessionFields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <unordered_map>

#include "base/NumberText.h"
#include "base/Utf8.h"

namespace lithmark {

namespace {

#define LITHMARK_FIELD(name) \
    SessionField {           \
#name, &Session.name \
    }

const std::array kFields = {
    LITHMARK_FIELD(ProblemType),
    LITHMARK_FIELD(Auftr),
    LITHMARK_FIELD(Datum),
    LITHMARK_FIELD(Proj),
    LITHMARK_FIELD(x),
    LITHMARK_FIELD(y),
    LITHMARK_FIELD(z),
    LITHMARK_FIELD(Q),
    LITHMARK_FIELD(P),
    LITHMARK_FIELD(A),
    LITHMARK_FIELD(B),
    LITHMARK_FIELD(LoadType),
    LITHMARK_FIELD(Nue),
    LITHMARK_FIELD(Es),
    LITHMARK_FIELD(h),
    LITHMARK_FIELD(eo),
    LITHMARK_FIELD(Po),
    LITHMARK_FIELD(Cc),
    LITHMARK_FIELD(Gamma),
    LITHMARK_FIELD(SoilPropertyType),
    LITHMARK_FIELD(Exz_x),
    LITHMARK_FIELD(Exz_y),
    LITHMARK_FIELD(AnalysisType),
    LITHMARK_FIELD(SettlementAt),
    LITHMARK_FIELD(NumLayers),
    LITHMARK_FIELD(hLayer),
    LITHMARK_FIELD(CvLayer),
    LITHMARK_FIELD(KLayer),
    LITHMARK_FIELD(DrainageCondition),
    LITHMARK_FIELD(T),
    LITHMARK_FIELD(U),
    LITHMARK_FIELD(Pressure),
    LITHMARK_FIELD(TimeUnit),
    LITHMARK_FIELD(CvTS),
    LITHMARK_FIELD(kf),
    LITHMARK_FIELD(EsTS),
    LITHMARK_FIELD(Ws),
    LITHMARK_FIELD(qv),
    LITHMARK_FIELD(qe),
    LITHMARK_FIELD(Hm),
    LITHMARK_FIELD(Sc),
    LITHMARK_FIELD(Pt),
    LITHMARK_FIELD(Sm),
    LITHMARK_FIELD(Ms),
    LITHMARK_FIELD(DesignCode),
    LITHMARK_FIELD(TimePeriod),
    LITHMARK_FIELD(StartDate),
    LITHMARK_FIELD(DrainageFaces),
    LITHMARK_FIELD(CvChoice),
    LITHMARK_FIELD(NLoad),
    LITHMARK_FIELD(LoadTime),
    LITHMARK_FIELD(LoadValue),
    LITHMARK_FIELD(NSts),
    LITHMARK_FIELD(StsTime),
    LITHMARK_FIELD(StsValue),
    LITHMARK_FIELD(NOed),
    LITHMARK_FIELD(OedTime),
    LITHMARK_FIELD(OedSettlement),
    LITHMARK_FIELD(OedUnit),
    LITHMARK_FIELD(ScLoad),
    LITHMARK_FIELD(NScA),
    LITHMARK_FIELD(ScA1),
    LITHMARK_FIELD(ScA2),
    LITHMARK_FIELD(ScA3),
    LITHMARK_FIELD(ScA4),
    LITHMARK_FIELD(ScA5),
    LITHMARK_FIELD(ScA6),
    LITHMARK_FIELD(ScA7),
    LITHMARK_FIELD(ScA8),
    LITHMARK_FIELD(ScA9),
    LITHMARK_FIELD(NScB),
    LITHMARK_FIELD(ScB1),
    LITHMARK_FIELD(ScB2),
    LITHMARK_FIELD(ScB3),
    LITHMARK_FIELD(ScB4),
    LITHMARK_FIELD(ScB5),
    LITHMARK_FIELD(ScValue1),
    LITHMARK_FIELD(ScValue2),
    LITHMARK_FIELD(ScFlag),
    LITHMARK_FIELD(ScValue3),
    LITHMARK_FIELD(ScValue4),
    LITHMARK_FIELD(PrefDx),
    LITHMARK_FIELD(PrefDy),
    LITHMARK_FIELD(PrefDz),
    LITHMARK_FIELD(PrefND),
    LITHMARK_FIELD(PrefTol),
    LITHMARK_FIELD(PrefImax),
};

#undef LITHMARK_FIELD

std::optional<bool> ParseFlag(std::string_view text) {
    const std::string word = UpperAscii(Trim(text));
    if (word == "TRUE" || word == "#TRUE#" || word == "1" || word == "-1") return true;
    if (word == "FALSE" || word == "#FALSE#" || word == "0") return false;
    return std::nullopt;
}

bool Assign(bool& field, std::string_view text) {
    const auto flag = ParseFlag(text);
    if (flag) field = *flag;
    return flag.has_value();
}

bool Assign(std::string& field, std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos) return false;
    field = text;
    return true;
}

bool Assign(Single& field, std::string_view text) {
    const auto number = ParseNumber(text);
    if (!number) return false;
    try {
        field = *number;
    } catch (const Failure&) {
        return false;
    }
    return true;
}

bool Assign(Integer& field, std::string_view text) {
    const auto number = ParseNumber(text);
    if (!number || *number != std::floor(*number) || *number < Integer::kMin || *number > Integer::kMax) return false;
    field = Integer(static_cast<int>(*number));
    return true;
}

// The index of "name(i)" or "name[i]", and the bare name. No index: nothing.
std::optional<int> TakeIndex(std::string_view& name) {
    const auto open = name.find_first_of("([");
    if (open == std::string_view::npos || (name.back() != ')' && name.back() != ']')) return std::nullopt;
    const std::string_view digits = name.substr(open + 1, name.size() - open - 2);
    int index = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
    name = name.substr(0, open);
    return index;
}

// The tables by their counts.
struct TableColumns {
    Integer* Count;
    std::vector<std::variant<Array<Single>*, Array<Integer>*>> Columns;
};
const std::vector<TableColumns>& Tables() {
    static const std::vector<TableColumns> tables = {
        {&Session.NLoad, {&Session.LoadTime, &Session.LoadValue}},
        {&Session.NSts, {&Session.StsTime, &Session.StsValue}},
        {&Session.NOed, {&Session.OedTime, &Session.OedSettlement}},
        {&Session.NScA,
         {&Session.ScA1, &Session.ScA2, &Session.ScA3, &Session.ScA4, &Session.ScA5, &Session.ScA6, &Session.ScA7,
          &Session.ScA8, &Session.ScA9}},
        {&Session.NScB, {&Session.ScB1, &Session.ScB2, &Session.ScB3, &Session.ScB4, &Session.ScB5}},
    };
    return tables;
}

// A table's count sizes its columns: rows that stay keep their values, new ones hold zeros. A table has at least a row.
bool AssignField(Integer& field, std::string_view text) {
    Integer value = field;
    if (!Assign(value, text)) return false;
    for (const TableColumns& table : Tables()) {
        if (table.Count != &field) continue;
        if (value < 1) return false;
        for (const auto& column : table.Columns) std::visit([&](auto* items) { items->Grow(value); }, column);
    }
    field = value;
    return true;
}
template <typename T>
bool AssignField(T& field, std::string_view text) {
    return Assign(field, text);
}

std::string ValueText(Single value) {
    return NumberToText(value);
}
std::string ValueText(Integer value) {
    return NumberToText(static_cast<int>(value));
}
std::string ValueText(bool value) {
    return value ? "#TRUE#" : "#FALSE#";
}
const std::string& ValueText(const std::string& value) {
    return value;
}
NamedValue ValueOf(Single value) {
    return {FieldKind::Number, ValueText(value), value};
}
NamedValue ValueOf(Integer value) {
    return {FieldKind::Whole, ValueText(value), static_cast<double>(value)};
}
NamedValue ValueOf(bool value) {
    return {FieldKind::Flag, ValueText(value)};
}
NamedValue ValueOf(const std::string& value) {
    return {FieldKind::Text, value};
}

template <typename T>
std::string ValueText(const Array<T>& values) {
    std::string text = "(";
    for (int i = values.Lower(); i <= values.Upper(); ++i)
        text += (i == values.Lower() ? "" : ", ") + ValueText(values(i));
    return text + ")";
}

}  // namespace

std::span<const SessionField> SessionFields() {
    return kFields;
}

const SessionField* FindSessionField(std::string_view name) {
    static const auto byName = [] {
        std::unordered_map<std::string_view, const SessionField*> fields;
        for (const SessionField& field : kFields) fields.emplace(field.Name, &field);
        return fields;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

std::string_view NameOf(const FieldRef& ref) {
    const auto found = std::ranges::find(kFields, ref, &SessionField::Ref);
    return found == kFields.end() ? std::string_view{} : found->Name;
}

SetFieldOutcome SetSessionField(std::string_view name, std::string_view value) {
    const std::optional<int> index = TakeIndex(name);
    const SessionField* field = FindSessionField(name);
    if (!field) return SetFieldOutcome::NoSuchField;
    return std::visit(
        [&]<typename T>(T* target) {
            if constexpr (requires { target->Upper(); }) {
                if (!index || *index < target->Lower() || *index > target->Upper())
                    return SetFieldOutcome::NoSuchElement;
                return Assign((*target)(*index), value) ? SetFieldOutcome::Done : SetFieldOutcome::BadValue;
            } else {
                if (index) return SetFieldOutcome::NoSuchElement;
                return AssignField(*target, value) ? SetFieldOutcome::Done : SetFieldOutcome::BadValue;
            }
        },
        field->Ref);
}

std::optional<NamedValue> SessionValue(std::string_view name) {
    const std::optional<int> index = TakeIndex(name);
    const SessionField* field = FindSessionField(name);
    if (!field) return std::nullopt;
    return std::visit(
        [&]<typename T>(const T* target) -> std::optional<NamedValue> {
            if constexpr (requires { target->Upper(); }) {
                if (!index || *index < target->Lower() || *index > target->Upper()) return std::nullopt;
                return ValueOf((*target)(*index));
            } else {
                if (index) return std::nullopt;
                return ValueOf(*target);
            }
        },
        field->Ref);
}

std::string SessionFieldText(const FieldRef& ref) {
    return std::visit([](const auto* target) { return std::string(ValueText(*target)); }, ref);
}

}  // namespace lithmark
