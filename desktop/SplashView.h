// SplashView: the program's name and version while it starts. A key or a click sends it away.
#pragma once

#include <QWidget>

#include "services/host/Form.h"

namespace lithmark {

class SplashView : public QWidget {
  public:
    explicit SplashView(Form& form);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Dismiss();

    Form& form_;
};

}  // namespace lithmark
