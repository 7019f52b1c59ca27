#include "core/FieldNames.h"

#include <algorithm>
#include <cctype>

#include "core/FieldMeanings.h"
#include "core/SessionFields.h"

namespace lithmark {

namespace {

char Lower(char c) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

// Levenshtein's distance in half letters: 2 for a letter put in, left out or changed, 1 for its case alone.
std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = 2 * j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = 2 * i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = a[i - 1] == b[j - 1] ? 0 : Lower(a[i - 1]) == Lower(b[j - 1]) ? 1 : 2;
            const std::size_t above = row[j];
            row[j] = std::min({diagonal + change, above + 2, row[j - 1] + 2});
            diagonal = above;
        }
    }
    return row.back();
}

// Without leading zeros, so that an element has one name.
std::string_view PlainIndex(std::string_view digits) {
    while (digits.size() > 1 && digits.front() == '0') digits.remove_prefix(1);
    return digits;
}

}  // namespace

std::optional<std::string> FieldNameOf(int problemType, std::string_view word) {
    const auto open = word.find_first_of("([");
    const bool element = open != std::string_view::npos && (word.back() == ')' || word.back() == ']');
    const std::string_view name = element ? word.substr(0, open) : word;
    if (FindSessionField(name)) {
        if (!element) return std::string(name);
        return std::string(name) + "(" + std::string(PlainIndex(word.substr(open + 1, word.size() - open - 2))) + ")";
    }
    if (word.empty()) return std::nullopt;
    const auto rows = MeaningsOf(problemType);
    const auto found = std::ranges::find(rows, word, &FieldMeaning::Symbol);
    if (found == rows.end()) return std::nullopt;
    return std::string(found->Name);
}

std::string_view SymbolOfField(int problemType, std::string_view name) {
    const FieldMeaning* meaning = FindMeaning(problemType, name);
    return meaning ? meaning->Symbol : std::string_view();
}

std::vector<std::string_view> FieldWords(int problemType) {
    std::vector<std::string_view> words;
    for (const SessionField& field : SessionFields()) words.push_back(field.Name);
    for (const FieldMeaning& meaning : MeaningsOf(problemType))
        if (!meaning.Symbol.empty()) words.push_back(meaning.Symbol);
    return words;
}

std::vector<std::string_view> NearestFirst(std::string_view word, std::vector<std::string_view> known) {
    std::ranges::stable_sort(known, {}, [&](std::string_view candidate) { return Distance(word, candidate); });
    return known;
}

std::string_view NearestWord(std::string_view word, const std::vector<std::string_view>& known) {
    const auto nearest =
        std::ranges::min_element(known, {}, [&](std::string_view candidate) { return Distance(word, candidate); });
    return nearest == known.end() ? std::string_view() : *nearest;
}

}  // namespace lithmark
