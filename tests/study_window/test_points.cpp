// The table of points: grids, lines, depths, pasted blocks, what is handed to the command.
#include "StudyWindowCase.h"
#include "core/Units.h"
#include "study/Row.h"
#include "study/window/Points.h"
#include "study/window/PointsChart.h"

namespace lithmark::tests {
namespace {

class PointsTest : public StudyWindowCase {
  protected:
    PointsTable Points() {
        ProblemForm& form = Dialog(Problem::SoilStress);
        form.Find("txt_x")->Text = "1";
        form.Find("txt_y")->Text = "-0.5";
        form.Find("txt_z")->Text = "2";
        const SessionRecord draft = form.Draft().Record;
        std::vector<FieldChoice> coordinates = FieldChoicesOf(form, draft);
        std::erase_if(coordinates, [](const FieldChoice& field) {
            return field.Name.size() != 1 || field.Name > "z" || field.Name < "x";
        });
        return {coordinates, ResultChoicesOf(draft)};
    }
};

TEST_F(PointsTest, BeginsWithTheDialogsPoint) {
    const PointsTable points = Points();
    EXPECT_EQ(points.RowsCsv(), "x,y,z\r\n1,-0.5,2\r\n");
    EXPECT_EQ(points.Results().size(), 11U);  // all of the problem
    EXPECT_EQ(points.Request("p.csv").Rows, "p.csv");
    EXPECT_THAT(points.Request("p.csv").Take, ::testing::IsSupersetOf({"Sigma_z", "Tau_xz", "max_Tau", "q"}));
}

TEST_F(PointsTest, AGridHasEveryCombinationDepthsFastest) {
    PointsTable points = Points();
    EXPECT_TRUE(points.AddGrid({EvenValues{0, 2, 3}, EvenValues{1, 1, 5}, EvenValues{0.5, 1, 2}}, true));
    EXPECT_EQ(points.RowsCsv(), "x,y,z\r\n0,1,0.5\r\n0,1,1\r\n1,1,0.5\r\n1,1,1\r\n2,1,0.5\r\n2,1,1\r\n");
    points.Editing().Undo();  // one step
    EXPECT_EQ(points.Editing().Rows(), 1);
    EXPECT_FALSE(points.AddGrid({EvenValues{0, 1, 200}, EvenValues{0, 1, 200}, EvenValues{0, 1, 200}}, true));
    EXPECT_EQ(points.Editing().Rows(), 1);
}

TEST_F(PointsTest, ALineHasEvenStepsAndMayStandBehindThePresentPoints) {
    PointsTable points = Points();
    EXPECT_TRUE(points.AddLine({0, 0, 1}, {4, -2, 3}, 3, false));
    EXPECT_EQ(points.RowsCsv(), "x,y,z\r\n1,-0.5,2\r\n0,0,1\r\n2,-1,2\r\n4,-2,3\r\n");
}

TEST_F(PointsTest, ARowThatCannotBeWorkedIsLeftOutAndSaysWhy) {
    PointsTable points = Points();
    EXPECT_EQ(points.Editing().Paste(0, 0, "x;y;z\n0;0;1\n0;ab;1,5\n0;0;-1\n1;1;2\n"),
              "4 rows pasted, decimal comma, head row left out");
    EXPECT_THAT(points.GoodRows(), ElementsAre(0, 3));
    EXPECT_EQ(points.RowsCsv(), "x,y,z\r\n0,0,1\r\n1,1,2\r\n");
    EXPECT_THAT(points.Fault(1).value(), HasSubstr("y"));
    EXPECT_THAT(points.Fault(2).value(), HasSubstr("z"));  // above the surface
    EXPECT_FALSE(points.Fault(3));
}

TEST_F(PointsTest, TypedLengthsGoToTheCommandInMetres) {
    SetDefaultUnits();
    UnitSettings units = UnitsInForce();
    units.Len1Label = "[mm]";
    units.Len1Factor = 1000;
    SetUnits(units);
    PointsTable points = Points();
    points.Editing().SetCell(0, 1, "-500");
    points.Editing().SetCell(0, 2, "2500");
    EXPECT_EQ(points.RowsCsv(), "x,y,z\r\n0.001,-0.5,2.5\r\n");
    SetDefaultUnits();
}

TEST_F(PointsTest, PointsOfOneLineAreACurveAndAMissingResultAGap) {
    PointsTable points = Points();
    points.AddGrid({EvenValues{0, 1, 2}, EvenValues{0, 0, 1}, EvenValues{1, 3, 3}}, true);
    const ChartArguments chart = PointsChart(points, 0, 2, {10, 20, 30, 40, kMissing, 60});
    ASSERT_EQ(chart.Curves, 2);
    EXPECT_EQ(chart.Legends(1), "x = 0 m, y = 0 m");
    EXPECT_EQ(chart.Legends(2), "x = 1 m, y = 0 m");
    EXPECT_EQ(chart.Cells(1, 2), "10");
    EXPECT_EQ(chart.Cells(1, 3), "");
    EXPECT_EQ(chart.Cells(5, 1), "2");
    EXPECT_EQ(chart.Cells(5, 3), "");
    EXPECT_EQ(chart.Cells(6, 3), "60");
    // Over x every depth has its two points; over y every point stands by itself.
    EXPECT_EQ(PointsChart(points, 0, 0, {}).Curves, 3);
    const ChartArguments alone = PointsChart(points, 0, 1, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(alone.Curves, 1);
    EXPECT_EQ(alone.LineStyles(1), LineStyle::Points);
}

}  // namespace
}  // namespace lithmark::tests
