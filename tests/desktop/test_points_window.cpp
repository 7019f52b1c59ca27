// The window of points on its real widgets.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QProcess>
#include <QTabWidget>
#include <QTableWidget>

#include "../ui/FormTest.h"
#include "ScreenRun.h"
#include "StudySubjects.h"
#include "base/Utf8.h"
#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/NumberCells.h"
#include "desktop/study/PointsWindow.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class PointsWindowTest : public FormTest {
  protected:
    PointsWindowTest() {
        form_ = LoadedDialog(Problem::SoilStress);
        window_ = std::make_unique<PointsWindow>(SubjectOf(*form_, "z"), nullptr);
        window_->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    }
    // Until so many rows are worked.
    void Await(std::size_t rows) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return window_->Table() && !window_->Working() && window_->Table()->Lines().size() == rows; },
            kWorkPatience))
            << Child<QLabel>(*window_, "lblNote").text().toStdString();
        QTest::qWait(0);
    }
    QTableWidget& Grid() { return Child<QTableWidget>(*window_, "grid"); }
    std::string Cell(int row, int column) { return Grid().item(row, column)->text().toStdString(); }
    int Status() { return Grid().columnCount() - 1; }

    std::unique_ptr<ProblemForm> form_;
    std::unique_ptr<PointsWindow> window_;
};

TEST_F(PointsWindowTest, EveryResultIsTheOneThatAReportOfThePointPrints) {
    QApplication::clipboard()->setText(QStringLiteral("0\t0\t1\n0.5\t0.25\t2\n3\t1\t4.5\n"));
    ClickOn(*window_, "cmdPaste");
    Await(3);
    EXPECT_EQ(Child<QLabel>(*window_, "lblCount").text().toStdString(), "3 points");
    EXPECT_EQ(Child<QLabel>(*window_, "lblProgress").text().toStdString(), "3 worked");
    for (int row = 0; row < 3; ++row) {
        QProcess report;
        const DraftProject project(form_->Draft().Record);
        QStringList words = {QStringLiteral("report"), QString::fromStdString(project.ProjectFile())};
        for (int c = 0; c < 3; ++c)
            words << QStringLiteral("--set")
                  << QStringLiteral("%1=%2").arg(QChar(u'x' + c)).arg(QString::fromStdString(Cell(row, c)));
        for (const std::string& word : project.Options()) words << QString::fromStdString(word);
        report.start(QString::fromStdString(CliProcess::Program()), words);
        ASSERT_TRUE(report.waitForFinished(kWorkPatience));
        const std::string text = report.readAllStandardOutput().toStdString();
        for (std::size_t i = 0; i < window_->Points().Results().size(); ++i) {
            const ResultChoice& result = window_->Points().Results()[i];
            // "Sigma_z [kN/m²] = 49.8"; a symbol of the load stands ahead of that of a result.
            const std::size_t symbol = text.rfind(" " + result.Take + " ");
            ASSERT_NE(symbol, std::string::npos) << result.Take << text;
            const std::size_t equals = text.find('=', symbol), end = text.find('\r', symbol);
            const std::string printed = Trim(text.substr(equals + 1, end - equals - 1));
            EXPECT_EQ(Cell(row, 3 + static_cast<int>(i)), printed) << result.Take << " of row " << row;
        }
        EXPECT_THAT(Cell(row, Status()), StartsWith("ok"));
    }
}

TEST_F(PointsWindowTest, AWrongRowSaysWhyAndTheOthersAreWorked) {
    QApplication::clipboard()->setText(QStringLiteral("0\t0\t1\n0\tab\t2\n0\t0\t3\n"));
    ClickOn(*window_, "cmdPaste");
    Await(2);
    EXPECT_THAT(Cell(1, Status()), HasSubstr("y"));
    EXPECT_EQ(Cell(1, 3), "");
    EXPECT_NE(Cell(2, 3), "");
    EXPECT_EQ(Child<QLabel>(*window_, "lblProgress").text().toStdString(), "2 worked, 1 with an error");
    EXPECT_THAT(Child<QLabel>(*window_, "lblNote").text().toStdString(), HasSubstr("Row 2"));
    // Typed right, it is worked too.
    Grid().item(1, 1)->setText(QStringLiteral("0.5"));
    EXPECT_EQ(Cell(0, 3), "");  // former results are not shown as new ones
    Await(3);
    EXPECT_THAT(Cell(1, Status()), StartsWith("ok"));
}

TEST_F(PointsWindowTest, AGridIsAskedForAndDrawnOverTheDepth) {
    Await(1);
    QTimer::singleShot(0, window_.get(), [&] {
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }, kWorkPatience));
        QWidget& fill = *QApplication::activeModalWidget();
        TypeInto(fill, "txtFrom(1)", "0");
        TypeInto(fill, "txtTo(1)", "2");
        TypeInto(fill, "txtCount(1)", "2");
        TypeInto(fill, "txtFrom(2)", "0");
        TypeInto(fill, "txtTo(2)", "0");
        TypeInto(fill, "txtFrom(3)", "-1");
        ClickOn(fill, "cmdok");
        EXPECT_TRUE(fill.isVisible());  // z below 0 is refused
        EXPECT_FALSE(Child<QLabel>(fill, "lblNote").text().isEmpty());
        TypeInto(fill, "txtFrom(3)", "1");
        TypeInto(fill, "txtTo(3)", "5");
        TypeInto(fill, "txtCount(3)", "5");
        ClickOn(fill, "cmdok");
    });
    ClickOn(*window_, "cmdGrid");
    Await(10);
    Child<QTabWidget>(*window_, "tabs").setCurrentIndex(1);
    auto& plot = Child<ChartView>(*window_, "plot");
    EXPECT_EQ(plot.Reading().Curves(), 2);
    EXPECT_EQ(plot.Reading().X(1), 1);
    EXPECT_NEAR(plot.Reading().Y(1, 1), std::stod(Cell(0, 3)), 0.051);  // the cell has one decimal
}

