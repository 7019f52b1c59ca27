#include "desktop/study/CommandBar.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

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
    row->addWidget(AskLabel(this, Text(913234_text), text_));
    row->addWidget(text_, 1);
    auto* copy = new QPushButton(Q(Text(913259_text, Styles::Button)), this);
    copy->setObjectName(QStringLiteral("cmdCopy"));
    copy->setAutoDefault(false);
    copy->setMinimumHeight(sizes::kClicked);
    connect(copy, &QPushButton::clicked, this, [this] {
        QApplication::clipboard()->setText(text_->text());
        ShowToast(*window(), Q(Text(913243_text)));
    });
    row->addWidget(copy);
}

void CommandBar::Show(const std::vector<std::string>& words) {
    const QString text = words.empty() ? QString() : Q(CommandText(words));
    if (text_->text() == text) return;
    text_->setText(text);
    text_->setCursorPosition(0);
}

}  // namespace lithmark
