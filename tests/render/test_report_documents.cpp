// A report as HTML, RTF and PDF: nothing is lost on the way, and pages end in sensible places.
#include <QBuffer>
#include <QXmlStreamReader>

#include "base/Utf8.h"
#include "render/RenderApplication.h"
#include "render/RenderCase.h"
#include "render/ReportDocument.h"
#include "render/ReportLines.h"
#include "support/Languages.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

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

// The text stands in blocks one after the other.
std::string TextOfHtml(const std::string& html) {
    std::string text;
    for (std::size_t at = html.find("<pre"); at != std::string::npos; at = html.find("<pre", at + 1)) {
        const auto begin = html.find(">\n", at) + 2, end = html.find("</pre>", at);
        text += html.substr(begin, end - begin) + "\n";
    }
    for (const auto& [name, sign] : {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
        text = ReplaceAll(text, name, sign);
    return text;
}

// A reader of the RTF that ReportRtf writes: the lines of the body, each in a paragraph or a cell. Head, foot and what
// describes the document are passed over; blanks that do not break are blanks.
std::string TextOfRtf(const std::string& rtf) {
    std::u16string text;
    std::vector<bool> skipped = {false};
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        const char c = rtf[i];
        if (c == '{') {
            bool skip = skipped.back();
            for (const char* group : {"{\\fonttbl", "{\\info", "{\\header", "{\\footer", "{\\pict", "{\\*"})
                skip = skip || rtf.compare(i, std::string_view(group).size(), group) == 0;
            skipped.push_back(skip);
        } else if (c == '}') {
            skipped.pop_back();
        } else if (c == '\r' || c == '\n') {
            continue;
        } else if (c != '\\') {
            if (!skipped.back()) text += static_cast<char16_t>(c);
        } else if (std::string_view("\\{}~").find(rtf[i + 1]) != std::string_view::npos) {
            const char sign = rtf[++i];
            if (!skipped.back()) text += static_cast<char16_t>(sign == '~' ? ' ' : sign);
        } else {
            std::string word, number;
            while (std::isalpha(static_cast<unsigned char>(rtf[i + 1]))) word += rtf[++i];
            while (std::isdigit(static_cast<unsigned char>(rtf[i + 1])) || rtf[i + 1] == '-') number += rtf[++i];
            if (rtf[i + 1] == ' ') ++i;
            if (skipped.back()) continue;
            if (word == "par" || word == "cell") text += u'\n';
            if (word == "u") {
                text += static_cast<char16_t>(std::stoi(number));
                EXPECT_EQ(rtf[i + 1], '?');
                ++i;
            }
        }
    }
    EXPECT_EQ(skipped.size(), 1u);
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
    EXPECT_THAT(ReportRtf("a  b\r\n"), HasSubstr("a\\~\\~b")) << "columns do not break";
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

}  // namespace
}  // namespace lithmark::tests
