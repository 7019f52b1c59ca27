// The field of a raft's values: classes, regions, lines, extremes and sections, against geometry.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>

#include "contour/FieldColours.h"
#include "contour/FieldPlot.h"
#include "contour/FieldSection.h"
#include "contour/GridPlot.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class FieldTest : public testing::Test {
  protected:
    void SetUp() override {
        LanguageTexts().SetCurrent(Language::English);
        StartSession();
        SharedServices().DecimalSign = '.';
        Session.ContourResult = "Tab5";
    }
};

double AreaOf(const std::vector<std::vector<FieldPoint>>& polygons) {
    double area = 0;
    for (const auto& polygon : polygons) {
        double twice = 0;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const FieldPoint &a = polygon[i], &b = polygon[(i + 1) % polygon.size()];
            twice += a.X * b.Y - b.X * a.Y;
        }
        EXPECT_GE(twice, -1e-9) << "all polygons turn the same way";
        area += 0.5 * twice;
    }
    return area;
}

TEST_F(FieldTest, ClassesLieAtRoundNumbersAroundAllValues) {
    const BasContour plot = GridPlot(4, 4, 1, 1, [](double x, double) { return 12.3 + 61.4 * x; });
    const FieldPlot field(plot);
    EXPECT_THAT(field.Limits(), ElementsAre(10, 20, 30, 40, 50, 60, 70, 80));
    EXPECT_EQ(field.LimitText(20), "20");
    EXPECT_EQ(field.ClassOf(20), 2);
    EXPECT_EQ(field.ClassOf(19.99), 1);
    EXPECT_EQ(field.ClassOf(80), 7);
    for (double size = 1e-4; size < 1e5; size *= 1.9) {
        const FieldPlot other(GridPlot(2, 2, 1, 1, [&](double x, double y) { return size * (x + 0.3 * y - 0.4); }));
        ASSERT_LE(other.Classes(), 10) << size;
        ASSERT_GE(other.Classes(), 4) << size;
        const double slack = 1e-5 * (other.Limits()[1] - other.Limits()[0]);
        EXPECT_LE(other.Limits().front(), other.Least() + slack);
        EXPECT_GE(other.Limits().back(), other.Greatest() - slack);
        std::set<std::string> texts;
        for (const double limit : other.Limits()) EXPECT_TRUE(texts.insert(other.LimitText(limit)).second);
    }
}

TEST_F(FieldTest, SettlementsStandInTheUnitOfTheCaption) {
    Session.ContourResult = "Tab6";
    const FieldPlot field(GridPlot(2, 2, 1, 1, [](double x, double) { return 0.02 + 0.005 * x; }));
    EXPECT_NEAR(field.Least(), 2.0, 1e-6);
    EXPECT_NEAR(field.Greatest(), 2.5, 1e-6);
    EXPECT_EQ(field.LimitText(field.Limits()[1]), "2.05");
    LanguageTexts().SetCurrent(Language::German);
    EXPECT_EQ(field.LimitText(field.Limits()[1]), "2,05");
}

// Of a plane the region above a level is a part of the rectangle whose area is known.
TEST_F(FieldTest, RegionsHaveTheAreaOfThePlane) {
    const FieldPlot field(GridPlot(7, 5, 10, 4, [](double x, double) { return x; }));
    for (const double level : {-1.0, 0.0, 1.3, 5.0, 9.7})
        EXPECT_NEAR(AreaOf(field.RegionAbove(level)), 4 * (10 - std::max(level, 0.0)), 1e-4) << level;
    EXPECT_THAT(field.RegionAbove(10.1), IsEmpty());
}

TEST_F(FieldTest, LinesLieOnTheirLevelAndHaveItsLength) {
    const auto plane = [](double x, double y) { return 3 * x + 2 * y; };
    const FieldPlot field(GridPlot(6, 4, 6, 4, plane));
    double length = 0;
    for (const FieldLine& line : field.LineAt(12)) {
        EXPECT_NEAR(plane(line.From.X, line.From.Y), 12, 1e-5);
        EXPECT_NEAR(plane(line.To.X, line.To.Y), 12, 1e-5);
        length += std::hypot(line.To.X - line.From.X, line.To.Y - line.From.Y);
    }
    // 3 x + 2 y = 12 runs from (4, 0) to (4/3, 4).
    EXPECT_NEAR(length, std::hypot(4 - 4.0 / 3, 4), 1e-4);
}

