// The window of the contour plot: check boxes, zoom, and how it is reached.
#include "ProblemDialogTest.h"
#include "kernels/RunKernel.h"
#include "support/Matchers.h"
#include "ui/frmContour.h"
#include "ui/frmOptionDraw.h"
#include "ui/frmRigidDisplacement.h"

namespace lithmark::tests {
namespace {

class ContourWindow : public ProblemDialogTest {
  protected:
    // A raft of 4 m x 2 m, worked out, with its files in the project's folder.
    void WorkOutARaft() {
        Session.ProblemType = Problem::RaftDisplacement;
        Session.WorkDir = Session.DataDir;
        Session.WorkName = Session.ProjectName;
        TakeARaft();
        ASSERT_TRUE(RunProblemKernel());
        ASSERT_FALSE(Session.CalcAborted);
        Session.ContourResult = "Tab5";
        ASSERT_THAT(host.Messages, IsEmpty());
    }
    static void TakeARaft() {
        Session.LoadType = LoadShape::Rectangle;
        Session.AnalysisType = Analysis::Numerical;
        Session.Q = 1000;
        Session.A = 4;
        Session.B = 2;
        Session.h = 5;
        Session.Es = 5000;
        Session.Nue = 0.25;
    }
};

TEST_F(ContourWindow, OpensWithAllBoxesAndTheOriginalWindow) {
    WorkOutARaft();
    OnShown<frmContour>([](frmContour& form) {
        EXPECT_EQ(form.Caption, "Contour lines");
        EXPECT_EQ(form.fraResult.Caption, "Contact pressure:");
        for (const char* box : {"chkColorContours", "chkDisplaylines", "chkDrawGrid", "chkchkDisplayValues"})
            EXPECT_TRUE(form.Find(box)->Value) << box;
        EXPECT_FALSE(form.chkFineLabels.Value);
        EXPECT_EQ(form.Drawings(), 1);
        EXPECT_FALSE(form.cmdOriginal.Enabled);
        EXPECT_FALSE(form.cmdPrevious.Enabled);
        EXPECT_EQ(form.Plot.Window.XMin, form.Plot.OrigWindow.XMin);
    });
}

TEST_F(ContourWindow, HasCaptionsInThreeLanguages) {
    for (const Language language : {Language::German, Language::English, Language::Arabic}) {
        StartIn(language);
        WorkOutARaft();
        OnShown<frmContour>([&](frmContour& form) {
            EXPECT_EQ(form.RightToLeft, language == Language::Arabic);
            for (const Control* control : form.Controls())
                EXPECT_TRUE(control->Kind == ControlKind::Picture || !control->Caption.empty()) << control->Name;
        });
    }
}

TEST_F(ContourWindow, TheFrameSaysWhatIsDrawn) {
    WorkOutARaft();
    Session.ContourResult = "Tab6";
    OnShown<frmContour>([](frmContour& form) { EXPECT_EQ(form.fraResult.Caption, "Settlement:"); });
}

TEST_F(ContourWindow, BoxesActWithTheNextRedraw) {
    WorkOutARaft();
    OnShown<frmContour>([](frmContour& form) {
        Click(form, "chkDrawGrid");
        EXPECT_EQ(form.Drawings(), 1);
        EXPECT_TRUE(form.Drawn().DrawGrid);
        EXPECT_TRUE(form.WantsAnother());
        Click(form, "cmdRedraw");
        EXPECT_EQ(form.Drawings(), 2);
        EXPECT_FALSE(form.Drawn().DrawGrid);
        EXPECT_FALSE(form.WantsAnother());
    });
}

TEST_F(ContourWindow, APlotWithoutColoursAlwaysHasLines) {
    WorkOutARaft();
    OnShown<frmContour>([](frmContour& form) {
        Click(form, "chkDisplaylines");
        Click(form, "chkColorContours");
        EXPECT_TRUE(form.chkDisplaylines.Value);
        EXPECT_FALSE(form.chkDisplaylines.Enabled);
        Click(form, "chkColorContours");
        EXPECT_TRUE(form.chkDisplaylines.Enabled);
    });
}

// The fine labels of settlements stand in centimetres, a hundred times the metres of the plot. Their last digit is a
// tenth of a class at most.
TEST_F(ContourWindow, FineLabelsStandInTheUnitOfTheCaptionAndTellTheClassesApart) {
    WorkOutARaft();
    Session.ContourResult = "Tab5";
    OnShown<frmContour>([](frmContour& form) {
        const std::string told = form.Plot.ClassLabel(1);
        Click(form, "chkFineLabels");
        EXPECT_TRUE(form.WantsAnother());
        EXPECT_EQ(form.Plot.ClassLabel(1), told);
        Click(form, "cmdRedraw");
        EXPECT_FALSE(form.WantsAnother());
        for (int i = 2; i <= BasContour::kClasses; ++i)
            EXPECT_NE(form.Plot.ClassLabel(i), form.Plot.ClassLabel(i - 1)) << i;
        EXPECT_NEAR(std::stod(form.Plot.ClassLabel(1)), form.Plot.ZMin + 0.5 * form.Plot.ZStep, 0.1 * form.Plot.ZStep);
    });
    Session.Exz_x = 0.3;
    WorkOutARaft();
    Session.ContourResult = "Tab6";
    OnShown<frmContour>([](frmContour& form) {
        Click(form, "chkFineLabels");
        Click(form, "cmdRedraw");
        EXPECT_GT(form.Plot.ZStep, 0);
        EXPECT_NEAR(std::stod(form.Plot.ClassLabel(10)), 100 * (form.Plot.ZMax - 0.5 * form.Plot.ZStep),
                    10 * form.Plot.ZStep);
    });
}

// At a node the plot has the node's own value; beside the raft it has none.
TEST_F(ContourWindow, TheValueUnderTheCursorIsThatOfTheNodesInTheUnitOfTheCaption) {
    WorkOutARaft();
    OnShown<frmContour>([](frmContour& form) {
        const int node = form.Plot.NodeCount / 2;
        EXPECT_NEAR(form.ValueShown(form.Plot.CtrX(node), form.Plot.CtrY(node)).value(), Session.NodePressure(node),
                    1e-4 * Session.NodePressure(node));
        EXPECT_FALSE(form.ValueShown(form.Plot.Window.XMin, form.Plot.Window.YMin));
    });
    Session.ContourResult = "Tab6";
    OnShown<frmContour>([](frmContour& form) {
        EXPECT_NEAR(form.ValueShown(form.Plot.CtrX(1), form.Plot.CtrY(1)).value(), Session.NodeSettlement(1),
                    1e-4 * Session.NodeSettlement(1));
    });
}

// By hand: a zoom keeps 67 % of the width and the height, on the side of its corner.
TEST_F(ContourWindow, ZoomPreviousAndOriginalGoBackAndForth) {
    WorkOutARaft();
    OnShown<frmContour>([](frmContour& form) {
        const WorldWindow original = form.Plot.OrigWindow;
        Click(form, "cmdULeft");
        EXPECT_EQ(form.Plot.Window.XMin, original.XMin);
        EXPECT_EQ(form.Plot.Window.YMax, original.YMax);
        EXPECT_NEAR(form.Plot.Window.XMax - form.Plot.Window.XMin, 0.67 * (original.XMax - original.XMin), 1e-5);
        EXPECT_TRUE(form.cmdOriginal.Enabled && form.cmdPrevious.Enabled);
        Click(form, "cmdPrevious");
        EXPECT_EQ(form.Plot.Window.XMax, original.XMax);
        Click(form, "cmdPrevious");
        EXPECT_LT(form.Plot.Window.XMax, original.XMax);
        Click(form, "cmdOriginal");
        EXPECT_EQ(form.Plot.Window.XMax, original.XMax);
        EXPECT_FALSE(form.cmdOriginal.Enabled || form.cmdPrevious.Enabled);
        Click(form, "cmdLRight");
        EXPECT_EQ(form.Plot.Window.XMax, original.XMax);
        EXPECT_EQ(form.Plot.Window.YMin, original.YMin);
        EXPECT_TRUE(form.cmdPrevious.Enabled);
    });
}

TEST_F(ContourWindow, OpenedTwiceItStartsFromTheOriginalWindow) {
    WorkOutARaft();
    frmContour form;
    for (int time = 1; time <= 2; ++time) {
        host.OnForm<frmContour>([](frmContour& shown) {
            EXPECT_EQ(shown.Plot.Window.XMax, shown.Plot.OrigWindow.XMax);
            EXPECT_FALSE(shown.cmdPrevious.Enabled);
            Click(shown, "cmdURight");
        });
        CurrentHost().ShowForm(form);
    }
}

TEST_F(ContourWindow, TheToldPlotOpensFirstAndTheFieldIsOneClickAway) {
    WorkOutARaft();
    OnShown<frmContour>([](frmContour& form) {
        EXPECT_TRUE(form.optView[0].Value);
        EXPECT_FALSE(form.ShowsField());
        EXPECT_TRUE(form.chkFineLabels.Enabled);
        EXPECT_FALSE(form.chkSection.Enabled);
        Click(form, "optView(1)");
        EXPECT_TRUE(form.ShowsField());
        EXPECT_EQ(form.Drawings(), 2) << "a view changes at once";
        EXPECT_FALSE(form.WantsAnother());
        EXPECT_FALSE(form.chkFineLabels.Enabled);
        EXPECT_NEAR(form.Field().Greatest(), form.Plot.ZMax, 1e-3);
        Click(form, "chkDrawGrid");
        EXPECT_TRUE(form.WantsAnother());
        Click(form, "optView(0)");
        EXPECT_FALSE(form.ShowsField());
    });
    // The next time it is the told plot again.
    OnShown<frmContour>([](frmContour& form) { EXPECT_FALSE(form.ShowsField()); });
}

TEST_F(ContourWindow, ASectionBeginsInTheMiddleAndKeepsToTheWindow) {
    WorkOutARaft();
    OnShown<frmContour>([](frmContour& form) {
        EXPECT_FALSE(form.Section());
        Click(form, "optView(1)");
        EXPECT_FALSE(form.Section());
        Click(form, "chkSection");
        ASSERT_TRUE(form.Section());
        EXPECT_EQ(form.Section()->From.Y, form.Section()->To.Y);
        EXPECT_NEAR(form.Section()->To.X - form.Section()->From.X, 4, 1e-5);
        form.SetSection({{0.5, 0.5}, {99, 0.5}});
        EXPECT_EQ(form.Section()->To.X, form.Plot.OrigWindow.XMax);
        const FieldLine kept = *form.Section();
        form.SetSection({{1, 1}, {1, 1}});
        EXPECT_EQ(form.Section()->From, kept.From);
        Click(form, "optView(0)");
        EXPECT_FALSE(form.Section()) << "a section belongs to the field";
    });
}

TEST_F(ContourWindow, WithoutTheFilesOfARunItTellsWhichOneIsMissing) {
    WorkOutARaft();
    for (const std::string& name : DataFiles()) std::filesystem::remove(DataFile(name));
    OnShown<frmContour>([](frmContour& form) {
        EXPECT_FALSE(form.Ready());
        Click(form, "cmdRedraw");
        Click(form, "cmdULeft");
        EXPECT_EQ(form.Drawings(), 0);
    });
    ASSERT_THAT(host.Messages, SizeIs(1));
    EXPECT_THAT(host.LastMessage().Text, ::testing::HasSubstr("P1.TO1"));
    host.Messages.clear();
}

TEST_F(ContourWindow, IsReachedFromTheCurvesOfARaftAlone) {
    Session.ProblemType = Problem::RaftDisplacement;
    OnShown<frmRigidDisplacement>([this](frmRigidDisplacement& form) {
        host.OnForm<frmResultTools>([this](frmResultTools& viewer) {
            host.OnForm<frmOptionDraw>([](frmOptionDraw& choice) {
                Click(choice, "optDraw(5)");
                Click(choice, "cmdok");
            });
            Click(viewer, "CmdExcel");
            ASSERT_THAT(host.Charts, SizeIs(1));
            ASSERT_TRUE(host.Charts.back().ShowContours);
            host.OnForm<frmContour>([](frmContour& contours) {
                EXPECT_TRUE(contours.Ready());
                EXPECT_EQ(contours.fraResult.Caption, "Settlement:");
                Click(contours, "cmdok");
            });
            host.Charts.back().ShowContours();
        });
        Click(form, "cmdResult");
    });
    EXPECT_THAT(host.Messages, IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
