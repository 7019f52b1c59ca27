// Pause: does something once, when nothing has started it anew for a while.
#pragma once

#include <QTimer>
#include <functional>
#include <utility>

namespace lithmark {

class Pause : public QTimer {
  public:
    Pause(int milliseconds, std::function<void()> then) {
        setSingleShot(true);
        setInterval(milliseconds);
        callOnTimeout(this, std::move(then));
    }
};

}  // namespace lithmark
