// The contour engine against geometry: what any correct plot keeps.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <map>
#include <numbers>
#include <set>

#include "contour/GridPlot.h"
#include "contour/RecordingSurface.h"
#include "core/StartSession.h"

namespace lithmark::tests {
namespace {

// What the plot's boundary lines are, by drawing nothing else.
std::vector<RecordingSurface::DrawnLine> Boundary(BasContour& plot) {
    RecordingSurface surface(10, 10);
    plot.Redraw(surface, {.ColorContours = false, .Displaylines = true, .DrawGrid = false, .DisplayValues = false});
    std::vector<RecordingSurface::DrawnLine> lines;
    for (const auto& line : surface.Lines)
        if (line.Color == BasContour::kColorBoundary) lines.push_back(line);
    return lines;
}

class ContourEngine : public testing::Test {
  protected:
    void SetUp() override { StartSession(); }
};

TEST_F(ContourEngine, TheBoundaryOfARectangleMeshHasTwiceTheSumOfItsIntervals) {
    for (const auto& [nx, ny] : {std::pair{1, 1}, {2, 2}, {7, 4}, {1, 9}}) {
        BasContour plot = GridPlot(nx, ny, 7, 4, [](double, double) { return 1.0; });
        const auto lines = Boundary(plot);
        EXPECT_EQ(lines.size(), 2u * static_cast<unsigned>(nx + ny));
        double length = 0;
        for (const auto& line : lines) length += std::hypot(line.X2 - line.X1, line.Y2 - line.Y1);
        EXPECT_NEAR(length, 2 * (7 + 4), 1e-4);
    }
}

// The procedure as it is told, edge by edge: quadratic, and the measure for the quick one.
TEST_F(ContourEngine, TheBoundaryIsTheOneOfTheEdgeByEdgeSearch) {
    BasContour plot = GridPlot(4, 3, 4, 3, [](double x, double y) { return x + y; });
    // A triangle beside the grid, and a second element on top of the first.
    plot.ElementCount = 14;
    BasContour odd = plot;
    odd.ElemNodeCount.Grow(14);
    odd.ElemNode.Redim(1, 14, 1, 4);
    odd.ElemNext.Redim(1, 14, 1, 4);
    for (int e = 1; e <= 12; ++e)
        for (int j = 1; j <= 4; ++j) odd.ElemNode(e, j) = plot.ElemNode(e, j);
    odd.ElemNodeCount(13) = 3;
    odd.ElemNode(13, 1) = 1;
    odd.ElemNode(13, 2) = 2;
    odd.ElemNode(13, 3) = 20;
    odd.ElemNodeCount(14) = 4;
    for (int j = 1; j <= 4; ++j) odd.ElemNode(14, j) = odd.ElemNode(1, j);
    odd.FindBoundary();

    std::map<std::pair<int, int>, int> next;
    const auto count = [&](int e) { return static_cast<int>(odd.ElemNodeCount(e)); };
    const auto node = [&](int e, int j) { return static_cast<int>(odd.ElemNode(e, j > count(e) ? 1 : j)); };
    for (int e = 1; e <= 14; ++e)
        for (int j = 1; j <= count(e); ++j) next[{e, j}] = node(e, j + 1);
    for (int e = 1; e <= 14; ++e)
        for (int j = 1; j <= count(e); ++j) {
            const int a = node(e, j), b = node(e, j + 1);
            int hits = 0;
            for (int f = e + 1; f <= 14; ++f)
                for (int k = 1; k <= count(f); ++k) {
                    if (next[{f, k}] == 0) continue;
                    const int c = node(f, k), d = node(f, k + 1);
                    if ((a == c && b == d) || (a == d && b == c)) {
                        next[{f, k}] = 0;
                        ++hits;
                    }
                }
            if (hits > 0) next[{e, j}] = 0;
        }
    for (const auto& [place, expected] : next)
        EXPECT_EQ(odd.ElemNext(place.first, place.second), expected) << place.first << "," << place.second;
}

TEST_F(ContourEngine, AMeshOf32000ElementsFindsItsBoundary) {
    BasContour plot = GridPlot(200, 160, 200, 160, [](double, double) { return 0.0; });
    EXPECT_EQ(Boundary(plot).size(), 720u);
}

TEST_F(ContourEngine, TheWindowIsASquareWithATwentiethOfMargin) {
    BasContour plot = GridPlot(2, 2, 10, 4, [](double x, double) { return x; });
    // size 10, centre (5, 2): 5 -/+ 5.5 and 2 -/+ 5.5.
    EXPECT_FLOAT_EQ(plot.Window.XMin.Stored(), -0.5f);
    EXPECT_FLOAT_EQ(plot.Window.XMax.Stored(), 10.5f);
    EXPECT_FLOAT_EQ(plot.Window.YMin.Stored(), -3.5f);
    EXPECT_FLOAT_EQ(plot.Window.YMax.Stored(), 7.5f);
}

TEST_F(ContourEngine, ALabelNamesTheMiddleOfItsClass) {
    BasContour plot = GridPlot(2, 2, 1, 1, [](double x, double) { return 10 * x; });
    EXPECT_EQ(plot.ClassLabel(1), "0.50");
    EXPECT_EQ(plot.ClassLabel(10), "9.50");
}

TEST_F(ContourEngine, EveryIsolinePointHasItsLevelsValueInALinearField) {
    // A plane is reproduced exactly by linear interpolation, so every point of a line lies on its level.
    const auto plane = [](double x, double y) { return 3 * x + 2 * y; };
    BasContour plot = GridPlot(5, 4, 5, 4, plane);
    RecordingSurface surface(100, 100);
    plot.Redraw(surface, {.ColorContours = false, .Displaylines = true, .DrawGrid = false, .DisplayValues = true});
    int lines = 0;
    for (const auto& line : surface.Lines) {
        if (line.Color == BasContour::kColorBoundary) continue;
        ++lines;
        int k = 1;
        while (plot.ClassColor(k) != line.Color) ++k;
        const double level = plot.ZMin + k * plot.ZStep;
        EXPECT_NEAR(plane(line.X1, line.Y1), level, 1e-4);
        EXPECT_NEAR(plane(line.X2, line.Y2), level, 1e-4);
    }
    EXPECT_GT(lines, 50);
}

TEST_F(ContourEngine, TheRingsOfAConeHaveTheRadiusOfTheirLevel) {
    // z = r over a fine grid: the isoline of level c is a circle of radius c, within the chord error of an element.
    const double n = 80, half = 4;
    BasContour plot = GridPlot(80, 80, 8, 8, [&](double x, double y) { return std::hypot(x - half, y - half); });
    RecordingSurface surface(100, 100);
    plot.Redraw(surface, {.ColorContours = false, .Displaylines = true, .DrawGrid = false, .DisplayValues = false});
    const double element = 8 / n;
    int rings = 0;
    for (const auto& line : surface.Lines) {
        if (line.Color == BasContour::kColorBoundary) continue;
        ++rings;
        int k = 1;
        while (plot.ClassColor(k) != line.Color) ++k;
        EXPECT_NEAR(std::hypot(line.X1 - half, line.Y1 - half), plot.ZMin + k * plot.ZStep, element / 2);
    }
    EXPECT_GT(rings, 1000);
}

TEST_F(ContourEngine, AnIsolineClosesOrEndsOnTheBoundary) {
    BasContour plot = GridPlot(12, 12, 6, 6, [](double x, double y) { return std::sin(x) + 0.3 * y; });
    RecordingSurface surface(100, 100);
    plot.Redraw(surface, {.ColorContours = false, .Displaylines = true, .DrawGrid = false, .DisplayValues = false});
    std::map<std::tuple<int, long, long>, int> ends;
    for (const auto& line : surface.Lines) {
        if (line.Color == BasContour::kColorBoundary) continue;
        for (const auto& [x, y] : {std::pair{line.X1, line.Y1}, {line.X2, line.Y2}})
            ++ends[{line.Color, std::lround(x * 1e4), std::lround(y * 1e4)}];
    }
    for (const auto& [end, count] : ends) {
        if (count % 2 == 0) continue;
        const double x = std::get<1>(end) * 1e-4, y = std::get<2>(end) * 1e-4;
        const double toBoundary = std::min({x, y, 6 - x, 6 - y});
        EXPECT_LT(std::abs(toBoundary), 2e-3) << x << "," << y;
    }
}

TEST_F(ContourEngine, AFlatFieldDrawsNeitherColoursNorLinesButBoundaryAndMesh) {
    BasContour plot = GridPlot(3, 2, 3, 2, [](double, double) { return 7.5; });
    RecordingSurface surface(60, 60);
    plot.Redraw(surface, {});
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 60; ++x) ASSERT_EQ(surface.ColorAt(x, y), -1);
    EXPECT_EQ(surface.Lines.size(), 10u + 6u * 4u);
    for (int i = 1; i <= 10; ++i) EXPECT_EQ(plot.ClassLabel(i), "7.50");
}

TEST_F(ContourEngine, EveryPixelInsideTheRaftIsFilledAndNoneOutside) {
    BasContour plot = GridPlot(6, 5, 6, 5, [](double x, double y) { return x * x + y; });
    const int n = 400;
    RecordingSurface surface(n, n);
    plot.Redraw(surface, {});
    const double scale = (plot.Window.XMax - plot.Window.XMin) / n;
    for (int row = 0; row < n; ++row)
        for (int column = 0; column < n; ++column) {
            const double x = plot.Window.XMin + column * scale, y = plot.Window.YMax - row * scale;
            const double inside = std::min({x, 6 - x, y, 5 - y}) / scale;  // pixels to the edge, negative outside
            if (inside > 0.51) {
                ASSERT_GE(surface.ColorAt(column, row), 0) << column << "," << row;
            }
            if (inside < -0.51) {
                ASSERT_EQ(surface.ColorAt(column, row), -1) << column << "," << row;
            }
        }
    EXPECT_EQ(surface.PixelsOutside, 0);
}

TEST_F(ContourEngine, APixelHasTheColourOfItsValuesClass) {
    BasContour plot = GridPlot(10, 2, 10, 2, [](double x, double) { return x; });  // classes are bands of width 1
    const int n = 220;                                                             // 20 pixels to the metre
    RecordingSurface surface(n, n);
    plot.Redraw(surface, {});
    const double scale = (plot.Window.XMax - plot.Window.XMin) / n;
    const int row = n / 2;
    for (int column = 0; column < n; ++column) {
        const double x = plot.Window.XMin + column * scale;
        const double fraction = x - std::floor(x);
        if (x < 0 || x > 10 || fraction < 0.01 || fraction > 0.99) continue;
        EXPECT_EQ(surface.ColorAt(column, row), plot.ClassColor(static_cast<int>(x) + 1)) << x;
    }
}

TEST_F(ContourEngine, TheGreatestValueShowsAsClassTen) {
    BasContour plot = GridPlot(2, 2, 1, 1, [](double x, double) { return x; });
    EXPECT_EQ(plot.ClassOf(plot.ZMax), 10);
    EXPECT_EQ(plot.ClassOf(plot.ZMin), 1);
    EXPECT_EQ(plot.ClassOf(plot.ZMin - 1), 1);
}

TEST_F(ContourEngine, AValueIsPrintedOnceForEachClass) {
    BasContour plot = GridPlot(8, 8, 8, 8, [](double x, double y) { return x + y; });
    RecordingSurface surface(100, 100);
    plot.Redraw(surface, {});
    std::set<std::string> labels;
    for (const auto& text : surface.Texts) EXPECT_TRUE(labels.insert(text.Text).second) << text.Text;
    EXPECT_GE(labels.size(), 9u);
    // Without the box no value is printed, and the next drawing prints again.
    RecordingSurface silent(100, 100);
    plot.Redraw(silent, {.DisplayValues = false});
    EXPECT_TRUE(silent.Texts.empty());
}

TEST_F(ContourEngine, EqualValuesAlongAnEdgeDrawNoError) {
    // Large equal values, where 0.00001 would be lost in the Single.
    BasContour plot = GridPlot(3, 3, 3, 3, [](double x, double) { return 50000 + std::floor(x); });
    RecordingSurface surface(50, 50);
    EXPECT_NO_THROW(plot.Redraw(surface, {}));
}

TEST_F(ContourEngine, ValuesThatDifferByRoundingAloneEnd) {
    const float upper = std::nextafter(1e6f, 2e6f);
    BasContour plot = GridPlot(2, 2, 1, 1, [&](double x, double) { return x > 0.4 ? upper : 1e6f; });
    RecordingSurface surface(20, 20);
    EXPECT_NO_THROW(plot.Redraw(surface, {}));
}

TEST_F(ContourEngine, AZoomToACornerCutsAThirdOffTheOppositeSides) {
    BasContour plot = GridPlot(2, 2, 10, 10, [](double x, double) { return x; });
    // Window -0.5 .. 10.5 in both directions; 0.67 * 10.5 + 0.33 * -0.5 = 6.87 and 0.67 * -0.5 + 0.33 * 10.5 = 3.13.
    const auto zoomed = [&](ZoomCornerOf corner) {
        plot.ZoomOriginal();
        plot.ZoomCorner(corner);
        return std::array{plot.Window.XMin.Stored(), plot.Window.XMax.Stored(), plot.Window.YMin.Stored(),
                          plot.Window.YMax.Stored()};
    };
    const auto expect = [&](ZoomCornerOf corner, std::array<float, 4> window) {
        const auto found = zoomed(corner);
        for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(found[i], window[i], 1e-5);
    };
    expect(ZoomCornerOf::UpperLeft, {-0.5f, 6.87f, 3.13f, 10.5f});
    expect(ZoomCornerOf::UpperRight, {3.13f, 10.5f, 3.13f, 10.5f});
    expect(ZoomCornerOf::LowerLeft, {-0.5f, 6.87f, -0.5f, 6.87f});
    expect(ZoomCornerOf::LowerRight, {3.13f, 10.5f, -0.5f, 6.87f});
}

TEST_F(ContourEngine, PreviousPressedTwiceGoesBack) {
    BasContour plot = GridPlot(2, 2, 10, 10, [](double x, double) { return x; });
    plot.ZoomCorner(ZoomCornerOf::UpperLeft);
    const Single zoomed = plot.Window.XMax;
    plot.ZoomPrevious();
    EXPECT_FLOAT_EQ(plot.Window.XMax.Stored(), 10.5f);
    plot.ZoomPrevious();
    EXPECT_EQ(plot.Window.XMax, zoomed);
    plot.ZoomOriginal();
    plot.ZoomPrevious();
    EXPECT_FLOAT_EQ(plot.Window.XMax.Stored(), 10.5f);
}

TEST_F(ContourEngine, AZoomedPlotFillsOnlyWhatItsWindowShows) {
    BasContour plot = GridPlot(4, 4, 4, 4, [](double x, double y) { return x * y; });
    for (int i = 0; i < 20; ++i) plot.ZoomCorner(ZoomCornerOf::LowerLeft);
    for (int i = 0; i < 3; ++i) plot.ZoomCorner(ZoomCornerOf::UpperRight);
    RecordingSurface surface(200, 200);
    plot.Redraw(surface, {});
    EXPECT_EQ(surface.PixelsOutside, 0);
}

TEST_F(ContourEngine, TheLegendRunsUpwardsWithEachLabelBesideItsBox) {
    BasContour plot = GridPlot(2, 2, 1, 1, [](double x, double) { return x; });
    RecordingSurface surface(20, 100);
    plot.DrawLegend(surface);
    ASSERT_EQ(surface.Boxes.size(), 10u);
    ASSERT_EQ(surface.Texts.size(), 10u);
    // The part of the surface's height that lies above a world coordinate.
    const auto down = [&](double y) { return (y - surface.Scale.Top) / (surface.Scale.Bottom - surface.Scale.Top); };
    EXPECT_EQ(surface.Scale.Left, 0);
    EXPECT_EQ(surface.Scale.Right, 1);
    for (std::size_t i = 0; i < 10; ++i) {
        const double boxTop = 0.1 * static_cast<double>(9 - i);
        EXPECT_NEAR(down(surface.Boxes[i].Y1), boxTop + 0.1, 1e-9);
        EXPECT_NEAR(down(surface.Boxes[i].Y2), boxTop, 1e-9);
        EXPECT_NEAR(down(surface.Texts[i].Y), boxTop + 0.02, 1e-9);
        EXPECT_EQ(surface.Boxes[i].X2, 0.1);
        EXPECT_EQ(surface.Texts[i].X, 0.15);
    }
}

TEST_F(ContourEngine, TheLegendHasTenBoxesWithTheirLabels) {
    BasContour plot = GridPlot(2, 2, 1, 1, [](double x, double) { return x; });
    RecordingSurface surface(20, 100);
    plot.DrawLegend(surface);
    ASSERT_EQ(surface.Boxes.size(), 10u);
    ASSERT_EQ(surface.Texts.size(), 10u);
    for (std::size_t i = 0; i < 10; ++i) {
        EXPECT_NEAR(surface.Boxes[i].Y1, 0.1 * static_cast<double>(i), 1e-12);
        EXPECT_EQ(surface.Boxes[i].Color, plot.ClassColor(static_cast<int>(i) + 1));
        EXPECT_EQ(surface.Texts[i].Text, plot.ClassLabel(static_cast<int>(i) + 1));
    }
}

}  // namespace
}  // namespace lithmark::tests