TEST_F(FieldTest, TheLeastAndTheGreatestValueAreFoundAtAllTheirNodes) {
    const FieldPlot field(GridPlot(8, 8, 8, 8, [](double x, double y) { return std::abs(x - 4) + std::abs(y - 4); }));
    EXPECT_THAT(field.LeastAt(), ElementsAre(FieldPoint{4, 4}));
    EXPECT_EQ(field.GreatestAt().size(), 4u) << "the corners";
    EXPECT_EQ(field.Least(), 0);
    EXPECT_EQ(field.Greatest(), 8);
}

TEST_F(FieldTest, AFieldThatIsEvenButForRoundingHasOneClassAndNoExtremes) {
    const FieldPlot field(GridPlot(3, 3, 1, 1, [](double x, double y) { return 2.5 + 1e-7 * x * y; }));
    EXPECT_TRUE(field.Even());
    EXPECT_EQ(field.Classes(), 1);
    EXPECT_EQ(field.ClassOf(2.5), 1);
    EXPECT_THAT(field.LeastAt(), IsEmpty());
    EXPECT_NEAR(AreaOf(field.RegionAbove(field.Limits()[0])), 1, 1e-6);
    const FieldPlot nothing(GridPlot(3, 3, 1, 1, [](double, double) { return 0; }));
    EXPECT_TRUE(nothing.Even());
    EXPECT_LT(nothing.Limits()[0], 0);
}

// Of a plane the section is a straight line from edge to edge, whichever way it runs over the mesh.
TEST_F(FieldTest, ASectionHasTheValuesOfThePlane) {
    const auto plane = [](double x, double y) { return 3 * x + 2 * y; };
    const FieldPlot field(GridPlot(6, 4, 6, 4, plane));
    for (const FieldLine& line : {FieldLine{{0, 2}, {6, 2}}, FieldLine{{0.3, 0.2}, {5.1, 3.7}},
                                  FieldLine{{2, 0}, {2, 4}}, FieldLine{{0, 0}, {4, 4}}, FieldLine{{5, 1}, {1, 1}}}) {
        const auto points = field.Section(line);
        ASSERT_GE(points.size(), 2u);
        EXPECT_NEAR(points.front().Distance, 0, 1e-5);
        EXPECT_NEAR(points.back().Distance, std::hypot(line.To.X - line.From.X, line.To.Y - line.From.Y), 1e-5);
        for (std::size_t i = 0; i < points.size(); ++i) {
            EXPECT_NEAR(points[i].Value, plane(points[i].At.X, points[i].At.Y), 1e-4);
            if (i > 0) {
                EXPECT_GT(points[i].Distance, points[i - 1].Distance);
            }
        }
    }
}

TEST_F(FieldTest, ASectionBeginsAndEndsWhereTheRaftDoes) {
    const FieldPlot field(GridPlot(6, 4, 6, 4, [](double x, double) { return x; }));
    const auto points = field.Section({{-2, 1.1}, {10, 1.1}});
    EXPECT_NEAR(points.front().Distance, 2, 1e-5);
    EXPECT_NEAR(points.back().Distance, 8, 1e-5);
    EXPECT_NEAR(points.back().Value, 6, 1e-5);
    EXPECT_THAT(field.Section({{-2, 5}, {10, 5}}), IsEmpty());
    EXPECT_THAT(field.Section({{1, 1}, {1, 1}}), IsEmpty());
}

