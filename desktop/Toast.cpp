#include "desktop/Toast.h"

#include <QLabel>
#include <QTimer>

#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"

namespace lithmark {

void ShowToast(QWidget& window, const QString& words) {
    constexpr int kStays = 2000;  // milliseconds
    if (auto* former = window.findChild<QLabel*>(QStringLiteral("toast"))) {
        former->setObjectName({});
        former->hide();
        former->deleteLater();
    }
    auto* toast = new QLabel(&window);
    MakeAlert(*toast);
    toast->setText(words);
    toast->setObjectName(QStringLiteral("toast"));
    toast->setAutoFillBackground(true);
    toast->setBackgroundRole(QPalette::Highlight);
    toast->setForegroundRole(QPalette::HighlightedText);
    toast->setMargin(sizes::kGroupPad);
    toast->setAttribute(Qt::WA_TransparentForMouseEvents);
    toast->adjustSize();
    toast->move((window.width() - toast->width()) / 2, window.height() - toast->height() - sizes::kGroupGap);
    toast->show();
    toast->raise();
    SpeakAlert(*toast, words);
    QTimer::singleShot(kStays, toast, &QObject::deleteLater);
}

}  // namespace lithmark
