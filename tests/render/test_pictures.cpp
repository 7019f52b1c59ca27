// Charts and contours as pictures and documents. Reference pictures are small and compared with tolerance, never pixel
// by pixel: fonts differ between machines. tests/renew-goldens renews them.
#include <qcustomplot.h>

#include <QImage>
#include <QXmlStreamReader>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "contour/FieldSection.h"
#include "render/ChartDocument.h"
#include "render/ContourDocument.h"
#include "render/FieldDocument.h"
#include "render/RenderCase.h"
#include "support/Matchers.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

constexpr int kReferenceWidth = 200;
constexpr double kTolerance = 1;  // mean difference of a colour, of 255

QImage Image(const std::string& png) {
    return QImage::fromData(QByteArray::fromStdString(png), "PNG");
}

// How much of a picture is not white.
double Inked(const QImage& image) {
    long inked = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) inked += image.pixel(x, y) != 0xFFFFFFFF;
    return static_cast<double>(inked) / (image.width() * image.height());
}

double MeanDifference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    return sum / (3.0 * a.width() * a.height());
}

testing::AssertionResult MatchesPicture(const std::string& name, const std::string& png) {
    const QImage image =
        Image(png).convertToFormat(QImage::Format_RGB32).scaledToWidth(kReferenceWidth, Qt::SmoothTransformation);
    const fs::path reference = SourceDir() / "tests/pictures" / name;
    const fs::path actual = TestOutputDir() / name;
    fs::create_directories(actual.parent_path());
    const QImage expected = QImage(QString::fromStdString(reference.string())).convertToFormat(QImage::Format_RGB32);
    const bool sameSize = expected.size() == image.size();
    const double difference = sameSize ? MeanDifference(expected, image) : 255;
    if (std::getenv("LITHMARK_RENEW_GOLDENS")) {
        if (difference > 0) {
            image.save(QString::fromStdString(reference.string()));
            return testing::AssertionSuccess() << "renewed " << name << ", difference " << difference;
        }
        return testing::AssertionSuccess();
    }
    if (difference <= kTolerance) return testing::AssertionSuccess();
    image.save(QString::fromStdString(actual.string()));
    return testing::AssertionFailure() << name << " differs by " << difference << " of 255 on average; see "
                                       << actual.string();
}

class Pictures : public RenderTest {};
class PictureGolden : public RenderTest {};

// A viewer takes a run of text to be from left to right unless it is told: blanks and colons of Arabic words would
// stand at their wrong ends.
TEST_F(Pictures, ArabicRunsOfAnSvgHaveTheirDirection) {
    RunExample("TwoClayLayers", Language::Arabic);
    QXmlStreamReader xml(QByteArray::fromStdString(ChartSvg(Chart("Tab1"))));
    int arabic = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("text")) continue;
        const QString run = xml.readElementText();
        const bool letters =
            std::any_of(run.begin(), run.end(), [](QChar c) { return c.script() == QChar::Script_Arabic; });
        EXPECT_EQ(run.startsWith(QChar(0x200F)) && run.endsWith(QChar(0x200F)), letters) << run.toStdString();
        arabic += letters ? 1 : 0;
    }
    EXPECT_FALSE(xml.hasError());
    EXPECT_GT(arabic, 4);
}

TEST_F(PictureGolden, ChartsAndContoursLookAsTheyDid) {
    RunExample("OfficeBuilding", Language::German);
    EXPECT_TRUE(MatchesPicture("chart_tab4_de.png", ChartPng(Chart("Tab4"))));
    RunExample("EccentricRaft", Language::Arabic);
    EXPECT_TRUE(MatchesPicture("chart_tab6_ar.png", ChartPng(Chart("Tab6"))));
    BasContour settlements = Contour("Tab6");
    EXPECT_TRUE(MatchesPicture("contour_settlement_ar.png", ContourPng(settlements, 0)));
    RunExample("SiloRaft");
    BasContour pressures = Contour("Tab5");
    EXPECT_TRUE(MatchesPicture("contour_pressure_en.png", ContourPng(pressures, 0)));
}

