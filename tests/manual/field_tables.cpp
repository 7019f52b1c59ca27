// Prints, as JSON, what the dialogs of the ten problems say of their fields in each language: label, symbol, unit and
// limits of every box, the positions of every choice, and the defaults. The manual's tables of fields are made from it.
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <string>

#include "ChangedField.h"
#include "FormTest.h"
#include "core/Units.h"

using namespace lithmark;
using namespace lithmark::tests;
using nlohmann::ordered_json;

namespace {

ordered_json LimitOf(const FieldForm& form, const Limit& limit, double factor) {
    const auto number = [&] { return limit.Shown(factor, kNoLimit); };
    // A limit that follows another box is told by that box.
    for (const FieldRow& other : form.Fields()) {
        const std::string kept = other.Box.Text;
        const double before = number();
        other.Box.Text = "12";
        const double after = number();
        other.Box.Text = kept;
        if (before != after) {
            const std::string symbol = other.Symbol.Says.Text();
            return symbol + "/" + std::to_string(static_cast<int>(12 / after + 0.5));
        }
    }
    if (std::abs(number()) >= kNoLimit) return nullptr;
    return number();
}

std::string CheckedOf(CheckedWhen when) {
    return when == CheckedWhen::Always ? "always" : when == CheckedWhen::Shown ? "shown" : "enabled";
}

class Tables : public FormTest {
  public:
    ordered_json In(Language language) {
        ordered_json tables;
        OnEachProblem([&](ProblemForm& form) { tables[std::to_string(Session.ProblemType)] = TableOf(form); },
                      [&](int) { StartIn(language); });
        return tables;
    }

  private:
    void TestBody() override {}

    static ordered_json TableOf(ProblemForm& form) {
        const auto defaults = AllValues();
        ordered_json boxes = ordered_json::array(), choices = ordered_json::array();
        for (const FieldRow& row : form.Fields()) {
            if (!row.Field.Exists()) continue;
            const std::string name = NameOf(row.Field);
            const double factor = FactorOf(row.In.In);
            boxes.push_back({{"field", name},
                             {"symbol", row.Symbol.Says.Text()},
                             {"label", row.Label.Says.Text()},
                             {"unit", row.In.Says.Text()},
                             {"lower", LimitOf(form, row.Limits.Lower, factor)},
                             {"upper", LimitOf(form, row.Limits.Upper, factor)},
                             {"default", defaults.at(name)},
                             {"checked", CheckedOf(row.Checked)}});
        }
        for (const ChoiceRow& row : form.Choices()) {
            if (!row.Field.Exists()) continue;
            const int kept = row.Field.PositionIn(Session);
            const std::string name = NameOf(row.Field);
            ordered_json positions = ordered_json::array();
            const int count = row.Captions.size() > 1 ? static_cast<int>(row.Captions.size()) : 2;
            for (int position = 0; position < count; ++position) {
                row.Field.Store(Session, position);
                const std::size_t caption = row.Captions.size() > 1 ? static_cast<std::size_t>(position) : 0;
                positions.push_back({{"value", AllValues().at(name)}, {"caption", row.Captions[caption].Text()}});
            }
            row.Field.Store(Session, kept);
            choices.push_back({{"field", name},
                               {"default", defaults.at(name)},
                               {"kind", row.Captions.size() > 1 ? "one of" : "tick"},
                               {"positions", positions}});
        }
        return {{"caption", form.Caption}, {"boxes", boxes}, {"choices", choices}};
    }
};

}  // namespace

int main() {
    ordered_json all;
    for (const auto& [name, language] :
         std::map<std::string, Language>{{"ar", Language::Arabic}, {"de", Language::German}, {"en", Language::English}})
        all[name] = Tables().In(language);
    std::cout << all.dump(1) << '\n';
}
