#include "desktop/SplashView.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include "desktop/Icons.h"

namespace lithmark {

SplashView::SplashView(Form& form)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), form_(form) {
    setObjectName(QStringLiteral("frmSplash"));
    setFixedSize(520, 300);
    setFocusPolicy(Qt::StrongFocus);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void SplashView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), QColor(0x14, 0x2B, 0x3F));
    DrawLogo(painter, QRectF(32, 52, 132, 132));
    painter.setPen(Qt::white);
    const auto text = [&](const char* name) {
        const Control* control = form_.Find(name);
        return control ? QString::fromStdString(control->Caption) : QString();
    };
    const auto line = [&](int y, double size, bool bold, const QColor& color, const QString& words) {
        QFont font = painter.font();
        font.setPointSizeF(size);
        font.setBold(bold);
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(QRect(190, y, width() - 210, 64), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, words);
    };
    const QColor soft(0xB9, 0xCC, 0xDD);
    line(56, 24, true, Qt::white, text("Label1"));
    line(104, 10, false, soft, text("lblPlatform"));
    line(164, 10, false, Qt::white, text("lblVersion"));
    line(200, 8.5, false, soft, text("Label3"));
    line(220, 8.5, false, soft, text("Label4"));
    line(240, 8.5, false, soft, text("Label5"));
}

void SplashView::Dismiss() {
    hide();
    form_.Unload();
}

void SplashView::mousePressEvent(QMouseEvent*) {
    Dismiss();
}

void SplashView::keyPressEvent(QKeyEvent*) {
    Dismiss();
}

}  // namespace lithmark
