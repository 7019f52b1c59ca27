// The fields of Session by their names: for the command line's --set and --vary, for listings, and for data files.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/Session.h"

namespace lithmark {

// Where a field lies in Session.
using FieldRef = std::variant<Single*, Integer*, bool*, std::string*, Array<Single>*, Array<Integer>*>;

struct SessionField {
    std::string_view Name;
    FieldRef Ref;
};

// All fields of a project's data files and of the preferences, each once.
std::span<const SessionField> SessionFields();

// The field of a name such as "Es" or "LoadTime", or null.
const SessionField* FindSessionField(std::string_view name);

// The name of a field; empty for a place that holds none of them.
std::string_view NameOf(const FieldRef& ref);

enum class SetFieldOutcome { Done, NoSuchField, NoSuchElement, BadValue };

// Puts a text into a field, in base units with "." as decimal sign. "hLayer(2)" or "hLayer[2]" names an array's
// element; flags take true, false, 1, 0, -1, #TRUE#, #FALSE#. A table's count, at least 1, gives its columns that many
// rows, new ones of zeros. Nothing changes unless the outcome is Done.
SetFieldOutcome SetSessionField(std::string_view name, std::string_view value);

// What a field, or an element of it, holds.
enum class FieldKind { Number, Whole, Flag, Text };
struct NamedValue {
    FieldKind Kind;
    std::string Text;  // as SessionFieldText has it
    double Number = 0;
};
// The value of "Es" or "hLayer(2)"; nothing where there is no such field or element, or where a whole array is named.
std::optional<NamedValue> SessionValue(std::string_view name);

// A field's value as text: numbers by the written-number rule, flags "#TRUE#" or "#FALSE#", arrays as
// "(v1, v2, ...)".
std::string SessionFieldText(const FieldRef& ref);

}  // namespace lithmark
