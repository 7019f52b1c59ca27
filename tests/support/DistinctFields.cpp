#include "support/DistinctFields.h"

#include <string_view>
#include <type_traits>
#include <variant>

#include "core/SessionFields.h"

namespace lithmark::tests {

void FillFields(int variant) {
    int index = 0;
    const auto next = [&] { return ++index + 300 * variant; };
    const auto fill = [&]<typename T>(T& target) {
        if constexpr (std::is_same_v<T, bool>)
            target = (next() + variant) % 2 == 0;
        else if constexpr (std::is_same_v<T, std::string>)
            target = "  Größe, \"" + std::to_string(next()) + "\" هبوط ";
        else if constexpr (std::is_same_v<T, Integer>)
            target = -next();
        else
            target = next() * 1.1e-3;
    };
    const auto fillArray = [&](auto& array, int upper) {
        array.Redim(1, upper);
        for (auto& value : array) fill(value);
    };
    const Integer problem = Session.ProblemType;
    Session.NLoad = 2 + variant;
    Session.NSts = 3 + variant;
    Session.NOed = 1 + variant;
    Session.NScA = 4 + variant;
    Session.NScB = 5 + variant;
    const std::map<std::string_view, int> sizes = {{"hLayer", 2},
                                                   {"CvLayer", 2},
                                                   {"KLayer", 2},
                                                   {"LoadTime", Session.NLoad},
                                                   {"LoadValue", Session.NLoad},
                                                   {"StsTime", Session.NSts},
                                                   {"StsValue", Session.NSts},
                                                   {"OedTime", Session.NOed},
                                                   {"OedSettlement", Session.NOed}};
    for (const SessionField& field : SessionFields()) {
        if (field.Name.starts_with('N') && field.Name != "NumLayers" && field.Name != "Nue") continue;  // counts
        std::visit(
            [&](auto* target) {
                if constexpr (requires { target->Upper(); })
                    fillArray(*target, field.Name.starts_with("ScA")   ? int{Session.NScA}
                                       : field.Name.starts_with("ScB") ? int{Session.NScB}
                                                                       : sizes.at(field.Name));
                else
                    fill(*target);
            },
            field.Ref);
    }
    Session.OedUnit = "[unit " + std::to_string(variant) + "]";  // read as a list item, so without commas and quotes
    Session.ProblemType = problem;
}

FieldTexts TakeFields() {
    FieldTexts texts;
    for (const SessionField& field : SessionFields()) texts.emplace(field.Name, SessionFieldText(field.Ref));
    return texts;
}

}  // namespace lithmark::tests
