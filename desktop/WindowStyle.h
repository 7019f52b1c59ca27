// WindowStyle: Fusion with edges that are seen, in light and dark windows.
#pragma once

#include <QProxyStyle>

namespace lithmark {

class WindowStyle : public QProxyStyle {
  public:
    WindowStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
};

}  // namespace lithmark
