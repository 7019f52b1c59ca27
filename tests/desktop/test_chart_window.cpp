// The chart window with real keys and the mouse: zoom, marks, curves shown and hidden, the ways out.
#include <qcustomplot.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>

#include "ScreenRun.h"
#include "contour/ChartTable.h"
#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/StartSession.h"
#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/ChartWindow.h"
#include "kernels/RunKernel.h"
#include "render/TornadoDocument.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class ChartWindowTest : public ::testing::Test {
  protected:
    ChartWindowTest() {
        SharedServices().UseSettingsDirectory(folder_.Dir());
        SetCurrentHost(&host_);
    }
    ~ChartWindowTest() override {
        SetCurrentHost(nullptr);
        SharedServices().UseSettingsDirectory("");
        LanguageTexts().SetCurrent(Language::English);
        ResetSession();
    }
    // The default project of a problem, worked out.
    ChartArguments Chart(int problem, const std::string& curve = "Tab1", Language language = Language::English) {
        LanguageTexts().SetCurrent(language);
        SharedServices().DecimalSign = '.';
        StartSession();
        Session.ProblemType = problem;
        Session.DataDir = Session.WorkDir = folder_.Dir();
        Session.ProjectName = Session.WorkName = "Silo";
        SetProblemDefaults();
        EXPECT_TRUE(RunProblemKernel());
        Session.CurveChoice = curve;
        Session.CurveLoadUnit = Session.Force1Label;
        Session.CurveSettlementUnit = Session.Len2Label;
        return BuildChart();
    }
    static ChartView& Shown(ChartWindow& window) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        auto& plot = Child<ChartView>(window, "plot");
        plot.replot();
        return plot;
    }
    // Where a point of a curve stands in the plot.
    static QPoint At(ChartView& plot, const ChartMark& mark) {
        const double x = plot.Reading().X(mark.Row), y = plot.Reading().Y(mark.Row, mark.Curve);
        const bool changed = AxesChanged(plot.Chart());
        return QPointF(plot.xAxis->coordToPixel(changed ? y : x), plot.yAxis->coordToPixel(changed ? x : y)).toPoint();
    }

    TestFolder folder_;
    QtHost host_;
};

TEST_F(ChartWindowTest, AClickSetsAAndShiftClickBAndTheirDifferenceIsTold) {
    ChartWindow window(Chart(8, "Tab3"), nullptr);
    ChartView& plot = Shown(window);
    const ChartMark a{3, 1}, b{plot.Reading().Rows() - 1, 1};
    QTest::mouseClick(&plot, Qt::LeftButton, {}, At(plot, a));
    QTest::mouseClick(&plot, Qt::LeftButton, Qt::ShiftModifier, At(plot, b));
    EXPECT_EQ(plot.A(), a);
    EXPECT_EQ(plot.B(), b);
    const std::string told = Child<QLabel>(window, "lblMarks").text().toStdString();
    EXPECT_THAT(told, StartsWith("A: " + plot.Reading().MarkText(a)));
    EXPECT_THAT(told, HasSubstr("B - A: " + plot.Reading().DifferenceText(a, b)));
}

TEST_F(ChartWindowTest, TheValuesUnderTheCursorStandBelowThePlot) {
    ChartWindow window(Chart(8, "Tab3"), nullptr);
    ChartView& plot = Shown(window);
    const int row = 5;
    QTest::mouseMove(&plot, At(plot, {row, 1}));
    EXPECT_EQ(plot.Row(), row);
    EXPECT_EQ(Child<QLabel>(window, "lblValues").text().toStdString(), plot.Reading().ValuesAt(row));
    EXPECT_THAT(plot.Reading().ValuesAt(row), StartsWith("t = 4 "));
}

