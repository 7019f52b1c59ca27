// Cells of a table for people who hear them.
#pragma once

#include <QString>

class QTableWidget;

namespace lithmark {

// "Row 3, Time [days], 4.5": the row, the head of the column, and what the cell says.
QString CellInWords(const QTableWidget& table, int row, int column, const QString& says);
// Every cell of a table says its own text.
void SayCells(QTableWidget& table);

}  // namespace lithmark
