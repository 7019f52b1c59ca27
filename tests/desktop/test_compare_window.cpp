// The window that holds two projects against each other, on its real widgets and by the real command line.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableWidget>
#include <map>

#include "ScreenRun.h"
#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/compare/CompareWindow.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

class CompareWindowTest : public ::testing::Test {
  protected:
    CompareWindowTest() {
        for (const char* folder : {"settings", "data"}) fs::create_directory(folder_ / folder);
        WriteBytes(folder_ / "settings/STEU", (folder_ / "data/") + "\r\n0\r\n");
        Copy("OfficeBuilding", "One");
        Copy("OfficeBuilding", "Other");
        // Another final settlement: 12.1 cm become 15.
        std::string data = ReadBytes(Data("Other.TST"));
        const std::size_t at = data.find("12.1");
        EXPECT_NE(at, std::string::npos);
        WriteBytes(Data("Other.TST"), data.replace(at, 4, "15"));
    }
    std::string Settings() const { return folder_ / "settings/"; }
    std::string Data(const std::string& name) const { return folder_ / ("data/" + name); }
    void Copy(const std::string& example, const std::string& as) const {
        for (const auto& entry : fs::directory_iterator(SourceDir() / "examples" / example))
            if (entry.is_regular_file())
                WriteBytes(Data(as + entry.path().extension().string()), ReadBytes(entry.path().string()));
    }
    std::map<std::string, std::string> Bytes() const {
        std::map<std::string, std::string> bytes;
        for (const auto& entry : fs::directory_iterator(folder_ / "data"))
            if (!entry.path().filename().string().starts_with(".lithmark-"))
                bytes[entry.path().filename()] = ReadBytes(entry.path().string());
        return bytes;
    }
    // The user picks a project in the dialog that asks for one.
    static void Pick(ScreenRun& run, const std::string& file) {
        run.In("QFileDialog", [file](QWidget& dialog) {
            auto& box = Child<QLineEdit>(dialog, "fileNameEdit");
            box.setText(QString::fromStdString(file));
            QTest::keyClick(&box, Qt::Key_Return);
        });
    }
    static void WaitForResults(QWidget& window) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return dynamic_cast<CompareWindow&>(window).Worked(); }, kWorkPatience));
    }
    static std::string Cell(const QTableWidget& table, int row, int column) {
        QString text = table.item(row, column)->text();
        text.remove(QChar(0x2066)).remove(QChar(0x2069));
        return text.toStdString();
    }

    TestFolder folder_;
};

TEST_F(CompareWindowTest, InputsResultsAndCurvesOfTwoProjectsStandBesideEachOther) {
    const auto before = Bytes();
    ScreenRun run(Settings(), Data("One.PO3"));
    run.Start();
    Pick(run, Data("Other.PO3"));
    run.In("compareWindow", [](QWidget& window) {
        const auto& differing = Child<QTableWidget>(window, "differing");
        ASSERT_EQ(differing.rowCount(), 1);
        EXPECT_EQ(Cell(differing, 0, 1), "Sc");
        EXPECT_EQ(Cell(differing, 0, 2), "12.10");
        EXPECT_EQ(Cell(differing, 0, 3), "15.00");
        EXPECT_EQ(Cell(differing, 0, 4), "cm");
        EXPECT_EQ(Cell(differing, 0, 5), "+24.0 %");  // 15 of 12.1
        EXPECT_THAT(Child<QLabel>(window, "lblState").text().toStdString(), HasSubstr("differ: 1"));
        WaitForResults(window);
        // Every settlement grows with the final one.
        const auto& results = Child<QTableWidget>(window, "results");
        ASSERT_GT(results.rowCount(), 1);
        EXPECT_EQ(Cell(results, 0, 5), "+24.0 %");
        auto& tabs = Child<QTabWidget>(window, "tabs");
        tabs.setCurrentIndex(2);
        auto* pane = dynamic_cast<ChartPane*>(window.findChild<QWidget*>("pane"));
        ASSERT_NE(pane, nullptr);
        const ChartArguments& chart = pane->Plot().Chart();
        EXPECT_EQ(chart.Curves, 4);  // computed and corrected, of both
        EXPECT_EQ(chart.Legends(1), "One: computed");
        EXPECT_EQ(chart.Legends(2), "Other: computed");
        EXPECT_TRUE(chart.SettlementsDown);
        ClickOn(window, "cmdok");
    });
    run.Menu("mnuCompare");
    EXPECT_TRUE(run.Done());
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(Session.ProjectName, "One");
}

// Each problem has results and curves of both; a project and its copy have the same ones.
TEST_F(CompareWindowTest, TheTenProblemsAgainstTheirOwnCopies) {
    for (const char* example : {"RectangularFooting", "BridgePier", "CircularTank", "ClayUnderFooting", "TwoClayLayers",
                                "OfficeBuilding", "GrainStore", "WaterTower", "EccentricRaft", "RaftOnClayEs"}) {
        SCOPED_TRACE(example);
        Copy(example, "First");
        Copy(example, "Second");
        ScreenRun run(Settings());
        run.Start();
        const PairReading reading = ReadPair(Data("First.PO3"), Data("Second.PO3"));
        ASSERT_TRUE(reading.Pair) << reading.Fault;
        CompareWindow window(*reading.Pair, nullptr);
        window.show();
        WaitForResults(window);
        EXPECT_EQ(Child<QTableWidget>(window, "differing").rowCount(), 0);
        const auto& results = Child<QTableWidget>(window, "results");
        EXPECT_GT(results.rowCount(), 1);
        for (int row = 0; row < results.rowCount(); ++row) {
            EXPECT_EQ(Cell(results, row, 2), Cell(results, row, 3));
            EXPECT_EQ(Cell(results, row, 5), "0.0 %");
        }
        auto* pane = dynamic_cast<ChartPane*>(window.findChild<QWidget*>("pane"));
        ASSERT_NE(pane, nullptr);
        const ChartArguments& chart = pane->Plot().Chart();
        ASSERT_GE(chart.Curves, 2);
        ASSERT_GT(chart.LastRow, 3);
        for (int row = 1; row <= chart.LastRow; ++row) EXPECT_EQ(chart.Cells(row, 2), chart.Cells(row, 3));
        for (const char* ending : {"SSD", "CON", "RAT", "TST", "RDE", "RCO"})
            for (const char* name : {"First.", "Second."}) fs::remove(Data(std::string(name) + ending));
    }
}

