// On a button Enter clicks it, in every window and whatever its default button is.
#pragma once

#include <QObject>

namespace lithmark {

// Watches the application.
class EnterClicks : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace lithmark
