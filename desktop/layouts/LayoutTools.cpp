#include "desktop/layouts/LayoutTools.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "desktop/FormView.h"
#include "desktop/Sizes.h"

namespace lithmark {

namespace {

using namespace sizes;

// What takes a line by itself reaches to the units, so that no group has a column that others lack.
enum Column { kLabel, kSymbol, kBox, kUnit, kBeside };
constexpr int kWholeLine = kUnit + 1;

void PlaceBox(FormView& view, QGridLayout& grid, int line, const FieldRow& row) {
    QWidget* box = view.Place(row.Box);
    box->setMinimumWidth(kBoxWidth);
    auto* edit = dynamic_cast<QLineEdit*>(box);
    if (edit != nullptr && row.Field.Exists()) {
        edit->setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
        edit->setFixedWidth(kBoxWidth);
        // Numbers run from left to right in every language.
        edit->setLayoutDirection(Qt::LeftToRight);
    }
    if (row.In.On != nullptr || (row.Field.Exists() && row.Beside == nullptr)) {
        grid.addWidget(box, line, kBox);
        if (row.In.On != nullptr) grid.addWidget(view.Place(*row.In.On), line, kUnit);
        if (row.Beside != nullptr) grid.addWidget(view.Place(*row.Beside), line, kBeside);
        return;
    }
    // Words have the rest of the line, with what follows them.
    auto* rest = new QHBoxLayout;
    rest->setSpacing(kColumnGap);
    rest->addWidget(box, 1);
    if (row.Beside != nullptr) rest->addWidget(view.Place(*row.Beside));
    const int from = row.Symbol.On == nullptr ? kSymbol : kBox;
    grid.addLayout(rest, line, from, 1, kWholeLine - from);
}

void AddFieldLine(FormView& view, QGridLayout& grid, const FieldRow& row) {
    const int line = grid.rowCount();
    QLabel* label = nullptr;
    if (row.Label.On != nullptr) {
        label = &view.Place<QLabel>(*row.Label.On);
        grid.addWidget(label, line, kLabel);
    }
    if (row.Symbol.On != nullptr) {
        auto& symbol = view.Place<QLabel>(*row.Symbol.On);
        QFont font = symbol.font();
        font.setItalic(true);
        symbol.setFont(font);
        grid.addWidget(&symbol, line, kSymbol, Qt::AlignCenter);
    }
    PlaceBox(view, grid, line, row);
    if (label != nullptr) label->setBuddy(view.WidgetOf(row.Box));
}

}  // namespace

QGridLayout* FieldGrid(QWidget* group) {
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(kGroupPad, kGroupPad, kGroupPad, kGroupPad);
    grid->setColumnStretch(kLabel, 1);
    grid->setHorizontalSpacing(kColumnGap);
    grid->setVerticalSpacing(kRowGap);
    return grid;
}

void AddLines(FormView& view, const FieldForm* form, QGridLayout& grid, const ControlList& controls) {
    for (Control* control : controls) {
        if (const FieldRow* row = form != nullptr ? form->RowOf(*control) : nullptr) {
            grid.setColumnMinimumWidth(kSymbol, kSymbolWidth);
            grid.setColumnMinimumWidth(kUnit, kUnitWidth);
            AddFieldLine(view, grid, *row);
            continue;
        }
        // A button is as wide as its words; everything else takes the line.
        const Qt::Alignment at = control->Kind == ControlKind::Button ? Qt::AlignLeft : Qt::Alignment();
        grid.addWidget(view.Place(*control), grid.rowCount(), 0, 1, kWholeLine, at);
    }
}

void AddLabelled(FormView& view, QGridLayout& grid, Control& label, Control& box) {
    const int line = grid.rowCount();
    auto& words = view.Place<QLabel>(label);
    QWidget* widget = view.Place(box);
    words.setBuddy(widget);
    grid.addWidget(&words, line, 0);
    grid.addWidget(widget, line, 1);
}

void FillGroup(FormView& view, const FieldForm& form, FrameBox& frame, const ControlList& controls) {
    AddLines(view, &form, *FieldGrid(view.WidgetOf(frame)), controls);
}

void FillGroup(FormView& view, FrameBox& frame, const ControlList& controls) {
    AddLines(view, nullptr, *FieldGrid(view.WidgetOf(frame)), controls);
}

QVBoxLayout* WindowColumn(FormView& view) {
    auto* column = new QVBoxLayout(&view);
    column->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    column->setSpacing(kEdge);
    return column;
}

QBoxLayout* ButtonRow(FormView& view, const ControlList& begin, const ControlList& end) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kColumnGap);
    for (Control* button : begin) row->addWidget(view.Place(*button));
    row->addStretch(1);
    for (Control* button : end) row->addWidget(view.Place(*button));
    return row;
}

}  // namespace lithmark
