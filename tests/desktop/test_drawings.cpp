// The drawings beside the fields: they follow the values, keep their numbers inside, and lead to the boxes.
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QTest>
#include <cmath>
#include <set>

#include "DrawingCase.h"
#include "core/Catalogue.h"
#include "core/FieldMeanings.h"
#include "desktop/FormView.h"
#include "desktop/Palettes.h"
#include "desktop/PictureView.h"
#include "render/drawings/Drawings.h"
#include "render/drawings/Inks.h"
#include "render/drawings/Proportions.h"
#include "render/drawings/Symbols.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

TEST_F(DrawingTest, EveryProblemHasADrawing) {
    ForAllProblems([](PictureForm& form, const std::string& name) {
        EXPECT_NE(FindDrawing(form.PctInvertedT.Drawing), nullptr) << name;
    });
}

TEST_F(DrawingTest, EveryNumberThatCountsStandsInTheDrawingInsideAndClearOfTheOthers) {
    ForAllProblems([&](PictureForm& form, const std::string& name) {
        ForAllChoices(form, [&](const std::string& choice) {
            for (const QSize size : {kSize, QSize(300, 260), QSize(700, 420)}) {
                const Sheet sheet = Drawn(form, form.PctInvertedT.Drawing, Theme::Light, size);
                std::multiset<const Control*> shown;
                const QRectF area(QPointF(), size);
                for (const DrawnNumber& number : sheet.Numbers) {
                    shown.insert(number.Box);
                    EXPECT_TRUE(area.contains(number.At)) << name << choice << ": " << number.Box->Name;
                    for (const DrawnNumber& other : sheet.Numbers) {
                        const bool apart = other.Box == number.Box || !other.At.intersects(number.At);
                        EXPECT_TRUE(apart) << name << choice << ": " << number.Box->Name << " on " << other.Box->Name;
                    }
                }
                for (const DrawnBox& box : DrawnForm(form.PctInvertedT).Boxes())
                    EXPECT_EQ(shown.count(box.Of), 1u) << name << choice << ": " << box.Of->Name;
            }
        });
    });
}

TEST_F(DrawingTest, AnyInputIsDrawn) {
    const char* const inputs[] = {"0",     "1e38", "-1e38", "3.4e38", "1e-30", "1e-45", "-3",
                                  "1E300", "abc",  "",      "-",      "1e-",   "99999", "0.0001"};
    ForAllProblems([&](PictureForm& form, const std::string& name) {
        ForAllChoices(form, [&](const std::string& choice) {
            std::vector<std::pair<Control*, std::string>> before;
            for (const FieldRow& row : form.Fields())
                if (row.Field.Exists()) before.emplace_back(&row.Box, row.Box.Text);
            const auto look = [&](const std::string& input) {
                const Sheet sheet = Drawn(form, form.PctInvertedT.Drawing);
                EXPECT_GT(sheet.Colours, 5) << name << choice << ": " << input;
                const QRectF area(QPointF(), kSize);
                for (const DrawnNumber& number : sheet.Numbers)
                    EXPECT_TRUE(area.contains(number.At)) << name << choice << ": " << input << number.Box->Name;
            };
            for (const char* input : inputs) {
                for (const auto& [box, text] : before) box->Text = input;
                look(input);
                for (const auto& [box, text] : before) box->Text = text;
            }
            // One box alone: the others stay as they are.
            if (!choice.empty()) return;
            for (const char* input : {"0", "1e38", "-7", "abc"})
                for (const auto& [box, text] : before) {
                    box->Text = input;
                    look(box->Name + " " + input);
                    box->Text = text;
                }
        });
    });
}

TEST_F(DrawingTest, EveryValueIsSeen) {
    ForAllProblems([&](PictureForm& form, const std::string& name) {
        const QImage before = Drawn(form, form.PctInvertedT.Drawing).Image;
        EXPECT_EQ(Drawn(form, form.PctInvertedT.Drawing).Image, before) << name;
        for (const DrawnBox& box : DrawnForm(form.PctInvertedT).Boxes()) {
            Control& control = *form.Find(box.Of->Name);
            const std::string text = control.Text;
            control.Text = "0.31";
            EXPECT_NE(Drawn(form, form.PctInvertedT.Drawing).Image, before) << name << ": " << control.Name;
            control.Text = text;
        }
    });
}

