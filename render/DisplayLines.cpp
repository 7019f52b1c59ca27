#include "render/DisplayLines.h"

#include <algorithm>
#include <map>

#include "base/Utf8.h"
#include "render/ReportLines.h"
#include "report/ToolLib.h"

namespace lithmark {

namespace {

bool IsArabic(char32_t c) {
    return (c >= 0x0600 && c <= 0x06FF) || (c >= 0x0750 && c <= 0x077F) || (c >= 0xFB50 && c <= 0xFDFF) ||
           (c >= 0xFE70 && c <= 0xFEFF);
}

bool IsMarkOrIsolate(char32_t c) {
    return (c >= 0x064B && c <= 0x065F) || c == 0x0670 || (c >= 0x2066 && c <= 0x2069) || c == 0x200E || c == 0x200F;
}

int Characters(std::string_view text) {
    return static_cast<int>(CharacterCount(text));
}

// A word of a line.
struct Word {
    int Start;  // its first character
    int Blanks;
    std::string Text;
    bool Plain;  // without Arabic letters

    int End() const { return Start + Characters(Text); }
};

std::vector<Word> WordsOfLine(std::string_view line) {
    std::vector<Word> words;
    int at = 0;
    for (std::size_t position = 0; position < line.size();) {
        const std::size_t start = std::min(line.find_first_not_of(' ', position), line.size());
        const std::size_t end = std::min(line.find(' ', start), line.size());
        if (start == end) break;
        const std::string text(line.substr(start, end - start));
        const int blanks = static_cast<int>(start - position);
        words.push_back({at + blanks, blanks, text, !HasArabic(text)});
        at = words.back().End();
        position = end;
    }
    return words;
}

// Signs outside of a word's isolates ("(12 m)." with the isolates around "12 m") belong to the sentence around it.
bool HasSignsOfSentence(std::string_view text) {
    bool isolated = false, outside = false;
    int depth = 0;
    for (const char32_t c : CodePoints(text)) {
        const bool opens = c >= 0x2066 && c <= 0x2068, closes = c == 0x2069;
        depth += opens ? 1 : closes ? -1 : 0;
        isolated = isolated || opens;
        outside = outside || (depth == 0 && !closes);
    }
    return isolated && outside;
}

bool IsNumber(const std::string& word) {
    return word.find_first_of("0123456789") != std::string::npos &&
           word.find_first_not_of("0123456789.,+-E") == std::string::npos;
}

// Two plain words of one phrase ("21 November", "q = 7"), not two cells of a table or the parts of a parameter line.
bool BelongTogether(const Word& first, const Word& second, bool parameter) {
    const auto part = [&](const Word& word) { return parameter && (word.Text == "=" || word.Text.front() == '['); };
    return first.Plain && second.Plain && second.Blanks == 1 && !part(first) && !part(second) &&
           !first.Text.ends_with(':') && (!IsNumber(first.Text) || !IsNumber(second.Text) || first.Text.ends_with(','));
}

// What a line is decides where its pieces stand.
enum class LineKind {
    Text,
    TableHead,  // cells end where their column ends; each pair lam-alef has a blank in front of its cell
    TableSums,  // so here, but that the first cell is a label
    TableRow
};

// The words that stand at a place of their own, in a parameter line: symbol, unit and "=". Its unit has brackets, or
// more than one blank parts its words; other lines may have a formula in them.
std::size_t FirstOwnPlace(const std::vector<Word>& words) {
    for (std::size_t i = 2; i + 1 < words.size(); ++i) {
        if (words[i].Text != "=") continue;
        const bool spaced = words[i - 2].Blanks > 1 || words[i - 1].Blanks > 1 || words[i].Blanks > 1;
        return spaced || words[i - 1].Text.front() == '[' ? i - 2 : words.size();
    }
    return words.size();
}

DisplayLine PlaceRightToLeft(const std::vector<Word>& words, LineKind kind) {
    DisplayLine line;
    const std::size_t ownPlaces = kind == LineKind::Text ? FirstOwnPlace(words) : words.size();
    const bool parameter = ownPlaces < words.size();
    const bool corrected = kind == LineKind::TableHead || kind == LineKind::TableSums;
    int added = 0;  // blanks that stand for pairs so far
    for (std::size_t i = 0; i < words.size();) {
        // A run: words one blank apart. It has one place; inside it each word follows the other.
        std::size_t end = i + 1;
        const auto apart = [&](std::size_t k) {
            return words[k].Blanks > 1 || (k >= ownPlaces && k <= ownPlaces + 2) ||
                   (kind != LineKind::Text && IsNumber(words[k].Text) && IsNumber(words[k - 1].Text));
        };
        while (end < words.size() && !apart(end)) ++end;
        std::vector<DisplayPiece> pieces;
        int column = 0, pairs = 0;
        for (std::size_t k = i; k < end; ++k) {
            std::string text = words[k].Text;
            pairs += LigatureCount(text);
            const bool plain = words[k].Plain;
            while (plain && k + 1 < end && BelongTogether(words[k], words[k + 1], parameter))
                text += " " + words[++k].Text;
            const int cells = CellsOf(text);
            pieces.push_back({column, cells, text, !plain || HasSignsOfSentence(text)});
            column += cells + 1;
        }
        const int cells = column - 1;
        int place = words[i].Start - (corrected ? added : 0);
        if (kind == LineKind::TableHead) place = words[end - 1].End() - added - pairs - cells;
        if (corrected) added += pairs;
        for (DisplayPiece& piece : pieces) {
            piece.Column += place;
            line.Pieces.push_back(std::move(piece));
        }
        i = end;
    }
    return line;
}

DisplayLine PlaceLeftToRight(const std::vector<Word>& words) {
    DisplayLine line;
    for (const Word& word : words) {
        if (word.Blanks <= 1 && !line.Pieces.empty()) {
            DisplayPiece& piece = line.Pieces.back();
            piece.Text += " " + word.Text;
            piece.Cells = CellsOf(piece.Text);
        } else {
            line.Pieces.push_back({word.Start, CellsOf(word.Text), word.Text, false});
        }
    }
    return line;
}

// The digits in front of a number's decimal sign, and what stands behind them.
struct NumberParts {
    int Whole = 0, Rest = 0;
};

NumberParts PartsOf(const std::string& number) {
    const int whole = static_cast<int>(std::min(number.find_first_of(".,"), std::min(number.find('E'), number.size())));
    return {whole, static_cast<int>(number.size()) - whole};
}

// The numbers of each column of a table, from right to left: the decimal signs under each other, the longest number
// where it stood.
void AlignNumbers(std::vector<DisplayLine>& lines, const TablePlace& table) {
    std::map<int, NumberParts> widest;  // by the last column of the cells
    const auto each = [&](const auto& act) {
        for (std::size_t i = table.Rows; i < table.End; ++i) {
            int before = 0;
            for (DisplayPiece& piece : lines[i].Pieces) {
                if (IsNumber(piece.Text)) act(piece, before);
                before = piece.Column + piece.Cells;
            }
        }
    };
    each([&](const DisplayPiece& piece, int) {
        NumberParts& parts = widest[piece.Column + piece.Cells];
        const NumberParts own = PartsOf(piece.Text);
        parts = {std::max(parts.Whole, own.Whole), std::max(parts.Rest, own.Rest)};
    });
    // Places are found before any number moves.
    std::vector<std::pair<DisplayPiece*, int>> moves;
    each([&](DisplayPiece& piece, int before) {
        const int end = piece.Column + piece.Cells;
        const NumberParts& all = widest.at(end);
        const int begin = end - all.Whole - all.Rest + (all.Rest - PartsOf(piece.Text).Rest);
        if (before == 0 || begin > before) moves.emplace_back(&piece, begin);
    });
    for (const auto& [piece, column] : moves) piece->Column = column;
    for (std::size_t i = table.Rows; i < table.End; ++i) {
        if (lines[i].Pieces.empty()) continue;
        const DisplayPiece& last = lines[i].Pieces.back();
        lines[i].Cells = last.Column + last.Cells + lines[i].Blanks;
    }
}

}  // namespace

bool HasArabic(std::string_view text) {
    const auto points = CodePoints(text);
    return std::any_of(points.begin(), points.end(), IsArabic);
}

int CellsOf(std::string_view text) {
    const auto points = CodePoints(text);
    return static_cast<int>(points.size()) -
           static_cast<int>(std::count_if(points.begin(), points.end(), IsMarkOrIsolate)) -
           LigatureCount(std::string(text));
}

std::vector<DisplayLine> DisplayLines(const std::vector<std::string>& lines, bool rightToLeft) {
    std::vector<LineKind> kinds(lines.size(), LineKind::Text);
    const std::vector<TablePlace> tables = TablesOf(lines);
    for (const TablePlace& table : tables)
        for (std::size_t i = table.Head; i < table.End; ++i)
            kinds[i] = i < table.Rows ? LineKind::TableHead : i < table.Sums ? LineKind::TableRow : LineKind::TableSums;
    std::vector<DisplayLine> display;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::vector<Word> words = WordsOfLine(lines[i]);
        display.push_back(rightToLeft ? PlaceRightToLeft(words, kinds[i]) : PlaceLeftToRight(words));
        const int blanks = Characters(lines[i]) - (words.empty() ? 0 : words.back().End());
        const auto& pieces = display.back().Pieces;
        display.back().Blanks = blanks;
        display.back().Cells = (pieces.empty() ? 0 : pieces.back().Column + pieces.back().Cells) + blanks;
    }
    if (rightToLeft)
        for (const TablePlace& table : tables) AlignNumbers(display, table);
    return display;
}

std::string TextOf(const DisplayLine& line) {
    constexpr std::string_view kOpen = "\u2066", kClose = "\u2069";
    std::string text;
    int column = 0;
    const auto blanksTo = [&](int end) {
        text.append(static_cast<std::size_t>(std::max(0, end - column)), ' ');
        column = std::max(column, end);
    };
    for (const DisplayPiece& piece : line.Pieces) {
        blanksTo(piece.Column);
        if (piece.RightToLeft)
            text.append(piece.Text);
        else
            text.append(kOpen).append(piece.Text).append(kClose);
        column += piece.Cells;
    }
    blanksTo(line.Cells);
    return text;
}

std::vector<std::string> DisplayTexts(const std::vector<std::string>& lines, bool rightToLeft) {
    if (!rightToLeft) return lines;
    std::vector<std::string> texts;
    for (const DisplayLine& line : DisplayLines(lines, true)) texts.push_back(TextOf(line));
    return texts;
}

}  // namespace lithmark
