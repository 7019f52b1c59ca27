#include "base/Utf8.h"
#include "render/ReportDocument.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Text in RTF: ASCII but for \ { }, everything else as \uN with a question mark for readers that know no Unicode.
void AppendRtf(std::string& rtf, std::string_view text) {
    for (const char32_t c : CodePoints(text)) {
        if (c == '\\' || c == '{' || c == '}') {
            rtf += '\\';
            rtf += static_cast<char>(c);
        } else if (c >= 0x20 && c < 0x7F) {
            rtf += static_cast<char>(c);
        } else {
            const auto put = [&](int unit) { rtf += "\\u" + std::to_string(unit > 32767 ? unit - 65536 : unit) + "?"; };
            if (c >= 0x10000) {
                put(static_cast<int>(0xD800 + ((c - 0x10000) >> 10)));
                put(static_cast<int>(0xDC00 + ((c - 0x10000) & 0x3FF)));
            } else {
                put(static_cast<int>(c));
            }
        }
    }
}

}  // namespace

// One paragraph a line, in paragraphs that run from right to left in Arabic; pages break where PageStarts says.
std::string ReportRtf(const std::string& report) {
    const bool rightToLeft = LanguageTexts().RightToLeft();
    constexpr std::size_t kLinesPerPage = 64;  // A4, margins of 20 mm, 9 pt on 11.3 pt
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fmodern\\fprq1\\fcharset0 ";
    AppendRtf(rtf, Text(160017_text));
    rtf += ";}}\r\n\\paperw11906\\paperh16838\\margl1134\\margr1134\\margt1134\\margb1134\r\n";
    // \ql and \qr are the page's left and right, whatever the paragraph's direction.
    const std::string paragraph = rightToLeft ? "\\pard\\rtlpar\\qr\\sl-226\\slmult0\\f0\\fs18\\rtlch\\af0\\afs18 "
                                              : "\\pard\\ltrpar\\ql\\sl-226\\slmult0\\f0\\fs18\\ltrch ";
    const std::vector<std::string> lines = ReportLinesOf(report);
    const std::vector<std::size_t> starts = PageStarts(lines, kLinesPerPage);
    std::size_t page = 1;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        rtf += paragraph;
        if (page < starts.size() && starts[page] == i) {
            rtf += "\\pagebb ";
            ++page;
        }
        AppendRtf(rtf, rightToLeft ? DisplayRightToLeft(lines[i]) : lines[i]);
        rtf += "\\par\r\n";
    }
    return rtf + "}\r\n";
}

}  // namespace lithmark
