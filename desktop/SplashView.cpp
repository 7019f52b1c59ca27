#include "desktop/SplashView.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QScreen>

#include "render/drawings/Logo.h"

namespace lithmark {

SplashView::SplashView(Form& form)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), form_(form) {
    setObjectName(QStringLiteral("frmSplash"));
    setFixedSize(520, 300);
    setFocusPolicy(Qt::StrongFocus);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    qApp->installEventFilter(this);
}

SplashView::~SplashView() {
    qApp->removeEventFilter(this);
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
    // One under another; a long line takes as many lines as it needs.
    int y = 46;
    const auto line = [&](double size, bool bold, const QColor& color, int gap, const QString& words) {
        QFont font = painter.font();
        font.setPointSizeF(size);
        font.setBold(bold);
        painter.setFont(font);
        painter.setPen(color);
        const QRect place(190, y + gap, width() - 210, height());
        QRect used;
        painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, words, &used);
        y = used.bottom() + 1;
    };
    const QColor soft(0xB9, 0xCC, 0xDD);
    line(24, true, Qt::white, 0, text("Label1"));
    line(10, false, soft, 4, text("lblPlatform"));
    line(10, false, Qt::white, 20, text("lblVersion"));
    line(8.5, false, soft, 14, text("Label3"));
    line(8.5, false, soft, 6, text("Label4"));
    line(8.5, false, soft, 6, text("Label5"));
}

// Every control of the splash takes a click as the wish to go on.
void SplashView::Dismiss() {
    hide();
    if (const Control* logo = form_.Find("imgLogo"); logo && logo->OnClick) logo->OnClick();
}

void SplashView::mousePressEvent(QMouseEvent*) {
    Dismiss();
}

bool SplashView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !isVisible()) return QWidget::eventFilter(watched, event);
    Dismiss();
    return true;
}

}  // namespace lithmark
