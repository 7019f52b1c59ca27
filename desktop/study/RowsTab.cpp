#include "desktop/study/RowsTab.h"

#include <QBoxLayout>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

#include "desktop/study/StudySubject.h"
#include "render/QtText.h"
#include "render/drawings/Inks.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::size_t kMostRowsShown = 2000;

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
        item->setText((column == 0 && shown.Crossed ? QStringLiteral("× ") : QString()) + Q(shown.Cells[place]));
        item->setTextAlignment(words ? Qt::Alignment(Qt::AlignVCenter | Qt::AlignLeading)
                                     : Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
        item->setFont(font);
        item->setToolTip(words ? item->text() : QString());
        item->setData(Qt::AccessibleTextRole,
                      Q(Text(906538_text, {{"|1", std::to_string(row + 1)}, {"|2", rows.Heads[place]}}) + ", " +
                        shown.Cells[place]));
    }
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
