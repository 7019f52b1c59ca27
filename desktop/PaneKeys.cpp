#include "desktop/PaneKeys.h"

#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QScrollArea>
#include <QShortcut>
#include <algorithm>
#include <vector>

namespace lithmark {

namespace {

constexpr const char* kPane = "pane";

bool IsStop(const QWidget& widget, const QWidget& window) {
    return widget.window() == &window && widget.isVisibleTo(&window) && widget.isEnabled() &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget.focusProxy() == nullptr;
}

QWidget* PaneOf(QWidget* widget, QWidget& window) {
    QWidget* pane = &window;
    for (QWidget* at = widget; at != nullptr && at != &window; at = at->parentWidget())
        if (at->property(kPane).toBool() || qobject_cast<QAbstractScrollArea*>(at) != nullptr) pane = at;
    return pane;
}

void GiveFocus(QWidget& widget) {
    widget.setFocus(Qt::ShortcutFocusReason);
    for (QWidget* parent = widget.parentWidget(); parent != nullptr; parent = parent->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(parent)) area->ensureWidgetVisible(&widget);
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) box->selectAll();
}

}  // namespace

PaneKeys::PaneKeys(QWidget& window) : QObject(&window), window_(window) {
    for (const auto& [keys, by] : {std::pair(QKeySequence(Qt::Key_F6), 1), {QKeySequence(Qt::SHIFT | Qt::Key_F6), -1}})
        connect(new QShortcut(keys, &window), &QShortcut::activated, this, [this, by = by] { Go(by); });
}

void PaneKeys::MakePane(QWidget& widget) {
    widget.setProperty(kPane, true);
}

void PaneKeys::Go(int by) {
    // The parts in the order of the Tab key, each with its first stop.
    std::vector<std::pair<QWidget*, QWidget*>> panes;
    for (QWidget* stop = window_.nextInFocusChain(); stop != &window_; stop = stop->nextInFocusChain()) {
        if (!IsStop(*stop, window_)) continue;
        QWidget* pane = PaneOf(stop, window_);
        const auto known = [pane](const auto& other) { return other.first == pane; };
        if (std::none_of(panes.begin(), panes.end(), known)) panes.emplace_back(pane, stop);
    }
    if (panes.empty()) return;
    QWidget* from = window_.focusWidget();
    QWidget* here = from != nullptr ? PaneOf(from, window_) : nullptr;
    const auto at = std::find_if(panes.begin(), panes.end(), [here](const auto& pane) { return pane.first == here; });
    const auto count = static_cast<std::ptrdiff_t>(panes.size());
    std::ptrdiff_t next = by > 0 ? 0 : count - 1;
    if (at != panes.end()) {
        last_[here] = from;
        next = (at - panes.begin() + by + count) % count;
    }
    const auto& [pane, first] = panes[static_cast<std::size_t>(next)];
    QWidget* last = last_.value(pane);
    const bool usable = last != nullptr && IsStop(*last, window_) && PaneOf(last, window_) == pane;
    GiveFocus(usable ? *last : *first);
}

}  // namespace lithmark
