#include "desktop/layouts/Layouts.h"

#include <QVBoxLayout>
#include <map>
#include <string>

#include "desktop/FormView.h"

namespace lithmark {

namespace {

using LayoutFunction = void (*)(FormView&);

const std::map<std::string, LayoutFunction>& LayoutsByName() {
    static const std::map<std::string, LayoutFunction> layouts = {
        {"frmstress", LayoutStress},
        {"frmResultTools", LayoutResultTools},
        {"frmOptionDraw", LayoutOptionDraw},
    };
    return layouts;
}

void StackControls(FormView& view) {
    auto* stack = new QVBoxLayout(&view);
    for (Control* control : view.Model().Controls()) stack->addWidget(view.WidgetOf(*control));
}

}  // namespace

void BuildLayout(FormView& view) {
    const auto found = LayoutsByName().find(view.Model().Name);
    (found == LayoutsByName().end() ? StackControls : found->second)(view);
}

void RefreshLayout(FormView& view) {
    // Hidden rows give their room back; the window keeps the size the user gave it unless it is too small.
    if (view.layout()) view.layout()->activate();
}

}  // namespace lithmark
