// The words by which a user names a field: its own name, or the symbol that the reports of a problem print for it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lithmark {

// The name that a word stands for in a problem, an element as "hLayer(2)": a field's name goes before a symbol. Nothing
// when it is neither.
std::optional<std::string> FieldNameOf(int problemType, std::string_view word);

// The symbol that a problem's report prints for a field or an element ("hLayer(1)"); empty where it prints none.
std::string_view SymbolOfField(int problemType, std::string_view name);

// All names of fields, then the symbols of a problem.
std::vector<std::string_view> FieldWords(int problemType);

// The known word that takes the fewest letters to change into; the first of several. Letter case counts half.
std::string_view NearestWord(std::string_view word, const std::vector<std::string_view>& known);
// The known words, those first that take the fewest letters; of equals in their order.
std::vector<std::string_view> NearestFirst(std::string_view word, std::vector<std::string_view> known);

}  // namespace lithmark
