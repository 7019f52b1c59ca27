#include "desktop/BoxMark.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
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

// The sign inside the box, and its frame, in the colour of errors of light or dark windows.
class MarkSign : public QAction {
  public:
    explicit MarkSign(QLineEdit& box) : QAction(&box), box_(box) {
        setObjectName(QString::fromLatin1(kSignName));
        Paint();
        box.addAction(this, QLineEdit::TrailingPosition);
        qApp->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) Paint();
        return QAction::eventFilter(watched, event);
    }

  private:
    // A box with a frame of its own is told of no change of colours: the program is.
    void Paint() {
        const QColor colour = ColourOf(Ink::Error, ThemeOf(QApplication::palette()));
        if (colour == colour_) return;
        colour_ = colour;
        setIcon(Exclamation(colour, box_.devicePixelRatioF()));
        box_.setStyleSheet(QStringLiteral("QLineEdit { border: 2px solid %1; }").arg(colour.name()));
    }

    QLineEdit& box_;
    QColor colour_;
};

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
    if (sign == nullptr) new MarkSign(box);
    box.setToolTip(Q(reason));
}

}  // namespace lithmark
