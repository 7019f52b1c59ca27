// A report as HTML, RTF and PDF: nothing is lost on the way, and pages end in sensible places.
#include <QBuffer>
#include <QXmlStreamReader>

#include "base/Utf8.h"
#include "render/RenderApplication.h"
#include "render/RenderCase.h"
#include "render/ReportDocument.h"

namespace lithmark::tests {
namespace {

using testing::HasSubstr;

constexpr Language kLanguages[] = {Language::German, Language::English, Language::Arabic};

std::string WithoutIsolates(std::string text) {
    return ReplaceAll(ReplaceAll(text, "\u2066", ""), "\u2069", "");
}

// Blanks that Arabic labels get so that columns stand under each other are no part of the text.
std::string Squeezed(const std::string& text) {
    std::string result;
    for (const char c : text)
        if (c != ' ' || (!result.empty() && result.back() != ' ')) result += c;
    return result;
}

std::string PlainLines(const std::string& report) {
    std::string text;
    for (const std::string& line : ReportLinesOf(report)) text += line + "\n";
    return text;
}

std::string TextOfHtml(const std::string& html) {
    const auto begin = html.find("<pre>\n") + 6, end = html.find("</pre>");
    std::string text = html.substr(begin, end - begin);
    for (const auto& [name, sign] : {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
        text = ReplaceAll(text, name, sign);
    return text;
}

// A reader of the RTF that ReportRtf writes: control words are skipped but for \par, \uN and escaped signs.
std::string TextOfRtf(const std::string& rtf) {
    std::u16string text;
    int depth = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        const char c = rtf[i];
        if (c == '{') {
            ++depth;
        } else if (c == '}') {
            --depth;
        } else if (c == '\r' || c == '\n') {
            continue;
        } else if (c != '\\') {
            if (depth == 1) text += static_cast<char16_t>(c);
        } else if (std::string_view("\\{}").find(rtf[i + 1]) != std::string_view::npos) {
            text += static_cast<char16_t>(rtf[++i]);
        } else {
            std::string word, number;
            while (std::isalpha(static_cast<unsigned char>(rtf[i + 1]))) word += rtf[++i];
            while (std::isdigit(static_cast<unsigned char>(rtf[i + 1])) || rtf[i + 1] == '-') number += rtf[++i];
            if (rtf[i + 1] == ' ') ++i;
            if (word == "par") text += u'\n';
            if (word == "u") {
                text += static_cast<char16_t>(std::stoi(number));
                EXPECT_EQ(rtf[i + 1], '?');
                ++i;
            }
        }
    }
    EXPECT_EQ(depth, 0);
    return QString::fromStdU16String(text).toStdString();
}

class ReportDocuments : public RenderTest {};

TEST_F(ReportDocuments, HtmlGivesTheReportBack) {
    for (const Language language : kLanguages) {
        RunExample("OfficeBuilding", language);
        const std::string text = TextOfHtml(ReportHtml(Session.ResultText));
        if (language != Language::Arabic)
            EXPECT_EQ(text, PlainLines(Session.ResultText));
        else
            EXPECT_EQ(Squeezed(WithoutIsolates(text)), Squeezed(PlainLines(Session.ResultText)));
    }
}

TEST_F(ReportDocuments, RtfGivesTheReportBack) {
    for (const Language language : kLanguages) {
        RunExample("OfficeBuilding", language);
        const std::string text = TextOfRtf(ReportRtf(Session.ResultText));
        if (language != Language::Arabic)
            EXPECT_EQ(text, PlainLines(Session.ResultText));
        else
            EXPECT_EQ(Squeezed(WithoutIsolates(text)), Squeezed(PlainLines(Session.ResultText)));
    }
}

TEST_F(ReportDocuments, SignsOfTheFormatsThemselvesAreEscaped) {
    FreshSession();
    const std::string report = "a < b > c & d \"e\" {f} \\g\\par 😀 ² µ\r\n";
    EXPECT_EQ(TextOfHtml(ReportHtml(report)), PlainLines(report));
    EXPECT_EQ(TextOfRtf(ReportRtf(report)), PlainLines(report));
    EXPECT_THAT(ReportHtml(report), testing::Not(HasSubstr("< b")));
    const std::string rtf = ReportRtf(report);
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](unsigned char c) { return c < 0x80; }));
}

TEST_F(ReportDocuments, DirectionAndFontFollowTheLanguage) {
    FreshSession(Language::Arabic);
    EXPECT_THAT(ReportHtml("x\r\n"), HasSubstr("lang=\"ar\" dir=\"rtl\""));
    EXPECT_THAT(ReportRtf("x\r\n"), HasSubstr("\\rtlpar\\qr"));
    FreshSession(Language::German);
    EXPECT_THAT(ReportHtml("x\r\n"), HasSubstr("lang=\"de\" dir=\"ltr\""));
    EXPECT_THAT(ReportRtf("x\r\n"), HasSubstr("\\ltrpar"));
    EXPECT_THAT(ReportRtf("x\r\n"), testing::Not(HasSubstr("rtl")));
    const std::string font = LanguageTexts().Text(160017_text);
    EXPECT_THAT(ReportHtml("x\r\n"), HasSubstr("'" + font + "'"));
    EXPECT_THAT(ReportRtf("x\r\n"), HasSubstr(" " + font + ";"));
}

