#include "desktop/StartView.h"

#include <QApplication>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "desktop/Icons.h"
#include "desktop/PageTools.h"
#include "desktop/PictureButton.h"
#include "desktop/Sizes.h"
#include "desktop/StartPictures.h"
#include "render/QtText.h"
#include "services/storage/UserFolders.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using namespace sizes;

constexpr int kProjectsWidth = 280, kCardWidth = 184, kExampleWidth = 300;
constexpr QSize kProjectPicture(32, 32), kCardPicture(160, 104), kExamplePicture(84, 60);
constexpr int kLogo = 48, kHeadButton = 48, kMostCards = 5, kLeastCards = 3;

int WidthOf(int columns, int width) {
    return columns * width + (columns - 1) * kColumnGap;
}

// How many of a width stand in some room, one at least.
int ColumnsIn(int room, int width) {
    return std::max(1, (room + kColumnGap) / (width + kColumnGap));
}

QString Isolated(const QString& words) {
    return words.isEmpty() ? words : QChar(0x2066) + words + QChar(0x2069);
}

}  // namespace

StartView::StartView(MDITools& frame, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("startPage"));
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(0);
    page->addWidget(Head(frame));
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->viewport()->installEventFilter(this);
    page->addWidget(scroll_, 1);

    content_ = new QWidget;
    projects_ = MakePanel(kProjectsWidth);
    cards_ = MakePanel(kCardWidth);
    examples_ = MakePanel(kExampleWidth);
    auto* grid = new QGridLayout(content_);
    grid->setContentsMargins(kPagePad, kEdge, kPagePad, kPagePad);
    grid->setHorizontalSpacing(kGroupGap);
    grid->setVerticalSpacing(kGroupGap);
    FillCards();
    FillExamples();
    projects_.Box->hide();
    scroll_->setWidget(content_);
    SetTabOrder();
    Arrange();
    WishPictures();
}

QWidget* StartView::Head(MDITools& frame) {
    auto* head = new QWidget(this);
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(kPagePad, kEdge, kPagePad, kEdge);
    row->setSpacing(kEdge);
    auto* logo = new QLabel(head);
    logo->setPixmap(ProgramIcon().pixmap(kLogo));
    row->addWidget(logo);
    auto* names = new QVBoxLayout;
    names->setSpacing(2);
    names->addWidget(PageLabel(head, Q(Text(160030_text)), 1.6, true));
    QLabel* description = PageLabel(head, Q(Text(140123_text)), 1, false);
    description->setWordWrap(true);
    MakeQuiet(*description);
    names->addWidget(description);
    row->addLayout(names, 1);
    for (const char* key : {"mnuNewProject", "mnuOpenProject"}) {
        const MenuItem& item = frame.Menu[key];
        auto* button = new PageButton(head, kHeadButton, true);
        button->Show(IconOf(key), PlainCaption(item.Caption));
        button->setObjectName(QStringLiteral("start_") + QString::fromLatin1(key));
        button->setToolTip(Q(item.Shortcut));
        connect(button, &QPushButton::clicked, this, [this, key = std::string(key)] {
            if (OnCommand) OnCommand([key](MDITools& model) { model.m_cMenu_Click(key); });
        });
        row->addWidget(button);
        commands_.emplace_back(button, key);
    }
    return head;
}

StartView::Panel StartView::MakePanel(int width) {
    Panel panel{new QWidget(content_), nullptr, width, {}, {}};
    panel.Grid = new QGridLayout(panel.Box);
    panel.Grid->setContentsMargins(0, 0, 0, 0);
    panel.Grid->setSpacing(kColumnGap);
    return panel;
}

// A heading takes the whole width.
QLabel* StartView::AddHead(Panel& panel, const QString& words) {
    QLabel* head = PageLabel(panel.Box, words, 1.2, true);
    panel.Things.push_back(head);
    return head;
}

// --- projects to go on with ---

void StartView::Show(const StartPage& page) {
    if (page == shown_) return;
    shown_ = page;
    // They go with the next events; until then nobody finds them by their names.
    for (QWidget* stop : projects_.Stops) stop->setObjectName({});
    for (QWidget* thing : projects_.Things) {
        thing->hide();
        thing->deleteLater();
    }
    projects_.Things.clear();
    projects_.Stops.clear();
    AddProjects(Q(Text(913422_text)), "pinned", page.PinnedProjects);
    std::vector<ListedProject> others;
    for (const ListedProject& project : page.RecentProjects)
        if (!project.Pinned) others.push_back(project);
    AddProjects(Q(Text(903016_text)), "recent", others);
    projects_.Box->setVisible(!projects_.Things.empty());
    SetTabOrder();
    Arrange();
}

