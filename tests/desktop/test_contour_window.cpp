// The contour window with real keys and the mouse: both views, the section, the legend, the ways out.
#include <gmock/gmock.h>
#include <qcustomplot.h>

#include <QCheckBox>
#include <QClipboard>
#include <QRadioButton>

#include "ScreenRun.h"
#include "core/Catalogue.h"
#include "core/StartSession.h"
#include "desktop/ContourView.h"
#include "desktop/FormView.h"
#include "kernels/RunKernel.h"
#include "support/Matchers.h"
#include "ui/frmContour.h"

namespace lithmark::tests {
namespace {

class ContourWindowTest : public ::testing::Test {
  protected:
    ContourWindowTest() {
        SetCurrentHost(&host_);
        SharedServices().UseSettingsDirectory(folder_.Dir());
        SharedServices().DecimalSign = '.';
        StartSession();
        Session.ProblemType = Problem::RaftDisplacement;
        Session.DataDir = Session.WorkDir = folder_.Dir();
        Session.ProjectName = Session.WorkName = "Raft";
        SetProblemDefaults();
        Session.AnalysisType = Analysis::Numerical;
        EXPECT_TRUE(RunProblemKernel());
        Session.ContourResult = "Tab5";
        form_.Reopen();
        form_.Load();
        view_ = std::make_unique<FormView>(form_, nullptr);
        view_->show();
        form_.Activate();
        view_->Refresh();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(view_.get()));
    }
    ~ContourWindowTest() override {
        SetCurrentHost(nullptr);
        SharedServices().UseSettingsDirectory("");
        ResetSession();
    }
    ContourView& View(const char* name) { return Child<ContourView>(*view_, name); }

