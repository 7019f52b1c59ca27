#include "ui/frame/Toolbars.h"

#include "base/Failure.h"
#include "services/ListTools.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

struct BarRow {
    const char* Menu;
    const char* SettingsKey;
};
// Deliberate: the keys of the second bar and the last two do not say what they hold; they are names in the store alone.
constexpr BarRow kBars[Toolbars::kCount] = {
    {"mnuFile", "File Bar"},
    {"mnuMainProblem", "Solve Bar"},
    {"mnuMainData", "Help Bar"},
    {"mnuHelp", "Main Problem Bar"},
};

bool IsButton(const MenuItem& item) {
    return item.Id.Number != 0;  // no separators, no recent files
}

}  // namespace

void Toolbars::Build(MenuTree& menu) {
    Toolbar& menuBar = bars_.front();
    menuBar.Name = "MENU";
    menuBar.Caption = Text(71_text);
    menuBar.Buttons.clear();
    for (const MenuItem* item : menu.Children("")) menuBar.Buttons.push_back(item->Key);

    for (int i = 0; i < kCount; ++i) {
        Toolbar& bar = (*this)[i];
        bar.Name = kBars[i].Menu;
        bar.SettingsKey = kBars[i].SettingsKey;
        bar.Caption = Text(menu[bar.Name].Id);
        bar.Buttons.clear();
        for (const MenuItem* item : menu.Children(bar.Name))
            if (IsButton(*item)) bar.Buttons.push_back(item->Key);
    }

    for (Toolbar& bar : bars_) {
        bar.Width = ListTools().BarWidth(static_cast<int>(bar.Buttons.size()));
        bar.Height = ListTools().BarHeight();
        bar.Words = {Text(68_text), Text(70_text), Text(69_text)};
    }
}

Toolbar& Toolbars::operator[](int index) {
    if (index < 0 || index >= kCount) Fail(FailureKind::SubscriptRange);
    return bars_[static_cast<std::size_t>(index) + 1];
}

}  // namespace lithmark
