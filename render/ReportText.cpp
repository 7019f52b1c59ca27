// What all documents of a report share: its lines, their direction, and where pages may end.
#include <algorithm>

#include "base/Utf8.h"
#include "render/ReportDocument.h"
#include "report/ToolLib.h"

namespace lithmark {

namespace {

bool IsArabic(char32_t c) {
    return (c >= 0x0600 && c <= 0x06FF) || (c >= 0x0750 && c <= 0x077F) || (c >= 0xFB50 && c <= 0xFDFF) ||
           (c >= 0xFE70 && c <= 0xFEFF);
}

bool HasArabic(std::string_view text) {
    const auto points = CodePoints(text);
    return std::any_of(points.begin(), points.end(), IsArabic);
}

// A line of "-" only, at least ten of them.
bool IsRuler(const std::string& line) {
    return line.size() >= 10 && line.find_first_not_of('-') == std::string::npos;
}

// A word of a line with the blanks in front of it. Plain: without Arabic letters.
struct Word {
    std::size_t Blanks;
    std::string Text;
    bool Plain;
};

std::vector<Word> WordsOf(std::string_view line) {
    std::vector<Word> words;
    for (std::size_t position = 0; position < line.size();) {
        const std::size_t start = std::min(line.find_first_not_of(' ', position), line.size());
        const std::size_t end = std::min(line.find(' ', start), line.size());
        const std::string text(line.substr(start, end - start));
        words.push_back({start - position, text, !text.empty() && !HasArabic(text)});
        position = end;
    }
    return words;
}

// Two plain words of one phrase ("21 November"), not two cells of a table or the parts of a parameter line.
bool BelongTogether(const Word& first, const Word& second) {
    const auto part = [](const Word& word) { return word.Text == "=" || word.Text.front() == '['; };
    const auto letters = [](const Word& word) {
        return word.Text.find_first_not_of("0123456789.,+-E") != std::string::npos;
    };
    return second.Plain && second.Blanks == 1 && !part(first) && !part(second) &&
           (letters(first) || letters(second) || first.Text.ends_with(','));
}

// The words from the line's begin to word i.
std::string LabelUpTo(const std::vector<Word>& words, std::size_t i) {
    std::string label;
    for (std::size_t k = 0; k <= i; ++k) label += words[k].Text + " ";
    return label;
}

// For each line, how many lines from it on must stay on one page (at least 1).
std::vector<std::size_t> KeepTogether(const std::vector<std::string>& lines) {
    std::vector<std::size_t> keep(lines.size(), 1);
    std::size_t headEnd = 0;  // the second ruler of the last head; no head begins there
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        if (!IsRuler(lines[i])) {
            // A heading ends in a colon and stands behind an empty line.
            const bool heading = !lines[i].empty() && lines[i].back() == ':' && (i == 0 || lines[i - 1].empty());
            if (heading) keep[i] = 3;
            continue;
        }
        // Title, ruler, head, ruler and two rows of a table; the section title above it belongs to them.
        std::size_t second = i + 1;
        while (second < lines.size() && second <= i + 8 && !lines[second].empty() && !IsRuler(lines[second])) ++second;
        const bool head = second < lines.size() && IsRuler(lines[second]) && second > i + 1;
        if (!head || lines[i].size() == 10 || (headEnd > 0 && i <= headEnd)) continue;
        headEnd = second;
        std::size_t first = i > 0 ? i - 1 : i;
        while (first > 0 && !lines[first - 1].empty() && i - first < 4) --first;
        keep[first] = std::max(keep[first], second + 3 - first);
    }
    return keep;
}

}  // namespace

std::vector<std::string> ReportLinesOf(const std::string& report) {
    std::vector<std::string> lines = Split(report, '\n');
    for (std::string& line : lines)
        if (line.ends_with('\r')) line.pop_back();
    if (!lines.empty() && lines.back().empty()) lines.pop_back();
    return lines;
}

std::string DisplayRightToLeft(std::string_view line) {
    constexpr std::string_view kOpen = "\u2066", kClose = "\u2069";
    std::string result;
    // In a parameter line the blanks behind a label count a lam-alef pair as two cells, though it is drawn as one;
    // table heads are corrected where they are composed.
    const bool parameter = line.find(" = ") != std::string_view::npos;
    const std::vector<Word> words = WordsOf(line);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const Word& word = words[i];
        result.append(word.Blanks, ' ');
        if (!word.Plain) {
            result.append(word.Text);
            const bool padded = i + 1 < words.size() && words[i + 1].Blanks > 1;
            if (parameter && padded) result.append(static_cast<std::size_t>(LigatureCount(LabelUpTo(words, i))), ' ');
            continue;
        }
        result.append(kOpen).append(word.Text);
        for (; i + 1 < words.size() && BelongTogether(words[i], words[i + 1]); ++i)
            result.append(" ").append(words[i + 1].Text);
        result.append(kClose);
    }
    return result;
}

std::vector<std::size_t> PageStarts(const std::vector<std::string>& lines, std::size_t linesPerPage) {
    const std::vector<std::size_t> keep = KeepTogether(lines);
    std::vector<std::size_t> starts = {0};
    std::size_t used = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::size_t needed = std::min({keep[i], lines.size() - i, linesPerPage});
        if (used > 0 && used + needed > linesPerPage) {
            starts.push_back(i);
            used = 0;
        }
        ++used;
    }
    return starts;
}

}  // namespace lithmark
