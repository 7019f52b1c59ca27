// A report for word processors. Each line is a paragraph whose blanks do not break, so that its columns stand; a table
// is one of the word processor's own with a cell a line, so that its head stands again on each page.
#include <qcustomplot.h>

#include <QByteArray>
#include <QPainter>
#include <algorithm>

#include "base/Utf8.h"
#include "render/DisplayLines.h"
#include "render/ReportDocument.h"
#include "render/ReportLines.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kHalfPoints = 2 * kReportPoints;
constexpr int kLineTwips = 201;                    // from line to line
constexpr double kCellOfFont = 0.602;              // a character's width, in parts of the font's size
constexpr int kTwipsPerPoint = 20, kWidth = 9638;  // of A4 between margins of 20 mm
constexpr int kTwipsPerUnit = 15;                  // of a figure, 1/96 inch

// Text in RTF: ASCII but for \ { }, everything else as \uN with a question mark for readers that know no Unicode. The
// blanks of a run do not break and stay as wide as they are; one between two words is a blank that is searched for.
void AppendRtf(std::string& rtf, std::string_view text, bool breaks = false) {
    const std::vector<char32_t> points = CodePoints(text);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const char32_t c = points[i];
        const bool run = (i > 0 && points[i - 1] == ' ') || (i + 1 < points.size() && points[i + 1] == ' ');
        if (c == '\\' || c == '{' || c == '}') {
            rtf += '\\';
            rtf += static_cast<char>(c);
        } else if (c == ' ' && run && !breaks) {
            rtf += "\\~";
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

std::string Rtf(std::string_view text) {
    std::string rtf;
    AppendRtf(rtf, text, true);
    return rtf;
}

std::string PngGroup(const std::string& png, const QSize& pixels, const QSize& twips) {
    return "{\\pict\\pngblip\\picw" + std::to_string(pixels.width()) + "\\pich" + std::to_string(pixels.height()) +
           "\\picwgoal" + std::to_string(twips.width()) + "\\pichgoal" + std::to_string(twips.height()) + "\r\n" +
           QByteArray::fromStdString(png).toHex().toStdString() + "}";
}

class RtfReport {
  public:
    RtfReport(const std::string& report, const ReportPaper& paper)
        : paper_(paper),
          rightToLeft_(LanguageTexts().RightToLeft()),
          lines_(ReportLinesOf(report)),
          display_(DisplayLines(lines_, rightToLeft_)),
          tables_(TablesOf(lines_)),
          outline_(lines_.size(), -1),
          halfPoints_(lines_.size(), kHalfPoints) {
        for (const HeadingPlace& heading : HeadingsOf(lines_)) outline_[heading.Line] = heading.Level;
        for (std::size_t i = 0; i < lines_.size(); ++i) Fit(i, i + 1);
        for (const TablePlace& table : tables_) Fit(table.Head, table.End);
    }

    std::string Text() {
        rtf_ = "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fmodern\\fprq1\\fcharset0 " +
               Rtf(lithmark::Text(160017_text)) +
               ";}{\\f1\\fswiss\\fprq2\\fcharset0 DejaVu Sans;}}\r\n{\\info{\\title " + Rtf(paper_.Title) +
               "}{\\author " + Rtf(paper_.Author) +
               "}}"
               "\r\n\\paperw11906\\paperh16838\\margl1134\\margr1134\\margt1418\\margb1134\\headery567\\footery567\\wid"
               "owctrl\r\n";
        Margins();
        std::size_t at = 0;
        for (const TablePlace& table : tables_) {
            for (; at < table.Head; ++at) Line(at, at >= table.First || KeepsNext(at));
            for (; at < table.End; ++at) Row(at, at<table.Rows, at + 3> table.Sums && at + 1 < table.End);
        }
        for (; at < lines_.size(); ++at) Line(at, KeepsNext(at));
        Figures();
        return rtf_ + "}\r\n";
    }

  private:
    // A table, or a line of text, that is wider than the page gets a smaller font, as a whole.
    void Fit(std::size_t first, std::size_t end) {
        int cells = 1;
        for (std::size_t i = first; i < end; ++i) cells = std::max(cells, display_[i].Cells);
        const int most = static_cast<int>(2.0 * kWidth / kTwipsPerPoint / (kCellOfFont * cells));
        std::fill(halfPoints_.begin() + static_cast<std::ptrdiff_t>(first),
                  halfPoints_.begin() + static_cast<std::ptrdiff_t>(end), std::clamp(most, 4, kHalfPoints));
    }

    // A heading and the empty lines and dashes under it stay with what follows.
    bool KeepsNext(std::size_t i) const {
        if (outline_[i] >= 0) return true;
        return i > 0 && i + 1 < lines_.size() && (lines_[i].empty() || IsRuler(lines_[i])) && KeepsNext(i - 1);
    }

    // The direction of a paragraph and of the characters in it. \ql and \qr are the page's left and right, whatever the
    // paragraph's direction.
    std::string Direction() const { return rightToLeft_ ? "\\rtlpar\\qr" : "\\ltrpar\\ql"; }
    std::string Letters(int font, int halfPoints) const {
        const std::string name = std::to_string(font), size = std::to_string(halfPoints);
        return "\\f" + name + "\\fs" + size +
               (rightToLeft_ ? "\\rtlch\\af" + name + "\\afs" + size + " " : std::string("\\ltrch "));
    }

    void Content(std::size_t index) {
        if (!rightToLeft_) return AppendRtf(rtf_, lines_[index]);
        const DisplayLine& line = display_[index];
        const std::string font = "\\f0\\fs" + std::to_string(halfPoints_[index]);
        int column = 0;
        const auto blanksTo = [&](int end) {
            AppendRtf(rtf_, std::string(static_cast<std::size_t>(std::max(0, end - column)), ' '));
            column = std::max(column, end);
        };
        for (const DisplayPiece& piece : line.Pieces) {
            blanksTo(piece.Column);
            if (piece.RightToLeft) {
                AppendRtf(rtf_, piece.Text);
            } else {
                AppendRtf(rtf_, "\u2066");
                rtf_ += "{\\ltrch" + font + " ";
                AppendRtf(rtf_, piece.Text);
                rtf_ += "}";
                AppendRtf(rtf_, "\u2069");
            }
            column += piece.Cells;
        }
        blanksTo(line.Cells);
    }

    void Paragraph(std::size_t index, bool keepsNext) {
        rtf_ += Direction() + (keepsNext ? "\\keepn" : "") +
                (outline_[index] >= 0 ? "\\outlinelevel" + std::to_string(outline_[index]) : "") + "\\sl-" +
                std::to_string(kLineTwips) + "\\slmult0" + Letters(0, halfPoints_[index]);
        Content(index);
    }

    void Line(std::size_t index, bool keepsNext) {
        rtf_ += "\\pard\\plain";
        Paragraph(index, keepsNext);
        rtf_ += "\\par\r\n";
    }

    std::string RowStart(const std::vector<int>& ends, bool head = false) const {
        std::string row = "\\trowd\\trgaph0\\trleft0\\trkeep";
        if (rightToLeft_) row += "\\rtlrow";
        if (head) row += "\\trhdr";
        for (const int end : ends) row += "\\cellx" + std::to_string(end);
        return row + "\r\n";
    }

    void Row(std::size_t index, bool head, bool keepsNext) {
        rtf_ += RowStart({kWidth}, head) + "\\pard\\plain\\intbl";
        Paragraph(index, keepsNext || head);
        rtf_ += "\\cell\\row\r\n";
    }

    // A cell of head or foot: lines of small letters, at the side where the language begins, in the middle, or at the
    // other side.
    enum class At { Begin, Middle, End };
    void MarginCell(const std::vector<std::string>& rtfLines, At at) {
        const bool right = (at == At::End) != rightToLeft_;
        const std::string side = at == At::Middle ? "\\qc" : right ? "\\qr" : "\\ql";
        rtf_ += "\\pard\\plain\\intbl" + std::string(rightToLeft_ ? "\\rtlpar" : "\\ltrpar") + side + Letters(1, 16);
        for (std::size_t i = 0; i < rtfLines.size(); ++i) rtf_ += (i > 0 ? "\\line " : "") + rtfLines[i];
        rtf_ += "\\cell\r\n";
    }

    void Margins() {
        const auto all = [](const std::vector<std::string>& texts) {
            std::vector<std::string> rtf(texts.size());
            std::transform(texts.begin(), texts.end(), rtf.begin(), Rtf);
            return rtf;
        };
        std::vector<int> ends = {kWidth * 6 / 10, kWidth};
        const std::string logo = Logo();
        if (!logo.empty()) ends = {kWidth / 2, kWidth * 8 / 10, kWidth};
        rtf_ += "{\\header" + RowStart(ends);
        MarginCell(all(paper_.HeadLines()), At::Begin);
        MarginCell(all(paper_.Company), At::End);
        if (!logo.empty()) MarginCell({logo}, At::End);
        const std::string rule = "\\pard\\plain\\brdrt\\brdrs\\brdrw5\\sl-120\\slmult0\\fs8\\par}\r\n";
        rtf_ += "\\row\r\n" + rule + "{\\footer" + RowStart({kWidth / 3, kWidth * 2 / 3, kWidth});
        MarginCell({Rtf(paper_.Date)}, At::Begin);
        const auto field = [](const char* name) {
            return std::string("{\\field{\\*\\fldinst ") + name + "}{\\fldrslt 1}}";
        };
        MarginCell(
            {ReplaceAll(ReplaceAll(Rtf(ReportPaper::PageText("<", ">")), "<", field("PAGE")), ">", field("NUMPAGES"))},
            At::Middle);
        MarginCell({Rtf(ReportPaper::Maker())}, At::End);
        rtf_ += "\\row\\pard\\plain\\sl-20\\slmult0\\fs2\\par}\r\n";
    }

    std::string Logo() const {
        constexpr int kHeight = 44, kScale = 4;
        const QSize own = LogoSize(paper_.Logo);
        if (own.isEmpty()) return {};
        const QSize size = own.scaled(120, kHeight, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
        const std::string png = PngOf(size, kScale, [&](QPainter& painter) {
            DrawLogoFile(painter, QRectF(QPointF(0, 0), QSizeF(size)), paper_.Logo, true);
        });
        return PngGroup(png, size * kScale, size * kTwipsPerUnit);
    }

    void Figures() {
        constexpr int kScale = 2, kMostWidth = kWidth / kTwipsPerUnit;
        for (std::size_t i = 0; i < paper_.Figures.size(); ++i) {
            const ReportFigure& figure = paper_.Figures[i];
            QSize shown = figure.Size;
            if (shown.width() > kMostWidth) shown = shown.scaled(kMostWidth, shown.height(), Qt::KeepAspectRatio);
            const std::string paragraph = rightToLeft_ ? "\\pard\\plain\\rtlpar\\qc" : "\\pard\\plain\\ltrpar\\qc";
            rtf_ += paragraph + "\\keepn\\sb240 ";
            rtf_ += PngGroup(PngOf(figure.Size, kScale, figure.Paint), figure.Size * kScale, shown * kTwipsPerUnit);
            rtf_ += "\\par\r\n" + paragraph + "\\sb120" + Letters(1, 17) + Rtf(paper_.CaptionOf(i)) + "\\par\r\n";
        }
    }

    const ReportPaper& paper_;
    const bool rightToLeft_;
    const std::vector<std::string> lines_;
    const std::vector<DisplayLine> display_;
    const std::vector<TablePlace> tables_;
    std::vector<int> outline_;  // the level of a heading, -1 for other lines
    std::vector<int> halfPoints_;
    std::string rtf_;
};

}  // namespace

std::string ReportRtf(const std::string& report, const ReportPaper& paper) {
    return RtfReport(report, paper).Text();
}

}  // namespace lithmark