TEST_F(DrawingTest, AChangedShapeIsAnotherFigureAndNotOnlyAnotherNumber) {
    frmstress form;
    form.Load();
    DrawnForm drawn(form.PctInvertedT);
    double scale = 0;
    const auto paint = [&] {
        drawn.Follow();
        QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        Sketch sketch(painter, QRectF(QPointF(), kSize), drawn, Theme::Light, scale);
        FindDrawing("stress")(sketch);
        return image;  // the numbers are written by Finish alone
    };
    const QImage before = paint();
    form.txt_A.Text = "9";
    const QImage longer = paint();
    EXPECT_NE(longer, before);
    // A box in error leaves the last good shape.
    form.txt_A.Text = "abc";
    drawn.Follow();
    EXPECT_EQ(double(drawn.Record().A), 9);
    EXPECT_TRUE(drawn.Find("txt_A")->Faulty);
    EXPECT_FALSE(drawn.Find("txt_B")->Faulty);
    EXPECT_NE(paint(), longer) << "the line of a faulty box is dashed";
}

TEST_F(DrawingTest, TheBoxWithTheFocusIsMarkedAndNothingMoves) {
    ForAllProblems([&](PictureForm& form, const std::string& name) {
        form.Focus = nullptr;
        const Sheet before = Drawn(form, form.PctInvertedT.Drawing);
        for (const DrawnBox& box : DrawnForm(form.PctInvertedT).Boxes()) {
            form.Focus = form.Find(box.Of->Name);
            const Sheet marked = Drawn(form, form.PctInvertedT.Drawing);
            EXPECT_NE(marked.Image, before.Image) << name << ": " << box.Of->Name;
            for (std::size_t i = 0; i < before.Numbers.size(); ++i) {
                EXPECT_EQ(marked.Numbers[i].At, before.Numbers[i].At) << name;
                if (marked.Numbers[i].Box != form.Focus) continue;
                const QPoint corner = before.Numbers[i].At.topLeft().toPoint() + QPoint(4, 2);
                EXPECT_EQ(marked.Image.pixelColor(corner), ColourOf(Ink::Selection, Theme::Light)) << name;
            }
        }
    });
}

TEST_F(DrawingTest, AClickOnANumberGoesToItsBox) {
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    auto* picture = view.findChild<PictureView*>("PctInvertedT");
    picture->repaint();
    ASSERT_THAT(picture->Numbers(), Not(IsEmpty()));
    for (const DrawnNumber& number : picture->Numbers()) {
        QTest::mouseClick(picture, Qt::LeftButton, {}, number.At.center().toPoint());
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), number.Box->Name);
    }
}

TEST_F(DrawingTest, TypingIsDrawnAtOnce) {
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    auto* picture = view.findChild<PictureView*>("PctInvertedT");
    const QImage before = picture->grab().toImage();
    auto* box = view.findChild<QLineEdit*>("txt_B");
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, "8");
    EXPECT_NE(picture->grab().toImage(), before);
    EXPECT_TRUE(picture->accessibleDescription().contains(QStringLiteral("b = 8 m")))
        << picture->accessibleDescription().toStdString();
}

// Up to one to eight to scale, beyond that cut.
TEST(Proportions, AreToScaleUpToOneToEight) {
    const auto scaled = Proportions({2, 16, -4});
    EXPECT_EQ(scaled[1].Length / scaled[0].Length, 8);
    EXPECT_EQ(scaled[2].Length / scaled[0].Length, -2);
    EXPECT_FALSE(scaled[0].Broken || scaled[1].Broken || scaled[2].Broken);
    const auto cut = Proportions({2, 17, 0, INFINITY});
    EXPECT_EQ(cut[1].Length / cut[0].Length, 8);
    EXPECT_TRUE(cut[1].Broken);
    EXPECT_EQ(cut[2].Length, 0);
    EXPECT_FALSE(cut[2].Broken);
    EXPECT_EQ(cut[3].Length, 0);
}

