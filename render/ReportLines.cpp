#include "render/ReportLines.h"

#include <algorithm>

#include "base/Utf8.h"

namespace lithmark {

namespace {

constexpr std::size_t kSectionRuler = 10, kMostHeadRows = 8, kMostSums = 4;

bool IsDashes(const std::string& line) {
    return !line.empty() && line.find_first_not_of('-') == std::string::npos;
}

bool EndsInColon(const std::string& line) {
    return !line.empty() && line.back() == ':';
}

// The next ruler behind line i with one to `most` other lines in between, none of them empty; `lines.size()` when there
// is none.
std::size_t NextRuler(const std::vector<std::string>& lines, std::size_t i, std::size_t most) {
    for (std::size_t k = i + 1; k < lines.size() && k <= i + most + 1 && !lines[k].empty(); ++k)
        if (IsRuler(lines[k])) return k > i + 1 ? k : lines.size();
    return lines.size();
}

// A heading over a line of dashes.
bool IsUnderlined(const std::vector<std::string>& lines, std::size_t i) {
    return i + 1 < lines.size() && !lines[i].empty() && !IsDashes(lines[i]) && (i == 0 || lines[i - 1].empty()) &&
           IsDashes(lines[i + 1]) && lines[i + 1].size() < 60;
}

// For each line, how many lines from it on must stay on one page, at least 1.
std::vector<std::size_t> KeepTogether(const std::vector<std::string>& lines) {
    constexpr std::size_t kFirstRows = 2, kLastRows = 2;
    std::vector<std::size_t> keep(lines.size(), 1);
    const auto last = [&](std::size_t i, std::size_t end) {
        keep[i] = std::max(keep[i], std::min(end, lines.size()) - i);
    };
    for (const TablePlace& table : TablesOf(lines)) {
        last(table.First, std::min(table.Rows + kFirstRows, table.Sums));
        last(std::max(table.Rows, table.Sums - std::min(table.Sums, kLastRows + 1)), table.End);
    }
    // From the end on, since a heading takes what follows with what that must keep.
    for (std::size_t i = lines.size(); i-- > 0;) {
        const bool heading = (EndsInColon(lines[i]) && (i == 0 || lines[i - 1].empty())) || IsUnderlined(lines, i);
        if (!heading) continue;
        std::size_t next = i + 1;
        while (next < lines.size() && (lines[next].empty() || IsDashes(lines[next]))) ++next;
        if (next < lines.size()) last(i, next + std::max<std::size_t>(keep[next], 2));
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

bool IsRuler(const std::string& line) {
    return line.size() > kSectionRuler && IsDashes(line);
}

std::vector<TablePlace> TablesOf(const std::vector<std::string>& lines) {
    std::vector<TablePlace> tables;
    for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
        if (!IsRuler(lines[i]) || !EndsInColon(lines[i - 1])) continue;
        const std::size_t second = NextRuler(lines, i, kMostHeadRows);
        if (second == lines.size() || lines[second] != lines[i]) continue;
        const std::size_t third = NextRuler(lines, second, lines.size());
        if (third == lines.size() || lines[third] != lines[i]) continue;
        const std::size_t sums = NextRuler(lines, third, kMostSums);
        const bool summed = sums < lines.size() && lines[sums] == lines[i];
        const bool section = i >= 3 && lines[i - 2].size() == kSectionRuler && IsDashes(lines[i - 2]);
        tables.push_back({section ? i - 3 : i - 1, i, second + 1, third + 1, (summed ? sums : third) + 1});
        i = tables.back().End - 1;
    }
    return tables;
}

std::vector<HeadingPlace> HeadingsOf(const std::vector<std::string>& lines) {
    std::vector<HeadingPlace> headings;
    const auto plain = [](std::string text) {
        if (EndsInColon(text)) text.pop_back();
        return Trim(text);
    };
    const std::vector<TablePlace> tables = TablesOf(lines);
    std::size_t i = 0;
    // What the report is about stands under its head.
    while (i < lines.size() && !IsRuler(lines[i])) ++i;
    while (i < lines.size() && (IsRuler(lines[i]) || lines[i].empty())) ++i;
    if (i < lines.size()) headings.push_back({i, 0, plain(lines[i])});
    auto table = tables.begin();
    for (++i; i < lines.size(); ++i) {
        while (table != tables.end() && table->End <= i) ++table;
        if (table != tables.end() && i == table->First) {
            const std::string title = plain(lines[table->Head - 1]);
            headings.push_back({i, 1, table->First + 1 == table->Head ? title : plain(lines[i]) + ": " + title});
            i = table->End - 1;
        } else if (IsUnderlined(lines, i) ||
                   (EndsInColon(lines[i]) && IsRuler(lines[i - 1]) && i + 1 < lines.size() && IsRuler(lines[i + 1]))) {
            headings.push_back({i, 0, plain(lines[i])});
        } else if (EndsInColon(lines[i]) && lines[i - 1].empty()) {
            headings.push_back({i, 1, plain(lines[i])});
        }
    }
    return headings;
}

std::vector<PageOfLines> PagesOf(const std::vector<std::string>& lines, std::size_t linesPerPage) {
    const std::vector<std::size_t> keep = KeepTogether(lines);
    const std::vector<TablePlace> tables = TablesOf(lines);
    std::vector<PageOfLines> pages = {{0, 0}};
    auto table = tables.begin();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        while (table != tables.end() && table->End <= i) ++table;
        PageOfLines* page = &pages.back();
        const std::size_t used = page->Count();
        if (page->End > page->First && used + std::min(keep[i], linesPerPage) > linesPerPage) {
            pages.push_back({i, i});
            page = &pages.back();
            const bool goesOn = table != tables.end() && i > table->Rows;
            // A page too short for a head has rows alone.
            if (goesOn && 2 * (table->Rows - table->Head) <= linesPerPage) {
                page->HeadFirst = table->Head;
                page->HeadEnd = table->Rows;
            }
        }
        page->End = i + 1;
    }
    return pages;
}

}  // namespace lithmark