void StartView::AddProjects(const QString& head, const char* name, const std::vector<ListedProject>& projects) {
    if (projects.empty()) return;
    AddHead(projects_, head);
    int row = 0;
    for (const ListedProject& project : projects) {
        ++row;
        const int index = project.Index != 0 ? project.Index : row;
        AddProject(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index), project);
    }
}

void StartView::AddProject(const QString& name, const ListedProject& project) {
    const QString path = Q(project.Path), stem = QFileInfo(path).completeBaseName();
    auto* line = new QWidget(projects_.Box);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    auto* open = new PictureButton(line, PictureButton::Kind::Row, kProjectsWidth - kClicked - 2, kProjectPicture);
    open->setObjectName(name);
    open->setToolTip(Isolated(path));
    QStringList about;
    if (project.ProblemType != 0) about.append(Q(ProblemInShort(project.ProblemType)));
    if (!project.Changed.empty()) about.append(Isolated(Q(project.Changed)));
    open->Say(Isolated(stem), about.join(Q(Text(910011_text)) + QLatin1Char(' ')));
    open->setAccessibleName(stem);
    open->SetPicture(IconOfProblem(project.ProblemType).pixmap(kProjectPicture));
    connect(open, &QPushButton::clicked, this, [this, project] {
        if (!OnCommand) return;
        OnCommand([project](MDITools& frame) {
            if (project.Index != 0)
                frame.MnuRecentFile_Click(project.Index);
            else
                frame.OpenListed(project.Path);
        });
    });
    row->addWidget(open);
    auto* pin = new QToolButton(line);
    pin->setObjectName(QStringLiteral("pin_") + name);
    pin->setText(project.Pinned ? QStringLiteral("\u2605") : QStringLiteral("\u2606"));
    pin->setCheckable(true);
    pin->setChecked(project.Pinned);
    pin->setAutoRaise(true);
    pin->setFocusPolicy(Qt::TabFocus);
    pin->setMinimumSize(kClicked, kClicked);
    const std::string title = stem.toStdString();
    pin->setToolTip(Q(project.Pinned ? Text(913424_text, {{"|1", title}}) : Text(913423_text, {{"|1", title}})));
    pin->setAccessibleName(pin->toolTip());
    connect(pin, &QToolButton::clicked, this, [this, project] {
        if (OnCommand) OnCommand([project](MDITools& frame) { frame.PinProject(project.Path, !project.Pinned); });
    });
    row->addWidget(pin);
    projects_.Things.push_back(line);
    projects_.Stops.insert(projects_.Stops.end(), {open, pin});
}

// --- problems and examples ---

void StartView::FillCards() {
    AddHead(cards_, Q(Text(913420_text)));
    for (const ProblemCard& card : ProblemCards()) {
        auto* button = new PictureButton(cards_.Box, PictureButton::Kind::Card, kCardWidth, kCardPicture);
        button->setObjectName(QStringLiteral("card(%1)").arg(card.ProblemType));
        button->Say(Q(card.Name));
        const int problem = card.ProblemType;
        connect(button, &QPushButton::clicked, this, [this, problem] {
            if (OnCommand) OnCommand([problem](MDITools& frame) { frame.BeginProject(problem); });
        });
        cards_.Things.push_back(button);
        cards_.Stops.push_back(button);
        pictures_.push_back({button, [problem](const PictureWish& wish) { return CardPicture(problem, wish); }});
    }
}

void StartView::FillExamples() {
    const std::vector<ExampleProject> examples = ExampleProjects(ExamplesDir());
    examples_.Box->setVisible(!examples.empty());
    QLabel* head = AddHead(examples_, Q(Text(913421_text)));
    head->setToolTip(Q(Text(913425_text, {{"|1", UserProjectsDir()}})));
    for (const ExampleProject& example : examples) {
        auto* button = new PictureButton(examples_.Box, PictureButton::Kind::Row, kExampleWidth, kExamplePicture);
        button->setObjectName(QStringLiteral("example_") + Q(example.Name));
        button->Say(Isolated(Q(example.Name)), Q(example.Line));
        button->setAccessibleName(Q(example.Name));
        button->setToolTip(head->toolTip());
        connect(button, &QPushButton::clicked, this, [this, example] {
            if (OnCommand) OnCommand([example](MDITools& frame) { frame.OpenExample(example); });
        });
        examples_.Things.push_back(button);
        examples_.Stops.push_back(button);
        pictures_.push_back({button, [example](const PictureWish& wish) { return ExamplePicture(example, wish); }});
    }
}

