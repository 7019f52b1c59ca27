#include "desktop/StartView.h"

#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/Icons.h"
#include "desktop/PageTools.h"
#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kColumnWidth = 560;
constexpr int kRecentRows = 4;

QWidget* Logo(QWidget* parent, int size) {
    auto* logo = new QLabel(parent);
    logo->setPixmap(ProgramIcon().pixmap(size));
    return logo;
}

}  // namespace

StartView::StartView(MDITools& frame, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("startPage"));
    auto* content = new QWidget(this);
    content->setMaximumWidth(kColumnWidth);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(sizes::kPagePad, sizes::kPagePad, sizes::kPagePad, sizes::kPagePad);
    column->setSpacing(10);

    auto* head = new QHBoxLayout;
    head->setSpacing(18);
    head->addWidget(Logo(content, 64));
    auto* names = new QVBoxLayout;
    names->setSpacing(2);
    names->addWidget(PageLabel(content, Q(Text(160030_text)), 2.4, true));
    QLabel* description = PageLabel(content, Q(Text(140123_text)), 1.05, false);
    description->setWordWrap(true);
    MakeQuiet(*description);
    names->addWidget(description);
    head->addLayout(names, 1);
    column->addLayout(head);
    column->addSpacing(22);

    auto* commands = new QHBoxLayout;
    commands->setSpacing(sizes::kEdge);
    for (const char* key : {"mnuNewProject", "mnuOpenProject"}) {
        const MenuItem& item = frame.Menu[key];
        auto* button = new PageButton(content, 56, true);
        button->Show(IconOf(key), PlainCaption(item.Caption));
        button->setObjectName(QStringLiteral("start_") + QString::fromLatin1(key));
        button->setToolTip(Q(item.Shortcut));
        connect(button, &QPushButton::clicked, this, [this, key = std::string(key)] {
            if (OnCommand) OnCommand(key);
        });
        commands->addWidget(button, 1);
    }
    column->addLayout(commands);
    column->addSpacing(18);

    recentHead_ = PageLabel(content, Q(Text(903016_text)), 1.15, true);
    column->addWidget(recentHead_);
    for (int row = 0; row < kRecentRows; ++row) {
        auto* button = new PageButton(content, 46, false);
        button->setObjectName(QStringLiteral("recent(%1)").arg(row + 1));
        connect(button, &QPushButton::clicked, this, [this, row] {
            if (OnCommand) OnCommand("MnuRecentFile(" + std::to_string(row + 1) + ")");
        });
        recent_.push_back(button);
        column->addWidget(button);
    }

    auto* across = new QHBoxLayout;
    across->addStretch(1);
    across->addWidget(content, 4);
    across->addStretch(1);
    auto* page = new QVBoxLayout(this);
    page->addStretch(2);
    page->addLayout(across);
    page->addStretch(3);
}

void StartView::Show(const StartPage& page) {
    recentHead_->setVisible(!page.RecentProjects.empty());
    for (PageButton* button : recent_) button->hide();
    for (const StartPage::RecentProject& project : page.RecentProjects) {
        if (project.Index < 1 || project.Index > kRecentRows) continue;
        PageButton* button = recent_[static_cast<std::size_t>(project.Index) - 1];
        const QFileInfo file(Q(project.Path));
        // A path reads from left to right in every language.
        button->Show(IconOf("mnuOpenProject"), file.completeBaseName(), QChar(0x2066) + file.path() + QChar(0x2069));
        button->setToolTip(Q(project.Path));
        button->show();
    }
}

}  // namespace lithmark
