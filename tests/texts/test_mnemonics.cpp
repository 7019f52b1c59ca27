// The mnemonic marks "&" of buttons and menu entries.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "base/Utf8.h"
#include "support/Languages.h"
#include "support/Matchers.h"
#include "texts/LanguageTable.h"

namespace lithmark::tests {
namespace {

std::size_t Marks(std::string_view text) {
    std::size_t count = 0;
    for (const char c : text) count += c == '&' ? 1 : 0;
    return count;
}

// The marked letter in lower case; nothing where a text has no mark or nothing to mark behind it.
std::string MarkedLetter(std::string_view text) {
    const std::size_t mark = text.find('&');
    if (mark == std::string_view::npos) return {};
    return LowerAscii(Trim(FirstCharacters(text.substr(mark + 1), 1)));
}

// Arabic letters are not typed with Alt, and a mark would tear a word.
TEST(MnemonicTest, AMarkStandsBeforeALetterInGermanAndEnglishAndNeverInArabic) {
    std::vector<int> failing;
    for (const LanguageRow& row : LanguageTable())
        for (const Language language : kLanguages) {
            const std::string_view text = TextIn(row, language);
            const std::size_t wanted = language == Language::Arabic ? 0 : Marks(row.English);
            const bool good =
                Marks(text) == wanted && Marks(text) <= 1 && (Marks(text) == 0 || !MarkedLetter(text).empty());
            if (!good) failing.push_back(row.Number);
        }
    EXPECT_THAT(failing, IsEmpty());
}

// What stands together in a window or menu must be told apart by its letters.
TEST(MnemonicTest, LettersDifferWithinAWindowOrMenu) {
    const std::map<std::string, std::vector<int>> groups = {
        {"menu bar", {107, 116, 400010, 10341, 8}},
        {"file menu", {10340, 124, 10339, 70025, 913520, 913400, 110}},
        {"view menu", {79, 115, 69, 913401}},
        {"settings menu", {140116, 140161, 92, 83, 17, 913405}},
        {"colours menu", {913402, 913403, 913404}},
        {"comparison", {9, 6}},
        {"number formats", {913477, 111, 7, 8}},
        {"help menu", {80, 82, 81, 114}},
        {"project dialog", {111, 9, 10016, 7, 8}},
        {"problem dialog", {140096, 6, 8, 111, 9, 10016, 913250, 913251}},
        {"time-settlement, curve points", {140096, 6, 8, 111, 9, 10016, 400125, 300044, 913250}},
        {"time-settlement, oedometer", {140096, 6, 8, 111, 9, 10016, 400125, 300036, 913250}},
        {"study", {913225, 913233, 7, 913259, 913247}},
        {"points", {906536, 906537, 7, 913259, 913247}},
        {"result viewer", {9, 10, 70033, 40086, 90096, 70034, 400198, 6, 8, 907261, 907262}},
        {"contour window", {400079, 400080, 26, 6, 8}},
        {"choice", {6, 7, 8}},
        {"settings dialog", {111, 7, 8}}};
    for (const auto& [name, numbers] : groups)
        for (const Language language : {Language::German, Language::English}) {
            std::map<std::string, int> seen;
            for (const int number : numbers) {
                const LanguageRow* row = FindLanguageRow(number);
                ASSERT_NE(row, nullptr) << number;
                const std::string letter = MarkedLetter(TextIn(*row, language));
                EXPECT_FALSE(letter.empty()) << name << ", text " << number;
                const auto [place, isNew] = seen.emplace(letter, number);
                EXPECT_TRUE(isNew) << name << ": " << number << " and " << place->second << " share " << letter;
            }
        }
}

}  // namespace
}  // namespace lithmark::tests
