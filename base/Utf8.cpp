#include "base/Utf8.h"

namespace lithmark {

namespace {

// Decodes the character at `position` and moves behind it. A stray or overlong sequence gives U+FFFD and one byte.
char32_t Decode(std::string_view text, std::size_t& position, bool& valid) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(position);
    const std::size_t length = first < 0x80         ? 1
                               : first >> 5 == 0x6  ? 2
                               : first >> 4 == 0xE  ? 3
                               : first >> 3 == 0x1E ? 4
                                                    : 0;
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (length == 1) {
        ++position;
        return first;
    }
    if (length != 0 && position + length <= text.size()) {
        char32_t codePoint = first & (0xFF >> (length + 1));
        bool whole = true;
        for (std::size_t i = 1; i < length; ++i) {
            if (byte(position + i) >> 6 != 2) whole = false;
            codePoint = codePoint << 6 | (byte(position + i) & 0x3F);
        }
        const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
        if (whole && codePoint >= kSmallest[length] && codePoint <= 0x10FFFF && !surrogate) {
            position += length;
            return codePoint;
        }
    }
    valid = false;
    ++position;
    return 0xFFFD;
}

constexpr char32_t kReplacement = 0xFFFD;

// Unicode sets the last two code points of every plane and 32 more apart as no characters.
bool IsPrintable(char32_t c) {
    if (c == '\t' || c == '\r' || c == '\n') return true;
    const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
    const bool noCharacter = (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF);
    return !control && !noCharacter;
}

// Nearly all of a report: where the letters, digits and signs of ASCII from `position` on end.
std::size_t EndOfPlain(std::string_view text, std::size_t position) {
    while (position < text.size() && text[position] >= ' ' && text[position] <= '~') ++position;
    return position;
}

std::string MapAscii(std::string_view text, char first, char last, int shift) {
    std::string result(text);
    for (char& c : result)
        if (c >= first && c <= last) c = static_cast<char>(c + shift);
    return result;
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    bool valid = true;
    for (std::size_t position = 0;; ++count) {
        const std::size_t end = EndOfPlain(text, position);
        count += end - position;
        position = end;
        if (position == text.size()) return count;
        Decode(text, position, valid);
    }
}

std::string FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t position = 0;
    bool valid = true;
    for (std::size_t i = 0; i < count && position < text.size(); ++i) Decode(text, position, valid);
    return std::string(text.substr(0, position));
}

std::vector<char32_t> CodePoints(std::string_view text) {
    std::vector<char32_t> result;
    bool valid = true;
    for (std::size_t position = 0; position < text.size();) result.push_back(Decode(text, position, valid));
    return result;
}

void AppendCodePoint(std::string& text, char32_t codePoint) {
    const auto put = [&](char32_t bits) { text += static_cast<char>(static_cast<unsigned char>(bits)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | codePoint >> 6);
        put(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        put(0xE0 | codePoint >> 12);
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    } else {
        put(0xF0 | codePoint >> 18);
        put(0x80 | (codePoint >> 12 & 0x3F));
        put(0x80 | (codePoint >> 6 & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    }
}

bool IsUtf8(std::string_view bytes) {
    bool valid = true;
    for (std::size_t position = 0; position < bytes.size() && valid;) Decode(bytes, position, valid);
    return valid;
}

std::string PrintableText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    bool valid = true;
    for (std::size_t position = 0;;) {
        const std::size_t end = EndOfPlain(text, position);
        result.append(text.substr(position, end - position));
        position = end;
        if (position == text.size()) return result;
        const char32_t c = Decode(text, position, valid);
        AppendCodePoint(result, IsPrintable(c) ? c : kReplacement);
    }
}

std::string Excerpt(std::string_view text) {
    constexpr std::size_t kLongest = 40;
    const std::string shown = PrintableText(FirstCharacters(text, kLongest));
    std::string line;
    for (const char c : shown) line += c == '\t' || c == '\r' || c == '\n' ? ' ' : c;
    if (CharacterCount(text) > kLongest) line += "...";
    return line;
}

std::string PathExcerpt(std::string_view path) {
    constexpr std::size_t kBegin = 100, kEnd = 200;
    std::string shown = PrintableText(path);
    const std::vector<char32_t> letters = CodePoints(shown);
    if (letters.size() <= kBegin + kEnd) return shown;
    std::string excerpt = FirstCharacters(shown, kBegin) + "...";
    for (std::size_t i = letters.size() - kEnd; i < letters.size(); ++i) AppendCodePoint(excerpt, letters[i]);
    return excerpt;
}

std::string UpperAscii(std::string_view text) {
    return MapAscii(text, 'a', 'z', 'A' - 'a');
}

std::string LowerAscii(std::string_view text) {
    return MapAscii(text, 'A', 'Z', 'a' - 'A');
}

std::string Trim(std::string_view text) {
    const auto last = text.find_last_not_of(" \t");
    return last == std::string_view::npos ? std::string() : TrimLeft(text.substr(0, last + 1));
}

std::string TrimLeft(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t hit; !from.empty() && (hit = text.find(from, start)) != std::string_view::npos;) {
        result.append(text.substr(start, hit - start)).append(to);
        start = hit + from.size();
    }
    return result.append(text.substr(start));
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    std::size_t start = 0;
    for (std::size_t hit; (hit = text.find(separator, start)) != std::string_view::npos; start = hit + 1)
        pieces.emplace_back(text.substr(start, hit - start));
    pieces.emplace_back(text.substr(start));
    return pieces;
}

}  // namespace lithmark