TEST_F(CompareWindowTest, WithoutAnOpenProjectItAsksForBoth) {
    ScreenRun run(Settings());
    run.Start();
    Pick(run, Data("One.PO3"));
    Pick(run, Data("Other.PO3"));
    run.In("compareWindow", [](QWidget& window) {
        EXPECT_EQ(Child<QTableWidget>(window, "differing").rowCount(), 1);
        QTest::keyClick(&window, Qt::Key_Escape);  // while the results are worked out
    });
    run.Menu("mnuCompare");
    EXPECT_TRUE(run.Done());
    EXPECT_FALSE(run.Frame().ProjectOpen());
}

TEST_F(CompareWindowTest, AProjectOfAnotherProblemIsRefusedByName) {
    Copy("RectangularFooting", "Footing");
    const auto before = Bytes();
    ScreenRun run(Settings(), Data("One.PO3"));
    run.Start();
    Pick(run, Data("Footing.PO3"));
    run.In("messageBox", [](QWidget& box) {
        EXPECT_THAT(dynamic_cast<QMessageBox&>(box).text().toStdString(), HasSubstr("Footing.PO3"));
        box.close();
    });
    run.Menu("mnuCompare");
    EXPECT_TRUE(run.Done());
    EXPECT_EQ(Bytes(), before);
    EXPECT_EQ(Session.ProjectName, "One");
}

TEST_F(CompareWindowTest, TheTablesAreSavedAndCopied) {
    ScreenRun run(Settings(), Data("One.PO3"));
    run.Start();
    Pick(run, Data("Other.PO3"));
    run.In("compareWindow", [&](QWidget& window) {
        WaitForResults(window);
        run.In("QFileDialog", [this](QWidget& dialog) {
            auto& box = Child<QLineEdit>(dialog, "fileNameEdit");
            box.setText(QString::fromStdString(Data("table.csv")));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QTest::keySequence(&window, QKeySequence::Save);
        QTest::keySequence(&Child<QTableWidget>(window, "differing"), QKeySequence::Copy);
        window.close();
    });
    run.Menu("mnuCompare");
    EXPECT_TRUE(run.Done());
    const std::string csv = ReadBytes(Data("table.csv"));
    EXPECT_THAT(csv, HasSubstr("Part,Quantity,Symbol,One,Other,Unit,Change\r\nInput that differs,"));
    EXPECT_THAT(csv, HasSubstr(",Sc,12.10,15.00,cm,+24.0 %\r\nResults,"));
    EXPECT_THAT(QApplication::clipboard()->text().toStdString(), HasSubstr("\tSc\t12.10\t15.00\tcm\t+24.0 %\n"));
}

// A run that is stopped says why, and the other project's results stand there.
TEST_F(CompareWindowTest, AProjectThatCannotBeWorkedSaysWhy) {
    Copy("RectangularFooting", "Good");
    Copy("RectangularFooting", "Bad");
    WriteBytes(Data("Bad.SSD"), ".5\r\n.5\r\n2\r\n2640\r\n220\r\n3\r\n4\r\n.7\r\n18000\r\n2\r\n");
    ScreenRun run(Settings());
    run.Start();
    const PairReading reading = ReadPair(Data("Good.PO3"), Data("Bad.PO3"));
    ASSERT_TRUE(reading.Pair);
    CompareWindow window(*reading.Pair, nullptr);
    window.show();
    WaitForResults(window);
    EXPECT_THAT(Child<QLabel>(window, "lblState").text().toStdString(), HasSubstr("No results of \"Bad\": "));
    const auto& results = Child<QTableWidget>(window, "results");
    ASSERT_GT(results.rowCount(), 0);
    EXPECT_EQ(Cell(results, 0, 3), "–");
    EXPECT_FALSE(Child<QTabWidget>(window, "tabs").isTabEnabled(2));
}

// Every part has a name, a symbol is spoken.
TEST_F(CompareWindowTest, IsSaidInWords) {
    ScreenRun run(Settings());
    run.Start();
    const PairReading reading = ReadPair(Data("One.PO3"), Data("Other.PO3"));
    ASSERT_TRUE(reading.Pair);
    CompareWindow window(*reading.Pair, nullptr);
    window.show();
    WaitForResults(window);
    for (const char* name : {"differing", "results"}) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&Child<QWidget>(window, name));
        ASSERT_NE(spoken, nullptr);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << name;
    }
    const auto& table = Child<QTableWidget>(window, "differing");
    const auto said = [&](int column) {
        return table.item(0, column)->data(Qt::AccessibleTextRole).toString().toStdString();
    };
    EXPECT_EQ(said(1), "Row 1, Symbol, S c");
    EXPECT_THAT(said(2), AllOf(StartsWith("Row 1, "), HasSubstr("One"), HasSubstr("12.10"), EndsWith(" cm")));
    EXPECT_THAT(said(5), AllOf(StartsWith("Row 1, Change, "), HasSubstr("+24.0 %")));
}

}  // namespace
}  // namespace lithmark::tests
