// What is said of a word that names no field.
#pragma once

#include <string>

namespace lithmark {

// That the word is no field, the nearest known word, and all fields of the data of Session's problem with their
// symbols, the nearest first.
std::string UnknownFieldText(const std::string& word);

}  // namespace lithmark