// Every row of the curve is a point of the section, in the digits that the curve needs.
TEST_F(FieldTest, TheCurveOfASectionIsATableOverTheDistance) {
    Session.Len1Factor = 1;
    const FieldPlot field(GridPlot(2, 2, 4, 4, [](double x, double) { return 10 * x; }));
    const ChartArguments chart = SectionChart(field, {{0, 1}, {4, 1}});
    EXPECT_EQ(chart.Curves, 1);
    EXPECT_EQ(chart.Cells(1, 1), "0.0000");
    EXPECT_EQ(std::stod(chart.Cells(chart.LastRow, 1)), 4);
    EXPECT_EQ(std::stod(chart.Cells(chart.LastRow, 2)), 40);
    EXPECT_EQ(SectionChart(field, {{0, 9}, {4, 9}}).LastRow, 0);
}

TEST_F(FieldTest, ALineIsFourNumbersWithTwoDifferentEnds) {
    EXPECT_EQ(ParseFieldLine("0,1.5,-4,2")->To, (FieldPoint{-4, 2}));
    for (const char* wrong : {"", "1,2,3", "1,2,3,4,5", "1,2,3,x", "1,2,1,2", "1;2;3;4"})
        EXPECT_FALSE(ParseFieldLine(wrong)) << wrong;
    const BasContour plot = GridPlot(2, 2, 6, 4, [](double x, double) { return x; });
    EXPECT_EQ(MiddleLine(plot).From, (FieldPoint{0, 2}));
    EXPECT_EQ(MiddleLine(plot).To, (FieldPoint{6, 2}));
}

// The colours as an eye has them: CIELAB of sRGB under daylight D65 (IEC 61966-2-1).
using Lab = std::array<double, 3>;

Lab LabOf(std::array<double, 3> linear) {
    const auto& [r, g, b] = linear;
    const std::array<double, 3> xyz = {(0.4124 * r + 0.3576 * g + 0.1805 * b) / 0.9505,
                                       0.2126 * r + 0.7152 * g + 0.0722 * b,
                                       (0.0193 * r + 0.1192 * g + 0.9505 * b) / 1.0890};
    std::array<double, 3> f{};
    for (std::size_t i = 0; i < 3; ++i) f[i] = xyz[i] > 0.008856 ? std::cbrt(xyz[i]) : 7.787 * xyz[i] + 16.0 / 116;
    return {116 * f[1] - 16, 500 * (f[0] - f[1]), 200 * (f[1] - f[2])};
}

std::array<double, 3> Linear(std::uint32_t colour) {
    std::array<double, 3> linear{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double c = (colour >> (16 - 8 * i) & 0xFF) / 255.0;
        linear[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    }
    return linear;
}

// Without the cones for red or for green (Machado, Oliveira and Fernandes 2009, severity 1).
using Matrix3 = std::array<std::array<double, 3>, 3>;
constexpr Matrix3 kNormal = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix3 kProtan = {
    {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix3 kDeutan = {
    {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};

Lab Seen(std::uint32_t colour, const Matrix3& eye) {
    const auto linear = Linear(colour);
    std::array<double, 3> seen{};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) seen[i] += eye[i][j] * linear[j];
    for (double& c : seen) c = std::clamp(c, 0.0, 1.0);
    return LabOf(seen);
}

TEST_F(FieldTest, EqualStepsOfColourAreSeenAsEqualStepsByAllEyes) {
    for (const int classes : {5, 10})
        for (const Matrix3& eye : {kNormal, kProtan, kDeutan}) {
            double least = 1e9, greatest = 0;
            for (int i = 1; i < classes; ++i) {
                const Lab a = Seen(FieldColour((i - 1.0) / (classes - 1)), eye);
                const Lab b = Seen(FieldColour(static_cast<double>(i) / (classes - 1)), eye);
                EXPECT_GT(b[0], a[0]) << "lighter with every class, so that print without colours keeps the order";
                const double step = std::hypot(b[0] - a[0], b[1] - a[1], b[2] - a[2]);
                least = std::min(least, step);
                greatest = std::max(greatest, step);
            }
            EXPECT_GT(least, 5) << "two neighbours differ plainly";
            EXPECT_LT(greatest, 3 * least);
        }
    EXPECT_EQ(FieldColour(-1), FieldColour(0));
    EXPECT_EQ(FieldColour(2), FieldColour(1));
}

}  // namespace
}  // namespace lithmark::tests