// A place beside a load: to scale, inside a load that is cut when it is inside, cut where it is too far.
TEST(Proportions, LeadAPlaceBesideALoad) {
    const DrawnLength inside = Coordinate(-1.5, 2, 2, 9);
    EXPECT_EQ(inside.Length, -1.5);
    EXPECT_FALSE(inside.Broken);
    const DrawnLength beside = Coordinate(5, 2, 2, 9);
    EXPECT_EQ(beside.Length, 5);
    EXPECT_FALSE(beside.Broken);
    const DrawnLength far = Coordinate(50, 2, 2, 9);
    EXPECT_EQ(far.Length, 9);
    EXPECT_TRUE(far.Broken);
    // The load is drawn half as long as it is: its quarter lies in the middle between its centre and its edge.
    const DrawnLength shrunk = Coordinate(1, 2, 1, 9);
    EXPECT_EQ(shrunk.Length, 0.5);
    EXPECT_TRUE(shrunk.Broken);
    EXPECT_EQ(Coordinate(0, 2, 2, 9).Length, 0);
    EXPECT_EQ(Coordinate(INFINITY, 2, 2, 9).Length, 0);
}

// Beyond one and a half times half the block a place is cut: the figure stays, the number is true. A small coordinate
// leaves the load as it is.
TEST_F(DrawingTest, AFarPlaceIsCutAndANearOneShrinksNothing) {
    frmstress form;
    form.Load();
    const auto figure = [&](const char* x) {
        form.txt_x.Text = x;
        const DrawnForm drawn(form.PctInvertedT);
        QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        double scale = 0;
        Sketch sketch(painter, QRectF(QPointF(), kSize), drawn, Theme::Light, scale);
        FindDrawing("stress")(sketch);
        return image;  // the numbers are written by Finish alone
    };
    EXPECT_EQ(figure("100"), figure("1000"));
    EXPECT_NE(figure("100"), figure("-100"));
    EXPECT_NE(figure("2"), figure("3"));
    EXPECT_NE(figure("3"), figure("100"));
    form.txt_x.Text = "0.01";
    form.txt_A.Text = "5";
    const QImage longer = figure("0.01");
    form.txt_A.Text = "4";
    EXPECT_NE(figure("0.01"), longer) << "both sides would be cut to eight times a hundredth of a metre";
}

TEST(Symbols, StandInPrint) {
    EXPECT_EQ(SymbolWords("Nue_s").toStdString(), "ν_s");
    EXPECT_EQ(SymbolWords("Cc").toStdString(), "C_c");
    EXPECT_EQ(SymbolWords("Cv1").toStdString(), "C_v1");
    EXPECT_EQ(SymbolWords("eo").toStdString(), "e_0");
    EXPECT_EQ(SymbolWords("Gamma*z").toStdString(), "γ·z");
    EXPECT_EQ(SymbolWords("Sigma_z").toStdString(), "σ_z");
    EXPECT_EQ(SymbolWords("Q").toStdString(), "Q");
    EXPECT_EQ(SymbolWords("max_Tau").toStdString(), "τ_max");
    EXPECT_EQ(SymbolWords("max s").toStdString(), "s_max");
    EXPECT_EQ(SymbolMarkup("Gamma_c").toStdString(), "<i>γ</i><sub style=\"font-style:normal\">c</sub>");
}

// Whatever symbol a report prints for a field: a letter, and an index without the signs of the plain form.
TEST(Symbols, OfAllFieldsHaveOneLetterAndAnIndex) {
    for (const ProblemRow& problem : ProblemCatalogue())
        for (const FieldMeaning& field : MeaningsOf(problem.ProblemType)) {
            if (field.Symbol.empty()) continue;
            const auto [letter, index] = SymbolInPrint(std::string(field.Symbol));
            EXPECT_EQ(letter.size(), letter.contains(QString::fromUtf8("·")) ? 3 : 1) << field.Symbol;
            EXPECT_FALSE(index.contains(QLatin1Char('_')) || index.contains(QLatin1Char('*'))) << field.Symbol;
            EXPECT_LE(index.size(), 2) << field.Symbol;
        }
}

TEST(Symbols, AreSpokenInTheLanguageInForce) {
    EXPECT_EQ(SpokenSymbol("Nue_s").toStdString(), "nu s");
    EXPECT_EQ(SpokenSymbol("Cv1").toStdString(), "C v1");
    EXPECT_EQ(SpokenSymbol("Gamma*z").toStdString(), "gamma z");
    EXPECT_EQ(SpokenSymbol("Q").toStdString(), "Q");
    LanguageTexts().SetCurrent(Language::German);
    EXPECT_EQ(SpokenSymbol("Nue_s").toStdString(), "Ny s");
    LanguageTexts().SetCurrent(Language::English);
}

