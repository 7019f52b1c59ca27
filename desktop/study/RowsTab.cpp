#include "desktop/study/RowsTab.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QTableWidget>

#include "desktop/CellWords.h"
#include "desktop/NumberCells.h"
#include "desktop/Toast.h"
#include "desktop/study/StudySubject.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::size_t kMostRowsShown = 2000;
constexpr int kPlain = Qt::UserRole;  // what a cell holds, without the sign of a crossing

}  // namespace

RowsTab::RowsTab(QWidget* parent)
    : QWidget(parent), note_(WordsLabel(this, "lblTable", 1)), rows_(new QTableWidget(this)) {
    auto* column = new QVBoxLayout(this);
    note_->hide();
    column->addWidget(note_);
    rows_->setObjectName(QStringLiteral("rows"));
    rows_->setAccessibleName(Q(Text(913228_text)));
    rows_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows_->verticalHeader()->hide();
    rows_->setSelectionMode(QAbstractItemView::ContiguousSelection);
    // The Tab key goes on to the buttons, and does not walk through the cells.
    rows_->setTabKeyNavigation(false);
    auto* copy = new QShortcut(QKeySequence::Copy, rows_);
    copy->setContext(Qt::WidgetWithChildrenShortcut);
    connect(copy, &QShortcut::activated, this, [this] { Copy(); });
    rows_->setItemDelegate(new NumberCells(rows_));
    column->addWidget(rows_, 1);
}

void RowsTab::ShowRows(const StudyQuestion& asked, const StudyTable& table) {
    const ShownRows rows = RowsOf(asked, table, kMostRowsShown);
    const std::size_t all = table.Lines().size();
    note_->setText(Q(Text(913254_text, {{"|1", std::to_string(kMostRowsShown)}, {"|2", std::to_string(all)}})));
    note_->setVisible(all > kMostRowsShown);
    QStringList heads;
    for (const std::string& head : rows.Heads) heads.append(Q(head));
    rows_->setColumnCount(static_cast<int>(rows.Heads.size()));
    rows_->setHorizontalHeaderLabels(heads);
    rows_->setRowCount(static_cast<int>(rows.Rows.size()));
    kinds_.clear();
    for (const ShownRows::Row& row : rows.Rows) kinds_.push_back(row.Is);
    for (int row = 0; row < rows_->rowCount(); ++row) ShowRow(row, rows);
    ShowInks();
    rows_->resizeColumnsToContents();
}

void RowsTab::ShowRow(int row, const ShownRows& rows) {
    const ShownRows::Row& shown = rows.Rows[static_cast<std::size_t>(row)];
    QFont font = rows_->font();
    font.setBold(shown.Crossed);
    for (int column = 0; column < rows_->columnCount(); ++column) {
        const auto place = static_cast<std::size_t>(column);
        const bool words = column >= rows_->columnCount() - 2;
        QTableWidgetItem* item = rows_->item(row, column);
        if (item == nullptr) {
            item = new QTableWidgetItem;
            rows_->setItem(row, column, item);
        }
        item->setData(kPlain, Q(shown.Cells[place]));
        item->setText((column == 0 && shown.Crossed ? QStringLiteral("× ") : QString()) + Q(shown.Cells[place]));
        item->setTextAlignment(words ? Qt::Alignment(Qt::AlignVCenter | Qt::AlignLeading)
                                     : Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
        item->setFont(font);
        const QString crossed = shown.Crossed ? Q(Text(913651_text)) : QString();
        const bool notices = column == rows_->columnCount() - 1 && !shown.Notices.empty();
        item->setToolTip(!words    ? crossed
                         : notices ? item->text() + QLatin1Char('\n') + Q(shown.Notices)
                                   : item->text());
        const QString said = CellInWords(*rows_, row, column, Q(shown.Cells[place]));
        item->setData(Qt::AccessibleTextRole, crossed.isEmpty() ? said : said + QStringLiteral(", ") + crossed);
    }
}

// As a spreadsheet takes it; several rows with their heads.
void RowsTab::Copy() {
    const auto ranges = rows_->selectedRanges();
    if (ranges.isEmpty()) return;
    const QTableWidgetSelectionRange& at = ranges.front();
    QString text;
    const auto add = [&](const auto& cell) {
        for (int column = at.leftColumn(); column <= at.rightColumn(); ++column)
            text += cell(column) + QLatin1Char(column < at.rightColumn() ? '\t' : '\n');
    };
    if (at.rowCount() > 1) add([this](int column) { return rows_->horizontalHeaderItem(column)->text(); });
    for (int row = at.topRow(); row <= at.bottomRow(); ++row)
        add([this, row](int column) { return rows_->item(row, column)->data(kPlain).toString(); });
    QApplication::clipboard()->setText(text);
    ShowToast(*window(), Q(Text(910214_text)));
}

void RowsTab::ShowInks() {
    const Theme theme = ThemeOf(palette());
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const ShownRows::Kind kind = kinds_[static_cast<std::size_t>(row)];
        const QBrush ink = kind == ShownRows::Kind::Aborted   ? QBrush(ColourOf(Ink::Error, theme))
                           : kind == ShownRows::Kind::Noticed ? QBrush(ColourOf(Ink::Warning, theme))
                                                              : QBrush();
        for (int column = 0; column < rows_->columnCount(); ++column) rows_->item(row, column)->setForeground(ink);
    }
}

void RowsTab::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) ShowInks();
}

}  // namespace lithmark
