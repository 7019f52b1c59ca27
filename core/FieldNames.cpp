#include "core/FieldNames.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <span>

#include "core/SessionFields.h"

namespace lithmark {

namespace {

struct FieldSymbol {
    std::string_view Symbol, Name;
};

constexpr std::array kPointSymbols = {
    FieldSymbol{"Q", "Q"}, FieldSymbol{"p", "P"},   FieldSymbol{"a", "A"},
    FieldSymbol{"b", "B"}, FieldSymbol{"x", "x"},   FieldSymbol{"y", "y"},
    FieldSymbol{"z", "z"}, FieldSymbol{"Es", "Es"}, FieldSymbol{"Nue_s", "Nue"},
};

constexpr std::array kConsolidationSymbols = {
    FieldSymbol{"Q", "Q"},           FieldSymbol{"p", "P"},        FieldSymbol{"a", "A"},   FieldSymbol{"b", "B"},
    FieldSymbol{"x", "x"},           FieldSymbol{"y", "y"},        FieldSymbol{"z", "z"},   FieldSymbol{"h", "h"},
    FieldSymbol{"Es", "Es"},         FieldSymbol{"Cc", "Cc"},      FieldSymbol{"eo", "eo"}, FieldSymbol{"po", "Po"},
    FieldSymbol{"Gamma_c", "Gamma"}, FieldSymbol{"Gamma*z", "Po"},
};

constexpr std::array kRateSymbols = {
    FieldSymbol{"uo", "U"},         FieldSymbol{"Q", "Q"},
    FieldSymbol{"p", "P"},          FieldSymbol{"a", "A"},
    FieldSymbol{"b", "B"},          FieldSymbol{"x", "x"},
    FieldSymbol{"y", "y"},          FieldSymbol{"z", "z"},
    FieldSymbol{"h1", "hLayer(1)"}, FieldSymbol{"h2", "hLayer(2)"},
    FieldSymbol{"Tc", "T"},         FieldSymbol{"Cv1", "CvLayer(1)"},
    FieldSymbol{"k1", "KLayer(1)"}, FieldSymbol{"Cv2", "CvLayer(2)"},
    FieldSymbol{"k2", "KLayer(2)"},
};

constexpr std::array kTimeSymbols = {
    FieldSymbol{"Pt", "Pt"}, FieldSymbol{"Sc", "Sc"}, FieldSymbol{"Sm", "Sm"},   FieldSymbol{"Hm", "Hm"},
    FieldSymbol{"Hb", "h"},  FieldSymbol{"k", "kf"},  FieldSymbol{"Es", "EsTS"}, FieldSymbol{"Ws", "Ws"},
    FieldSymbol{"qv", "qv"}, FieldSymbol{"qe", "qe"}, FieldSymbol{"Cv", "CvTS"},
};

constexpr std::array kRaftSymbols = {
    FieldSymbol{"Q", "Q"},   FieldSymbol{"e", "Exz_x"}, FieldSymbol{"a", "A"},           FieldSymbol{"b", "B"},
    FieldSymbol{"z", "z"},   FieldSymbol{"h", "h"},     FieldSymbol{"Es", "Es"},         FieldSymbol{"Nue_s", "Nue"},
    FieldSymbol{"Cc", "Cc"}, FieldSymbol{"eo", "eo"},   FieldSymbol{"Gamma_c", "Gamma"}, FieldSymbol{"Gamma*z", "Po"},
};

std::span<const FieldSymbol> SymbolsOf(int problemType) {
    switch (problemType) {
        case 1:
        case 2:
        case 3:
            return kPointSymbols;
        case 4:
            return kConsolidationSymbols;
        case 5:
            return kRateSymbols;
        case 6:
        case 7:
        case 8:
            return kTimeSymbols;
        case 9:
        case 10:
            return kRaftSymbols;
        default:
            return {};
    }
}

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

}  // namespace

std::optional<std::string> FieldNameOf(int problemType, std::string_view word) {
    const auto open = word.find_first_of("([");
    const bool element = open != std::string_view::npos && (word.back() == ')' || word.back() == ']');
    const std::string_view name = element ? word.substr(0, open) : word;
    if (FindSessionField(name)) {
        if (!element) return std::string(name);
        return std::string(name) + "(" + std::string(word.substr(open + 1, word.size() - open - 2)) + ")";
    }
    const auto symbols = SymbolsOf(problemType);
    const auto found = std::ranges::find(symbols, word, &FieldSymbol::Symbol);
    if (found == symbols.end()) return std::nullopt;
    return std::string(found->Name);
}

std::string_view SymbolOfField(int problemType, std::string_view name) {
    const auto symbols = SymbolsOf(problemType);
    const auto found = std::ranges::find(symbols, name, &FieldSymbol::Name);
    return found == symbols.end() ? std::string_view() : found->Symbol;
}

std::vector<std::string_view> FieldWords(int problemType) {
    std::vector<std::string_view> words;
    for (const SessionField& field : SessionFields()) words.push_back(field.Name);
    for (const FieldSymbol& symbol : SymbolsOf(problemType)) words.push_back(symbol.Symbol);
    return words;
}

std::string_view NearestWord(std::string_view word, const std::vector<std::string_view>& known) {
    const auto nearest =
        std::ranges::min_element(known, {}, [&](std::string_view candidate) { return Distance(word, candidate); });
    return nearest == known.end() ? std::string_view() : *nearest;
}

}  // namespace lithmark
