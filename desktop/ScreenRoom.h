// What a window may take of its screen.
#pragma once

#include <QObject>
#include <QSize>

class QWidget;

namespace lithmark {

QSize ScreenRoom(const QWidget& window);
// So little that what stands under each other elsewhere stands beside each other, or behind tabs.
bool OnSmallScreen(const QWidget& window);

// Watches the application: no window is shown larger than its screen has room for.
class KeepsOnScreen : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace lithmark
