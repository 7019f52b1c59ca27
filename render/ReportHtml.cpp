#include "base/Utf8.h"
#include "core/Session.h"
#include "render/ReportDocument.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

std::string Escaped(std::string_view text) {
    return ReplaceAll(ReplaceAll(ReplaceAll(ReplaceAll(PrintableText(text), "&", "&amp;"), "<", "&lt;"), ">", "&gt;"),
                      "\"", "&quot;");
}

std::string LanguageCode() {
    switch (LanguageTexts().Current()) {
        case Language::German:
            return "de";
        case Language::Arabic:
            return "ar";
        default:
            return "en";
    }
}

}  // namespace

std::string ReportHtml(const std::string& report) {
    const bool rightToLeft = LanguageTexts().RightToLeft();
    std::string html =
        "<!DOCTYPE html>\n<html lang=\"" + LanguageCode() + "\" dir=\"" + (rightToLeft ? "rtl" : "ltr") +
        "\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
        Escaped(Text(160030_text) + (Session.ProjectName.empty() ? "" : " - " + Session.ProjectName)) +
        "</title>\n<style>\n"
        "body { margin: 2em auto; width: max-content; max-width: 95vw; color: #111; background: #fff; }\n"
        "pre { font: 14px/1.35 '" +
        Escaped(Text(160017_text)) +
        "', 'Courier New', monospace; white-space: pre; }\n"
        "@page { size: A4; margin: 20mm; }\n"
        "@media print { body { margin: 0; } pre { font-size: 9.5pt; } }\n"
        "</style>\n</head>\n<body>\n<pre>\n";
    for (const std::string& line : ReportLinesOf(report))
        html += Escaped(rightToLeft ? DisplayRightToLeft(line) : line) + "\n";
    return html + "</pre>\n</body>\n</html>\n";
}

}  // namespace lithmark
