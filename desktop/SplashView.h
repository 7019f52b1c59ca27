// SplashView: the program's name and version while it starts. A key sends it away, whichever window of the program has
// the focus, and so does a click on it.
#pragma once

#include <QWidget>

#include "services/host/Form.h"

namespace lithmark {

class SplashView : public QWidget {
  public:
    explicit SplashView(Form& form);
    ~SplashView() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Dismiss();

    Form& form_;
};

}  // namespace lithmark
