// PictureView: a picture of a form as the drawing that it names, or else its file. Not mirrored in any language. A
// drawing follows the form's values; a click on one of its numbers leads to the number's box.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/Sizes.h"
#include "render/drawings/DrawnForm.h"
#include "render/drawings/Sketch.h"

namespace lithmark {

class PictureView : public QWidget {
  public:
    PictureView(const Control& control, QWidget* parent);
    QSize sizeHint() const override { return {sizes::kPictureGoodWidth, sizes::kPictureGoodHeight}; }

    // The values may have changed.
    void Follow();
    // A number of the drawing was clicked; may be empty.
    std::function<void(const Control& box)> OnPick;
    // The numbers as they were painted last.
    const std::vector<DrawnNumber>& Numbers() const noexcept { return numbers_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    const Control* BoxAt(const QPointF& place) const;

    const Control& control_;
    DrawnForm drawn_;
    std::vector<DrawnNumber> numbers_;
    double scale_ = 0;
    std::string variant_;
};

}  // namespace lithmark
