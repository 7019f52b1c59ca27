#include <QByteArray>
#include <QFileInfo>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "render/DisplayLines.h"
#include "render/QtText.h"
#include "render/ReportDocument.h"
#include "render/ReportLines.h"
#include "services/storage/ReadFile.h"
#include "services/texts/LanguageCodes.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

std::string Escaped(std::string_view text) {
    return ReplaceAll(ReplaceAll(ReplaceAll(ReplaceAll(PrintableText(text), "&", "&amp;"), "<", "&lt;"), ">", "&gt;"),
                      "\"", "&quot;");
}

// A text as a string of a style sheet.
std::string StyleText(const std::string& text) {
    std::string clean;
    for (const char c : PrintableText(text)) {
        if (c == '"' || c == '\\') clean += '\\';
        if (c == '<') {
            clean += "\\3C ";
            continue;
        }
        clean += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
    }
    return "\"" + clean + "\"";
}

// A picture that stands in the page itself.
std::string Picture(const std::string& type, const std::string& bytes, const std::string& words) {
    return "<img src=\"data:image/" + type + ";base64," + QByteArray::fromStdString(bytes).toBase64().toStdString() +
           "\" alt=\"" + Escaped(words) + "\">";
}

std::string LogoPicture(const std::string& file) {
    constexpr std::uint64_t kMostBytes = 4u << 20;
    if (LogoSize(file).isEmpty()) return {};
    const std::string ending = LowerAscii(QFileInfo(Q(file)).suffix().toStdString());
    try {
        return Picture(ending == "svg"   ? "svg+xml"
                       : ending == "png" ? "png"
                                         : "jpeg",
                       ReadWholeFile(file, kMostBytes), "");
    } catch (const Failure&) {
        return {};
    }
}

// Head and foot of each printed page. Browsers that cannot write them print without.
std::string PageStyle(const ReportPaper& paper, bool rightToLeft) {
    const auto joined = [](const std::vector<std::string>& lines) {
        std::string text;
        for (const std::string& line : lines) text += (text.empty() ? "" : " \"\\A \" ") + StyleText(line);
        return text.empty() ? std::string("\"\"") : text;
    };
    const std::string page = ReportPaper::PageText("\1", "\2");
    const std::string counted =
        "\"" + ReplaceAll(ReplaceAll(page, "\1", "\" counter(page) \""), "\2", "\" counter(pages) \"") + "\"";
    const std::string near = rightToLeft ? "right" : "left", far = rightToLeft ? "left" : "right";
    const std::string small = "font: 8pt 'DejaVu Sans', sans-serif; color: #333; white-space: pre-line; ";
    return "@page { size: A4; margin: 26mm 20mm 18mm;\n  @top-" + near + " { " + small + "text-align: " + near +
           "; content: " + joined(paper.HeadLines()) + "; }\n  @top-" + far + " { " + small + "text-align: " + far +
           "; content: " + joined(paper.Company) + "; }\n  @bottom-" + near + " { " + small +
           "content: " + StyleText(paper.Date) + "; }\n  @bottom-center { " + small + "content: " + counted +
           "; }\n  @bottom-" + far + " { " + small + "content: " + StyleText(ReportPaper::Maker()) + "; } }\n";
}

// Lines [first, end) as one block, which ends with its last line.
std::string BlockOf(const std::vector<std::string>& texts, std::size_t first, std::size_t end,
                    const std::string& kind = {}) {
    std::string html = (kind.empty() ? "<pre" : "<pre class=\"" + kind + "\"") + ">\n";
    for (std::size_t i = first; i < end; ++i) html += (i > first ? "\n" : "") + Escaped(texts[i]);
    return html + "</pre>\n";
}

