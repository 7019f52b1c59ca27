// Which field of Session a form's row stores: found by what the row does, since a row keeps its place to itself.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "core/SessionFields.h"
#include "ui/model/ChoiceRow.h"
#include "ui/model/FieldRow.h"

namespace lithmark::tests {

// Every field and element of Session as text, "hLayer(2)" for an element.
inline std::map<std::string, std::string> AllValues() {
    std::map<std::string, std::string> values;
    for (const SessionField& field : SessionFields()) {
        const std::string name(field.Name);
        if (SessionValue(name)) values[name] = SessionValue(name)->Text;
        for (int i = 1; i <= 2; ++i)
            if (const auto element = SessionValue(name + "(" + std::to_string(i) + ")"))
                values[name + "(" + std::to_string(i) + ")"] = element->Text;
    }
    return values;
}

// The field that an action changes; empty when it changes none.
inline std::string FieldChangedBy(const std::function<void()>& act) {
    const auto before = AllValues();
    act();
    for (const auto& [name, value] : AllValues())
        if (before.at(name) != value) return name;
    return {};
}

// The field of a box, which keeps its value.
inline std::string NameOf(StoredField field) {
    const double kept = field.Get(Session);
    const std::string name = FieldChangedBy([&] { field.Set(Session, 7654); });
    field.Set(Session, kept);
    return name;
}

// The field of a choice, which keeps its position.
inline std::string NameOf(const StoredChoice& choice) {
    const int kept = choice.PositionIn(Session);
    choice.Store(Session, 0);
    const std::string name = FieldChangedBy([&] { choice.Store(Session, 1); });
    choice.Store(Session, kept);
    return name;
}

}  // namespace lithmark::tests