TEST_F(ChartWindowTest, KeysZoomWalkAndMark) {
    ChartWindow window(Chart(8, "Tab3"), nullptr);
    ChartView& plot = Shown(window);
    EXPECT_TRUE(plot.hasFocus());
    const QCPRange whole = plot.xAxis->range();
    QTest::keyClick(&plot, Qt::Key_Plus);
    EXPECT_NEAR(plot.xAxis->range().size(), whole.size() / 1.25, 1e-9);
    QTest::keyClick(&plot, Qt::Key_Minus);
    EXPECT_NEAR(plot.xAxis->range().size(), whole.size(), 1e-9);
    QTest::keyClick(&plot, Qt::Key_Plus);
    QTest::keyClick(&plot, Qt::Key_0);
    EXPECT_EQ(plot.xAxis->range(), whole);
    QTest::keyClick(&plot, Qt::Key_Right);
    EXPECT_EQ(plot.Row(), 1);
    QTest::keyClick(&plot, Qt::Key_A);
    for (int i = 0; i < 3; ++i) QTest::keyClick(&plot, Qt::Key_Right);
    QTest::keyClick(&plot, Qt::Key_B);
    EXPECT_EQ(plot.A(), (ChartMark{1, 1}));
    EXPECT_EQ(plot.B(), (ChartMark{4, 1}));
    QTest::keyClick(&plot, Qt::Key_Left);
    EXPECT_EQ(plot.Row(), 3);
    EXPECT_EQ(plot.accessibleDescription().toStdString(), plot.Reading().ValuesAt(3));
}

