#include "desktop/PageTools.h"

#include <QLabel>
#include <QPushButton>

#include "services/LanguageTexts.h"

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

QPushButton* PageButton(QWidget* parent, const QString& text, int height) {
    auto* button = new QPushButton(text, parent);
    // The style tears icon and words apart in a mirrored button.
    button->setLayoutDirection(Qt::LeftToRight);
    button->setIconSize({height / 2, height / 2});
    button->setMinimumHeight(height);
    return button;
}

void MakeQuiet(QLabel& label) {
    QPalette palette = label.palette();
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.7F);
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
}

QString PlainCaption(const std::string& caption) {
    QString text = QString::fromStdString(caption);
    return text.remove(QLatin1Char('&'));
}

}  // namespace lithmark
