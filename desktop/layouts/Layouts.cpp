#include "desktop/layouts/Layouts.h"

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
        {"frmProblemType", LayoutProblemType},
        {"frmProjectCheck", LayoutProjectCheck},
        {"frmAbout", LayoutAbout},
        {"frmDataDir", LayoutDataDir},
        {"frmUnits", LayoutUnits},
        {"frmPreferences", LayoutPreferences},
    };
    return layouts;
}

}  // namespace

void BuildLayout(FormView& view) {
    const auto found = LayoutsByName().find(view.Model().Name);
    (found == LayoutsByName().end() ? LayoutPlain : found->second)(view);
}

}  // namespace lithmark
