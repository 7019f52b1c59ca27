#include "desktop/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "core/Session.h"
#include "desktop/Icons.h"
#include "desktop/ManualTopics.h"
#include "desktop/ProjectView.h"
#include "desktop/ScreenRoom.h"
#include "desktop/ScrollColumn.h"
#include "desktop/StartView.h"
#include "desktop/compare/CompareWindow.h"
#include "render/QtText.h"

namespace lithmark {

namespace {

constexpr int kRightButton = 2;
constexpr int kLongestPath = 64;
constexpr int kStartPage = 0, kProjectPage = 1;
// What the status bar tells at all times, in this order.
constexpr const char* kStatusParts[] = {"statusSaved", "statusProblem", "statusUnits", "statusDecimalSign"};

bool IsRecentFile(const std::string& key) {
    return key.starts_with("MnuRecentFile");
}

// Entries that carry a state of their own: a bar or a part of the window that is shown or not, the colours.
bool IsSwitch(const std::string& key) {
    return key.starts_with("MnuVeiwToolBar") || key.starts_with("mnuTheme") || key == "MnuStatusBar";
}

// A path is no caption: its "&" marks nothing. A long one keeps its name and the begin of its folder.
QString PathCaption(const std::string& path) {
    QString text = Q(path);
    if (text.size() > kLongestPath) text = text.left(20) + QStringLiteral(" ... ") + text.right(kLongestPath - 25);
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

MainWindow::MainWindow(MDITools& frame) : frame_(frame), pages_(new QStackedWidget(this)), notice_(new QLabel(this)) {
    setObjectName(QStringLiteral("MDITools"));
    setCentralWidget(pages_);
    statusBar()->addWidget(notice_, 1);
    for (const char* name : kStatusParts) {
        auto* part = new QLabel(this);
        part->setObjectName(QString::fromLatin1(name));
        part->setTextInteractionFlags(Qt::NoTextInteraction);
        statusBar()->addPermanentWidget(part);
        status_.push_back(part);
    }
    notice_->setObjectName(QStringLiteral("notice"));
    resize(QSize(1280, 820).boundedTo(ScreenRoom(*this)));
    BindHelpKey(*this, [] { return std::string("Titel"); });
}

// --- building ---

void MainWindow::Build() {
    built_ = true;
    const Qt::LayoutDirection direction = frame_.RightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
    QApplication::setLayoutDirection(direction);
    setLayoutDirection(direction);
    for (const MenuItem* heading : frame_.Menu.Children("")) {
        QMenu* menu = menuBar()->addMenu(Q(heading->Caption));
        menus_[heading->Key] = menu;
        BuildMenu(*menu, heading->Key);
    }
    BuildBars();
    start_ = new StartView(frame_, pages_);
    start_->OnCommand = [this](StartView::Command command) {
        QTimer::singleShot(0, this, [this, command = std::move(command)] {
            statusBar()->clearMessage();
            command(frame_);
            Refresh();
        });
    };
    project_ = new ProjectView(pages_);
    project_->OnCommand = [this](const std::string& key) { RunLater(key); };
    pages_->insertWidget(kStartPage, start_);
    pages_->insertWidget(kProjectPage, new ScrollColumn(project_, pages_));
}

void MainWindow::BuildMenu(QMenu& menu, const std::string& parent) {
    menu.setToolTipsVisible(true);
    for (const MenuItem* item : frame_.Menu.Children(parent)) {
        if (!frame_.Menu.Children(item->Key).empty()) {
            QMenu* submenu = menu.addMenu(Q(item->Caption));
            menus_[item->Key] = submenu;
            BuildMenu(*submenu, item->Key);
            continue;
        }
        QAction* action = item->Separator() ? menu.addSeparator() : menu.addAction(IconOf(item->Key), {});
        action->setObjectName(Q(item->Key));
        entries_.push_back({item->Key, action, false});
        if (item->Separator()) continue;
        if (!item->Shortcut.empty()) action->setShortcut(QKeySequence(Q(item->Shortcut)));
        action->setMenuRole(QAction::NoRole);
        connect(action, &QAction::triggered, this, [this, key = item->Key] { Run(key); });
    }
}

void MainWindow::BuildBars() {
    for (int i = 0; i < Toolbars::kCount; ++i) {
        const Toolbar& bar = frame_.Bars[i];
        auto* view = new QToolBar(Q(bar.Caption), this);
        view->setObjectName(QStringLiteral("bar_") + Q(bar.Name));
        view->setIconSize({24, 24});
        for (const std::string& key : bar.Buttons) {
            QAction* action = view->addAction(IconOf(key), {});
            action->setObjectName(QStringLiteral("bar_") + Q(key));
            entries_.push_back({key, action, true});
            connect(action, &QAction::triggered, this, [this, key] { Run(key); });
        }
        addToolBar(Qt::TopToolBarArea, view);
        bars_.push_back(view);
    }
}

// --- showing ---

void MainWindow::Refresh() {
    if (frame_.Ended) return;
    if (!built_ && !frame_.Menu.Children("").front()->Caption.empty()) Build();
    setWindowTitle(Q(frame_.Caption));
    if (built_) {
        for (const auto& [key, menu] : menus_) {
            const MenuItem& item = frame_.Menu[key];
            menu->setTitle(Q(item.Caption));
            menu->menuAction()->setEnabled(item.Enabled);
            menu->menuAction()->setVisible(item.Visible);
        }
        for (const Entry& entry : entries_) ShowEntry(entry);
        for (int i = 0; i < Toolbars::kCount; ++i)
            bars_[static_cast<std::size_t>(i)]->setVisible(frame_.Bars[i].Visible);
        ShowPage();
        ShowStatus();
    }
    statusBar()->setVisible(frame_.StatusBarVisible);
    if (frame_.Shown && !isVisible()) show();
}

void MainWindow::ShowEntry(const Entry& entry) {
    const MenuItem& item = frame_.Menu[entry.Key];
    const MenuItem* heading = frame_.Menu.Find(item.Parent);
    // Without a project the bar does not show the problems: only one of them will be its own.
    const bool otherProblem = entry.InBar && entry.Key.starts_with("mnuProblem") && entry.Key != "mnuProblem(0)" &&
                              heading != nullptr && !heading->Enabled;
    entry.Action->setVisible(item.Visible && !otherProblem);
    if (item.Separator()) return;
    entry.Action->setEnabled(item.Enabled && (heading == nullptr || heading->Enabled));
    entry.Action->setText(IsRecentFile(entry.Key) ? PathCaption(item.Caption) : Q(item.Caption));
    if (entry.InBar) {
        QString tip = Q(item.Caption).remove(QLatin1Char('&'));
        if (!item.Shortcut.empty()) tip += QStringLiteral(" (%1)").arg(Q(item.Shortcut));
        entry.Action->setToolTip(tip);
        return;
    }
    // A tick that says "the data exist" needs no empty box where they do not.
    entry.Action->setCheckable(IsSwitch(entry.Key) || item.Checked());
    entry.Action->setChecked(item.Checked());
    // An icon would take the place of the tick.
    entry.Action->setIconVisibleInMenu(!item.Checked());
}

void MainWindow::ShowPage() {
    if (frame_.ProjectOpen()) {
        const ProjectSummary summary = frame_.Summary();
        project_->Show(summary);
        pages_->setCurrentIndex(kProjectPage);
    } else {
        start_->Show(frame_.RecentProjects());
        pages_->setCurrentIndex(kStartPage);
    }
}

void MainWindow::ShowNotice(const QString& notice) {
    statusBar()->clearMessage();
    notice_->setText(notice);
    statusBar()->repaint();
}

void MainWindow::ShowStatus() {
    const StatusLine line = frame_.Status();
    const std::string* const parts[] = {&line.Saved, &line.Problem, &line.Units, &line.DecimalSign};
    for (std::size_t i = 0; i < status_.size(); ++i) {
        status_[i]->setText(Q(*parts[i]));
        status_[i]->setVisible(!parts[i]->empty());
    }
}

void MainWindow::ShowTheme(ThemeChoice choice) {
    if (OnTheme) OnTheme(choice);
}

void MainWindow::ShowComparison(const ComparedPair& pair) {
    CompareWindow(pair, this).exec();
}

// Icons are drawn in colours that are seen on the window's ground.
void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && built_) {
        for (const Entry& entry : entries_)
            if (!entry.Action->isSeparator()) entry.Action->setIcon(IconOf(entry.Key));
        Refresh();
    }
    QMainWindow::changeEvent(event);
}

QAction* MainWindow::MenuAction(const std::string& key) const {
    for (const Entry& entry : entries_)
        if (entry.Key == key && !entry.InBar) return entry.Action;
    return nullptr;
}

// --- commands ---

void MainWindow::RunLater(const std::string& key) {
    QTimer::singleShot(0, this, [this, key] { Run(key); });
}

void MainWindow::Run(const std::string& key) {
    statusBar()->clearMessage();
    frame_.m_cMenu_Click(key);
    Refresh();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (frame_.QueryUnload())
        event->ignore();
    else
        event->accept();
}

void MainWindow::contextMenuEvent(QContextMenuEvent* event) {
    const std::string key = frame_.PopupKey(kRightButton);
    if (key.empty() || !built_) return;
    const auto menu = menus_.find(frame_.Menu[key].Parent);
    if (menu != menus_.end()) menu->second->popup(event->globalPos());
}

void MainWindow::EndProcess() {
    hide();
    if (OnEnd) OnEnd();
}

// --- place and bars ---

std::optional<FormPosition> MainWindow::Position() const {
    const QRect place = isMaximized() ? normalGeometry() : geometry();
    return FormPosition{place.left(), place.top(), place.width(), place.height(), isMaximized()};
}

// A place that no screen shows any more is not taken.
void MainWindow::SetPosition(const FormPosition& position) {
    const QRect place(position.Left, position.Top, position.Width, position.Height);
    bool seen = false;
    for (const QScreen* screen : QApplication::screens())
        seen = seen || screen->availableGeometry().intersected(place).width() >= 100;
    if (seen && place.height() >= 100) setGeometry(place);
    if (position.Maximized) setWindowState(windowState() | Qt::WindowMaximized);
}

std::string MainWindow::DockLayout() const {
    return saveState().toBase64().toStdString();
}

void MainWindow::SetDockLayout(const std::string& layout) {
    if (!layout.empty() && restoreState(QByteArray::fromBase64(QByteArray::fromStdString(layout)))) return;
    for (QToolBar* bar : bars_) {
        removeToolBar(bar);
        addToolBar(Qt::TopToolBarArea, bar);
        bar->show();
    }
    Refresh();
}

}  // namespace lithmark
