#include "desktop/ProjectView.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/Icons.h"
#include "desktop/PageTools.h"
#include "desktop/Sizes.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kProjectWidth = 680;

QLabel* ValueLabel(QWidget* parent, const char* name) {
    QLabel* label = PageLabel(parent, {}, 1, false);
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

std::string ProblemKey(int entry) {
    return "mnuProblem(" + std::to_string(entry) + ")";
}

}  // namespace

ProjectView::ProjectView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("projectPage"));
    auto* content = new QWidget(this);
    content->setMaximumWidth(kProjectWidth);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(sizes::kPagePad, sizes::kPagePad, sizes::kPagePad, sizes::kPagePad);
    column->setSpacing(sizes::kColumnGap);

    name_ = PageLabel(content, {}, 1.6, true);
    name_->setObjectName(QStringLiteral("projectName"));
    directory_ = PageLabel(content, {}, 1, false);
    directory_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    directory_->setWordWrap(true);
    MakeQuiet(*directory_);
    column->addWidget(name_);
    column->addWidget(directory_);
    column->addSpacing(sizes::kGroupGap);

    auto* card = new QFrame(content);
    card->setFrameShape(QFrame::StyledPanel);
    card->setBackgroundRole(QPalette::Base);
    card->setAutoFillBackground(true);
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(sizes::kGroupGap, sizes::kGroupGap, sizes::kGroupGap, sizes::kGroupGap);
    inside->setSpacing(sizes::kEdge);
    auto* head = new QHBoxLayout;
    head->setSpacing(sizes::kEdge);
    problemIcon_ = new QLabel(card);
    head->addWidget(problemIcon_);
    problem_ = PageLabel(card, {}, 1.2, true);
    problem_->setObjectName(QStringLiteral("projectProblem"));
    problem_->setWordWrap(true);
    head->addWidget(problem_, 1);
    inside->addLayout(head);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(sizes::kGroupGap);
    grid->setVerticalSpacing(sizes::kRowGap);
    grid->setColumnStretch(1, 1);
    const auto row = [&](int line, const std::string& caption, QLabel*& value, const char* name) {
        QLabel* label = PageLabel(card, Q(caption), 1, false);
        MakeQuiet(*label);
        grid->addWidget(label, line, 0, Qt::AlignTop);
        value = ValueLabel(card, name);
        grid->addWidget(value, line, 1);
    };
    row(0, Text(11_text), order_, "projectOrder");
    row(1, Text(12_text), date_, "projectDate");
    row(2, Text(95_text), project_, "projectText");
    inside->addLayout(grid);

    auto* state = new QHBoxLayout;
    state->setSpacing(sizes::kColumnGap);
    stateIcon_ = new QLabel(card);
    state->addWidget(stateIcon_);
    state_ = PageLabel(card, {}, 1, false);
    state_->setObjectName(QStringLiteral("projectState"));
    state_->setWordWrap(true);
    state->addWidget(state_, 1);
    inside->addLayout(state);
    column->addWidget(card);
    column->addSpacing(sizes::kEdge);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(sizes::kEdge);
    const auto button = [&](const char* name) {
        auto* made = new PageButton(content, 48, true);
        made->setObjectName(QString::fromLatin1(name));
        buttons->addWidget(made, 1);
        return made;
    };
    calculate_ = button("projectCalculate");
    calculateCaption_ = Q(Text(903020_text));
    data_ = button("projectData");
    connect(calculate_, &QPushButton::clicked, this, [this] {
        if (OnCommand) OnCommand(ProblemKey(entry_));
    });
    connect(data_, &QPushButton::clicked, this, [this] {
        if (OnCommand) OnCommand(ProblemKey(0));
    });
    column->addLayout(buttons);

    auto* across = new QHBoxLayout;
    across->addStretch(1);
    across->addWidget(content, 6);
    across->addStretch(1);
    auto* page = new QVBoxLayout(this);
    page->addStretch(2);
    page->addLayout(across);
    page->addStretch(3);
}

void ProjectView::Show(const ProjectSummary& summary) {
    entry_ = summary.ProblemEntry;
    name_->setText(Q(summary.Name));
    // A path reads from left to right in every language.
    directory_->setText(QChar(0x2066) + Q(summary.Directory) + QChar(0x2069));
    problem_->setText(PlainCaption(summary.Problem));
    order_->setText(Q(summary.Order));
    date_->setText(Q(summary.Date));
    project_->setText(Q(summary.Project));
    const bool missing = !summary.MissingData.empty();
    state_->setText(Q(missing ? Text(903018_text) : Text(903019_text)));
    stateIcon_->setPixmap(
        style()->standardIcon(missing ? QStyle::SP_MessageBoxWarning : QStyle::SP_DialogApplyButton).pixmap(20));
    const QIcon icon = IconOfProblem(summary.ProblemType);
    problemIcon_->setPixmap(icon.pixmap(40));
    calculate_->Show(icon, calculateCaption_);
    data_->Show(IconOf(ProblemKey(0)), Q(Text(400009_text)));
    calculate_->setEnabled(MDITools::DialogExists(entry_));
}

}  // namespace lithmark
