#include "report/AfterReport.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/Utf8.h"
#include "core/Session.h"
#include "core/Units.h"
#include "report/Notices.h"
#include "report/StepTables.h"
#include "report/ToolLib.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr int kTitleWidth = 11;  // a column's title is broken where a line would be longer
constexpr std::string_view kGap = "  ";

bool IsIsolate(char32_t c) {
    return c >= 0x2066 && c <= 0x2069;
}

// Cells that a text takes in a fixed-pitch font.
int CellsOf(const std::string& text) {
    const auto isolates = [](const std::vector<char32_t>& points) {
        return static_cast<int>(std::count_if(points.begin(), points.end(), IsIsolate));
    };
    return static_cast<int>(CharacterCount(text)) - isolates(CodePoints(text)) - LigatureCount(text);
}

bool IsNumber(const std::string& word) {
    return word.find_first_of("0123456789") != std::string::npos &&
           word.find_first_not_of("0123456789.,+-E") == std::string::npos;
}

bool IsSign(const std::string& word) {
    return word == "=" || word == "-" || word == "+";
}

// The words of a text; what stands between isolates is one word, a number with its unit ("1.244 cm"), a formula
// ("t - 1").
std::vector<std::string> WordsOf(const std::string& text) {
    std::vector<std::string> words;
    std::string before;
    bool open = false;
    for (const std::string& piece : Split(text, ' ')) {
        const bool kept = open || IsNumber(before) || IsSign(before) || IsSign(piece);
        before = piece;
        if (kept && !words.empty())
            words.back() += " " + piece;
        else
            words.push_back(piece);
        for (const char32_t c : CodePoints(piece))
            if (IsIsolate(c)) open = c != 0x2069;
    }
    return words;
}

std::vector<std::string> Wrapped(const std::string& text, int width) {
    std::vector<std::string> lines;
    for (const std::string& word : WordsOf(text)) {
        if (!lines.empty() && CellsOf(lines.back()) + 1 + CellsOf(word) <= width)
            lines.back() += " " + word;
        else
            lines.push_back(word);
    }
    return lines;
}

std::string Right(const std::string& text, int width) {
    return std::string(static_cast<std::size_t>(std::max(0, width - CellsOf(text))), ' ') + text;
}

std::string Left(const std::string& text, int width) {
    return text + std::string(static_cast<std::size_t>(std::max(0, width - CellsOf(text))), ' ');
}

std::string CellText(const StepCell& cell, int decimals) {
    if (!cell.Number) return cell.Word;
    if (decimals < 0) return FormatValue(*cell.Number, "0.000000E+00");
    return FormatValue(*cell.Number, decimals == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(decimals), '0'));
}

class TableText {
  public:
    explicit TableText(const StepTable& table) : table_(table) {
        const std::size_t count = table.Columns.size();
        for (std::size_t c = 0; c < count; ++c) {
            const StepColumn& column = table.Columns[c];
            heads_.push_back(Wrapped(column.Title, kTitleWidth));
            headRows_ = std::max(headRows_, heads_.back().size());
            decimals_.push_back(DecimalsOf(table, c));
            int width = std::max(CellsOf(column.Symbol), CellsOf(column.Unit));
            for (const std::string& piece : heads_.back()) width = std::max(width, CellsOf(piece));
            for (const auto& row : table.Rows) width = std::max(width, CellsOf(CellText(row[c], decimals_[c])));
            for (const StepSum& sum : table.Sums)
                width = std::max(width, CellsOf(c == 0 ? sum.Label : SumText(sum, c)));
            widths_.push_back(width);
        }
    }

    std::string Text() const {
        int whole = static_cast<int>(kGap.size()) * static_cast<int>(widths_.size() - 1);
        for (const int width : widths_) whole += width;
        const std::string ruler = std::string(static_cast<std::size_t>(whole), '-') + kLineEnd;
        std::string text = table_.Title + ":" + kLineEnd + ruler;
        for (std::size_t row = 0; row < headRows_; ++row)
            text += Line([&](std::size_t c) { return row < heads_[c].size() ? heads_[c][row] : std::string(); });
        text += Line([&](std::size_t c) { return table_.Columns[c].Symbol; });
        text += Line([&](std::size_t c) { return table_.Columns[c].Unit; }) + ruler;
        for (const auto& row : table_.Rows) text += Line([&](std::size_t c) { return CellText(row[c], decimals_[c]); });
        text += ruler;
        for (const StepSum& sum : table_.Sums)
            text += Line([&](std::size_t c) { return c == 0 ? sum.Label : SumText(sum, c); }, true);
        if (!table_.Sums.empty()) text += ruler;
        for (const std::string& note : table_.Notes)
            for (const std::string& line : Wrapped(note, kReportWidth)) text += line + kLineEnd;
        return text + kLineEnd;
    }

  private:
    std::string SumText(const StepSum& sum, std::size_t c) const { return CellText(sum.Cells[c - 1], decimals_[c]); }

    template <typename CellOf>
    std::string Line(const CellOf& cellOf, bool labelled = false) const {
        std::string line;
        for (std::size_t c = 0; c < widths_.size(); ++c) {
            if (c > 0) line += kGap;
            line += labelled && c == 0 ? Left(cellOf(c), widths_[c]) : Right(cellOf(c), widths_[c]);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        return line + kLineEnd;
    }

    const StepTable& table_;
    std::vector<std::vector<std::string>> heads_;
    std::vector<int> decimals_, widths_;
    std::size_t headRows_ = 0;
};

}  // namespace

std::string NoticeBox() {
    if (Notices().All().empty()) return {};
    std::string box = kLineEnd + Ruler() + kLineEnd + Text(907200_text, Style{4}) + kLineEnd + Ruler() + kLineEnd;
    for (const Notice& notice : Notices().All()) {
        std::string id(NoticeName(notice.Id));
        if (LanguageTexts().RightToLeft()) id.insert(0, "\u2066").append("\u2069");
        for (const std::string& line : Wrapped(id + ": " + NoticeText(notice), kReportWidth)) box += line + kLineEnd;
    }
    return box + Ruler() + kLineEnd;
}

std::string StepTablesText() {
    const std::string heading = Text(907201_text);
    std::string text = kLineEnd + heading + kLineEnd +
                       std::string(static_cast<std::size_t>(std::max(1, CellsOf(heading))), '-') + kLineEnd + kLineEnd;
    if (Steps().Tables().empty()) return text + Text(907202_text) + kLineEnd;
    for (const StepTable& table : Steps().Tables()) text += TableText(table).Text();
    return text;
}

DocumentParts& PartsChosen() {
    static DocumentParts parts;
    return parts;
}

std::string ReportWith(const DocumentParts& parts) {
    std::string text = Session.ResultText;
    if (parts.Notices) text += NoticeBox();
    if (parts.Tables) text += StepTablesText();
    return text;
}

}  // namespace lithmark
