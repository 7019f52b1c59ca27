#include "render/drawings/Symbols.h"

#include <utility>

#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

// Longer names before those that they begin with.
const std::pair<const char*, const char*> kGreek[] = {
    {"Varepsilon", "ε"}, {"Epsilon", "ε"}, {"Alpha", "α"}, {"Gamma", "γ"}, {"Sigma", "σ"}, {"Tau", "τ"}, {"Nue", "ν"},
};
// What a report writes ahead of a symbol stands in its index.
const char* const kAhead[] = {"max_", "min_", "max ", "min "};

// How a Greek letter is spoken.
struct SpokenLetter {
    const char* InPrint;
    TextId As;
};
constexpr SpokenLetter kSpoken[] = {{"ε", 913510_text}, {"γ", 913511_text}, {"σ", 913512_text},
                                    {"τ", 913513_text}, {"ν", 913514_text}, {"α", 913515_text}};

}  // namespace

PrintSymbol SymbolInPrint(const std::string& plain) {
    for (const char* const ahead : kAhead)
        if (plain.starts_with(ahead)) {
            PrintSymbol symbol = SymbolInPrint(plain.substr(std::string(ahead).size()));
            symbol.Index += Q(std::string(ahead, std::string(ahead).size() - 1));
            return symbol;
        }
    QString letter, rest = Q(plain);
    for (const auto& [name, greek] : kGreek)
        if (rest.startsWith(QLatin1String(name))) {
            letter = QString::fromUtf8(greek);
            rest = rest.mid(static_cast<int>(std::string(name).size()));
            break;
        }
    if (letter.isEmpty()) {
        letter = rest.left(1);
        rest = rest.mid(1);
    }
    // A product stands on one line.
    if (rest.startsWith(QLatin1Char('*'))) return {letter + QString::fromUtf8("·") + rest.mid(1), {}};
    if (rest.startsWith(QLatin1Char('_'))) rest = rest.mid(1);
    // The initial state has the index 0.
    if (rest == QLatin1String("o")) rest = QStringLiteral("0");
    return {letter, rest};
}

QString SymbolMarkup(const std::string& plain) {
    const auto [letter, index] = SymbolInPrint(plain);
    QString markup = QStringLiteral("<i>") + letter.toHtmlEscaped() + QStringLiteral("</i>");
    if (!index.isEmpty())
        markup +=
            QStringLiteral("<sub style=\"font-style:normal\">") + index.toHtmlEscaped() + QStringLiteral("</sub>");
    return markup;
}

QString SymbolWords(const std::string& plain) {
    const auto [letter, index] = SymbolInPrint(plain);
    return index.isEmpty() ? letter : letter + QLatin1Char('_') + index;
}

QString SpokenSymbol(const std::string& plain) {
    auto [words, index] = SymbolInPrint(plain);
    for (const SpokenLetter& letter : kSpoken) words.replace(QString::fromUtf8(letter.InPrint), Q(Text(letter.As)));
    words.replace(QString::fromUtf8("·"), QStringLiteral(" "));
    return index.isEmpty() ? words : words + QLatin1Char(' ') + index;
}

}  // namespace lithmark