TEST_F(ReportDocuments, APdfHasThePagesThatItCounts) {
    for (const Language language : kLanguages) {
        RunExample("OfficeBuilding", language);
        const std::string pdf = ReportPdf(Session.ResultText);
        EXPECT_TRUE(pdf.starts_with("%PDF-"));
        EXPECT_THAT(pdf, HasSubstr("%%EOF"));
        int pages = 0;
        for (std::size_t at = 0; (at = pdf.find("/Type /Page\n", at)) != std::string::npos; ++at) ++pages;
        const auto count = pdf.find("/Count ");
        ASSERT_NE(count, std::string::npos);
        EXPECT_EQ(pages, std::stoi(pdf.substr(count + 7)));
        EXPECT_GT(pages, 1);
        EXPECT_LT(pages, 6);
        EXPECT_THAT(pdf, HasSubstr("/FontFile2"));  // the font goes along, so the text shows and copies everywhere
        EXPECT_THAT(pdf, HasSubstr("/ToUnicode"));
    }
    FreshSession();
    EXPECT_TRUE(ReportPdf("").starts_with("%PDF-"));
}

// --- where pages end ---

bool IsRuler(const std::string& line) {
    return line.size() > 10 && line.find_first_not_of('-') == std::string::npos;
}

TEST_F(ReportDocuments, NoPageBreakTearsTheHeadOfATable) {
    for (const char* example : {"OfficeBuilding", "WaterTower", "GrainStore", "EccentricRaft", "TwoClayLayers"}) {
        RunExample(example);
        const auto lines = ReportLinesOf(Session.ResultText);
        for (std::size_t perPage = 14; perPage < 80; ++perPage) {
            SCOPED_TRACE(std::string(example) + ", " + std::to_string(perPage) + " lines");
            const auto starts = PageStarts(lines, perPage);
            ASSERT_EQ(starts.front(), 0u);
            for (std::size_t p = 0; p < starts.size(); ++p) {
                const std::size_t end = p + 1 < starts.size() ? starts[p + 1] : lines.size();
                ASSERT_LE(end - starts[p], perPage);
                ASSERT_LT(starts[p], end);
                if (p == 0) continue;
                // Neither between the two rulers of a head, nor right behind the second one.
                const std::size_t at = starts[p];
                std::size_t above = at;
                while (above > 0 && !IsRuler(lines[above - 1]) && !lines[above - 1].empty() && at - above < 8) --above;
                if (above == 0 || !IsRuler(lines[above - 1])) continue;
                std::size_t below = at;
                while (below < lines.size() && !IsRuler(lines[below]) && !lines[below].empty() && below - at < 8)
                    ++below;
                const bool opening = above >= 2 && !lines[above - 2].empty() &&
                                     lines[above - 2].find_first_of("0123456789") == std::string::npos;
                const bool torn = opening && below < lines.size() && below > at && IsRuler(lines[below]) &&
                                  below - above < 8 && lines[above].find_first_of("0123456789") == std::string::npos;
                EXPECT_FALSE(torn) << "before \"" << lines[at] << "\"";
            }
        }
    }
}

TEST_F(ReportDocuments, PagesAreFilledWhereNothingMustStayTogether) {
    const std::vector<std::string> lines(100, "text");
    EXPECT_EQ(PageStarts(lines, 30), (std::vector<std::size_t>{0, 30, 60, 90}));
    EXPECT_EQ(PageStarts({}, 30), (std::vector<std::size_t>{0}));
}

TEST_F(ReportDocuments, ATableGoesToTheNextPageWithItsTitle) {
    std::vector<std::string> lines(20, "text");
    for (const char* line :
         {"", "Table T1", "----------", "Loads:", "---------------", "  Time   Load", "---------------",
          "     1     10", "     2     20", "     3     30", "---------------", "", "Table T2", "----------"})
        lines.emplace_back(line);
    // Lines 21 to 28 belong together: title, rulers, head and two rows.
    for (const std::size_t perPage : {22u, 25u, 28u}) EXPECT_EQ(PageStarts(lines, perPage)[1], 21u) << perPage;
    EXPECT_EQ(PageStarts(lines, 29)[1], 29u);
    // The end of one table and the title of the next one do not hold each other.
    EXPECT_EQ(PageStarts(lines, 30)[1], 30u);
    EXPECT_EQ(PageStarts(lines, 31)[1], 31u);
}

// --- from right to left ---

TEST_F(ReportDocuments, NumbersAndUnitsAreKeptWholeBetweenIsolates) {
    EXPECT_EQ(DisplayRightToLeft("الهبوط 2.5"), "الهبوط \u20662.5\u2069");
    EXPECT_EQ(DisplayRightToLeft("الهبوط"), "الهبوط");
    EXPECT_EQ(DisplayRightToLeft(""), "");
    EXPECT_EQ(DisplayRightToLeft("   12   34"), "   \u206612\u2069   \u206634\u2069") << "cells stay apart";
    EXPECT_EQ(DisplayRightToLeft("1 2"), "\u20661\u2069 \u20662\u2069") << "cells one blank apart too";
    EXPECT_EQ(DisplayRightToLeft("21 November 2026"), "\u206621 November 2026\u2069") << "a phrase reads as one";
}

TEST_F(ReportDocuments, ALineForDisplayKeepsItsTextAndClosesEveryIsolate) {
    for (const char* example : {"OfficeBuilding", "EccentricRaft", "PointLoad", "ClayUnderTank"}) {
        RunExample(example, Language::Arabic);
        for (const std::string& line : ReportLinesOf(Session.ResultText)) {
            const std::string shown = DisplayRightToLeft(line);
            EXPECT_EQ(Squeezed(WithoutIsolates(shown)), Squeezed(line));
            int open = 0;
            for (const char32_t c : CodePoints(shown)) {
                open += c == 0x2066 ? 1 : c == 0x2069 ? -1 : 0;
                ASSERT_TRUE(open == 0 || open == 1) << line;
            }
            EXPECT_EQ(open, 0) << line;
        }
    }
}

}  // namespace
}  // namespace lithmark::tests
