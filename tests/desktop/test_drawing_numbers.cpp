// The numbers in the drawings and what is drawn: lines that matter stay in sight.
#include <gmock/gmock.h>

#include <cstdlib>

#include "DrawingCase.h"

namespace lithmark::tests {
namespace {

class NumbersOfDrawings : public DrawingTest {};

// A pixel of a colour, or one that it covers for the greater part.
bool IsOf(QRgb pixel, Ink ink) {
    const QRgb colour = ColourOf(ink, Theme::Light).rgb();
    constexpr int kNear = 64;
    return std::abs(qRed(pixel) - qRed(colour)) < kNear && std::abs(qGreen(pixel) - qGreen(colour)) < kNear &&
           std::abs(qBlue(pixel) - qBlue(colour)) < kNear;
}

// Where most of a colour stands above each other.
int ColumnOf(const QImage& image, Ink ink) {
    int column = 0, most = 0;
    for (int x = 0; x < image.width(); ++x) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) count += IsOf(image.pixel(x, y), ink) ? 1 : 0;
        if (count <= most) continue;
        most = count;
        column = x;
    }
    return column;
}

// Right under the load its numbers would stand on its arrow.
TEST_F(NumbersOfDrawings, NumbersKeepOffTheArrowOfALoad) {
    Session.ProblemType = Problem::SoilStress;
    frmstress form;
    form.Load();
    form.SelectOption(form.optLoadType[0]);
    form.optLoadType[0].OnClick();
    for (const char* box : {"txt_x", "txt_y"}) form.Find(box)->Text = "0";
    const Sheet sheet = Drawn(form, form.PctInvertedT.Drawing);
    const int arrow = ColumnOf(sheet.Image, Ink::Load);
    int first = -1, last = -1, count = 0;
    for (int y = 0; y < sheet.Image.height(); ++y) {
        if (!IsOf(sheet.Image.pixel(arrow, y), Ink::Load)) continue;
        if (first < 0) first = y;
        last = y;
        ++count;
    }
    EXPECT_GT(count, 25);
    EXPECT_EQ(last - first + 1, count) << "the arrow is whole";
}

// Values of the ground stay under each other and leave the vertical below the place free.
TEST_F(NumbersOfDrawings, AStackOfNumbersKeepsOffALine) {
    Session.ProblemType = Problem::Consolidation;
    frmConsolidation form;
    form.Load();
    for (const char* x : {"0", "0.6", "1", "1.4", "2.5"}) {
        form.Find("txt_x")->Text = x;
        const Sheet sheet = Drawn(form, form.PctInvertedT.Drawing);
        const int line = ColumnOf(sheet.Image, Ink::Point);
        double middle = 0;
        int stacked = 0;
        for (const DrawnNumber& number : sheet.Numbers) {
            if (std::set<std::string>{"txt_Cc", "txt_eo", "txt_Po", "txt_Gamma"}.count(number.Box->Name) == 0) continue;
            EXPECT_FALSE(number.At.left() + 2 < line && line < number.At.right() - 2) << x << ": " << number.Box->Name;
            if (stacked++ > 0) {
                EXPECT_NEAR(number.At.center().x(), middle, 0.01) << x;
            }
            middle = number.At.center().x();
        }
        EXPECT_EQ(stacked, 4);
    }
}

}  // namespace
}  // namespace lithmark::tests
