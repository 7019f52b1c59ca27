// A value over two quantities as a picture.
#include "RenderCase.h"
#include "render/figures/FieldChartDocument.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

// s = x + 10 y over 0 to 4 and 0 to 1: from 0 to 14.
FieldChart Plane() {
    const std::vector<double> x = {0, 1, 2, 3, 4}, y = {0, 0.5, 1};
    std::vector<std::vector<double>> values;
    for (const double up : y) {
        values.emplace_back();
        for (const double across : x) values.back().push_back(across + 10 * up);
    }
    FieldChart chart(FieldPlot{TrianglesOfGrid(x, y, values)});
    chart.Right = 4;
    chart.Top = 1;
    chart.Title = "Settlement s [cm]   Crane";
    chart.XTitle = "Thickness h [m]";
    chart.YTitle = "Load p [MN/m2]";
    chart.ValueTitle = "Settlement s [cm]";
    return chart;
}

class FieldChartTest : public RenderTest {};

TEST_F(FieldChartTest, HasItsAxesItsClassesItsLimitAndThePresentValue) {
    FieldChart chart = Plane();
    chart.Limit = 7;
    chart.LimitName = "limit 7 cm";
    chart.Present = FieldPoint{3, 0.25};
    chart.PresentName = "present value: 5.5 cm";
    const std::string svg = FieldChartFile(PictureKind::Svg, chart);
    ExpectXml(svg);
    for (const char* words :
         {"Settlement s [cm]   Crane", "Thickness h [m]", "Load p [MN/m2]", "limit 7 cm", "present value: 5.5 cm"})
        EXPECT_THAT(svg, HasSubstr(words));
    // Seven classes of 2 cm: their limits stand at the scale.
    EXPECT_EQ(chart.Field.Classes(), 7);
    for (const char* limit : {">0<", ">2<", ">6<", ">12<", ">14<"}) EXPECT_THAT(svg, HasSubstr(limit));
    EXPECT_THAT(FieldChartFile(PictureKind::Pdf, chart), StartsWith("%PDF"));
    EXPECT_THAT(FieldChartFile(PictureKind::Png, chart), StartsWith("\x89PNG"));
}

TEST_F(FieldChartTest, ALimitBesideTheValuesIsNotDrawn) {
    FieldChart chart = Plane();
    chart.Limit = 20;
    chart.LimitName = "limit 20 cm";
    EXPECT_THAT(FieldChartFile(PictureKind::Svg, chart), Not(HasSubstr("limit 20 cm")));
}

TEST_F(FieldChartTest, ACellWithoutANumberIsLeftOut) {
    const double gap = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(TrianglesOfGrid({0, 1, 2}, {0, 1}, {{1, 2, 3}, {2, 3, 4}}).size(), 8U);
    EXPECT_EQ(TrianglesOfGrid({0, 1, 2}, {0, 1}, {{1, 2, gap}, {2, 3, 4}}).size(), 4U);
    EXPECT_TRUE(TrianglesOfGrid({0, 1, 2}, {0, 1}, {{1, gap, 3}, {2, 3, 4}}).empty());
}

}  // namespace
}  // namespace lithmark::tests
