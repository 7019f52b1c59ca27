// The small figures of an answer: what is drawn of curves that are no usual ones.
#include <gmock/gmock.h>

#include <QImage>
#include <QTest>
#include <limits>

#include "desktop/answer/AnswerCurveView.h"
#include "render/drawings/Inks.h"

namespace lithmark::tests {
namespace {

class AnswerCurves : public ::testing::Test {
  protected:
    static AnswerCurve Curve(std::vector<AnswerCurve::Line> lines) {
        AnswerCurve curve;
        curve.Title = "Stress";
        curve.XSymbol = "Sigma_z";
        curve.XUnit = "[kN/m²]";
        curve.YSymbol = "z";
        curve.YUnit = "[m]";
        curve.Lines = std::move(lines);
        return curve;
    }
    // How many pixels have the colour of each line.
    static std::vector<int> Coloured(const AnswerCurve& curve, const QSize& size) {
        AnswerCurveView view(nullptr);
        view.resize(size);
        view.Show({curve}, {}, true);
        view.show();
        const QImage image = view.grab().toImage();
        std::vector<int> counts;
        for (const Ink ink : {Ink::Curve1, Ink::Curve2, Ink::Curve3, Ink::Curve4}) {
            const QRgb colour = ColourOf(ink, ThemeOf(view.palette())).rgb();
            int count = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
            counts.push_back(count);
        }
        return counts;
    }
    static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
};

// One point of a settlement, or one between two that could not be worked out.
TEST_F(AnswerCurves, AValueWithoutANeighbourIsADot) {
    EXPECT_GT(Coloured(Curve({{"", {30.9}, {3.5}}}), {300, 240})[0], 30);
    EXPECT_GT(Coloured(Curve({{"", {1, kNone, 30.9, kNone, 2}, {1, 2, 3.5, 4, 5}}}), {300, 240})[0], 90);
    EXPECT_EQ(Coloured(Curve({{"", {kNone}, {3.5}}}), {300, 240})[0], 0);
}

// Two figures below each other, beside each other where they would be too low, and the first alone where it is narrow
// too. A title never stands without its curve.
TEST_F(AnswerCurves, WhatHasNoRoomIsLeftOutWithItsTitle) {
    const AnswerCurve line = Curve({{"", {1, 2, 3}, {1, 3, 5}}});
    const auto curves = [](const QImage& image) {
        const QRgb colour = ColourOf(Ink::Curve1, Theme::Light).rgb();
        bool left = false, right = false;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) == colour) (x < image.width() / 2 ? left : right) = true;
        return std::pair(left, right);
    };
    const auto blank = [](const QImage& image) {
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != image.pixel(0, 0)) return false;
        return true;
    };
    const auto drawn = [&](const QSize& size) {
        AnswerCurveView view(nullptr);
        view.setMinimumSize(1, 1);
        view.resize(size);
        view.Show({line, line}, {}, true);
        view.show();
        return view.grab().toImage();
    };
    EXPECT_EQ(curves(drawn({320, 110})), std::pair(true, true)) << "beside each other";
    EXPECT_TRUE(curves(drawn({140, 110})).first) << "the first one alone";
    EXPECT_FALSE(blank(drawn({140, 110})));
    EXPECT_TRUE(blank(drawn({320, 50})));
    EXPECT_TRUE(blank(drawn({40, 400})));
}

// The samples alone have the colours here: nothing of the lines can be drawn.
TEST_F(AnswerCurves, NamesThatHaveNoRoomBesideEachOtherStandInRows) {
    std::vector<AnswerCurve::Line> lines;
    for (const char* name : {"0.00 years", "1.25 years", "2.50 years", "5.00 years"}) lines.push_back({name, {}, {}});
    for (const int width : {700, 300, 170})
        EXPECT_THAT(Coloured(Curve(lines), {width, 240}), ::testing::Each(::testing::Gt(8))) << width;
}

}  // namespace
}  // namespace lithmark::tests
