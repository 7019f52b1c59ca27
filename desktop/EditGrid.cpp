#include "desktop/EditGrid.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QShortcut>
#include <algorithm>

#include "desktop/NumberCells.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

EditGrid::EditGrid(TableEditing& rows, QWidget* parent) : QTableWidget(parent), rows_(rows) {
    setObjectName(QStringLiteral("grid"));
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setColumnCount(rows_.Columns());
    setItemDelegate(new NumberCells(this));
    BindKeys();
    connect(this, &QTableWidget::cellChanged, this, [this](int row, int column) { Typed(row, column); });
    connect(this, &QTableWidget::itemSelectionChanged, this, [this] {
        if (!showing_ && OnSelection) OnSelection();
    });
}

const std::vector<EditGrid::Command>& EditGrid::Commands() {
    static const std::vector<Command> commands = {
        {nullptr, QKeySequence(QKeySequence::Copy), &EditGrid::Copy},
        {"cmdPaste", QKeySequence(QKeySequence::Paste), &EditGrid::Paste},
        {"cmdUndo", QKeySequence(QKeySequence::Undo), &EditGrid::Undo},
        {"cmdRedo", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), &EditGrid::Redo},
        {"cmdAddRow", QKeySequence(Qt::CTRL | Qt::Key_Plus), &EditGrid::InsertRow},
        {"cmdDeleteRow", QKeySequence(Qt::CTRL | Qt::Key_Minus), &EditGrid::DeleteRows},
        {"cmdUp", QKeySequence(Qt::ALT | Qt::Key_Up), &EditGrid::MoveUp},
        {"cmdDown", QKeySequence(Qt::ALT | Qt::Key_Down), &EditGrid::MoveDown},
    };
    return commands;
}

void EditGrid::BindKeys() {
    for (const Command& command : Commands())
        connect(new QShortcut(command.Keys, window()), &QShortcut::activated, this, command.Do);
}

void EditGrid::TellKeys(QWidget& window) {
    for (const Command& command : Commands())
        if (auto* button =
                command.Button == nullptr ? nullptr : window.findChild<QAbstractButton*>(QLatin1String(command.Button)))
            button->setToolTip(command.Keys.toString(QKeySequence::NativeText));
}

EditGrid::Selection EditGrid::Selected() const {
    const auto ranges = selectedRanges();
    if (ranges.isEmpty()) return {currentRow(), currentColumn(), currentRow(), currentColumn()};
    const QTableWidgetSelectionRange& at = ranges.front();
    return {at.topRow(), at.leftColumn(), at.bottomRow(), at.rightColumn()};
}

void EditGrid::ShowRows() {
    showing_ = true;
    setRowCount(rows_.Rows());
    for (int r = 0; r < rows_.Rows(); ++r)
        for (int c = 0; c < rows_.Columns(); ++c) {
            if (item(r, c) == nullptr) setItem(r, c, new QTableWidgetItem);
            item(r, c)->setText(Q(rows_.Cell(r, c)));
            MarkCell(r, c);
        }
    showing_ = false;
    if (OnRows) OnRows();
}

