#include "desktop/PageTools.h"

#include <QBoxLayout>
#include <QLabel>
#include <cmath>

#include "desktop/Sizes.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

QLabel* PageLabel(QWidget* parent, const QString& text, double size, bool bold) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    // Latin names stand at the side where the language begins, too.
    label->setAlignment((LanguageTexts().RightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                        Qt::AlignVCenter);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

PageButton::PageButton(QWidget* parent, int height, bool centred)
    : QPushButton(parent),
      picture_(new QLabel(this)),
      caption_(PageLabel(this, {}, 1, false)),
      detail_(PageLabel(this, {}, 1, false)),
      size_(height / 2) {
    setMinimumHeight(height);
    setFlat(!centred);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(sizes::kEdge, 4, sizes::kEdge, 4);
    row->setSpacing(sizes::kColumnGap);
    if (centred) row->addStretch(1);
    row->addWidget(picture_);
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(caption_);
    words->addWidget(detail_);
    row->addLayout(words);
    row->addStretch(1);
    if (!centred) {
        QFont font = caption_->font();
        font.setBold(true);
        caption_->setFont(font);
    }
    MakeQuiet(*detail_);
    detail_->hide();
    for (QLabel* label : {picture_, caption_, detail_}) label->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PageButton::Show(const QIcon& icon, const QString& caption, const QString& detail) {
    SetIcon(icon);
    caption_->setText(caption);
    detail_->setText(detail);
    detail_->setVisible(!detail.isEmpty());
    setAccessibleName(caption);
    setAccessibleDescription(detail);
}

void PageButton::SetIcon(const QIcon& icon) {
    picture_->setPixmap(icon.pixmap(size_));
}

QSize PageButton::sizeHint() const {
    return layout()->sizeHint().expandedTo(minimumSize());
}

// By its role, so that it follows the palette.
void MakeQuiet(QLabel& label) {
    label.setForegroundRole(QPalette::PlaceholderText);
}

QString PlainCaption(const std::string& caption) {
    QString text = QString::fromStdString(caption);
    return text.remove(QLatin1Char('&'));
}

QString PlainNumber(double value) {
    constexpr int kDigits = 6;
    constexpr double kCounted = 1e9;  // a count up to here has all its digits
    if (value == std::round(value) && std::fabs(value) < kCounted) return QString::number(std::llround(value));
    return QString::number(value, 'g', kDigits).replace(QLatin1Char('.'), QLatin1Char(SharedServices().DecimalSign));
}

}  // namespace lithmark