// On a button it clicks it; anywhere else it closes.
TEST_F(ChartWindowTest, EnterClicksTheButtonWithTheFocusAndF1OpensTheManual) {
    ChartWindow window(Chart(8, "Tab3"), nullptr);
    ChartView& plot = Shown(window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QCPRange whole = plot.xAxis->range();
    plot.Zoom(2);
    auto& original = Child<QPushButton>(window, "cmdOriginal");
    original.setFocus();
    QTest::keyClick(&original, Qt::Key_Return);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(plot.xAxis->range(), whole);
    QTimer::singleShot(0, &window, [] {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        EXPECT_EQ(QApplication::activeModalWidget()->objectName(), "manualWindow");
        QApplication::activeModalWidget()->close();
    });
    QTest::keyClick(&window, Qt::Key_F1);
    plot.setFocus();
    QTest::keyClick(&plot, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ChartWindowTest, ABoxHidesItsCurveOnTheScreenAndOnPaper) {
    ChartWindow window(Chart(8, "Tab1"), nullptr);
    ChartView& plot = Shown(window);
    const QCPRange before = plot.yAxis->range();
    ClickOn(window, "chkCurve(1)");
    EXPECT_FALSE(plot.plottable(0)->visible());
    EXPECT_TRUE(plot.plottable(1)->visible());
    EXPECT_EQ(plot.yAxis->range(), before) << "the scale stays";
    EXPECT_FALSE(plot.Look().Shows(1));
    EXPECT_TRUE(plot.Look().Shows(2));
    ClickOn(window, "chkCurve(1)");
    EXPECT_TRUE(plot.plottable(0)->visible());
    EXPECT_TRUE(plot.Look().Shows(1));
}

TEST_F(ChartWindowTest, SettlementsPointUpwardUntilTheSwitchIsSetWhichIsRemembered) {
    const ChartArguments chart = Chart(8, "Tab3");
    {
        ChartWindow window(chart, nullptr);
        ChartView& plot = Shown(window);
        EXPECT_FALSE(plot.yAxis->rangeReversed());
        EXPECT_FALSE(plot.Chart().SettlementsDown);
        ClickOn(window, "chkDownward");
        EXPECT_TRUE(plot.yAxis->rangeReversed());
        EXPECT_TRUE(plot.Chart().SettlementsDown);
    }
    ChartWindow again(chart, nullptr);
    EXPECT_TRUE(Shown(again).yAxis->rangeReversed());
    EXPECT_TRUE(Child<QCheckBox>(again, "chkDownward").isChecked());
    ClickOn(again, "chkDownward");
    ChartWindow loads(Chart(8, "Tab1"), nullptr);
    EXPECT_EQ(loads.findChild<QCheckBox*>(QStringLiteral("chkDownward")), nullptr) << "a load has no other way";
}

TEST_F(ChartWindowTest, PorePressuresStandOverADepthThatPointsDownward) {
    ChartWindow window(Chart(5), nullptr);
    ChartView& plot = Shown(window);
    EXPECT_THAT(plot.xAxis->label().toStdString(), StartsWith("Depth"));
    ClickOn(window, "chkDownward");
    EXPECT_THAT(plot.yAxis->label().toStdString(), StartsWith("Depth"));
    EXPECT_TRUE(plot.yAxis->rangeReversed());
    const ChartMark mark{3, 2};
    QTest::mouseClick(&plot, Qt::LeftButton, {}, At(plot, mark));
    ASSERT_TRUE(plot.A());
    EXPECT_EQ(plot.A()->Row, 3);
    ClickOn(window, "chkDownward");
}

TEST_F(ChartWindowTest, TicksAreRoundUngroupedAndWholeForTimes) {
    ChartWindow window(Chart(8, "Tab1", Language::German), nullptr);
    ChartView& plot = Shown(window);
    for (const QString& label : plot.xAxis->tickVectorLabels())
        EXPECT_FALSE(label.contains(QLatin1Char(',')) || label.contains(QLatin1Char('.'))) << label.toStdString();
    EXPECT_GE(plot.xAxis->tickVectorLabels().size(), 3);
    for (const QString& label : plot.yAxis->tickVectorLabels())
        EXPECT_FALSE(label.contains(QLatin1Char('.'))) << label.toStdString();
}

TEST_F(ChartWindowTest, AnArabicAxisTitleReadsInOneDirection) {
    ChartWindow window(Chart(5, "", Language::Arabic), nullptr);
    const QString title = Shown(window).xAxis->label();
    // The words in a right-to-left isolate, symbol and unit in a left-to-right one inside it.
    EXPECT_TRUE(title.startsWith(QChar(0x2067)));
    EXPECT_TRUE(title.contains(QChar(0x2066) + QStringLiteral("z [m]") + QChar(0x2069)));
    EXPECT_TRUE(title.endsWith(QChar(0x2069)));
}

// On one line each mark reads from the right for itself.
TEST_F(ChartWindowTest, ArabicMarksOnOneLineKeepTogether) {
    ChartPane pane(Chart(5, "Tab1", Language::Arabic), nullptr, ChartPane::kLegendRoom, ChartPane::Marks::Below);
    pane.show();
    ChartView& plot = pane.Plot();
    plot.Walk(1);
    plot.Mark(true);
    plot.Walk(1);
    plot.Mark(false);
    const QString marks = Child<QLabel>(pane, "lblMarks").text();
    const QChar begin(0x2067), end(0x2069);
    for (const char* name : {"A: ", "B: ", "B - A: "})
        EXPECT_EQ(marks.count(begin + QString::fromLatin1(name)), 1) << name;
    EXPECT_EQ(marks.count(begin), 3);
    EXPECT_TRUE(marks.endsWith(end));
    EXPECT_EQ(marks.count(end + QStringLiteral("     ") + begin), 2);
}

// The boxes bear what is drawn: measured points have no line, a line of few places has a marker, one of many has none.
TEST_F(ChartWindowTest, ABoxBearsTheDashAndTheMarkerOfItsCurve) {
    const auto inked = [](QWidget& window, int curve) {
        const auto& box = Child<QCheckBox>(window, ("chkCurve(" + std::to_string(curve) + ")").c_str());
        const QImage sample = box.icon().pixmap(box.iconSize(), 1.0).toImage();
        int line = 0, above = 0;
        for (int x = 0; x < sample.width(); ++x) {
            line += sample.pixelColor(x, 6).alpha() > 0 ? 1 : 0;
            above += sample.pixelColor(x, 3).alpha() > 0 ? 1 : 0;
        }
        return std::pair(line, above);
    };
    ChartArguments chart = Chart(8, "Tab3");
    for (const LineStyle style : {LineStyle::Points, LineStyle::LinesNoMarkers, LineStyle::Solid}) {
        chart.LineStyles(1) = style;
        ChartWindow window(chart, nullptr);
        Shown(window);
        const auto [line, above] = inked(window, 1);
        if (style == LineStyle::Points)
            EXPECT_LT(line, 12);
        else
            EXPECT_GT(line, 25);
        const bool marked = style == LineStyle::Points ||
                            (style == LineStyle::Solid && Child<ChartView>(window, "plot").Reading().Rows() <= 40);
        EXPECT_EQ(above > 0, marked) << static_cast<int>(style);
    }
}

TEST_F(ChartWindowTest, CopiesAPictureOrTheTable) {
    const ChartArguments chart = Chart(8, "Tab3");
    ChartWindow window(chart, nullptr);
    ChartView& plot = Shown(window);
    QTest::keyClick(&plot, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->image().width(), 2040);
    EXPECT_EQ(Child<QLabel>(window, "toast").text().toStdString(), "Copied");
    QTest::keyClick(&plot, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), ChartTabs(chart));
}

// The screen writes symbols as engineers do; tables have those of the report.
TEST_F(ChartWindowTest, SymbolsStandInPrintOnTheScreenAlone) {
    const ChartArguments chart = Chart(6, "Tab2");
    ASSERT_THAT(chart.YTitle, EndsWith(" Setn [cm]"));
    ChartWindow window(chart, nullptr);
    ChartView& plot = Shown(window);
    EXPECT_THAT(plot.yAxis->label().toStdString(), EndsWith(" S_etn [cm]"));
    EXPECT_THAT(plot.Reading().ValuesAt(2), StartsWith("t = 1 "));
    QTest::keyClick(&plot, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("Setn"));
}

// A low plot has no room for the words of its upright axis.
TEST_F(ChartWindowTest, ATitleThatIsLongerThanThePlotIsHighIsShort) {
    ChartArguments chart = Chart(8, "Tab3");
    chart.YTitle = "Normal stress in z-direction σ_z [kN/m²]";
    ChartView plot(chart, nullptr);
    plot.resize(600, 600);
    plot.show();
    EXPECT_EQ(plot.yAxis->label().toStdString(), chart.YTitle);
    plot.resize(600, 220);
    QCoreApplication::processEvents();
    EXPECT_EQ(plot.yAxis->label().toStdString(), "σ_z [kN/m²]");
    plot.resize(600, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(plot.yAxis->label().toStdString(), chart.YTitle);
}

TEST_F(ChartWindowTest, TheLegendOfATornadoStandsAboveItsBars) {
    TornadoPicture picture;
    picture.Axis = "Settlement s [cm]";
    picture.LowLegend = "low";
    picture.HighLegend = "high";
    picture.Middle = 5;
    picture.Bars = {{"a  1 ... 2 m", 4, 6}, {"b  1 ... 2 m", 4, 6}};
    QCustomPlot plot;
    plot.resize(400, 200);
    for (int filled = 0; filled < 2; ++filled) {
        FillTornado(plot, picture, {});
        plot.replot();
        EXPECT_LT(plot.legend->outerRect().bottom(), plot.axisRect()->outerRect().bottom());
        EXPECT_FALSE(plot.legend->outerRect().intersects(plot.axisRect()->rect()));
        EXPECT_EQ(plot.legend->itemCount(), 2);
    }
}

// A name without an ending takes the one of the chosen kind.
TEST_F(ChartWindowTest, SavesInTheChosenKind) {
    const ChartArguments chart = Chart(8, "Tab3");
    for (const auto& [kind, ending, begin] : {std::tuple("PDF", "pdf", "%PDF"),
                                              {"PNG", "png", "\x89PNG"},
                                              {"SVG", "svg", "<?xml"},
                                              {"Spreadsheet", "xlsx", "PK"},
                                              {"Comma-separated", "csv", ""}}) {
        ChartWindow window(chart, nullptr);
        Shown(window);
        const std::string path = folder_ / (std::string("curve") + ending);
        QTimer::singleShot(0, &window, [&, kind = std::string(kind)] {
            ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
            QWidget& dialog = *QApplication::activeModalWidget();
            auto& kinds = Child<QComboBox>(dialog, "fileTypeCombo");
            const int index = kinds.findText(QString::fromStdString(kind), Qt::MatchStartsWith);
            ASSERT_GE(index, 0) << kind;
            for (int i = 0; i < index; ++i) QTest::keyClick(&kinds, Qt::Key_Down);
            auto& name = Child<QLineEdit>(dialog, "fileNameEdit");
            name.setText(QString::fromStdString(path));
            QTest::keyClick(&name, Qt::Key_Return);
        });
        ClickOn(window, "cmdExport");
        const std::string bytes = ReadBytes(path + "." + ending);
        EXPECT_THAT(bytes, StartsWith(begin)) << ending;
        if (std::string(ending) == "csv") {
            EXPECT_EQ(bytes, ChartCsv(chart));
        }
    }
}

}  // namespace
}  // namespace lithmark::tests
