#include "desktop/ScreenRoom.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "desktop/Sizes.h"

namespace lithmark {

QSize ScreenRoom(const QWidget& window) {
    const QSize free = window.screen()->availableGeometry().size();
    const QSize share = free * sizes::kScreenShare;
    return {share.width(), std::min(share.height(), free.height() - sizes::kTitleBar)};
}

bool OnSmallScreen(const QWidget& window) {
    return window.screen()->availableGeometry().height() < sizes::kSmallScreen;
}

bool KeepsOnScreen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched->isWidgetType()) {
        auto& window = static_cast<QWidget&>(*watched);
        const bool framed = window.windowType() == Qt::Window || window.windowType() == Qt::Dialog;
        if (framed && !window.isMaximized() && !window.isFullScreen())
            window.resize(window.size().boundedTo(ScreenRoom(window)));
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace lithmark
