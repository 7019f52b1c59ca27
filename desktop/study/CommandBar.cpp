#include "desktop/study/CommandBar.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "desktop/Toast.h"
#include "desktop/study/AskTools.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"
#include "study/window/CommandWords.h"

namespace lithmark {

CommandBar::CommandBar(QWidget* parent) : QWidget(parent), text_(new QLineEdit(this)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(sizes::kColumnGap);
    text_->setObjectName(QStringLiteral("txtCommand"));
    text_->setReadOnly(true);
    text_->setLayoutDirection(Qt::LeftToRight);
    QLabel* label = AskLabel(this, Text(913234_text), text_);
    row->addWidget(label);
    row->addWidget(text_, 1);
    const bool small = OnSmallScreen(*this);
    label->setHidden(small);
    text_->setHidden(small);
    copy_ = new QPushButton(Q(Text(913259_text, Styles::Button)), this);
    copy_->setObjectName(QStringLiteral("cmdCopy"));
    copy_->setAutoDefault(false);
    copy_->setMinimumHeight(sizes::kClicked);
    connect(copy_, &QPushButton::clicked, this, [this] {
        QApplication::clipboard()->setText(text_->text());
        ShowToast(*window(), Q(Text(913243_text)));
    });
    row->addWidget(copy_);
}

void CommandBar::PlaceWith(QBoxLayout& column, QBoxLayout* buttons) {
    if (OnSmallScreen(*this))
        buttons->insertWidget(buttons->count() - 1, this);
    else
        column.addWidget(this);
    column.addLayout(buttons);
}

void CommandBar::Show(const std::vector<std::string>& words) {
    const QString text = words.empty() ? QString() : Q(CommandText(words));
    if (text_->text() == text) return;
    text_->setText(text);
    copy_->setToolTip(text);
    copy_->setEnabled(!text.isEmpty());
    text_->setCursorPosition(0);
}

}  // namespace lithmark