// The comparison itself: what a reader would see as another picture is beyond the tolerance.
TEST_F(Pictures, TheToleranceTellsPicturesApart) {
    RunExample("OfficeBuilding");
    const auto small = [](const std::string& png) {
        return Image(png)
            .convertToFormat(QImage::Format_RGB32)
            .scaledToWidth(kReferenceWidth, Qt::SmoothTransformation);
    };
    const QImage tab2 = small(ChartPng(Chart("Tab2"))), tab4 = small(ChartPng(Chart("Tab4")));
    EXPECT_EQ(MeanDifference(tab2, tab2), 0);
    EXPECT_GT(MeanDifference(tab2, tab4), 2 * kTolerance);
    QImage black(tab2.size(), QImage::Format_RGB32);
    black.fill(Qt::black);
    EXPECT_GT(MeanDifference(tab2, black), 50);
    RunExample("SiloRaft");
    BasContour pressures = Contour("Tab5");
    const QImage before = small(ContourPng(pressures, 0));
    BasContour settlements = Contour("Tab6");
    EXPECT_GT(MeanDifference(before, small(ContourPng(settlements, 0))), 2 * kTolerance);
}

TEST_F(Pictures, EveryCurveIsDrawnInItsColour) {
    RunExample("EccentricRaft");
    const QImage image = Image(ChartPng(Chart("Tab6")));
    EXPECT_EQ(image.width(), 2040);
    EXPECT_EQ(image.height(), 1360);
    EXPECT_GT(Inked(image), 0.01);
    EXPECT_LT(Inked(image), 0.2);
    for (const QRgb color : {0xFF0068A6u, 0xFFA84800u, 0xFF006E52u}) {
        long pixels = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) pixels += image.pixel(x, y) == color;
        EXPECT_GT(pixels, 500) << std::hex << color;
    }
}

// A curve that grows runs upward, and downward where the settlement axis is turned.
TEST_F(Pictures, SettlementsPointDownWhereTheyAreTurned) {
    RunExample("OfficeBuilding");
    ChartArguments chart = Chart("Tab2");
    const auto meanRow = [](const QImage& image, int from, int to) {
        double sum = 0;
        long count = 0;
        for (int x = from; x < to; ++x)
            for (int y = 300; y < image.height() - 100; ++y)
                if (image.pixel(x, y) == 0xFF0068A6u) {
                    sum += y;
                    ++count;
                }
        EXPECT_GT(count, 0);
        return sum / static_cast<double>(count);
    };
    const QImage up = Image(ChartPng(chart));
    EXPECT_GT(meanRow(up, 180, 300), meanRow(up, 900, 1000));
    chart.SettlementsDown = true;
    const QImage down = Image(ChartPng(chart));
    EXPECT_LT(meanRow(down, 180, 300), meanRow(down, 900, 1000));
}

// Pore pressures over a depth that points downward: the axes change places.
TEST_F(Pictures, DepthsPointDownWhereTheyAreTurned) {
    RunExample("OneClayLayer");
    ChartArguments chart = Chart("Tab1");
    QCustomPlot plot;
    FillPlot(plot, chart);
    EXPECT_THAT(plot.xAxis->label().toStdString(), testing::StartsWith("Depth"));
    EXPECT_FALSE(plot.yAxis->rangeReversed());
    const QCPRange depths = plot.xAxis->range(), pressures = plot.yAxis->range();
    chart.SettlementsDown = true;
    FillPlot(plot, chart);
    EXPECT_THAT(plot.yAxis->label().toStdString(), testing::StartsWith("Depth"));
    EXPECT_TRUE(plot.yAxis->rangeReversed());
    EXPECT_EQ(plot.yAxis->range(), depths);
    EXPECT_EQ(plot.xAxis->range(), pressures);
    ChartArguments loads = chart;
    loads.XTitle = "Place x [m]";
    EXPECT_FALSE(AxesChanged(loads));
}

// The legend stands above the axes, so that it covers no point, also where its names need a line each.
TEST_F(Pictures, TheLegendStandsAboveTheAxes) {
    RunExample("EccentricRaft");
    for (const char* curve : {"Tab5", "Tab6"})
        for (const int width : {300, 1000}) {
            QCustomPlot plot;
            plot.setViewport(QRect(0, 0, width, 600));
            FillPlot(plot, Chart(curve));
            plot.toPixmap(width, 600);
            plot.setViewport(QRect(0, 0, width, 600));
            plot.replot();
            EXPECT_TRUE(plot.legend->visible());
            EXPECT_LE(plot.legend->outerRect().bottom(), plot.axisRect()->top()) << curve << " " << width;
            EXPECT_GE(plot.legend->outerRect().left(), 0);
        }
}

