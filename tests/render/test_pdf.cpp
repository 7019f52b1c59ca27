// A report's PDF as a reader opens it: its text, where the words stand, its bookmarks, and what it says of itself.
#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QXmlStreamReader>
#include <filesystem>
#include <fstream>
#include <set>

#include "base/Utf8.h"
#include "render/RenderApplication.h"
#include "render/RenderCase.h"
#include "render/ReportDocument.h"
#include "render/ReportLines.h"
#include "render/ReportPaper.h"
#include "render/figures/ReportFigures.h"
#include "support/Languages.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

struct PlacedWord {
    int Page;
    std::string Text;
    double Left, Right, Top;
};

class Pdf : public RenderTest {
  protected:
    std::string Reader(const char* program, const QStringList& arguments, const std::string& pdf) {
        const std::string path = folder / "report.pdf";
        std::ofstream(path, std::ios::binary) << pdf;
        QProcess reader;
        QStringList all = arguments;
        all << QString::fromStdString(path);
        if (QLatin1String(program) == QLatin1String("pdftotext")) all << QStringLiteral("-");
        reader.start(QString::fromLatin1(program), all);
        EXPECT_TRUE(reader.waitForFinished(60000)) << program << " of poppler-utils";
        EXPECT_EQ(reader.readAllStandardError().toStdString(), "");
        return reader.readAllStandardOutput().toStdString();
    }

    std::vector<PlacedWord> Words(const std::string& pdf) {
        std::vector<PlacedWord> words;
        QXmlStreamReader xml(QString::fromStdString(Reader("pdftotext", {QStringLiteral("-bbox")}, pdf)));
        int page = 0;
        while (!xml.atEnd()) {
            if (!xml.readNextStartElement() && !xml.isStartElement()) continue;
            if (xml.name() == QLatin1String("page")) ++page;
            if (xml.name() != QLatin1String("word")) continue;
            const auto at = [&](const char* name) { return xml.attributes().value(QLatin1String(name)).toDouble(); };
            const double left = at("xMin"), right = at("xMax"), top = at("yMin");
            words.push_back({page, xml.readElementText().toStdString(), left, right, top});
        }
        return words;
    }
};

// Without the signs of direction that a reader puts around texts, and with single blanks.
std::string Plain(const std::string& text) {
    std::string plain;
    for (const char32_t c : CodePoints(text)) {
        if ((c >= 0x200E && c <= 0x200F) || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069)) continue;
        const bool blank = c == ' ' || c == '\n' || c == '\f' || c == 0xA0;
        if (blank && (plain.empty() || plain.back() == ' ')) continue;
        AppendCodePoint(plain, blank ? U' ' : c);
    }
    return plain;
}

TEST_F(Pdf, EveryLineIsFoundAndCopied) {
    for (const Language language : {Language::German, Language::English})
        for (const char* example : {"OfficeBuilding", "PointLoad"}) {
            RunExample(example, language);
            const std::string text =
                Plain(Reader("pdftotext", {QStringLiteral("-layout")}, ReportPdf(Session.ResultText)));
            for (const std::string& line : ReportLinesOf(Session.ResultText)) {
                std::string wanted = Plain(line);
                while (wanted.ends_with(' ')) wanted.pop_back();
                EXPECT_THAT(text, HasSubstr(wanted));
            }
        }
}

// Letters as they are typed, not the forms that they take inside a word.
TEST_F(Pdf, ArabicWordsAreFoundAsTheyAreTyped) {
    RunExample("OfficeBuilding", Language::Arabic);
    const std::string copied = Plain(Reader("pdftotext", {QStringLiteral("-layout")}, ReportPdf(Session.ResultText)));
    for (const char32_t c : CodePoints(copied)) {
        const bool pair = c >= 0xFEF5 && c <= 0xFEFC;  // lam-alef is one sign, which every search takes for its letters
        ASSERT_FALSE(c >= 0xFB50 && c <= 0xFDFF);
        ASSERT_FALSE(c >= 0xFE70 && c <= 0xFEFF && !pair);
    }
    const std::string text = QString::fromStdString(copied).normalized(QString::NormalizationForm_KC).toStdString();
    int words = 0;
    for (const std::string& line : ReportLinesOf(Session.ResultText))
        for (const std::string& word : Split(line, ' ')) {
            const auto points = CodePoints(word);
            const bool letters = points.size() > 2 && std::all_of(points.begin(), points.end(), [](char32_t c) {
                                     return c >= 0x0620 && c <= 0x064A;
                                 });
            if (!letters) continue;
            ++words;
            EXPECT_THAT(text, HasSubstr(word));
        }
    EXPECT_GT(words, 40);
}

