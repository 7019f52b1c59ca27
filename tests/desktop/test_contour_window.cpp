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
    ClickOn(*view_, "optView(1)");
    ClickOn(*view_, "cmdCopy");
    EXPECT_NE(QApplication::clipboard()->image(), plot);
}

}  // namespace
}  // namespace lithmark::tests