// Round ticks in the digits of the language, without grouping; whole ones where time units are counted.
TEST_F(Pictures, TicksAreRoundAndInTheDigitsOfTheLanguage) {
    RunExample("OfficeBuilding", Language::German);
    QCustomPlot plot;
    plot.setViewport(QRect(0, 0, 1000, 600));
    FillPlot(plot, Chart("Tab1"));
    plot.replot();
    ASSERT_GE(plot.xAxis->tickVectorLabels().size(), 3);
    for (const QString& label : plot.xAxis->tickVectorLabels()) {
        bool whole = false;
        label.toInt(&whole);
        EXPECT_TRUE(whole) << label.toStdString();
    }
    for (const QString& label : plot.yAxis->tickVectorLabels())
        EXPECT_FALSE(label.contains(QLatin1Char('.'))) << label.toStdString();
    plot.yAxis->setRange(0, 0.7);
    plot.replot();
    EXPECT_EQ(plot.yAxis->tickVectorLabels().at(1), QStringLiteral("0,1"));
    LanguageTexts().SetCurrent(Language::English);
    plot.replot();
    EXPECT_EQ(plot.yAxis->tickVectorLabels().at(1), QStringLiteral("0.1"));
    plot.yAxis->setRange(0, 70000);
    plot.replot();
    EXPECT_EQ(plot.yAxis->tickVectorLabels().back(), QStringLiteral("70000"));
}

// What is hidden or zoomed on the screen is so on paper.
TEST_F(Pictures, PaperShowsWhatTheLookSays) {
    RunExample("EccentricRaft");
    const ChartArguments chart = Chart("Tab6");
    const auto pixels = [](const std::string& png, QRgb color) {
        const QImage image = Image(png);
        long count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == color;
        return count;
    };
    ChartLook look;
    look.Hidden = {false, true};
    EXPECT_GT(pixels(ChartPng(chart, look), 0xFF0068A6u), 500);
    EXPECT_EQ(pixels(ChartPng(chart, look), 0xFFA84800u), 0);
    look.Hidden = {};
    look.Horizontal = {-20, -10};  // beside the raft
    EXPECT_LT(pixels(ChartPng(chart, look), 0xFF006E52u),
              0.3 * static_cast<double>(pixels(ChartPng(chart), 0xFF006E52u)))
        << "the legend alone";
}

TEST_F(Pictures, AFieldIsFilledInItsColoursWithoutSeams) {
    RunExample("SiloRaft");
    const BasContour plot = Contour("Tab5");
    const FieldPlot field(plot);
    const int side = 400;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    DrawField(
        painter, QRectF(0, 0, side, side),
        {plot, field, {.ColorContours = true, .Displaylines = false, .DrawGrid = false, .DisplayValues = false}, {}});
    painter.end();
    const WorldWindow& w = plot.Window;
    long right = 0, inside = 0, white = 0;
    for (int y = 3; y < side - 3; ++y)
        for (int x = 3; x < side - 3; ++x) {
            const double wx = w.XMin + (x + 0.5) / side * (w.XMax - w.XMin),
                         wy = w.YMax - (y + 0.5) / side * (w.YMax - w.YMin);
            const double out = 3 * (w.XMax - w.XMin) / side;
            if (std::hypot(wx - 0.5 * (w.XMin + w.XMax), wy - 0.5 * (w.YMin + w.YMax)) >
                Session.A0 * std::cos(std::numbers::pi / 24) - out)
                continue;
            const auto value = plot.ValueAt(wx, wy);
            if (!value) continue;
            ++inside;
            white += image.pixel(x, y) == 0xFFFFFFFF;
            right += image.pixel(x, y) == (0xFF000000u | field.ColourOf(field.ClassOf(*value)));
        }
    EXPECT_GT(inside, 70000);
    EXPECT_EQ(white, 0);
    EXPECT_GT(static_cast<double>(right) / static_cast<double>(inside), 0.9) << "all but the rims of the classes";
}

TEST_F(Pictures, AFieldWithASectionHasItsCurveBelow) {
    RunExample("EccentricRaft");
    const BasContour plot = Contour("Tab6");
    const FieldPlot field(plot);
    const FieldPicture bare{plot, field, {}, {}}, cut{plot, field, {}, MiddleLine(plot)};
    const QImage without = Image(FieldPng(bare, 300)), with = Image(FieldPng(cut, 300));
    EXPECT_EQ(with.width(), without.width());
    EXPECT_EQ(with.height() - without.height(), 100);
    EXPECT_GT(Inked(with.copy(0, without.height(), with.width(), 100)), 0.02);
    EXPECT_TRUE(FieldPdf(cut, 0).starts_with("%PDF-"));
    QXmlStreamReader reader(QByteArray::fromStdString(FieldSvg(cut, 0)));
    while (!reader.atEnd()) reader.readNext();
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
}

