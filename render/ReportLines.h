// The lines of a report and what they are: headings, tables with their heads, and the pages they fill.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lithmark {

// The report's lines without their line ends.
std::vector<std::string> ReportLinesOf(const std::string& report);

// A line of "-" only, more than ten of them: of a table, or under the report's head. Section titles have ten.
bool IsRuler(const std::string& line);

// Where a table stands: indices of lines.
struct TablePlace {
    std::size_t First;  // the title of its section if it has one, else its own
    std::size_t Head;   // the first ruler
    std::size_t Rows;   // behind the second ruler
    std::size_t Sums;   // behind the third one
    std::size_t End;    // behind the sums and their ruler, if there are any
};
std::vector<TablePlace> TablesOf(const std::vector<std::string>& lines);

struct HeadingPlace {
    std::size_t Line;
    int Level;  // 0 for the report, the notices and the tables behind it, 1 for what stands in them
    std::string Text;
};
std::vector<HeadingPlace> HeadingsOf(const std::vector<std::string>& lines);

// A page of at most so many lines: first the head of a table that goes on, if there is one, then lines from First to
// End.
struct PageOfLines {
    std::size_t First, End;
    std::size_t HeadFirst = 0, HeadEnd = 0;
    std::size_t Count() const { return HeadEnd - HeadFirst + End - First; }
};
// The head of a table is not torn from its first rows, nor a heading from what stands under it, nor the end of a table
// from its last rows. Where a table goes on, its head stands again.
std::vector<PageOfLines> PagesOf(const std::vector<std::string>& lines, std::size_t linesPerPage);

}  // namespace lithmark
