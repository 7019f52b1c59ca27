// MainWindow: the frame on the screen. Menu, bars, status bar and the page in the middle show what the model says;
// every command goes to the model by its key.
#pragma once

#include <QMainWindow>
#include <map>
#include <string>
#include <vector>

#include "ui/frame/MDITools.h"

class QAction;
class QLabel;
class QMenu;
class QStackedWidget;
class QToolBar;

namespace lithmark {

class ProjectView;
class StartView;

class MainWindow : public QMainWindow, public FrameWindow {
  public:
    explicit MainWindow(MDITools& frame);

    void Refresh() override;
    std::optional<FormPosition> Position() const override;
    void SetPosition(const FormPosition& position) override;
    std::string DockLayout() const override;
    void SetDockLayout(const std::string& layout) override;
    void EndProcess() override;
    void ShowTheme(ThemeChoice choice) override;
    void ShowComparison(const ComparedPair& pair) override;

    // Ends the process once the program is ended; whoever runs it sets it.
    std::function<void()> OnEnd;
    // The user wants light or dark windows, or those of the desktop.
    std::function<void(ThemeChoice)> OnTheme;
    // What is being done, in the status bar; nothing for an empty text.
    void ShowNotice(const QString& notice);
    // The action of a menu entry; null for a heading.
    QAction* MenuAction(const std::string& key) const;

    // No menu of the toolkit's own: the right button is the model's.
    QMenu* createPopupMenu() override { return nullptr; }

  protected:
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    struct Entry {
        std::string Key;
        QAction* Action;
        bool InBar;
    };
    // Once, as soon as the model has its captions.
    void Build();
    void BuildMenu(QMenu& menu, const std::string& parent);
    void BuildBars();
    void ShowEntry(const Entry& entry);
    void ShowPage();
    void ShowStatus();
    // Runs a command when the event that asked for it is over, so that it may change the widget that it came from.
    void RunLater(const std::string& key);
    void Run(const std::string& key);

    MDITools& frame_;
    bool built_ = false;
    std::vector<Entry> entries_;
    std::map<std::string, QMenu*> menus_;
    std::vector<QToolBar*> bars_;
    QStackedWidget* pages_;
    StartView* start_ = nullptr;
    ProjectView* project_ = nullptr;
    QLabel* notice_;
    std::vector<QLabel*> status_;
};

}  // namespace lithmark