// --- room ---

void StartView::Arrange() {
    auto* grid = static_cast<QGridLayout*>(content_->layout());
    const int room = scroll_->viewport()->width() - 2 * kPagePad;
    const int projects = projects_.Box->isHidden() ? 0 : kProjectsWidth + kGroupGap;
    const int examples = examples_.Box->isHidden() ? 0 : kExampleWidth + kGroupGap;
    const int rest = room - projects - examples;
    const bool beside = rest >= WidthOf(kLeastCards, kCardWidth);
    for (Panel* panel : {&projects_, &cards_, &examples_}) grid->removeWidget(panel->Box);
    int place = 0;
    for (Panel* panel : {&projects_, &cards_, &examples_}) {
        const int columns = !beside            ? ColumnsIn(room, panel->Width)
                            : panel == &cards_ ? std::min(kMostCards, ColumnsIn(rest, kCardWidth))
                                               : 1;
        Place(*panel, columns);
        grid->addWidget(panel->Box, beside ? 0 : place, beside ? place : 0, Qt::AlignTop | Qt::AlignLeft);
        ++place;
    }
    // What is to spare lies behind and below.
    for (int i = 0; i < 4; ++i) {
        grid->setColumnStretch(i, i == 3 ? 1 : 0);
        grid->setRowStretch(i, i == 3 ? 1 : 0);
    }
}

// A heading begins a row of its own.
void StartView::Place(Panel& panel, int columns) {
    for (QWidget* thing : panel.Things) panel.Grid->removeWidget(thing);
    int row = 0, column = 0;
    for (QWidget* thing : panel.Things) {
        const bool head = qobject_cast<QLabel*>(thing) != nullptr;
        if (head && column > 0) {
            ++row;
            column = 0;
        }
        panel.Grid->addWidget(thing, row, column, 1, head ? columns : 1);
        column += head ? columns : 1;
        if (column < columns) continue;
        ++row;
        column = 0;
    }
}

// Made later or not, things are reached in the order in which they stand.
void StartView::SetTabOrder() {
    std::vector<QWidget*> stops;
    for (const auto& [button, key] : commands_) stops.push_back(button);
    for (const Panel* panel : {&projects_, &cards_, &examples_})
        stops.insert(stops.end(), panel->Stops.begin(), panel->Stops.end());
    for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

bool StartView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == scroll_->viewport() && event->type() == QEvent::Resize) Arrange();
    return QWidget::eventFilter(watched, event);
}

// --- drawings ---

void StartView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && scroll_ != nullptr) {
        // What is drawn is drawn anew in the colours of the theme.
        for (const auto& [button, key] : commands_) button->SetIcon(IconOf(key));
        Show(std::exchange(shown_, {}));
        WishPictures();
    }
    QWidget::changeEvent(event);
}

void StartView::WishPictures() {
    waiting_.clear();
    for (std::size_t i = 0; i < pictures_.size(); ++i) waiting_.push_back(i);
    PaintNext();
}

void StartView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    PaintNext();
}

// Drawing borrows Session. While the page is seen and no window stands before it, nothing else is at work on it.
void StartView::PaintNext() {
    constexpr int kLater = 500;  // milliseconds, while a window stands before the page
    if (painting_ || waiting_.empty() || !isVisible()) return;
    painting_ = true;
    QTimer::singleShot(QApplication::activeModalWidget() == nullptr ? 0 : kLater, this, [this] {
        painting_ = false;
        if (isVisible() && !waiting_.empty() && QApplication::activeModalWidget() == nullptr) {
            const Wish& wish = pictures_[waiting_.front()];
            waiting_.pop_front();
            wish.For->SetPicture(wish.Paint({wish.For->PictureSize(), devicePixelRatioF(), ThemeOf(palette())}));
        }
        PaintNext();
    });
}

}  // namespace lithmark
