#include "desktop/FormKeys.h"

#include <QPushButton>
#include <QShortcut>

#include "desktop/FormView.h"
#include "desktop/PaneKeys.h"
#include "ui/model/FindField.h"

namespace lithmark {

namespace {

struct KeyOf {
    const char* Button;
    QKeySequence Keys;
    const char* Unless = nullptr;  // a button to which the keys belong where there is one
};

}  // namespace

void BindKeys(FormView& view) {
    new PaneKeys(view);
    // Enter on a button clicks it; on those that the layout added, too.
    for (QPushButton* button : view.findChildren<QPushButton*>()) button->installEventFilter(&view);
    const KeyOf keys[] = {
        {"cmdSave", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {"cmdSaveAs", QKeySequence(Qt::CTRL | Qt::Key_S), "cmdSave"},
        {"cmdSaveAs", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
        {"cmdOpen", QKeySequence(Qt::CTRL | Qt::Key_O)},
        {"cmdPrinter", QKeySequence(Qt::CTRL | Qt::Key_P)},
        {"cmdPrint", QKeySequence(Qt::CTRL | Qt::Key_P)},
        {"cmdCopy", QKeySequence(Qt::CTRL | Qt::Key_C)},
        {"cmdResult", QKeySequence(Qt::CTRL | Qt::Key_Return)},
        {"cmdResult", QKeySequence(Qt::CTRL | Qt::Key_Enter)},
    };
    const auto named = [&view](const char* name) {
        return name != nullptr ? view.findChild<QAbstractButton*>(QString::fromLatin1(name)) : nullptr;
    };
    for (const KeyOf& key : keys) {
        QAbstractButton* button = named(key.Button);
        if (button == nullptr || named(key.Unless) != nullptr) continue;
        auto* shortcut = new QShortcut(key.Keys, &view);
        QObject::connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
        if (button->toolTip().isEmpty()) button->setToolTip(key.Keys.toString(QKeySequence::NativeText));
    }
}

QWidget* FirstStop(FormView& view) {
    QWidget* first = nullptr;
    for (QWidget* stop = view.nextInFocusChain(); stop != &view; stop = stop->nextInFocusChain()) {
        if ((stop->focusPolicy() & Qt::TabFocus) != Qt::TabFocus || !stop->isVisibleTo(&view) || !stop->isEnabled())
            continue;
        const Control* control = view.Model().Find(stop->objectName().toStdString());
        if (control == nullptr) continue;
        const FieldRow* row = FindField(view.Model(), *control);
        if (row != nullptr && row->Field.Exists()) return stop;
        if (first == nullptr) first = stop;
    }
    return first;
}

}  // namespace lithmark
