#include "desktop/CellWords.h"

#include <QTableWidget>

#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

QString CellInWords(const QTableWidget& table, int row, int column, const QString& says) {
    const QTableWidgetItem* head = table.horizontalHeaderItem(column);
    QString title = head != nullptr ? head->text() : QString();
    title.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return Q(Text(906538_text, {{"|1", std::to_string(row + 1)}, {"|2", title.toStdString()}})) + QStringLiteral(", ") +
           says;
}

void SayCells(QTableWidget& table) {
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < table.columnCount(); ++column)
            if (QTableWidgetItem* item = table.item(row, column))
                item->setData(Qt::AccessibleTextRole, CellInWords(table, row, column, item->text()));
}

}  // namespace lithmark
