// Pictures in words: drawings, charts and plots are graphics with a name and a sentence from the data; so are the cells
// of a table.
#include <QAccessible>
#include <QTableWidget>

#include "EveryWindow.h"
#include "ScreenRun.h"
#include "desktop/ContourView.h"
#include "desktop/RowsChart.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class GraphicTest : public EveryWindow {};

std::string Said(QWidget& widget, QAccessible::Text what) {
    return QAccessible::queryAccessibleInterface(&widget)->text(what).toStdString();
}

TEST_F(GraphicTest, EveryPictureIsAGraphicWithANameAndASentence) {
    std::vector<std::string> failing;
    int seen = 0;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        for (const char* object : {"PctInvertedT", "plot", "legend", "rowsChart", "sectionCurve"})
            for (QWidget* widget : window.findChildren<QWidget*>(QString::fromLatin1(object))) {
                if (!widget->isVisibleTo(&window)) continue;
                ++seen;
                const std::string place = name + ": " + object;
                if (QAccessible::queryAccessibleInterface(widget)->role() != QAccessible::Graphic)
                    failing.push_back(place + " is no graphic");
                if (Said(*widget, QAccessible::Name).empty()) failing.push_back(place + " has no name");
                if (Said(*widget, QAccessible::Description).empty()) failing.push_back(place + " has no sentence");
            }
    });
    EXPECT_THAT(failing, IsEmpty());
    // Ten dialogs, three charts, plot and legend of a raft, a table, in three languages.
    EXPECT_GE(seen, 3 * 16);
}

TEST_F(GraphicTest, ATableSpeaksOfItsRowsAndOfTheirChart) {
    TableEdit table;
    table.Columns = {{"Time\nN\n[days]", TableEdit::Kind::Whole, 32000, 1}, {"Load\nP\n[kN]"}};
    table.Rows = {{"1", "19"}, {"2", "42"}, {"4.5", "83"}};
    TableEditorDialog editor(table, nullptr);
    editor.show();
    auto& grid = Child<QTableWidget>(editor, "grid");
    const auto cell = [&](int row, int column) {
        return QAccessible::queryAccessibleInterface(&grid)
            ->tableInterface()
            ->cellAt(row, column)
            ->text(QAccessible::Name)
            .toStdString();
    };
    EXPECT_EQ(cell(1, 1), "Row 2, Load, kN, 42");
    EXPECT_THAT(cell(2, 0), ::testing::StartsWith("Row 3, Time, days, 4.5, "));
    EXPECT_THAT(cell(2, 0), ::testing::HasSubstr("whole"));
    auto& chart = Child<RowsChart>(editor, "rowsChart");
    EXPECT_EQ(Said(chart, QAccessible::Description), "Load [kN] from 19 to 83; Time [days] from 1 to 4.5");
    grid.item(1, 1)->setText("7");
    EXPECT_EQ(Said(chart, QAccessible::Description), "Load [kN] from 7 to 83; Time [days] from 1 to 4.5");
}

// In every window, and not only in those that edit.
TEST_F(GraphicTest, EveryCellSaysItsRowAndItsColumn) {
    std::vector<std::string> failing;
    int seen = 0;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        for (const auto* table : window.findChildren<QTableWidget*>())
            for (int row = 0; row < table->rowCount(); ++row)
                for (int column = 0; column < table->columnCount(); ++column) {
                    const QTableWidgetItem* cell = table->item(row, column);
                    if (cell == nullptr) continue;
                    ++seen;
                    const std::string begin =
                        Text(906538_text, {{"|1", std::to_string(row + 1)}, {"|2", std::string()}});
                    const std::string said = cell->data(Qt::AccessibleTextRole).toString().toStdString();
                    if (!said.starts_with(begin) || said.size() <= begin.size())
                        failing.push_back(name + ": " + table->objectName().toStdString() + " " + said);
                }
    });
    EXPECT_THAT(failing, IsEmpty());
    EXPECT_GT(seen, 3 * 20);
}

// A load counts from the begin of its time step, until the next one.
TEST_F(GraphicTest, ALoadHistoryIsAStaircase) {
    RowsChart stairs(RowsChart::Kind::Stairs, nullptr), line(RowsChart::Kind::Line, nullptr);
    const std::vector<QPointF> loads = {{1, 19}, {2, 42}, {4, 83}};
    for (RowsChart* chart : {&stairs, &line}) chart->Show(loads, QStringLiteral("t"), QStringLiteral("P"));
    EXPECT_EQ(line.Drawn(), loads);
    EXPECT_THAT(stairs.Drawn(), ElementsAre(QPointF(0, 0), QPointF(0, 19), QPointF(1, 19), QPointF(1, 42),
                                            QPointF(3, 42), QPointF(3, 83), QPointF(4, 83)));
    stairs.Show({}, {}, {});
    EXPECT_THAT(stairs.Drawn(), IsEmpty());

    TableEdit table;
    table.Title = Text(400125_text);
    table.Columns = {{"Time\nN\n[days]"}, {"Load\nP\n[kN]"}};
    table.Rows = {{"1", "19"}, {"3", "42"}};
    TableEditorDialog history(table, nullptr);
    EXPECT_EQ(Child<RowsChart>(history, "rowsChart").Drawn().size(), 5u);
    table.Title = Text(300036_text);
    TableEditorDialog readings(table, nullptr);
    EXPECT_EQ(Child<RowsChart>(readings, "rowsChart").Drawn().size(), 2u);
}

}  // namespace
}  // namespace lithmark::tests
