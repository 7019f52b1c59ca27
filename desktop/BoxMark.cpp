#include "desktop/BoxMark.h"

#include <QAction>
#include <QIcon>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>

#include "render/QtText.h"
#include "render/drawings/Inks.h"

namespace lithmark {

namespace {

constexpr int kSign = 16;
const char* const kSignName = "mark";

QIcon Exclamation(const QColor& colour, double ratio) {
    QPixmap sign(QSize(kSign, kSign) * ratio);
    sign.setDevicePixelRatio(ratio);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setPen(colour);
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(kSign - 2);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, kSign, kSign), Qt::AlignCenter, QStringLiteral("!"));
    return QIcon(sign);
}

}  // namespace

void ShowMark(QLineEdit& box, const std::string& reason) {
    auto* sign = box.findChild<QAction*>(QString::fromLatin1(kSignName));
    if (reason.empty()) {
        if (sign == nullptr) return;
        box.removeAction(sign);
        delete sign;
        box.setStyleSheet({});
        box.setToolTip({});
        return;
    }
    if (sign == nullptr) {
        const QColor colour = ColourOf(Ink::Error, ThemeOf(box.palette()));
        sign = new QAction(Exclamation(colour, box.devicePixelRatioF()), QString(), &box);
        sign->setObjectName(QString::fromLatin1(kSignName));
        box.addAction(sign, QLineEdit::TrailingPosition);
        box.setStyleSheet(QStringLiteral("QLineEdit { border: 2px solid %1; }").arg(colour.name()));
    }
    box.setToolTip(Q(reason));
}

}  // namespace lithmark
