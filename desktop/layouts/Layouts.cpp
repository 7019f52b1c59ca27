#include "desktop/layouts/Layouts.h"

#include <unordered_map>

#include "desktop/FormView.h"

namespace lithmark {

namespace {

std::unordered_map<std::type_index, LayoutFunction>& LayoutsByForm() {
    static std::unordered_map<std::type_index, LayoutFunction> layouts;
    return layouts;
}

}  // namespace

void MakeLayoutKnown(std::type_index form, LayoutFunction layout) {
    LayoutsByForm()[form] = std::move(layout);
}

void BuildLayout(FormView& view) {
    Form& form = view.Model();
    const auto found = LayoutsByForm().find(typeid(form));
    if (found == LayoutsByForm().end()) return LayoutPlain(view);
    found->second(view, form);
}

}  // namespace lithmark
