// Symbols in print: what reports write "Sigma_z", "Cc" or "Gamma*z" stands in windows as an italic letter with its
// index lowered.
#pragma once

#include <QString>
#include <string>

namespace lithmark {

struct PrintSymbol {
    QString Letter, Index;  // without an index it is empty
};

PrintSymbol SymbolInPrint(const std::string& plain);
// As rich text for a label.
QString SymbolMarkup(const std::string& plain);
// Where no markup can stand: "ν_s".
QString SymbolWords(const std::string& plain);
// As it is spoken in the language in force: "nu s".
QString SpokenSymbol(const std::string& plain);

}  // namespace lithmark
