// Windows on their screen: nothing outside, nothing cut, the fields scroll and the buttons stay. The screen is the one
// that the test runs on: a large one, and one of 1366 x 768 at 125 % of which a bar takes its part (CMakeLists.txt).
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableWidget>
#include <set>

#include "EveryWindow.h"
#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/ContourView.h"
#include "desktop/Palettes.h"
#include "desktop/ScreenRoom.h"
#include "desktop/Sizes.h"
#include "study/window/ChartColumns.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class RoomTest : public EveryWindow {};

// Inside something that scrolls, which brings it into sight.
const QAbstractScrollArea* ScrolledBy(const QWidget& widget, const QWidget& window) {
    for (const QWidget* parent = widget.parentWidget(); parent != nullptr && parent != &window;
         parent = parent->parentWidget())
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(parent);
            area != nullptr && area->viewport()->isAncestorOf(&widget))
            return area;
    return nullptr;
}

bool IsOutside(const QWidget& widget, const QWidget& window) {
    const QAbstractScrollArea* area = ScrolledBy(widget, window);
    const QWidget& frame = area != nullptr ? *area->viewport() : window;
    const QRect place(widget.mapTo(&frame, QPoint()), widget.size());
    if (area == nullptr) return !frame.rect().contains(place);
    // It may stand further down, but not at the side.
    return place.left() < 0 || place.right() > frame.rect().right();
}

// Words that have less room than they take.
bool IsCut(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->wordWrap()) return label->height() < label->heightForWidth(label->width());
        return label->width() < label->sizeHint().width() || label->height() < label->sizeHint().height();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        button != nullptr && !button->text().isEmpty())
        return button->width() < button->sizeHint().width() || button->height() < button->sizeHint().height();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) return list->width() < list->sizeHint().width();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return group->width() < group->fontMetrics().horizontalAdvance(group->title());
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) return tabs->width() < tabs->sizeHint().width();
    if (const auto* head = qobject_cast<const QHeaderView*>(&widget);
        head != nullptr && head->orientation() == Qt::Horizontal)
        for (int i = 0; i < head->count(); ++i)
            if (head->sectionSize(i) < head->sectionSizeHint(i)) return true;
    return false;
}

TEST_F(RoomTest, EveryWindowFitsItsScreenWithEverythingInsideAndInFull) {
    std::vector<std::string> failing;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        const QSize free = window.screen()->availableGeometry().size();
        if (window.width() > free.width() || window.height() > free.height() - sizes::kTitleBar)
            failing.push_back(name + ": " + std::to_string(window.width()) + " x " + std::to_string(window.height()));
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisibleTo(&window) || widget->window() != &window) continue;
            if (IsOutside(*widget, window)) failing.push_back(name + ": outside " + widget->objectName().toStdString());
            if (IsCut(*widget)) failing.push_back(name + ": cut " + widget->objectName().toStdString());
        }
    });
    EXPECT_THAT(failing, IsEmpty());
}

// 24 x 24 at least; a line of a list and the parts of the toolkit's own bars are another matter.
TEST_F(RoomTest, WhatIsClickedIsLargeEnough) {
    std::set<std::string> failing;
    int seen = 0;
    ForAllWindows([&](QWidget& window, const std::string& name) {
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            const bool clicked = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                 qobject_cast<const QComboBox*>(widget) != nullptr ||
                                 qobject_cast<const QLineEdit*>(widget) != nullptr ||
                                 qobject_cast<const QTabBar*>(widget) != nullptr;
            // Without a name: the corner of a table, the arrows of a bar that is too narrow.
            if (!clicked || !widget->isVisibleTo(&window) || widget->window() != &window ||
                widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_")))
                continue;
            ++seen;
            if (widget->width() < sizes::kClicked || widget->height() < sizes::kClicked)
                failing.insert(name + ": " + widget->objectName().toStdString() + " " +
                               std::to_string(widget->width()) + " x " + std::to_string(widget->height()));
        }
    });
    EXPECT_THAT(failing, IsEmpty());
    EXPECT_GT(seen, 3 * 300);
}

TEST_F(RoomTest, ButtonsNeverScroll) {
    ForAllForms([](Form& form, FormView& view, const std::string& name) {
        if (dynamic_cast<PictureForm*>(&form) == nullptr) return;
        for (const char* button : {"cmdSave", "cmdSaveAs", "cmdOpen", "CmdMoreLess", "cmdHelp", "cmdResult"}) {
            const auto* widget = view.findChild<QPushButton*>(QString::fromLatin1(button));
            EXPECT_EQ(ScrolledBy(*widget, view), nullptr) << name << ": " << button;
            EXPECT_EQ(widget->visibleRegion().boundingRect().size(), widget->size()) << name << ": " << button;
        }
    });
}

