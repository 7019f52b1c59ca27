// The fields of Session as a whole: filled so that no two hold the same, and compared by name.
#pragma once

#include <functional>
#include <map>
#include <string>

namespace lithmark::tests {

// Gives every field of SessionFields (but ProblemType) a value of its own. Values of different `variant`s differ in
// every field; flags alternate. Table counts fit their arrays.
void FillFields(int variant);

using FieldTexts = std::map<std::string, std::string, std::less<>>;

// All fields of SessionFields as texts, by name.
FieldTexts TakeFields();

}  // namespace lithmark::tests