// Text between tables, a block for each paragraph with the empty lines above it; a heading stays with what follows.
std::string Paragraphs(const std::vector<std::string>& lines, const std::vector<std::string>& texts, std::size_t first,
                       std::size_t end) {
    constexpr std::size_t kHeadingLines = 2;
    std::string html;
    for (std::size_t i = first; i < end;) {
        std::size_t text = i;
        while (text < end && lines[text].empty()) ++text;
        std::size_t next = text;
        while (next < end && !lines[next].empty()) ++next;
        html += BlockOf(texts, i, next, next > text && next - text <= kHeadingLines ? "heading" : "");
        i = next;
    }
    return html;
}

}  // namespace

std::string ReportHtml(const std::string& report, const ReportPaper& paper) {
    const bool rightToLeft = LanguageTexts().RightToLeft();
    const std::vector<std::string> lines = ReportLinesOf(report), texts = DisplayTexts(lines, rightToLeft);
    std::string html =
        std::string("<!DOCTYPE html>\n<html lang=\"") + PublicLanguageCode(LanguageTexts().Current()) + "\" dir=\"" +
        (rightToLeft ? "rtl" : "ltr") + "\">\n<head>\n<meta charset=\"utf-8\">\n<title>" + Escaped(paper.Title) +
        "</title>\n<meta name=\"author\" content=\"" + Escaped(paper.Author) +
        "\">\n<meta name=\"generator\" content=\"" + Escaped(ReportPaper::Maker()) +
        "\">\n<style>\n"
        "body { margin: 2em auto; width: max-content; max-width: 95vw; color: #111; background: #fff; }\n"
        "header { display: flex; justify-content: space-between; align-items: center; gap: 2em; margin-bottom: 1.5em;\n"
        "  font: 13px 'DejaVu Sans', sans-serif; }\n"
        "header img { max-height: 48px; max-width: 200px; }\n"
        "pre { margin: 0; font: 14px/1.35 '" +
        Escaped(Text(160017_text)) +
        "', 'Courier New', monospace; white-space: pre; orphans: 3; widows: 3; }\n"
        "table { border-collapse: collapse; } td { padding: 0; }\n"
        "figure { margin: 2em 0 0; text-align: center; font: 13px 'DejaVu Sans', sans-serif; break-inside: avoid; }\n"
        "figure img { max-width: min(100%, 760px); }\n" +
        PageStyle(paper, rightToLeft) +
        "@media print { body { margin: 0; } pre { font-size: " + std::to_string(kReportPoints) +
        "pt; } .heading { break-after: avoid; }\n"
        "  thead { display: table-header-group; } }\n"
        "</style>\n</head>\n<body>\n";
    const std::string logo = LogoPicture(paper.Logo);
    if (!paper.Company.empty() || !logo.empty()) {
        html += "<header><div>";
        for (std::size_t i = 0; i < paper.Company.size(); ++i)
            html += (i > 0 ? "<br>" : "") + Escaped(paper.Company[i]);
        html += "</div>" + logo + "</header>\n";
    }
    html += "<main>\n";
    std::size_t at = 0;
    for (const TablePlace& table : TablesOf(lines)) {
        html += Paragraphs(lines, texts, at, table.First) + BlockOf(texts, table.First, table.Head, "heading") +
                "<table><thead><tr><td>" + BlockOf(texts, table.Head, table.Rows) +
                "</td></tr></thead>\n<tbody><tr><td>" + BlockOf(texts, table.Rows, table.End) +
                "</td></tr></tbody></table>\n";
        at = table.End;
    }
    html += Paragraphs(lines, texts, at, lines.size());
    for (std::size_t i = 0; i < paper.Figures.size(); ++i) {
        const ReportFigure& figure = paper.Figures[i];
        html += "<figure>" +
                Picture("svg+xml", SvgOf(figure.Size, Q(figure.Caption), figure.Paint), paper.CaptionOf(i)) +
                "<figcaption>" + Escaped(paper.CaptionOf(i)) + "</figcaption></figure>\n";
    }
    return html + "</main>\n</body>\n</html>\n";
}

}  // namespace lithmark
