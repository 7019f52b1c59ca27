// MDITools: the one main window. It starts the program, holds the menu and the bars, opens projects, shows the dialogs,
// and ends the program.
//
// Every command runs to its end or tells its failure; none throws. What the window itself knows and does (where it
// stands, how its bars are laid out, that it draws itself anew) it does through FrameWindow.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/ListTools.h"
#include "services/host/Form.h"
#include "texts/LanguageTable.h"
#include "ui/frame/MenuTree.h"
#include "ui/frame/StartPage.h"
#include "ui/frame/StatusLine.h"
#include "ui/frame/Theme.h"
#include "ui/frame/Toolbars.h"

namespace lithmark {

class frmSplash;
struct ComparedPair;

// The section of the settings that the window keeps its own state in.
inline const std::string kSettings = "Settings";
// Arrays of entries of the menu.
inline const std::string kProblemArray = "mnuProblem", kRecentArray = "MnuRecentFile";

// Whoever shows the frame.
class FrameWindow {
  public:
    virtual ~FrameWindow() = default;
    // Title, menu, bars, status bar, summary or visibility of the frame changed.
    virtual void Refresh() {}
    virtual std::optional<FormPosition> Position() const { return std::nullopt; }
    virtual void SetPosition(const FormPosition&) {}
    // Light or dark windows, or what the desktop asks for.
    virtual void ShowTheme(ThemeChoice) {}
    // How the bars are docked, as a text of the window's own.
    virtual std::string DockLayout() const { return {}; }
    // Docks the bars as a layout says; the default order for an empty one.
    virtual void SetDockLayout(const std::string& /*layout*/) {}
    virtual void EndProcess() {}
    // Two projects beside each other, until the user closes the window.
    virtual void ShowComparison(const ComparedPair&) {}
};

// What the frame shows of the open project.
struct ProjectSummary {
    std::string Name, Directory;
    int ProblemType = 0;
    std::string Problem;    // the text of its menu entry; empty for a number that the catalogue does not have
    int ProblemEntry = -1;  // index of mnuProblem
    std::string Order, Date, Project;
    std::vector<std::string> MissingData;  // the texts of the problems whose data do not exist yet
};

class MDITools : public Form {
  public:
    MDITools();
    ~MDITools() override;

    MenuTree Menu;
    Toolbars Bars;
    // Carries its state from the settings to the settings; it does not stand in the menu.
    MenuItem mnu_TBStyle{"mnu_TBStyle", ""};
    RecentFileTable RecentFiles;
    bool StatusBarVisible = true;
    std::string HelpFile;
    bool Shown = false;
    bool Ended = false;  // ExitProgram ran

    // The window that shows the frame; null for none.
    void SetWindow(FrameWindow* window);
    // Milliseconds of a clock that never goes back, for the splash.
    void SetClock(std::function<long long()> milliseconds) { clock_ = std::move(milliseconds); }

    // --- start and end ---

    // Everything between the start of the process and the first command: splash, settings, bars, and the project that
    // the command line names. `otherwise` is the language when none is stored.
    void Start(const std::string& commandLine, Language otherwise = Language::English);
    // Builds the menu and the bars in the language in force.
    void Load() override;
    // A path of a project file, quoted or not. One that cannot be resolved changes nothing.
    void OpenFromCommandLine(std::string text);
    // Asks, and ends the program on yes.
    void mnuFileExit_Click();
    // The window is to be closed; true when it must stay.
    bool QueryUnload();
    void ExitProgram();

    // --- project ---

    // No project: Session, menu, ticks, title and the project's lock.
    void NewProjectState();
    // Shows the one problem entry of the project, beside the project's own.
    void SetProblemMenu();
    // Opens the project that Session names. Behind a failure, which has been told, no project is open.
    void OpenProject();
    // Menu, ticks and title of the open project by its problem and by the files that it has.
    void ShowProject();
    void CheckProjectFiles();
    // Tells what is missing and asks whether to go on; without missing data asks for the end if `ask` is not 0.
    void ProjectCheck(int ask, bool& ok);
    void mnuNewProject_Click();
    void mnuOpenProject_Click();
    // Leaves the open project for a copy of an example.
    void OpenExample(const std::string& name);
    void mnuSaveProjectAs_Click();
    // Back to the page without a project; the project is packed as at the end of the program.
    void mnuCloseProject_Click();
    void mnuFileList_Click();
    // Asks for a project to hold against the open one; without an open one for both. Changes neither.
    void mnuCompare_Click();
    void MnuRecentFile_Click(int index);
    // "Lithmark - [name]".
    void ShowTitle(const std::string& name);
    static std::string Title(const std::string& name);

    bool ProjectOpen() const;
    // Of the open project.
    ProjectSummary Summary();
    StatusLine Status();

    // --- page without a project ---

    StartPage RecentProjects() const;
    // A new project that is proposed with a problem.
    void BeginProject(int problemType);
    // A project of a list. One that is gone is told, and is pinned no more.
    void OpenListed(const std::string& path);
    // A copy of an example in the program's folder of the user's documents.
    void OpenExample(const ExampleProject& example);
    void PinProject(const std::string& path, bool pinned);

    // --- menu ---

    // A click on an entry, by its place in the tree or its key. Headings, separators and unknown keys do nothing.
    void m_cMenu_Click(int index);
    void m_cMenu_Click(std::string_view key);
    void mnuProblem_Click(int index);
    // True when the dialog of an entry of mnuProblem exists.
    static bool DialogExists(int entry);
    // The entry whose menu pops up at the mouse for a button; empty for none.
    std::string PopupKey(int mouseButton);

    void mnuFirmaData_Click();
    void mnuDirOfData_Click();
    void mnuPreferences_Click();
    void MnuLanguage_Click();
    void mnuUnits_Click();
    void mnuNumberFormats_Click();
    void ChooseTheme(ThemeChoice choice);
    void mnuHelpContents_Click();
    void mnuShortDescription_Click();
    void mnuNewVersion_Click();
    void mnuAbout_Click();

    // --- bars ---

    void LayoutToolbars();
    void LoadBarSettings();
    void SaveTBar();
    // Shows or hides a bar by the tick of its entry.
    void ToggleBar(int index);
    void MnuVeiwToolBar_Click(int index);
    void mnuResetToolbar_Click();

  private:
    void Refresh();
    void ShowSplash();
    // When the frame is ready: the splash has its three seconds first.
    void CloseSplash();
    // Waits only when the splash is marked to.
    void TakeSplashAway();
    void ResetToolbars();
    bool MayLeaveProject();
    void LoadTheme();
    void TickTheme(ThemeChoice choice);
    void ChangeProject(const std::string& file);
    std::vector<std::string> MissingData();
    void AddToRecentFiles(const std::string& path);
    void SyncRecentFromMenu();
    void SyncRecentToMenu();

    FrameWindow* window_ = nullptr;
    std::function<long long()> clock_;
    std::unique_ptr<frmSplash> splash_;
};

}  // namespace lithmark
