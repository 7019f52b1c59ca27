#include "files/UnknownField.h"

#include "base/Utf8.h"
#include "core/FieldNames.h"
#include "core/Session.h"
#include "files/ProblemData.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

std::string UnknownFieldText(const std::string& word) {
    const int problem = Session.ProblemType;
    std::string list;
    for (const std::string_view name : NearestFirst(word, ProblemFieldNames(problem))) {
        if (!list.empty()) list += ", ";
        list += name;
        const std::string_view symbol = SymbolOfField(problem, name);
        if (!symbol.empty() && symbol != name) list += " (" + std::string(symbol) + ")";
    }
    return Text(911205_text,
                {{"|1", Excerpt(word)}, {"|2", std::string(NearestWord(word, FieldWords(problem)))}, {"|3", list}});
}

}  // namespace lithmark
