// PictureView: a picture of a form as the drawing that it names, or else its file. Not mirrored in any language.
#pragma once

#include <QWidget>

#include "services/host/Form.h"

namespace lithmark {

class PictureView : public QWidget {
  public:
    PictureView(const Control& control, QWidget* parent);
    QSize sizeHint() const override { return {340, 300}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Control& control_;
};

}  // namespace lithmark
