// PaneKeys: F6 and Shift+F6 go from one part of a window to the next, and to where the focus was in it. A part is what
// scrolls or what was made one; the rest of the window, its buttons, is one more.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QWidget;

namespace lithmark {

class PaneKeys : public QObject {
  public:
    // The keys of a window.
    explicit PaneKeys(QWidget& window);

    static void MakePane(QWidget& widget);

  private:
    void Go(int by);

    QWidget& window_;
    QHash<const QWidget*, QPointer<QWidget>> last_;  // what had the focus in each part
};

}  // namespace lithmark