    TestFolder folder_;
    QtHost host_;
    frmContour form_;
    std::unique_ptr<FormView> view_;
};

TEST_F(ContourWindowTest, OpensWithTheToldPlotAndALegendAsWideAsItsTexts) {
    EXPECT_TRUE(Child<QRadioButton>(*view_, "optView(0)").isChecked());
    EXPECT_LE(view_->width(), 1000);
    EXPECT_LE(view_->height(), 660);
    EXPECT_GE(View("plot").width(), 380);
    EXPECT_LE(View("legend").width(), 110);
    EXPECT_FALSE(Child<QCustomPlot>(*view_, "sectionCurve").isVisible());
}

TEST_F(ContourWindowTest, TheFieldAndItsSectionFollowTheMouse) {
    EXPECT_FALSE(Child<QCheckBox>(*view_, "chkSection").isEnabled());
    const QImage told = View("plot").grab().toImage();
    ClickOn(*view_, "optView(1)");
    EXPECT_NE(View("plot").grab().toImage(), told);
    ClickOn(*view_, "chkSection");
    auto& curve = Child<QCustomPlot>(*view_, "sectionCurve");
    EXPECT_TRUE(curve.isVisible());
    QCoreApplication::processEvents();
    ContourView& plot = View("plot");
    const FieldLine before = form_.Section().value();
    const QPoint from(plot.width() / 2, plot.height() / 2 - 40), to(plot.width() / 2, plot.height() / 2 + 40);
    QTest::mousePress(&plot, Qt::LeftButton, {}, from);
    QTest::mouseMove(&plot, to);
    QTest::mouseRelease(&plot, Qt::LeftButton, {}, to);
    const FieldLine after = form_.Section().value();
    EXPECT_NE(after.From, before.From);
    EXPECT_NEAR(after.From.X, after.To.X, 1e-6) << "straight down";
    EXPECT_GT(after.From.Y, after.To.Y);
    EXPECT_NEAR(curve.xAxis->range().upper, after.From.Y - after.To.Y, 0.05 * (after.From.Y - after.To.Y));
    ClickOn(*view_, "optView(0)");
    EXPECT_FALSE(curve.isVisible());
}

// What the mouse reads and lays, the keys do too.
TEST_F(ContourWindowTest, KeysWalkThroughThePlotAndLayTheSection) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(view_.get()));
    ContourView& plot = View("plot");
    const auto& under = Child<QLabel>(*view_, "lblUnder");
    plot.setFocus();
    const std::string whole = plot.accessibleDescription().toStdString();
    QTest::keyClick(&plot, Qt::Key_Right);
    const std::string first = under.text().toStdString();
    EXPECT_THAT(first, HasSubstr("q = "));
    EXPECT_EQ(plot.accessibleDescription().toStdString(), first);
    QTest::keyClick(&plot, Qt::Key_Right);
    EXPECT_NE(under.text().toStdString(), first);
    QTest::keyClick(&plot, Qt::Key_Left);
    EXPECT_EQ(under.text().toStdString(), first);
    // Without a section its keys do nothing.
    QTest::keyClick(&plot, Qt::Key_A);
    EXPECT_FALSE(form_.Section());
    ClickOn(*view_, "optView(1)");
    ClickOn(*view_, "chkSection");
    EXPECT_TRUE(under.text().isEmpty()) << "the focus has gone";
    plot.setFocus();
    const FieldLine before = form_.Section().value();
    for (const auto& [key, end] : {std::pair(Qt::Key_Left, Qt::Key_A), {Qt::Key_Up, Qt::Key_B}}) {
        for (int i = 0; i < 5; ++i) QTest::keyClick(&plot, key);
        QTest::keyClick(&plot, end);
    }
    const FieldLine after = form_.Section().value();
    EXPECT_NE(after.From, before.From);
    // Four steps from the middle to the left, and five upward from there; the first key is the middle.
    const WorldWindow& window = form_.Plot.Window;
    const double step = (window.XMax - window.XMin) / 20.0, middle = window.XMin + 10 * step;
    EXPECT_NEAR(after.From.X, middle - 4 * step, 1e-6);
    EXPECT_NEAR(after.To.X, after.From.X, 1e-6);
    EXPECT_NEAR(after.To.Y - after.From.Y, 5 * step, 1e-6);
    // At the end of the plot it stays.
    for (int i = 0; i < 40; ++i) QTest::keyClick(&plot, Qt::Key_Down);
    const QString bottom = under.text();
    QTest::keyClick(&plot, Qt::Key_Down);
    EXPECT_EQ(under.text(), bottom);
    QTest::keyClick(&plot, Qt::Key_Tab);
    EXPECT_TRUE(under.text().isEmpty());
    EXPECT_THAT(plot.accessibleDescription().toStdString(), Not(HasSubstr("x = ")));
    ClickOn(*view_, "optView(0)");
    EXPECT_EQ(plot.accessibleDescription().toStdString(), whole);
}

TEST_F(ContourWindowTest, KeysGoBackAndToTheOriginalWindow) {
    ClickOn(*view_, "cmdULeft");
    const double zoomed = form_.Plot.Window.XMax;
    QTest::keyClick(view_.get(), Qt::Key_Backspace);
    EXPECT_EQ(form_.Plot.Window.XMax, form_.Plot.OrigWindow.XMax);
    QTest::keyClick(view_.get(), Qt::Key_Backspace);
    EXPECT_EQ(form_.Plot.Window.XMax, zoomed);
    QTest::keyClick(view_.get(), Qt::Key_Home);
    EXPECT_EQ(form_.Plot.Window.XMax, form_.Plot.OrigWindow.XMax);
    EXPECT_FALSE(form_.cmdOriginal.Enabled);
}

TEST_F(ContourWindowTest, CopiesThePageWithTitleAndLegend) {
    ClickOn(*view_, "cmdCopy");
    const QImage plot = QApplication::clipboard()->image();
    EXPECT_GT(plot.width(), plot.height() / 2);
    EXPECT_EQ(Child<QLabel>(*view_, "toast").text().toStdString(), "Copied");
    ClickOn(*view_, "optView(1)");
    ClickOn(*view_, "cmdCopy");
    EXPECT_NE(QApplication::clipboard()->image(), plot);
}

}  // namespace
}  // namespace lithmark::tests