// A cell in error bears a mark and its reason; one that shows fewer digits than its value has is written aslant.
void EditGrid::MarkCell(int row, int column) {
    QTableWidgetItem& cell = *item(row, column);
    const auto fault = rows_.Fault(row, column);
    const bool hides = !fault && rows_.HidesDigits(row, column);
    const QColor ink = ColourOf(Ink::Error, ThemeOf(palette()));
    QColor ground = ink;
    ground.setAlpha(40);
    cell.setBackground(fault ? QBrush(ground) : QBrush());
    cell.setForeground(fault ? QBrush(ink) : QBrush());
    QFont font = cell.font();
    font.setItalic(hides);
    font.setBold(fault.has_value());
    cell.setFont(font);
    cell.setTextAlignment(Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
    cell.setData(Qt::AccessibleTextRole, InWords(row, column));
    cell.setToolTip(Q(fault   ? *fault
                      : hides ? Text(906539_text, {{"|1", rows_.AllDigits(row, column)}})
                              : std::string()));
}

// "Row 3, Time, days, 4.5", and what is wrong with it.
QString EditGrid::InWords(int row, int column) const {
    QStringList words{Q(Text(906538_text, {{"|1", std::to_string(row + 1)}, {"|2", rows_.Title(column)}}))};
    // The unit is the last line of the head.
    const QTableWidgetItem* head = horizontalHeaderItem(column);
    QString unit = head != nullptr ? head->text().section(QLatin1Char('\n'), -1) : QString();
    if (unit != QLatin1String("[-]") && !unit.isEmpty())
        words.append(unit.remove(QLatin1Char('[')).remove(QLatin1Char(']')));
    words.append(Q(rows_.Cell(row, column)));
    if (const auto fault = rows_.Fault(row, column)) words.append(Q(*fault));
    return words.join(QStringLiteral(", "));
}

void EditGrid::Typed(int row, int column) {
    if (showing_ || column >= rows_.Columns()) return;
    rows_.SetCell(row, column, item(row, column)->text().toStdString());
    showing_ = true;
    MarkCell(row, column);
    showing_ = false;
    if (OnRows) OnRows();
}

// The marks are those of light or dark windows.
void EditGrid::changeEvent(QEvent* event) {
    QTableWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    showing_ = true;
    for (int r = 0; r < rowCount(); ++r)
        for (int c = 0; c < rows_.Columns(); ++c) MarkCell(r, c);
    showing_ = false;
}

template <typename Step>
void EditGrid::Change(Step&& step, int row, int column) {
    step();
    ShowRows();
    setCurrentCell(std::clamp(row, 0, rows_.Rows() - 1), std::clamp(column, 0, rows_.Columns() - 1));
    if (OnSelection) OnSelection();
}

void EditGrid::InsertRow() {
    const int row = currentRow() < 0 ? rows_.Rows() : currentRow() + 1;
    Change([&] { rows_.InsertRow(row); }, row, 0);
}

bool EditGrid::CanDelete() const {
    const Selection at = Selected();
    return at.FirstRow >= 0 && at.LastRow - at.FirstRow + 1 < rows_.Rows();
}

void EditGrid::DeleteRows() {
    const Selection at = Selected();
    if (CanDelete()) Change([&] { rows_.DeleteRows(at.FirstRow, at.LastRow); }, at.FirstRow, at.FirstColumn);
}

bool EditGrid::CanMove(int by) const {
    const Selection at = Selected();
    return at.FirstRow >= 0 && at.FirstRow + by >= 0 && at.LastRow + by < rows_.Rows();
}

void EditGrid::MoveRows(int by) {
    if (!CanMove(by)) return;
    const Selection at = Selected();
    Change([&] { rows_.MoveRows(at.FirstRow, at.LastRow, by); }, at.FirstRow + by, at.FirstColumn);
    setRangeSelected({at.FirstRow + by, at.FirstColumn, at.LastRow + by, at.LastColumn}, true);
}

void EditGrid::Undo() {
    if (rows_.CanUndo()) Change([&] { rows_.Undo(); }, currentRow(), currentColumn());
}

void EditGrid::Redo() {
    if (rows_.CanRedo()) Change([&] { rows_.Redo(); }, currentRow(), currentColumn());
}

// What is edited with all its digits, further columns as they are shown.
void EditGrid::Copy() {
    const Selection at = Selected();
    if (at.FirstRow < 0) return;
    QString text;
    const int lastEdited = std::min(at.LastColumn, rows_.Columns() - 1);
    for (int row = at.FirstRow; row <= at.LastRow; ++row) {
        QStringList cells;
        if (at.FirstColumn <= lastEdited)
            cells.append(Q(rows_.Copied(row, at.FirstColumn, row, lastEdited)).chopped(1));  // without its line end
        for (int column = std::max(at.FirstColumn, rows_.Columns()); column <= at.LastColumn; ++column)
            cells.append(item(row, column) == nullptr ? QString() : item(row, column)->text());
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    QApplication::clipboard()->setText(text);
}

void EditGrid::Paste() {
    const Selection at = Selected();
    const std::string text = QApplication::clipboard()->text().toStdString();
    std::string words;
    Change([&] { words = rows_.Paste(std::max(at.FirstRow, 0), std::max(at.FirstColumn, 0), text); }, at.FirstRow,
           at.FirstColumn);
    if (OnPasted) OnPasted(words);
}

// Enter goes on as in a spreadsheet, to the cell below.
void EditGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return setCurrentCell(std::min(currentRow() + 1, rows_.Rows() - 1), currentColumn());
    QTableWidget::keyPressEvent(event);
}

}  // namespace lithmark
