// Text is UTF-8 everywhere inside the program; lengths are counted in characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lithmark {

// Number of characters (code points) of a UTF-8 text; a stray byte counts as one character.
std::size_t CharacterCount(std::string_view text);
// The first `count` characters of a text.
std::string FirstCharacters(std::string_view text, std::size_t count);
// The code points of a text; a stray byte gives U+FFFD.
std::vector<char32_t> CodePoints(std::string_view text);
// Appends one code point as UTF-8.
void AppendCodePoint(std::string& text, char32_t codePoint);
// True when the bytes are valid UTF-8.
bool IsUtf8(std::string_view bytes);

// The text as documents, windows and terminals can hold it: control characters other than tabs and line ends, stray
// bytes, and code points that stand for no character become U+FFFD.
std::string PrintableText(std::string_view text);
// A piece of a text for a message: short, printable, on one line.
std::string Excerpt(std::string_view text);
// A path for a message: whole, and of an endless one the begin and the end, which has the name.
std::string PathExcerpt(std::string_view path);

// Upper and lower case of the ASCII letters only (file name extensions, keywords).
std::string UpperAscii(std::string_view text);
std::string LowerAscii(std::string_view text);
// The text without blanks and tabs at both ends, and without them in front.
std::string Trim(std::string_view text);
std::string TrimLeft(std::string_view text);
// Every occurrence of `from` replaced by `to`.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);
// The pieces between the separators; a text without one gives itself.
std::vector<std::string> Split(std::string_view text, char separator);

}  // namespace lithmark