// Windows write symbols as engineers do, files as reports do.
TEST_F(PointsWindowTest, SymbolsStandInPrintOnTheScreenAlone) {
    QApplication::clipboard()->setText(QStringLiteral("0\t0\t1\n0\t0\t2\n"));
    ClickOn(*window_, "cmdPaste");
    Await(2);
    EXPECT_EQ(Grid().horizontalHeaderItem(3)->text().toStdString(), "σ_z\n[kN/m²]");
    EXPECT_THAT(Grid().item(0, 3)->data(Qt::AccessibleTextRole).toString().toStdString(), HasSubstr("sigma z, "));
    Child<QTabWidget>(*window_, "tabs").setCurrentIndex(1);
    auto& coordinates = Child<QComboBox>(*window_, "cboCoordinate");
    coordinates.setCurrentIndex(0);  // over x every point stands by itself, under the symbol
    emit coordinates.activated(0);
    auto& plot = Child<ChartView>(*window_, "plot");
    EXPECT_THAT(plot.yAxis->label().toStdString(), HasSubstr(" σ_z "));
    const TestFolder folder;
    const std::string file = folder / "points.csv";
    QTimer::singleShot(0, window_.get(), [&] {
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }, kWorkPatience));
        auto& name = Child<QLineEdit>(*QApplication::activeModalWidget(), "fileNameEdit");
        name.setText(QString::fromStdString(file));
        QTest::keyClick(&name, Qt::Key_Return);
    });
    ClickOn(*window_, "cmdChart");
    const std::string csv = ReadBytes(file);
    EXPECT_THAT(csv, HasSubstr("Sigma_z"));
    EXPECT_THAT(csv, Not(HasSubstr("σ")));
}

// A sign stands before its number in a table that runs from right to left, and while it is typed.
TEST_F(PointsWindowTest, NumbersRunFromLeftToRightInEveryTable) {
    QTableWidget table(1, 2);
    table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("-12.5")));
    table.item(0, 0)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
    table.setItem(0, 1, new QTableWidgetItem(QStringLiteral("-12.5")));
    const auto painted = [&](const QAbstractItemDelegate& delegate, int column, Qt::LayoutDirection direction) {
        QImage image(120, 30, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.initFrom(&table);
        option.widget = &table;
        option.font = table.font();
        option.rect = image.rect();
        option.direction = direction;
        painter.setLayoutDirection(direction);
        delegate.paint(&painter, option, table.model()->index(0, column));
        return image;
    };
    const NumberCells cells;
    EXPECT_EQ(painted(cells, 0, Qt::RightToLeft), painted(cells, 0, Qt::LeftToRight));
    EXPECT_NE(painted(QStyledItemDelegate(), 0, Qt::RightToLeft), painted(cells, 0, Qt::LeftToRight));
    EXPECT_NE(painted(cells, 1, Qt::RightToLeft), painted(cells, 1, Qt::LeftToRight)) << "words follow the window";
    window_->setLayoutDirection(Qt::RightToLeft);
    Grid().editItem(Grid().item(0, 1));
    const auto* editor = Grid().viewport()->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->layoutDirection(), Qt::LeftToRight);
}

TEST_F(PointsWindowTest, UndoTakesAPasteBackAtOnce) {
    QApplication::clipboard()->setText(QStringLiteral("0\t0\t1\n0\t0\t2\n"));
    ClickOn(*window_, "cmdPaste");
    EXPECT_EQ(Grid().rowCount(), 2);
    ClickOn(*window_, "cmdUndo");
    EXPECT_EQ(Grid().rowCount(), 1);
    Await(1);
    EXPECT_FALSE(form_->Modified());
}

TEST_F(PointsWindowTest, PointsAreThereAgainWhenTheWindowOpensAnew) {
    QApplication::clipboard()->setText(QStringLiteral("0\t0\t1\n0\tab\t2\n"));
    const std::string own = Cell(0, 2);
    ClickOn(*window_, "cmdPaste");
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
    window_ = std::make_unique<PointsWindow>(SubjectOf(*form_, "z"), nullptr);
    window_->show();
    EXPECT_EQ(Grid().rowCount(), 2);
    EXPECT_EQ(Cell(1, 1), "ab");
    EXPECT_THAT(Cell(1, Status()), HasSubstr("y"));
    ClickOn(*window_, "cmdUndo");
    EXPECT_EQ(Grid().rowCount(), 1);
    EXPECT_EQ(Cell(0, 2), own);
    ClickOn(*window_, "cmdRedo");
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    // Of another project they are none.
    const auto rowsOf = [this](const char* project) {
        Session.ProjectName = project;
        window_ = std::make_unique<PointsWindow>(SubjectOf(*form_, "z"), nullptr);
        return Grid().rowCount();
    };
    EXPECT_EQ(rowsOf("P2"), 1);
    EXPECT_EQ(rowsOf("P1"), 2);
    // The dialog's point alone is nothing to keep.
    window_->show();
    ClickOn(*window_, "cmdUndo");
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    EXPECT_EQ(rowsOf("P1"), 1);
    EXPECT_FALSE(form_->Modified());
    EXPECT_THAT(DataFiles(), IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
