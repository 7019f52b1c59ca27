#include "desktop/FormKeys.h"

#include <QAbstractButton>
#include <QShortcut>

#include "desktop/FormView.h"
#include "ui/model/FindField.h"

namespace lithmark {

namespace {

struct KeyOf {
    const char* Button;
    QKeySequence Keys;
};

}  // namespace

void BindKeys(FormView& view) {
    const KeyOf keys[] = {
        {"cmdSave", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {"cmdSaveAs", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
        {"cmdOpen", QKeySequence(Qt::CTRL | Qt::Key_O)},
        {"cmdPrinter", QKeySequence(Qt::CTRL | Qt::Key_P)},
        {"cmdResult", QKeySequence(Qt::CTRL | Qt::Key_Return)},
        {"cmdResult", QKeySequence(Qt::CTRL | Qt::Key_Enter)},
    };
    for (const KeyOf& key : keys) {
        auto* button = view.findChild<QAbstractButton*>(QString::fromLatin1(key.Button));
        if (button == nullptr) continue;
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