// --- colours ---

// The contrast of two colours as the accessibility guidelines for the web reckon it.
double Contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Inks, AreReadOnTheirGroundsInLightAndDark) {
    const std::vector<Ink> grounds = {Ink::Window, Ink::Base};
    std::vector<Ink> fills = {Ink::SoilTop, Ink::SoilSide, Ink::Clay, Ink::Rock};
    fills.insert(fills.end(), grounds.begin(), grounds.end());
    struct Row {
        Ink Of;
        double Least;
        const std::vector<Ink>& On;
    };
    const Row rows[] = {{Ink::Text, 8, fills},       {Ink::Quiet, 4.8, fills},    {Ink::Load, 4.7, fills},
                        {Ink::Link, 4.7, fills},     {Ink::Point, 4.7, fills},    {Ink::Water, 5.2, fills},
                        {Ink::Error, 4.7, fills},    {Ink::Warning, 5.7, fills},  {Ink::Good, 5.2, fills},
                        {Ink::Hint, 4.7, grounds},   {Ink::Curve1, 5.3, grounds}, {Ink::Curve2, 5.3, grounds},
                        {Ink::Curve3, 5.3, grounds}, {Ink::Curve4, 5.3, grounds}, {Ink::Edge, 3, grounds}};
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        for (const Row& row : rows)
            for (const Ink ground : row.On)
                EXPECT_GE(Contrast(ColourOf(row.Of, theme), ColourOf(ground, theme)), row.Least)
                    << static_cast<int>(row.Of) << " on " << static_cast<int>(ground);
        EXPECT_GE(Contrast(ColourOf(Ink::OnSelection, theme), ColourOf(Ink::Selection, theme)), 7.1);
    }
}

// What the toolkit draws by itself: words on windows, boxes, buttons, tooltips and what is selected, in a window that
// is worked in, in one that waits, and where it is switched off.
TEST(Palettes, EveryRoleIsReadOnItsGroundInEveryState) {
    struct Pair {
        QPalette::ColorRole Word, Ground;
    };
    const Pair pairs[] = {{QPalette::WindowText, QPalette::Window},
                          {QPalette::Text, QPalette::Base},
                          {QPalette::Text, QPalette::AlternateBase},
                          {QPalette::ButtonText, QPalette::Button},
                          {QPalette::PlaceholderText, QPalette::Base},
                          {QPalette::PlaceholderText, QPalette::Window},
                          {QPalette::ToolTipText, QPalette::ToolTipBase},
                          {QPalette::Link, QPalette::Window},
                          {QPalette::Link, QPalette::Base},
                          {QPalette::LinkVisited, QPalette::Base},
                          {QPalette::BrightText, QPalette::Window},
                          {QPalette::HighlightedText, QPalette::Highlight}};
    constexpr double kLeast = 4.5;
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        const QPalette palette = PaletteOf(theme);
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            for (const Pair& pair : pairs)
                EXPECT_GE(Contrast(palette.color(group, pair.Word), palette.color(group, pair.Ground)), kLeast)
                    << "theme " << static_cast<int>(theme) << ", group " << group << ", role " << pair.Word << " on "
                    << pair.Ground;
    }
}

TEST_F(DrawingTest, ADarkWindowHasADarkDrawing) {
    QPalette dark;
    dark.setColor(QPalette::Window, ColourOf(Ink::Window, Theme::Dark));
    EXPECT_EQ(ThemeOf(dark), Theme::Dark);
    dark.setColor(QPalette::Window, ColourOf(Ink::Window, Theme::Light));
    EXPECT_EQ(ThemeOf(dark), Theme::Light);
    ForAllProblems([&](PictureForm& form, const std::string& name) {
        const QImage sheet = Drawn(form, form.PctInvertedT.Drawing, Theme::Dark).Image;
        double light = 0;
        for (int y = 0; y < sheet.height(); ++y)
            for (int x = 0; x < sheet.width(); ++x) light += sheet.pixelColor(x, y).lightnessF();
        EXPECT_LT(light / sheet.width() / sheet.height(), 0.4) << name;
    });
}

}  // namespace
}  // namespace lithmark::tests
