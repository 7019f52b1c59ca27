#include "desktop/TableEditorDialog.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <cmath>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "render/QtText.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

TableEditorDialog::TableEditorDialog(TableEdit& table, QWidget* parent)
    : QDialog(parent), table_(table), grid_(new QTableWidget(this)) {
    setObjectName(QStringLiteral("tableEditor"));
    setWindowTitle(Q(table.Title));
    setLayoutDirection(LanguageTexts().RightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    grid_->setObjectName(QStringLiteral("grid"));
    grid_->setColumnCount(static_cast<int>(table.Columns.size()));
    for (int c = 0; c < grid_->columnCount(); ++c)
        grid_->setHorizontalHeaderItem(c, new QTableWidgetItem(Q(table.Columns[static_cast<std::size_t>(c)].Head)));
    grid_->setRowCount(static_cast<int>(table.Rows.size()));
    for (int r = 0; r < grid_->rowCount(); ++r)
        for (int c = 0; c < grid_->columnCount(); ++c)
            grid_->setItem(
                r, c, new QTableWidgetItem(Q(table.Rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)])));
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);

    auto* buttons = new QHBoxLayout;
    const auto add = [&](const std::string& caption, const char* name, auto&& slot) {
        auto* button = new QPushButton(Q(caption), this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        buttons->addWidget(button);
        return button;
    };
    add(Text(903013_text), "cmdAddRow", [this] { AddRow(); });
    add(Text(903014_text), "cmdDeleteRow", [this] { DeleteRow(); });
    add(Text(8_text, Style{1}), "cmdHelp", [this] {
        SharedServices().SetHelpText(table_.Help);
        SharedServices().ShowHelpText(table_.Title);
    });
    buttons->addStretch(1);
    add(Text(6_text, Style{1}), "cmdok", [this] { accept(); })->setDefault(true);
    add(Text(7_text, Style{1}), "CmdCancel", [this] { reject(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(grid_, 1);
    column->addLayout(buttons);
    resize(560, 460);
}

bool TableEditorDialog::Run() {
    return exec() == QDialog::Accepted;
}

void TableEditorDialog::AddRow() {
    const int row = grid_->currentRow() < 0 ? grid_->rowCount() : grid_->currentRow() + 1;
    grid_->insertRow(row);
    for (int c = 0; c < grid_->columnCount(); ++c) grid_->setItem(row, c, new QTableWidgetItem(QStringLiteral("0")));
    grid_->setCurrentCell(row, 0);
}

// A table keeps one row at least.
void TableEditorDialog::DeleteRow() {
    if (grid_->rowCount() > 1 && grid_->currentRow() >= 0) grid_->removeRow(grid_->currentRow());
}

bool TableEditorDialog::Check() {
    for (int r = 0; r < grid_->rowCount(); ++r)
        for (int c = 0; c < grid_->columnCount(); ++c) {
            const TableEdit::Column& column = table_.Columns[static_cast<std::size_t>(c)];
            const auto number = ParseNumber(grid_->item(r, c)->text().toStdString(), SharedServices().DecimalSign);
            const bool whole = column.Accepts == TableEdit::Kind::Whole;
            const bool ranged = column.Accepts != TableEdit::Kind::Positive;
            if (number && (!whole || *number == std::floor(*number)) &&
                (!ranged || (*number >= column.Lower && *number <= column.Upper)))
                continue;
            grid_->setCurrentCell(r, c);
            SharedServices().ShowMessageBox(
                table_.Title,
                Text(903015_text, {{"|1", std::to_string(r + 1)}, {"|2", ReplaceAll(column.Head, "\n", " ")}}),
                MessageIcon::Exclamation);
            return false;
        }
    return true;
}

void TableEditorDialog::accept() {
    if (!Check()) return;
    table_.Rows.clear();
    for (int r = 0; r < grid_->rowCount(); ++r) {
        auto& row = table_.Rows.emplace_back();
        for (int c = 0; c < grid_->columnCount(); ++c) row.push_back(grid_->item(r, c)->text().toStdString());
    }
    QDialog::accept();
}

}  // namespace lithmark
