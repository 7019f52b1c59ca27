// A small table of results: summaries, crossings, influences.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace lithmark {

struct TableCell {
    std::string Text;
    bool Number = false;  // written without quotes where the form knows numbers

    static TableCell OfText(std::string text) { return {std::move(text), false}; }
    // With as many digits as 32 bits give; a value that is no finite number has an empty cell.
    static TableCell OfNumber(double value);
    static TableCell OfCount(std::uint64_t count) { return {std::to_string(count), true}; }
    // A field's value, which stands as text already.
    static TableCell OfValue(std::string text, bool numeric);
    static TableCell Empty() { return {{}, true}; }
};

struct TextTable {
    std::vector<std::string> Columns;
    std::vector<std::vector<TableCell>> Rows;

    std::string Csv() const;
    std::string Json() const;       // a list of objects
    std::string JsonLines() const;  // an object a line
    // The head and the rows as texts.
    std::vector<std::vector<std::string>> Texts() const;

  private:
    std::string Object(const std::vector<TableCell>& row) const;
};

}  // namespace lithmark