TEST_F(Pdf, BookmarksAndAuthorAndTitleStandInTheFile) {
    for (const Language language : kLanguages) {
        RunExample("OfficeBuilding", language);
        Session.FirmaLine1 = "Ingenieurbüro Müller & Söhne";
        const ReportPaper paper = PaperWithFigures(Figures::All);
        EXPECT_EQ(paper.Figures.size(), 5u) << "the drawing and four curves";
        const std::string pdf = ReportPdf(Session.ResultText, paper);
        const std::string info = Reader("pdfinfo", {}, pdf);
        EXPECT_THAT(info, HasSubstr("Ingenieurbüro Müller & Söhne"));
        EXPECT_THAT(info, HasSubstr("OfficeBuilding"));
        EXPECT_THAT(pdf, HasSubstr(language == Language::German   ? "/Lang (de)"
                                   : language == Language::Arabic ? "/Lang (ar)"
                                                                  : "/Lang (en)"));
        EXPECT_EQ(pdf.find("/Direction /R2L") != std::string::npos, language == Language::Arabic);
        std::size_t bookmarks = 0;
        for (std::size_t at = pdf.find("/Dest ["); at != std::string::npos; at = pdf.find("/Dest [", at + 1))
            ++bookmarks;
        EXPECT_EQ(bookmarks, HeadingsOf(ReportLinesOf(Session.ResultText)).size() + paper.Figures.size());
    }
}

TEST_F(Pdf, PagesHaveHeadAndFoot) {
    for (const Language language : kLanguages) {
        RunExample("EccentricRaft", language);
        Session.FirmaLine1 = "Lithos GmbH";
        Session.FirmaLine2 = "Hamburg";
        const std::string text = Reader("pdftotext", {QStringLiteral("-layout")}, ReportPdf(Session.ResultText));
        const std::vector<std::string> pages = Split(text, '\f');
        ASSERT_GT(pages.size(), 5u);
        for (std::size_t i = 0; i + 1 < pages.size(); ++i) {
            const std::string page = Plain(pages[i]);
            EXPECT_THAT(page, HasSubstr("GT-2026-13"));
            EXPECT_THAT(page, HasSubstr("Lithos GmbH"));
            EXPECT_THAT(page, HasSubstr("Hamburg"));
            const std::string number = std::to_string(i + 1), count = std::to_string(pages.size() - 1);
            if (language == Language::German) {
                EXPECT_THAT(page, HasSubstr("Seite " + number + " von " + count));
                EXPECT_THAT(page, HasSubstr("Punkt")) << "the head of the table stands on each page";
            } else if (language == Language::English) {
                EXPECT_THAT(page, HasSubstr("Page " + number + " of " + count));
            } else {
                EXPECT_THAT(page, HasSubstr("صفحة"));
            }
        }
    }
}

// The numbers of the second table end, and have their decimal signs, on one line of each page.
TEST_F(Pdf, NumbersOfAColumnStandUnderEachOther) {
    for (const Language language : kLanguages) {
        RunExample("EccentricRaft", language);
        std::set<int> ends;
        std::size_t numbers = 0;
        for (const PlacedWord& word : Words(ReportPdf(Session.ResultText))) {
            const auto sign = word.Text.find('.');
            const bool number = word.Text.find_first_not_of("0123456789.") == std::string::npos &&
                                sign != std::string::npos && sign + 1 < word.Text.size();
            if (!number || word.Page < 3) continue;
            ++numbers;
            ends.insert(static_cast<int>(std::lround(word.Right)));
        }
        EXPECT_GT(numbers, 1000u);
        EXPECT_LE(ends.size(), 6u) << "four columns, the version in the foot";
    }
}

