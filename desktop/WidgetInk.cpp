#include "desktop/WidgetInk.h"

#include <QEvent>
#include <QWidget>

namespace lithmark {

namespace {

// Held by its widget.
class InkKeeper : public QObject {
  public:
    InkKeeper(QWidget& widget, Ink ink, QPalette::ColorRole role)
        : QObject(&widget), widget_(widget), role_(role), ink_(ink) {
        setObjectName(QStringLiteral("inkKeeper"));
        widget.installEventFilter(this);
        Apply();
    }
    void Set(Ink ink) {
        ink_ = ink;
        Apply();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) Apply();
        return QObject::eventFilter(watched, event);
    }

  private:
    // A palette that is set changes it again, to what it is.
    void Apply() {
        QPalette palette = widget_.palette();
        const QColor colour = ColourOf(ink_, ThemeOf(palette));
        if (palette.color(QPalette::Active, role_) == colour) return;
        palette.setColor(role_, colour);
        widget_.setPalette(palette);
    }

    QWidget& widget_;
    const QPalette::ColorRole role_;
    Ink ink_;
};

}  // namespace

void SetInk(QWidget& widget, Ink ink, QPalette::ColorRole role) {
    QObject* keeper = widget.findChild<QObject*>(QStringLiteral("inkKeeper"), Qt::FindDirectChildrenOnly);
    if (keeper != nullptr)
        static_cast<InkKeeper*>(keeper)->Set(ink);
    else
        new InkKeeper(widget, ink, role);
}

}  // namespace lithmark
