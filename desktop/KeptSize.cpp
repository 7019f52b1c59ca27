#include "desktop/KeptSize.h"

#include <QEvent>
#include <QWidget>
#include <optional>

#include "files/CommonStep.h"
#include "services/ListTools.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

const std::string kSizesSection = "Windows";

FormPosition PlaceOf(const QWidget& window) {
    const QRect place = window.isMaximized() ? window.normalGeometry() : window.geometry();
    return {place.left(), place.top(), place.width(), place.height(), window.isMaximized()};
}

bool SameSize(const FormPosition& a, const FormPosition& b) {
    return a.Width == b.Width && a.Height == b.Height && a.Maximized == b.Maximized;
}

// Goes with its window.
class SizeKeeper : public QObject {
  public:
    explicit SizeKeeper(QWidget& window) : QObject(&window), window_(window) { window.installEventFilter(this); }

    // The window has become another size by itself.
    void Follow(const QSize& before) {
        if (!opened_) return;
        opened_->Width += window_.width() - before.width();
        opened_->Height += window_.height() - before.height();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!event->spontaneous() && event->type() == QEvent::Show) opened_ = PlaceOf(window_);
        if (!event->spontaneous() && event->type() == QEvent::Hide) Keep();
        return QObject::eventFilter(watched, event);
    }

  private:
    void Keep() {
        const FormPosition left = PlaceOf(window_);
        if (!opened_ || SameSize(*opened_, left)) return;
        const std::string name = window_.objectName().toStdString();
        PassingOverErrors([&] { ListTools().SaveFormPosition(name, left, kApplicationTitle, kSizesSection); });
    }

    QWidget& window_;
    std::optional<FormPosition> opened_;
};

}  // namespace

void ResizeForContent(QWidget& window, const QSize& size) {
    const QSize before = window.size();
    window.resize(size);
    for (QObject* child : window.children())
        if (auto* keeper = dynamic_cast<SizeKeeper*>(child)) keeper->Follow(before);
}

// Where it stands is the desktop's choice.
void KeepSize(QWidget& window) {
    const std::string name = window.objectName().toStdString();
    if (const auto kept = ListTools().LoadFormPosition(name, kApplicationTitle, kSizesSection)) {
        window.resize(kept->Width, kept->Height);
        if (kept->Maximized) window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
    new SizeKeeper(window);
}

}  // namespace lithmark
