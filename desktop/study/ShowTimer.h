// ShowTimer: shows what comes row by row, often where that is quick and seldom where it takes long, so that a window
// never lags behind.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <functional>

namespace lithmark {

class ShowTimer : public QTimer {
  public:
    explicit ShowTimer(std::function<void()> show) {
        setSingleShot(true);
        setInterval(kLeast);
        callOnTimeout(this, [this, show = std::move(show)] {
            QElapsedTimer took;
            took.start();
            show();
            constexpr qint64 kShare = 5, kMost = 3000;
            setInterval(static_cast<int>(std::clamp(kShare * took.elapsed(), qint64{kLeast}, kMost)));
        });
    }
    // Something has come.
    void Came() {
        if (!isActive()) start();
    }

  private:
    static constexpr int kLeast = 80;  // ms
};

}  // namespace lithmark
