#include "desktop/FindBar.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

#include "desktop/PageTools.h"
#include "desktop/ReportView.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

FindBar::FindBar(QWidget* window) : QWidget(window), box_(new QLineEdit(this)), place_(new QLabel(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(sizes::kColumnGap);
    box_->setObjectName(QStringLiteral("txtFind"));
    box_->setPlaceholderText(Q(Text(903000_text)));
    box_->setAccessibleName(box_->placeholderText());
    box_->setClearButtonEnabled(true);
    connect(box_, &QLineEdit::textChanged, this, [this](const QString& words) {
        if (report_ != nullptr) report_->FindHere(words);
        ShowPlace();
    });
    connect(box_, &QLineEdit::returnPressed, this, [this] { Go(false); });
    row->addWidget(box_, 1);
    place_->setObjectName(QStringLiteral("lblFound"));
    MakeAlert(*place_);
    MakeQuiet(*place_);
    row->addWidget(place_);
    const auto add = [&](const char* name, Qt::ArrowType arrow, const std::string& words, const QKeySequence& keys,
                         bool backwards) {
        auto* button = new QToolButton(this);
        button->setObjectName(QString::fromLatin1(name));
        button->setArrowType(arrow);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setMinimumSize(sizes::kClicked, sizes::kClicked);
        button->setAccessibleName(Q(words));
        button->setToolTip(Q(words) + QStringLiteral(" (%1)").arg(keys.toString(QKeySequence::NativeText)));
        connect(button, &QToolButton::clicked, this, [this, backwards] { Go(backwards); });
        auto* shortcut = new QShortcut(keys, window);
        connect(shortcut, &QShortcut::activated, this, [this, backwards] { Go(backwards); });
        row->addWidget(button);
    };
    add("cmdFindFormer", Qt::UpArrow, Text(910211_text), QKeySequence(Qt::SHIFT | Qt::Key_F3), true);
    add("cmdFindNext", Qt::DownArrow, Text(910210_text), QKeySequence(Qt::Key_F3), false);
    auto* find = new QShortcut(QKeySequence::Find, window);
    connect(find, &QShortcut::activated, box_, [this] {
        box_->setFocus();
        box_->selectAll();
    });
}

void FindBar::Go(bool backwards) {
    if (box_->text().isEmpty() || report_ == nullptr) return box_->setFocus();
    report_->FindNext(box_->text(), backwards);
    ShowPlace();
    // By a key that goes on; nothing is said as one types.
    SpeakAlert(*place_, place_->text());
}

void FindBar::ShowPlace() {
    const QString words = box_->text();
    QString where;
    if (!words.isEmpty() && report_ != nullptr) {
        const auto [place, all] = report_->PlaceOf(words);
        where = Q(all == 0 ? Text(910213_text)
                           : Text(910212_text, {{"|1", std::to_string(place)}, {"|2", std::to_string(all)}}));
    }
    place_->setText(where);
    place_->setAccessibleName(where);
}

}  // namespace lithmark
