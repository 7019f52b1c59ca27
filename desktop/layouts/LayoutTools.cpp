#include "desktop/layouts/LayoutTools.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "desktop/FormView.h"

namespace lithmark {

namespace {

// One width for all boxes and one for all units, so that they stand under each other from group to group.
constexpr int kBoxWidth = 120, kUnitWidth = 64;

}  // namespace

void AddFieldLines(FormView& view, QGridLayout& grid, std::initializer_list<FieldLine> lines) {
    int row = grid.rowCount();
    for (const FieldLine& line : lines) {
        QWidget* box = view.WidgetOf(line.Box);
        if (!box) continue;
        if (line.Label) {
            auto* label = qobject_cast<QLabel*>(view.WidgetOf(line.Label));
            if (label) {
                label->setBuddy(box);
                grid.addWidget(label, row, 0);
            }
        }
        if (line.Symbol) {
            if (auto* symbol = qobject_cast<QLabel*>(view.WidgetOf(line.Symbol))) {
                QFont font = symbol->font();
                font.setItalic(true);
                symbol->setFont(font);
                grid.addWidget(symbol, row, 1, Qt::AlignCenter);
            }
        }
        if (auto* edit = qobject_cast<QLineEdit*>(box)) {
            edit->setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
            edit->setFixedWidth(kBoxWidth);
            // Numbers run from left to right in every language.
            edit->setLayoutDirection(Qt::LeftToRight);
        }
        grid.addWidget(box, row, 2);
        if (line.Unit)
            if (QWidget* unit = view.WidgetOf(line.Unit)) {
                unit->setMinimumWidth(kUnitWidth);
                grid.addWidget(unit, row, 3);
            }
        ++row;
    }
    grid.setColumnStretch(0, 1);
    grid.setHorizontalSpacing(10);
    grid.setVerticalSpacing(6);
}

QGroupBox* FieldGroup(FormView& view, const char* frame, std::initializer_list<FieldLine> lines) {
    auto* group = qobject_cast<QGroupBox*>(view.WidgetOf(frame));
    auto* grid = new QGridLayout(group);
    AddFieldLines(view, *grid, lines);
    return group;
}

QGroupBox* StackGroup(FormView& view, const char* frame, std::initializer_list<const char*> controls) {
    auto* group = qobject_cast<QGroupBox*>(view.WidgetOf(frame));
    auto* stack = new QVBoxLayout(group);
    for (const char* name : controls)
        if (QWidget* widget = view.WidgetOf(name)) stack->addWidget(widget);
    return group;
}

QBoxLayout* ButtonRow(FormView& view, std::initializer_list<const char*> begin,
                      std::initializer_list<const char*> end) {
    auto* row = new QHBoxLayout;
    for (const char* name : begin)
        if (QWidget* widget = view.WidgetOf(name)) row->addWidget(widget);
    row->addStretch(1);
    for (const char* name : end)
        if (QWidget* widget = view.WidgetOf(name)) row->addWidget(widget);
    return row;
}

}  // namespace lithmark
