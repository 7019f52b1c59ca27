// Reports have lines of 60 characters: the labels, titles and table heads that go into them are measured here.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "base/Utf8.h"
#include "support/Languages.h"
#include "support/Matchers.h"
#include "texts/LanguageTable.h"

namespace lithmark::tests {
namespace {

constexpr std::size_t kLine = 60;
constexpr std::size_t kLongestLabel = 38;

std::string Plain(int number, Language language) {
    return ReplaceAll(TextIn(*FindLanguageRow(number), language), "&", "");
}

// "|1" becomes one letter, the name of an axis.
std::size_t LabelLength(int number, Language language) {
    return CharacterCount(ReplaceAll(ReplaceAll(Plain(number, language), "|1", "x"), "|2", "y"));
}

TEST(ReportWidthTest, LabelsLeaveRoomForSymbolUnitAndValue) {
    const int labels[] = {101,    10175,  10242,  10243,  10244,  40052,  40081,  80008,  80009,  80010,
                          80011,  80012,  80013,  80014,  80015,  80016,  80017,  90001,  90004,  90029,
                          90152,  90153,  120001, 140095, 140096, 140162, 140178, 140179, 140180, 140181,
                          140182, 140186, 140187, 300002, 300004, 300007, 300008, 300010, 300011, 300012,
                          300013, 300023, 300024, 300025, 300026, 300035, 300055, 300057, 300059, 300060,
                          300061, 300062, 300076, 400001, 400120, 400124, 400126, 400127, 400128, 400186};
    // German field names of the time-settlement dialogs, which the report shares; its block is wider than the line.
    const std::set<int> longInGerman = {90152, 90153, 300023, 300024, 300026, 300035, 400124};
    std::vector<int> tooLong;
    for (const int number : labels)
        for (const Language language : kLanguages) {
            const bool mayBeLong = language == Language::German && longInGerman.contains(number);
            if ((LabelLength(number, language) > kLongestLabel) != mayBeLong) tooLong.push_back(number);
        }
    EXPECT_THAT(tooLong, IsEmpty());
}

TEST(ReportWidthTest, TitlesFitTheLine) {
    const int titles[] = {140187, 140189, 140190, 300033, 300047, 300048, 400171, 400172,
                          400173, 400174, 400175, 400176, 400177, 400178, 400179, 400180,
                          400181, 400182, 300014, 300052, 300054, 300089, 400125, 160030};
    const std::set<int> longInGerman = {300047, 300048};
    std::vector<int> tooLong;
    for (const int number : titles)
        for (const Language language : kLanguages) {
            const bool mayBeLong = language == Language::German && longInGerman.contains(number);
            if ((LabelLength(number, language) > kLine) != mayBeLong) tooLong.push_back(number);
        }
    EXPECT_THAT(tooLong, IsEmpty());
    for (const Language language : kLanguages) {
        const auto joined = [&](std::initializer_list<int> numbers) {
            std::size_t length = numbers.size() - 1;
            for (const int number : numbers) length += LabelLength(number, language);
            return length;
        };
        EXPECT_LE(joined({300034, 300058}), kLine);
        EXPECT_LE(joined({300081, 300082}), kLine);
        EXPECT_LE(joined({300081, 300083}), kLine);
        EXPECT_LE(joined({300084, 300085}), kLine);
        EXPECT_LE(joined({300084, 300086}), kLine);
        // The measuring time, of two digits at most, stands between the two texts. 43 characters leave room for a gap
        // of one, "Sm", "[cm]", " = " and a value such as "123.45".
        EXPECT_LE(joined({300063, 300064}) + 3, 43u);
        EXPECT_LE(joined({300065, 300066}) + 3, 43u);
    }
}

struct Column {
    int Title = 0;  // 0: the remark column, titled by a blank
    std::string Symbol;
    std::string Unit;
};

std::string ColumnTitle(int number, Language language) {
    const LanguageRow* title = FindColumnTitle(number);
    return title != nullptr ? TextIn(*title, language) : Plain(number, language);
}

std::size_t ColumnWidth(const Column& column, Language language) {
    if (column.Title == 0) return 1;
    std::size_t width = std::max(CharacterCount(column.Symbol), CharacterCount(column.Unit));
    for (const std::string& piece : Split(ColumnTitle(column.Title, language), '\n'))
        width = std::max(width, CharacterCount(piece));
    return width;
}

// Every column but the first is widened by the gap: what is left of the line, shared out and rounded, 1 to 6.
std::size_t TableWidth(const std::vector<Column>& columns, Language language) {
    std::size_t sum = 0;
    for (const Column& column : columns) sum += ColumnWidth(column, language);
    const auto others = static_cast<double>(columns.size() - 1);
    const double gap =
        std::clamp(std::nearbyint((static_cast<double>(kLine) - static_cast<double>(sum)) / others), 1.0, 6.0);
    return sum + static_cast<std::size_t>(gap * others);
}

TEST(ReportWidthTest, TablesFitTheLineInEveryLanguageAndTimeUnit) {
    const std::string stress = "[kN/m²]";
    for (const Language language : kLanguages) {
        for (const int unit : {10001, 10002, 10003, 10004}) {
            const Column time{10247, "t", Plain(unit, language)};
            EXPECT_LE(TableWidth({time, {40087, "El", "[%]"}, {40087, "Ex", "[kN]"}, {}}, language), kLine);
            EXPECT_LE(
                TableWidth({time, {40081, "Stm", "[%]"}, {40081, "Sts", "[%]"}, {40081, "Setn", "[cm]"}, {}}, language),
                kLine);
            EXPECT_LE(TableWidth({time,
                                  {300068, "Uu", "[-]"},
                                  {400126, "Tv", "[-]"},
                                  {300069, "Uc", "[%]"},
                                  {40081, "Setn", "[cm]"},
                                  {}},
                                 language),
                      kLine)
                << unit;
            EXPECT_LE(
                TableWidth({time, {300053, "EL", "[%]"}, {40087, "Ex", "[kN]"}, {40081, "Zse", "[cm]"}, {}}, language),
                kLine);
        }
        const Column number{13, Plain(90000, language), "[-]"};
        EXPECT_LE(TableWidth({number, {300018, "z", "[m]"}, {300016, "u0", stress}, {300017, "uf", stress}}, language),
                  kLine);
        for (const int settlement : {90046, 40081}) {
            EXPECT_LE(TableWidth({number,
                                  {400005, "x", "[m]"},
                                  {90098, "q", stress},
                                  {400122, "f", "[kN]"},
                                  {settlement, "s", "[cm]"}},
                                 language),
                      kLine);
            EXPECT_LE(TableWidth({number,
                                  {400005, "x", "[m]"},
                                  {400005, "y", "[m]"},
                                  {90098, "q", stress},
                                  {settlement, "s_NL", "[cm]"}},
                                 language),
                      kLine);
        }
    }
}

// The first column gets no gap, so its title alone must hold four-digit row numbers.
TEST(ReportWidthTest, RowNumbersOfFourDigitsFitTheirColumn) {
    for (const Language language : kLanguages)
        EXPECT_GE(ColumnWidth({13, Plain(90000, language), "[-]"}, language), 4u);
}

}  // namespace
}  // namespace lithmark::tests