// A screen has far fewer dots than a printer; what is painted on one stands where it stands on the other.
TEST_F(Pdf, APreviewHasItsWordsWhereThePaperHasThem) {
    EnsureRenderApplication();
    const auto painted = [&](int resolution) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&buffer);
            SetReportPage(writer);
            writer.setResolution(resolution);
            PaintReport(writer, Session.ResultText, PaperInForce(), Text(160017_text), 8,
                        LanguageTexts().RightToLeft());
        }
        return Words(buffer.data().toStdString());
    };
    for (const Language language : kLanguages) {
        RunExample("OfficeBuilding", language);
        const auto paper = painted(600), screen = painted(96);
        ASSERT_GT(paper.size(), 300u);
        ASSERT_EQ(paper.size(), screen.size());
        // A dot of the screen is 0.75 points.
        for (std::size_t i = 0; i < paper.size(); ++i) {
            EXPECT_EQ(paper[i].Page, screen[i].Page);
            EXPECT_EQ(paper[i].Text, screen[i].Text);
            EXPECT_NEAR(paper[i].Right, screen[i].Right, 0.75) << paper[i].Text;
        }
    }
}

// A logo of the settings' folder stands in the head of each page.
TEST_F(Pdf, ALogoOfTheSettingsIsTaken) {
    EnsureRenderApplication();
    RunExample("PointLoad");
    Session.ProgramDir = folder.Dir();
    EXPECT_EQ(PaperInForce().Logo, "");
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    ASSERT_TRUE(picture.save(QString::fromStdString(folder / "LOGO.png")));
    EXPECT_TRUE(PaperInForce().Logo.ends_with("LOGO.png"));
    EXPECT_THAT(ReportPdf(Session.ResultText), HasSubstr("/Subtype /Image"));
    EXPECT_THAT(ReportHtml(Session.ResultText), HasSubstr("data:image/png;base64,"));
    EXPECT_THAT(ReportRtf(Session.ResultText), HasSubstr("\\pngblip"));
    // What is no picture leaves the page without one.
    std::ofstream(folder / "LOGO.png") << "no picture";
    EXPECT_THAT(ReportPdf(Session.ResultText), testing::Not(HasSubstr("/Subtype /Image")));
}

// Of several logos the first in the order that is told: PNG, JPEG, SVG.
TEST_F(Pdf, OfSeveralLogosTheFirstKindIsTaken) {
    for (const char* name : {"logo.svg", "Logo.jpeg", "LOGO.JPG", "logo.PNG"}) {
        std::ofstream(folder / name) << "a picture";
        EXPECT_EQ(std::filesystem::path(LogoFileIn(folder.Dir())).filename(), name);
    }
    std::ofstream(folder / "Logo.gif") << "not of these kinds";
    EXPECT_EQ(std::filesystem::path(LogoFileIn(folder.Dir())).filename(), "logo.PNG");
}

// Each problem has its drawing in its documents, and nothing that was chosen in the session is changed by that.
TEST_F(Pdf, EveryProblemHasItsDrawing) {
    for (const char* example : {"PointLoad", "RectangularFooting", "CircularTank", "OneClayLayer", "TwoClayLayers",
                                "OfficeBuilding", "WaterTower", "BridgePier", "EccentricRaft", "RaftOnThickClay"}) {
        RunExample(example);
        Session.CurveChoice = "Tab3";
        Session.TimeUnit = "decades";
        const ReportPaper paper = PaperWithFigures(Figures::Drawing);
        ASSERT_EQ(paper.Figures.size(), 1u) << example;
        EXPECT_EQ(Session.CurveChoice, "Tab3");
        EXPECT_EQ(Session.TimeUnit, "decades");
        const std::string svg = SvgOf(paper.Figures[0].Size, QStringLiteral("drawing"), paper.Figures[0].Paint);
        EXPECT_THAT(svg, HasSubstr("<text")) << example;
    }
    RunExample("EccentricRaft");
    EXPECT_EQ(PaperWithFigures(Figures::All).Figures.size(), 5u) << "drawing, two curves, two contour plots";
}

}  // namespace
}  // namespace lithmark::tests
