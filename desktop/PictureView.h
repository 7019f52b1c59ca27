// PictureView: the drawing beside a problem's fields, by vectors. Not mirrored in any language.
#pragma once

#include <QWidget>

#include "services/host/Form.h"

namespace lithmark {

class PictureView : public QWidget {
  public:
    PictureView(const Form& form, const Control& control, QWidget* parent);
    QSize sizeHint() const override { return {340, 300}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Form& form_;
    const Control& control_;
};

}  // namespace lithmark