// The fields have a bar exactly where they need one, and nothing at their side is hidden by it.
TEST_F(RoomTest, FieldsScrollWhereTheyDoNotFit) {
    const bool small = QApplication::primaryScreen()->availableGeometry().height() < 600;
    int scrolling = 0;
    ForAllForms([&](Form& form, FormView& view, const std::string& name) {
        if (dynamic_cast<PictureForm*>(&form) == nullptr) return;
        const auto* column = view.findChild<QScrollArea*>();
        ASSERT_NE(column, nullptr) << name;
        EXPECT_FALSE(column->horizontalScrollBar()->isVisible()) << name;
        const bool fits = column->widget()->sizeHint().height() <= column->viewport()->height();
        EXPECT_NE(column->verticalScrollBar()->isVisible(), fits) << name;
        scrolling += fits ? 0 : 1;
    });
    if (small)
        EXPECT_GT(scrolling, 0);
    else
        EXPECT_EQ(scrolling, 0);
}

TEST_F(RoomTest, TheChartOfATableIsBesideItsRowsOrBehindATab) {
    const bool small = QApplication::primaryScreen()->availableGeometry().height() < 600;
    TableEdit table;
    table.Columns = {{"t\n[1]\n[-]"}, {"p\n[2]\n[%]"}};
    table.Rows = {{"1", "2"}};
    TableEditorDialog editor(table, nullptr);
    editor.show();
    QCoreApplication::processEvents();
    const auto* chart = editor.findChild<QWidget*>(QStringLiteral("rowsChart"));
    EXPECT_EQ(chart->isVisible(), !small);
    auto* tabs = editor.findChild<QTabBar*>();
    ASSERT_EQ(tabs != nullptr, small);
    if (!small) return;
    tabs->setCurrentIndex(1);
    EXPECT_TRUE(chart->isVisible());
}

// Boxes of more rows than two stand above the plot, where they would take its height beside it.
TEST_F(RoomTest, ManyCurvesLeaveTheirPlotItsHeight) {
    const bool small = QApplication::primaryScreen()->availableGeometry().height() < 600;
    std::vector<ChartColumn> columns = {{"", LineStyle::Solid, {1, 2}}};
    for (int i = 1; i <= 9; ++i)
        columns.push_back({"z = " + std::to_string(i) + ".25 m", LineStyle::Solid, {1.0 * i, 2.0 * i}});
    ChartPane pane(ChartOfColumns("", "z [m]", "Settlement s [cm]", columns), nullptr, 560);
    pane.resize(560, 300);
    pane.show();
    QCoreApplication::processEvents();
    const auto* box = pane.findChild<QWidget*>(QStringLiteral("chkCurve(9)"));
    const QRect boxes(box->mapTo(&pane, QPoint()), box->size());
    const QRect plot(pane.Plot().mapTo(&pane, QPoint()), pane.Plot().size());
    EXPECT_EQ(boxes.left() > plot.right(), small);
    EXPECT_EQ(boxes.bottom() < plot.top(), !small);
    EXPECT_FALSE(boxes.intersects(plot));
    if (small) {
        EXPECT_GE(plot.height(), 220);
    }
}

// All of the height is the plot's, with legend and buttons in two columns at its side.
TEST_F(RoomTest, AContourPlotIsAsLargeAsItsWindowIsHigh) {
    ForAllWindows([](QWidget& window, const std::string& name) {
        if (!name.starts_with("contours")) return;
        auto& plot = dynamic_cast<ContourView&>(*window.findChild<QWidget*>(QStringLiteral("plot")));
        auto& legend = dynamic_cast<ContourView&>(*window.findChild<QWidget*>(QStringLiteral("legend")));
        EXPECT_GE(plot.height(), window.height() - 150) << name;
        EXPECT_GE(plot.width(), plot.height()) << name << ": a square has the height for its side";
        EXPECT_GE(std::min(plot.width(), plot.height()), 360) << name;
        const QRect ofPlot(plot.mapTo(&window, QPoint()), plot.size());
        for (const QWidget* beside :
             {static_cast<const QWidget*>(&legend), window.findChild<const QWidget*>("cmdULeft"),
              window.findChild<const QWidget*>("cmdRedraw")}) {
            const QRect place(beside->mapTo(&window, QPoint()), beside->size());
            EXPECT_FALSE(place.left() <= ofPlot.right() && ofPlot.left() <= place.right()) << name;
        }
    });
}

TEST_F(RoomTest, ADarkPaletteIsWhole) {
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        const QPalette palette = PaletteOf(theme);
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            for (int role = 0; role < QPalette::NColorRoles; ++role) {
                if (role == QPalette::NoRole) continue;
                EXPECT_TRUE(palette.isBrushSet(group, static_cast<QPalette::ColorRole>(role))) << group << " " << role;
            }
        EXPECT_EQ(ThemeOf(palette), theme);
    }
}

}  // namespace
}  // namespace lithmark::tests
