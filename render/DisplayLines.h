// A report's lines as they are shown: pieces that are drawn as one, each at its column of the fixed pitch.
//
// From right to left, columns count from the right, numbers, symbols and units read from left to right, and the numbers
// of a table's column have their decimal signs under each other. A pair lam-alef takes one column and a mark over a
// letter none, whatever the report's composition counted.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lithmark {

struct DisplayPiece {
    int Column;  // counted from where the line begins
    int Cells;   // that it takes
    std::string Text;
    bool RightToLeft;
};

struct DisplayLine {
    std::vector<DisplayPiece> Pieces;
    int Blanks = 0;  // at its end
    int Cells = 0;   // with them
};

std::vector<DisplayLine> DisplayLines(const std::vector<std::string>& lines, bool rightToLeft);

// One line as a text from right to left: pieces that read from left to right stand between U+2066 and U+2069.
std::string TextOf(const DisplayLine& line);
// The same for all lines of a report.
std::vector<std::string> DisplayTexts(const std::vector<std::string>& lines, bool rightToLeft);

bool HasArabic(std::string_view text);
// The columns that a text takes in a fixed pitch.
int CellsOf(std::string_view text);

}  // namespace lithmark
