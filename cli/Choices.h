// Values of options that are one of several words or a number in a range, and what is said of others.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>
#include <vector>

namespace lithmark {

// The value is one of the words, and the help shows them.
void OneOf(CLI::Option& option, const std::vector<std::string>& words);
// The value is a whole number of the range.
void WholeNumber(CLI::Option& option, std::uint64_t least, std::uint64_t most);

// The line for a word that is no command, with the nearest one.
std::string UnknownCommandText(const CLI::App& app, const std::string& word);
// The line for a command line that could not be understood, from what the parser found and what it left over.
std::string TroubleText(const CLI::App& app, const CLI::ParseError& error);

}  // namespace lithmark
