#include "desktop/PageTools.h"

#include <QLabel>

namespace lithmark {

QLabel* PageLabel(QWidget* parent, const QString& text, double size, bool bold) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(bold);
    label->setFont(font);
    return label;
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
