#include "desktop/study/WorkRow.h"

#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "desktop/Sizes.h"
#include "desktop/WidgetInk.h"
#include "desktop/study/AskTools.h"
#include "desktop/study/StudySubject.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

WorkRow::WorkRow(QWidget* parent, std::function<void()> cancel)
    : QWidget(parent),
      row_(new QHBoxLayout(this)),
      words_(WordsLabel(this, "lblProgress", 1)),
      bar_(new QProgressBar(this)),
      cancel_(nullptr) {
    constexpr int kBarWidth = 160;
    row_->setContentsMargins(0, 0, 0, 0);
    row_->setSpacing(sizes::kColumnGap);
    row_->addWidget(words_, 1);
    bar_->setObjectName(QStringLiteral("progress"));
    bar_->setAccessibleName(Q(Text(903005_text)));
    bar_->setTextVisible(false);
    bar_->setFixedWidth(kBarWidth);
    // It keeps its room while nothing runs.
    QSizePolicy policy = bar_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bar_->setSizePolicy(policy);
    row_->addWidget(bar_);
    cancel_ = AskButton(this, *row_, Q(Text(7_text, Styles::Button)), "cmdCancel", std::move(cancel));
    Rest();
}

void WorkRow::Say(const std::string& words, bool warning) {
    words_->setText(Q(words));
    SetInk(*words_, warning ? Ink::Warning : Ink::Quiet);
}

void WorkRow::Rest() {
    bar_->hide();
    cancel_->setEnabled(false);
}

void WorkRow::Run(std::uint64_t done, std::uint64_t wanted) {
    constexpr int kBarEnd = 1000;
    bar_->setRange(0, wanted == 0 ? 0 : kBarEnd);
    if (wanted > 0) bar_->setValue(static_cast<int>(kBarEnd * done / wanted));
    bar_->show();
    cancel_->setEnabled(true);
}

}  // namespace lithmark
