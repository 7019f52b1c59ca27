// The numbers that the code uses and the numbers of the table must be the same.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "support/Matchers.h"
#include "support/Places.h"
#include "texts/LanguageTable.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFloors[] = {"base",    "texts", "services", "core",   "files",   "report", "kernels",
                                   "contour", "ui",    "study",    "render", "desktop", "cli"};

struct Line {
    std::string File;  // relative to the source folder
    int Number = 0;
    std::string Text;
};

std::vector<Line> ReadSources() {
    std::vector<Line> lines;
    const fs::path root = tests::SourceDir();
    for (const char* floor : kFloors) {
        if (!fs::exists(root / floor)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / floor)) {
            const auto extension = entry.path().extension();
            if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp")) continue;
            std::ifstream file(entry.path());
            Line line{fs::relative(entry.path(), root).generic_string(), 0, {}};
            while (std::getline(file, line.Text)) {
                ++line.Number;
                lines.push_back(line);
            }
        }
    }
    return lines;
}

const std::vector<Line>& SourceLines() {
    static const std::vector<Line> kLines = ReadSources();
    return kLines;
}

std::string Place(const Line& line) {
    return line.File + ":" + std::to_string(line.Number) + ": " + line.Text;
}

// The text numbers of a line: "140096_text" gives 140096.
std::vector<int> NumbersIn(const std::string& text) {
    static const std::regex kLiteral(R"(\b([0-9][0-9']*)_text\b)");
    std::vector<int> numbers;
    if (text.find("_text") == std::string::npos)
        return numbers;  // for speed: the pattern is slow, and few lines have one
    for (std::sregex_iterator match(text.begin(), text.end(), kLiteral), end; match != end; ++match) {
        std::string digits = (*match)[1];
        digits.erase(std::remove(digits.begin(), digits.end(), '\''), digits.end());
        numbers.push_back(std::stoi(digits));
    }
    return numbers;
}

bool MakesATextIdByHand(const std::string& text) {
    static const std::regex kByHand(R"(\bTextId\s*(\w+\s*)?[{(]\s*[0-9])");
    return text.find("TextId") != std::string::npos && std::regex_search(text, kByHand);
}

TEST(TextNumbersInCodeTest, TheReaderOfTheSourcesFindsTheLiterals) {
    EXPECT_EQ(NumbersIn("Text(140096_text) + Text(6_text, Style{1})"), (std::vector<int>{140096, 6}));
    EXPECT_EQ(NumbersIn("300'003_text"), std::vector<int>{300003});
    EXPECT_THAT(NumbersIn("context_text 12_texts"), IsEmpty());
    EXPECT_TRUE(MakesATextIdByHand("return TextId{140096};"));
    EXPECT_TRUE(MakesATextIdByHand("TextId id{ 6 };"));
    EXPECT_FALSE(MakesATextIdByHand("TextId id{}; TextId other = 6_text; Text(TextId id, int n);"));
    EXPECT_GT(SourceLines().size(), 500u);
}

TEST(TextNumbersInCodeTest, EveryNumberInTheCodeHasARow) {
    std::vector<std::string> missing;
    for (const Line& line : SourceLines())
        for (const int number : NumbersIn(line.Text))
            if (FindLanguageRow(number) == nullptr) missing.push_back(Place(line));
    EXPECT_THAT(missing, IsEmpty());
}

// Only the literal can be found by a search, so no other form may make a number.
TEST(TextNumbersInCodeTest, NumbersAreWrittenAsLiterals) {
    std::vector<std::string> byHand;
    for (const Line& line : SourceLines())
        if (!line.File.starts_with("base/") && MakesATextIdByHand(line.Text)) byHand.push_back(Place(line));
    EXPECT_THAT(byHand, IsEmpty());
}

TEST(TextNumbersInCodeTest, EveryRowIsUsedInTheCode) {
    std::set<int> used;
    for (const Line& line : SourceLines()) {
        // The service's own lists of special texts use none of them.
        if (line.File == "services/texts/LanguageTexts.cpp") continue;
        for (const int number : NumbersIn(line.Text.substr(0, line.Text.find("//")))) used.insert(number);
    }
    std::set<int> unused;
    for (const LanguageRow& row : LanguageTable())
        if (!used.contains(row.Number)) unused.insert(row.Number);
    EXPECT_THAT(unused, IsEmpty());
}

}  // namespace
}  // namespace lithmark::tests
