#include "support/Golden.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <sstream>
#include <vector>

#include "support/Places.h"

namespace lithmark::tests {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kContext = 2;
constexpr std::size_t kMostTableCells = 4'000'000;

std::optional<std::string> ReadAll(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteAll(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

// The golden form of a text: LF line ends, lone CR visible.
std::string GoldenForm(const std::string& text) {
    return Replaced(Replaced(text, "\r\n", "\n"), "\r", "\\r");
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    if (!text.empty() && text.back() != '\n') lines.back() += "\\no line end";
    return lines;
}

struct Edit {
    char Sign;  // ' ', '-' or '+'
    std::string Line;
    std::size_t Number;  // in the expected text
};

// The shortest edit of the middle parts by the longest common subsequence; texts too long for it replace each other.
void EditMiddle(const std::vector<std::string>& a, const std::vector<std::string>& b, std::size_t first,
                std::vector<Edit>& edits) {
    const std::size_t n = a.size(), m = b.size();
    std::size_t i = 0, j = 0;
    if ((n + 1) * (m + 1) <= kMostTableCells) {
        std::vector<std::vector<int>> common(n + 1, std::vector<int>(m + 1, 0));
        for (std::size_t r = n; r-- > 0;)
            for (std::size_t c = m; c-- > 0;)
                common[r][c] = a[r] == b[c] ? common[r + 1][c + 1] + 1 : std::max(common[r + 1][c], common[r][c + 1]);
        while (i < n && j < m) {
            if (a[i] == b[j]) {
                edits.push_back({' ', a[i], first + i});
                ++i, ++j;
            } else if (common[i + 1][j] >= common[i][j + 1]) {
                edits.push_back({'-', a[i], first + i});
                ++i;
            } else {
                edits.push_back({'+', b[j], first + i});
                ++j;
            }
        }
    }
    for (; i < n; ++i) edits.push_back({'-', a[i], first + i});
    for (; j < m; ++j) edits.push_back({'+', b[j], first + n});
}

}  // namespace

std::string LineDifference(const std::string& expected, const std::string& actual) {
    const std::vector<std::string> a = Lines(expected), b = Lines(actual);
    if (a == b) return {};
    std::size_t head = 0, tail = 0;
    while (head < a.size() && head < b.size() && a[head] == b[head]) ++head;
    while (tail < a.size() - head && tail < b.size() - head && a[a.size() - 1 - tail] == b[b.size() - 1 - tail]) ++tail;

    std::vector<Edit> edits;
    for (std::size_t i = 0; i < head; ++i) edits.push_back({' ', a[i], i + 1});
    const auto middle = [&](const std::vector<std::string>& lines) {
        return std::vector<std::string>(lines.begin() + static_cast<std::ptrdiff_t>(head),
                                        lines.end() - static_cast<std::ptrdiff_t>(tail));
    };
    EditMiddle(middle(a), middle(b), head + 1, edits);
    for (std::size_t i = a.size() - tail; i < a.size(); ++i) edits.push_back({' ', a[i], i + 1});

    std::string text;
    std::size_t printed = 0;  // edits up to here are printed
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (edits[i].Sign == ' ') continue;
        const std::size_t from = std::max(printed, i < kContext ? 0 : i - kContext);
        const std::size_t to = std::min(edits.size(), i + kContext + 1);
        if (from > printed || text.empty()) text += "line " + std::to_string(edits[from].Number) + ":\n";
        for (std::size_t k = from; k < to; ++k) text += std::string(1, edits[k].Sign) + " " + edits[k].Line + "\n";
        printed = std::max(printed, to);
    }
    return text;
}

testing::AssertionResult MatchesGolden(const std::string& name, const std::string& actual) {
    const fs::path golden = SourceDir() / "tests" / "goldens" / name;
    const std::string came = GoldenForm(actual);
    const std::optional<std::string> expected = ReadAll(golden);
    if (expected == came) return testing::AssertionSuccess();
    const std::string difference = LineDifference(expected.value_or(""), came);

    if (const char* renew = std::getenv("LITHMARK_RENEW_GOLDENS"); renew != nullptr && std::string(renew) == "1") {
        std::cerr << (expected ? "renewed golden " : "new golden ") << name << "\n" << difference << "\n";
        WriteAll(golden, came);
        return testing::AssertionSuccess();
    }
    const fs::path output = TestOutputDir() / name;
    WriteAll(output, came);
    WriteAll(output.string() + ".diff", difference);
    return testing::AssertionFailure() << (expected ? "differs from golden " : "no golden ") << name << " (- expected, "
                                       << "+ actual; both beside " << output.string() << ")\n"
                                       << difference;
}

}  // namespace lithmark::tests
