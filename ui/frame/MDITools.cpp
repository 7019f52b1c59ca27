// The frame's menu, bars and settings commands.
#include "ui/frame/MDITools.h"

#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "services/SharedServices.h"
#include "ui/frame/ProblemDialogs.h"
#include "ui/frmAbout.h"
#include "ui/frmDataDir.h"
#include "ui/frmNumberFormats.h"
#include "ui/frmPreferences.h"
#include "ui/frmProblemType.h"
#include "ui/frmResultTools.h"
#include "ui/frmSplash.h"
#include "ui/frmUnits.h"
#include "ui/model/ResultViewer.h"

namespace lithmark {

namespace {

const std::string kToolBarArray = "MnuVeiwToolBar";
constexpr int kRightButton = 2;

const std::string kTransparentBar = "Transparent Bar", kStatusBar = "Status Bar";
const std::string kDock = "MDITools";

struct CommandRow {
    const char* Key;
    void (MDITools::*Command)();
};
struct ThemeRow {
    const char* Key;
    ThemeChoice Choice;
    const char* Word;  // in the settings store
};
constexpr ThemeRow kThemes[] = {{"mnuThemeSystem", ThemeChoice::System, "system"},
                                {"mnuThemeLight", ThemeChoice::Light, "light"},
                                {"mnuThemeDark", ThemeChoice::Dark, "dark"}};
const std::string kTheme = "Theme";

constexpr CommandRow kCommands[] = {
    {"mnuNewProject", &MDITools::mnuNewProject_Click},
    {"mnuOpenProject", &MDITools::mnuOpenProject_Click},
    {"mnuSaveProjectAs", &MDITools::mnuSaveProjectAs_Click},
    {"mnuFileList", &MDITools::mnuFileList_Click},
    {"mnuCompare", &MDITools::mnuCompare_Click},
    {"mnuCloseProject", &MDITools::mnuCloseProject_Click},
    {"mnuFileExit", &MDITools::mnuFileExit_Click},
    {"mnuResetToolbar", &MDITools::mnuResetToolbar_Click},
    {"mnuFirmaData", &MDITools::mnuFirmaData_Click},
    {"mnuDirOfData", &MDITools::mnuDirOfData_Click},
    {"mnuPreferences", &MDITools::mnuPreferences_Click},
    {"MnuLanguage", &MDITools::MnuLanguage_Click},
    {"mnuUnits", &MDITools::mnuUnits_Click},
    {"mnuNumberFormats", &MDITools::mnuNumberFormats_Click},
    {"mnuHelpContents", &MDITools::mnuHelpContents_Click},
    {"mnuShortDescription", &MDITools::mnuShortDescription_Click},
    {"mnuNewVersion", &MDITools::mnuNewVersion_Click},
    {"mnuAbout", &MDITools::mnuAbout_Click},
};

template <typename F, typename... Arguments>
void ShowModally(Arguments&&... arguments) {
    UnderCommonStep([&] {
        F form(std::forward<Arguments>(arguments)...);
        CurrentHost().ShowForm(form);
    });
}

void ShowTopic(const std::string& topic) {
    UnderCommonStep([&] { SharedServices().ShowHelpTopic(topic); });
}

}  // namespace

MDITools::MDITools() : Form("MDITools") {
    SetResultViewer(ShowResultTools);
    for (int i = 0; i < static_cast<int>(RecentFiles.size()); ++i) Menu.At(kRecentArray, i).Visible = false;
}

MDITools::~MDITools() = default;

void MDITools::SetWindow(FrameWindow* window) {
    window_ = window;
    Refresh();
}

void MDITools::Refresh() {
    if (window_ != nullptr) window_->Refresh();
}

void MDITools::Load() {
    SharedServices().PrepareForm(*this);
    Menu.SetCaptions();
    Bars.Build(Menu);
    for (const char* key :
         {"mnuMainProblem", "mnuCloseProject", "mnuHelpContents", "mnuShortDescription", "mnuNewVersion"})
        Menu[key].Enabled = false;
    // The last entry has no dialog, and its command says so.
    for (int entry = 0; entry < kLastProblemEntry; ++entry) Menu.At(kProblemArray, entry).Enabled = DialogExists(entry);
    Refresh();
}

// --- menu ---

void MDITools::m_cMenu_Click(int index) {
    if (index < 0 || index >= static_cast<int>(Menu.Items().size())) return;
    m_cMenu_Click(Menu.Items()[static_cast<std::size_t>(index)].Key);
}

void MDITools::m_cMenu_Click(std::string_view keyOfEntry) {
    const std::string key(keyOfEntry);
    if (key.starts_with(kToolBarArray))
        MnuVeiwToolBar_Click(ListTools().KeyIndex(key));
    else if (key.starts_with(kRecentArray))
        MnuRecentFile_Click(ListTools().KeyIndex(key));
    else if (key.starts_with(kProblemArray))
        mnuProblem_Click(ListTools().KeyIndex(key));
    else {
        for (const CommandRow& row : kCommands)
            if (key == row.Key) (this->*row.Command)();
        for (const ThemeRow& row : kThemes)
            if (key == row.Key) ChooseTheme(row.Choice);
    }
}

void MDITools::mnuProblem_Click(int index) {
    if (index < 0 || index > kLastProblemEntry) return;
    UnderCommonStep([&] {
        if (index == 0) {
            frmProblemType form([this] { ShowProject(); });
            CurrentHost().ShowForm(form);
        } else {
            ShowProblemDialog(index);
        }
    });
    Refresh();
}

bool MDITools::DialogExists(int entry) {
    return entry == 0 || ProblemDialogExists(entry);
}

std::string MDITools::PopupKey(int mouseButton) {
    if (mouseButton != kRightButton) return {};
    return Menu["mnuMainProblem"].Enabled ? "mnuProblem(0)" : "mnuOpenProject";
}

void MDITools::mnuFirmaData_Click() {
    UnderCommonStep([] {
        CompanyLines lines{Session.FirmaLine1, Session.FirmaLine2};
        if (!SharedServices().EditFirmaData(lines)) return;
        Session.FirmaLine1 = lines.Line1;
        Session.FirmaLine2 = lines.Line2;
    });
}

void MDITools::mnuDirOfData_Click() {
    ShowModally<frmDataDir>();
}

void MDITools::mnuPreferences_Click() {
    ShowModally<frmPreferences>();
}

// The captions of the frame stay as they are until the next start; everything opened from now on is in the new
// language.
void MDITools::MnuLanguage_Click() {
    UnderCommonStep([] { SharedServices().ChooseLanguage(); });
}

void MDITools::mnuUnits_Click() {
    ShowModally<frmUnits>();
}

void MDITools::mnuNumberFormats_Click() {
    ShowModally<frmNumberFormats>();
}

// --- theme ---

void MDITools::LoadTheme() {
    const std::string word = SharedServices().GetSetting(kApplicationTitle, kSettings, kTheme, kThemes[0].Word);
    ThemeChoice choice = ThemeChoice::System;
    for (const ThemeRow& row : kThemes)
        if (word == row.Word) choice = row.Choice;
    TickTheme(choice);
}

void MDITools::ChooseTheme(ThemeChoice choice) {
    for (const ThemeRow& row : kThemes)
        if (row.Choice == choice)
            SharedServices().SaveSetting(kApplicationTitle, kSettings, kTheme, std::string(row.Word));
    TickTheme(choice);
    Refresh();
}

void MDITools::TickTheme(ThemeChoice choice) {
    for (const ThemeRow& row : kThemes) Menu[row.Key].SetChecked(row.Choice == choice);
    if (window_ != nullptr) window_->ShowTheme(choice);
}

void MDITools::mnuHelpContents_Click() {
    ShowTopic("Titel");
}

void MDITools::mnuShortDescription_Click() {
    ShowTopic("2");
}

void MDITools::mnuNewVersion_Click() {
    ShowTopic("verda_new");
}

void MDITools::mnuAbout_Click() {
    ShowModally<frmAbout>();
}

// --- bars ---

void MDITools::LayoutToolbars() {
    UnderCommonStep([&] {
        const auto layout = ListTools().LoadDockLayout(kDock, kApplicationTitle);
        if (!layout)
            ResetToolbars();
        else if (window_ != nullptr)
            window_->SetDockLayout(*layout);
    });
    Refresh();
}

// Where the bars are docked; which of them are shown stays as it is ticked.
void MDITools::ResetToolbars() {
    UnderCommonStep([&] {
        if (window_ != nullptr) window_->SetDockLayout({});
    });
}

void MDITools::mnuResetToolbar_Click() {
    ResetToolbars();
    UnderCommonStep([&] { ListTools().SaveDockLayout(kDock, {}, kApplicationTitle); });
    Refresh();
}

void MDITools::LoadBarSettings() {
    const auto setting = [](const std::string& key) {
        return SharedServices().GetSetting(kApplicationTitle, kSettings, key, true);
    };
    for (int i = 0; i < Toolbars::kCount; ++i) {
        Menu.At(kToolBarArray, i).SetChecked(setting(Bars[i].SettingsKey));
        ToggleBar(i);
    }
    mnu_TBStyle.SetChecked(setting(kTransparentBar));
    Menu["MnuStatusBar"].SetChecked(setting(kStatusBar));
    StatusBarVisible = Menu["MnuStatusBar"].Checked();
    Refresh();
}

void MDITools::SaveTBar() {
    const auto save = [](const std::string& key, bool value) {
        PassingOverErrors([&] { SharedServices().SaveSetting(kApplicationTitle, kSettings, key, value); });
    };
    for (int i = 0; i < Toolbars::kCount; ++i) save(Bars[i].SettingsKey, Menu.At(kToolBarArray, i).Checked());
    save(kTransparentBar, mnu_TBStyle.Checked());
    save(kStatusBar, Menu["MnuStatusBar"].Checked());
    PassingOverErrors([&] {
        if (window_ != nullptr) ListTools().SaveDockLayout(kDock, window_->DockLayout(), kApplicationTitle);
    });
}

void MDITools::ToggleBar(int index) {
    Bars[index].Visible = Menu.At(kToolBarArray, index).Checked();
    Refresh();
}

void MDITools::MnuVeiwToolBar_Click(int index) {
    UnderCommonStep([&] {
        MenuItem& item = Menu.At(kToolBarArray, index);
        item.SetChecked(!item.Checked());
        ToggleBar(index);
    });
}

}  // namespace lithmark