TEST_F(Pictures, SvgIsWellFormedAndHoldsItsTexts) {
    RunExample("OfficeBuilding");
    const ChartArguments chart = Chart("Tab1");
    RunExample("SquareRaft");
    BasContour plot = Contour("Tab5");
    for (const std::string& svg : {ChartSvg(chart), ContourSvg(plot, 0)}) {
        QXmlStreamReader reader(QByteArray::fromStdString(svg));
        int elements = 0;
        QString texts;
        while (!reader.atEnd()) {
            reader.readNext();
            elements += reader.isStartElement();
            if (reader.isCharacters()) texts += reader.text();
        }
        EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
        EXPECT_GT(elements, 50);
        EXPECT_THAT(texts.toStdString(), testing::AnyOf(HasSubstr(chart.ChartTitle), HasSubstr("SquareRaft")));
    }
}

TEST_F(Pictures, PdfOfAChartAndOfAContourIsOnePageAcross) {
    RunExample("SquareRaft");
    BasContour plot = Contour("Tab5");
    for (const std::string& pdf : {ChartPdf(Chart("Tab5")), ContourPdf(plot, 0)}) {
        EXPECT_TRUE(pdf.starts_with("%PDF-"));
        EXPECT_THAT(pdf, HasSubstr("/Count 1"));
        const auto box = pdf.find("/MediaBox [0 0 ");
        ASSERT_NE(box, std::string::npos);
        EXPECT_EQ(std::lround(std::stod(pdf.substr(box + 15))), 842);  // A4 across, in points
    }
}

TEST_F(Pictures, AContourHasTheColoursOfItsClasses) {
    RunExample("SquareRaft");
    BasContour plot = Contour("Tab5");
    for (const int size : {64, 700}) {
        const QImage image = Image(ContourPng(plot, size));
        EXPECT_GT(image.width(), size);
        // Every class has its box in the legend.
        for (int k = 1; k <= 10; ++k) {
            const QRgb color = 0xFF000000u | kPalette[static_cast<std::size_t>(static_cast<int>(plot.ClassColor(k)))];
            bool found = false;
            for (int y = 0; y < image.height() && !found; ++y)
                for (int x = size; x < image.width() && !found; ++x) found = image.pixel(x, y) == color;
            EXPECT_TRUE(found) << "class " << k << " at " << size;
        }
    }
}

// Neighbouring triangles of a round mesh leave single pixels between them; on paper that would be dust.
TEST_F(Pictures, ARoundRaftIsFilledWithoutHoles) {
    RunExample("SiloRaft");
    BasContour plot = Contour("Tab5");
    const int side = 700;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    PainterSurface surface(painter, QRectF(0, 0, side, side), QSize(side, side), QFont());
    plot.Redraw(surface, {.ColorContours = true, .Displaylines = false, .DrawGrid = false, .DisplayValues = false});
    painter.end();
    int holes = 0, inside = 0;
    const double radius = side / 2.2 * std::cos(std::numbers::pi / 24) - 3;  // of the polygon, less its rim
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            if (std::hypot(x - side / 2.0, y - side / 2.0) > radius) continue;
            ++inside;
            holes += image.pixel(x, y) == 0xFFFFFFFF;
        }
    EXPECT_GT(inside, 250000);
    EXPECT_EQ(holes, 0);
}

TEST_F(Pictures, AFlatFieldIsDrawnWithoutColours) {
    RunExample("SquareRaft");
    BasContour plot = Contour("Tab6");
    plot.ZStep = 0;
    const QImage image = Image(ContourPng(plot, 300));
    const QRgb first = 0xFF000000u | kPalette[static_cast<std::size_t>(static_cast<int>(plot.ClassColor(1)))];
    for (int y = 60; y < 280; ++y)
        for (int x = 20; x < 290; ++x) ASSERT_NE(image.pixel(x, y), first) << x << "," << y;
}

// A chart of a single row or of equal values has ranges all the same.
TEST_F(Pictures, DegenerateChartsAreDrawn) {
    RunExample("OfficeBuilding");
    ChartArguments chart = Chart("Tab2");
    for (int r = 1; r <= chart.LastRow; ++r) chart.Cells(r, 2) = "5";
    EXPECT_GT(Inked(Image(ChartPng(chart))), 0.005);
    chart.LastRow = 1;
    chart.XStart = chart.XEnd = 0;
    EXPECT_GT(Inked(Image(ChartPng(chart))), 0.005);
}

}  // namespace
}  // namespace lithmark::tests
