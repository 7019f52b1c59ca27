#include "ui/frame/MenuTree.h"

#include <algorithm>

#include "base/Failure.h"
#include "core/Catalogue.h"
#include "services/ListTools.h"
#include "ui/model/ProjectFlags.h"

namespace lithmark {

namespace {

const std::string kProblem = "mnuProblem";

std::string KeyOf(std::string_view array, int index) {
    return std::string(array) + "(" + std::to_string(index) + ")";
}

int ProblemEntryOf(const std::string& key) {
    return key.starts_with(kProblem + "(") ? ListTools().KeyIndex(key) : -1;
}

// Entries that belong to no problem have no text.
TextId ProblemText(int entry) {
    if (entry == kProjectEntry) return 400009_text;
    const ProblemRow* problem = FirstProblemOf(entry);
    return problem == nullptr ? TextId{} : problem->MenuText;
}

}  // namespace

MenuItem::MenuItem(std::string key, std::string parent, TextId id, Style as, std::string shortcut)
    : Key(std::move(key)),
      Parent(std::move(parent)),
      Id(id),
      As(as),
      Shortcut(std::move(shortcut)),
      problemEntry_(ProblemEntryOf(Key)) {}

bool MenuItem::Checked() const {
    return problemEntry_ >= 0 ? ProblemSaved(problemEntry_) : checked_;
}

void MenuItem::SetChecked(bool checked) {
    if (problemEntry_ >= 0)
        SetProblemSaved(problemEntry_, checked);
    else
        checked_ = checked;
}

MenuTree::MenuTree() {
    const auto add = [this](const std::string& key, const std::string& parent, TextId id, Style as = Styles::Button,
                            const std::string& shortcut = {}) { items_.emplace_back(key, parent, id, as, shortcut); };
    const auto separator = [this](const std::string& key, const std::string& parent) {
        items_.emplace_back(key, parent).Caption = "-";
    };

    add("mnuFile", "", 107_text);
    add("mnuNewProject", "mnuFile", 10340_text, Styles::Button, "Ctrl+N");
    add("mnuOpenProject", "mnuFile", 124_text, Styles::DialogButton, "Ctrl+O");
    add("mnuSaveProjectAs", "mnuFile", 10339_text, Styles::DialogButton);
    add("mnuFileList", "mnuFile", 70025_text);
    add("mnuCompare", "mnuFile", 913520_text, Styles::DialogButton);
    add("mnuCloseProject", "mnuFile", 913400_text);
    separator("MnuRecentFile(0)", "mnuFile");
    for (int i = 1; i <= 4; ++i) items_.emplace_back(KeyOf("MnuRecentFile", i), "mnuFile");
    separator("mnuFileDash2", "mnuFile");
    add("mnuFileExit", "mnuFile", 110_text, Styles::Button, "Ctrl+Q");

    add("MnuVeiw", "", 116_text);
    add("MnuStatusBar", "MnuVeiw", 79_text);
    separator("MnuVeiwDash1", "MnuVeiw");
    add("mnu_Toolbar", "MnuVeiw", 115_text);
    add("MnuVeiwToolBar(0)", "mnu_Toolbar", 107_text);
    add("MnuVeiwToolBar(1)", "mnu_Toolbar", 400010_text);
    add("MnuVeiwToolBar(2)", "mnu_Toolbar", 10341_text);
    add("MnuVeiwToolBar(3)", "mnu_Toolbar", 8_text);
    separator("MnuVeiwDashRestToolBar", "mnu_Toolbar");
    add("mnuResetToolbar", "mnu_Toolbar", 69_text);
    add("mnuTheme", "MnuVeiw", 913401_text);
    add("mnuThemeSystem", "mnuTheme", 913402_text);
    add("mnuThemeLight", "mnuTheme", 913403_text);
    add("mnuThemeDark", "mnuTheme", 913404_text);

    add("mnuMainProblem", "", 400010_text);
    for (int i = 0; i < kProblemEntries; ++i) {
        add(KeyOf(kProblem, i), "mnuMainProblem", ProblemText(i));
        items_.back().Visible = items_.back().Id.Number != 0;
    }

    add("mnuMainData", "", 10341_text);
    add("mnuFirmaData", "mnuMainData", 140116_text);
    add("mnuDirOfData", "mnuMainData", 140161_text);
    add("mnuPreferences", "mnuMainData", 92_text);
    add("MnuLanguage", "mnuMainData", 83_text);
    add("mnuUnits", "mnuMainData", 17_text);
    add("mnuNumberFormats", "mnuMainData", 913405_text);

    add("mnuHelp", "", 8_text);
    add("mnuHelpContents", "mnuHelp", 80_text);
    add("mnuShortDescription", "mnuHelp", 82_text);
    add("mnuNewVersion", "mnuHelp", 81_text);
    separator("mnuHelpDash", "mnuHelp");
    add("mnuAbout", "mnuHelp", 114_text);
}

MenuItem* MenuTree::Find(std::string_view key) {
    const auto item = std::find_if(items_.begin(), items_.end(), [&](const MenuItem& row) { return row.Key == key; });
    return item == items_.end() ? nullptr : &*item;
}

MenuItem& MenuTree::operator[](std::string_view key) {
    MenuItem* item = Find(key);
    if (item == nullptr) Fail(FailureKind::SubscriptRange, std::string(key));
    return *item;
}

MenuItem& MenuTree::At(std::string_view array, int index) {
    return (*this)[KeyOf(array, index)];
}

std::vector<MenuItem*> MenuTree::Children(std::string_view parent) {
    std::vector<MenuItem*> children;
    for (MenuItem& item : items_)
        if (item.Parent == parent) children.push_back(&item);
    return children;
}

void MenuTree::SetCaptions() {
    for (MenuItem& item : items_)
        if (item.Id.Number != 0) item.Caption = Text(item.Id, item.As);
}

}  // namespace lithmark
