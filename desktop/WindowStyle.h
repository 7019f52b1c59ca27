// WindowStyle: Fusion with edges that are seen, in light and dark windows, and 24 x 24 at least for what is clicked.
#pragma once

#include <QProxyStyle>

namespace lithmark {

class WindowStyle : public QProxyStyle {
  public:
    WindowStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget = nullptr) const override;
};

}  // namespace lithmark
