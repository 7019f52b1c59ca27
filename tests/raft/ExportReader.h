// Reads the files of a raft export from their bytes alone, with nothing of the program's own file code.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <variant>
#include <vector>

namespace lithmark::tests {

// The lines of a text file. Every line, the last one too, must end in CR LF, and no other line end may occur.
inline std::vector<std::string> ExportLines(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    while (at < bytes.size()) {
        const std::size_t end = bytes.find("\r\n", at);
        if (end == std::string::npos) {
            ADD_FAILURE() << "a line without its end: " << bytes.substr(at);
            break;
        }
        lines.push_back(bytes.substr(at, end - at));
        EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos);
        at = end + 2;
    }
    return lines;
}

// Takes the lines of a file one by one.
class LineReader {
  public:
    explicit LineReader(const std::string& bytes) : lines_(ExportLines(bytes)) {}
    ~LineReader() { EXPECT_EQ(next_, lines_.size()) << "lines left over"; }
    std::string Text() {
        if (next_ >= lines_.size()) {
            ADD_FAILURE() << "the file ends early";
            return {};
        }
        return lines_[next_++];
    }
    // A bare whole number, and nothing else on the line.
    int Whole() {
        const std::string text = Text();
        EXPECT_EQ(text.find_first_not_of("-0123456789"), std::string::npos) << text;
        return text.empty() ? 0 : std::stoi(text);
    }
    // A bare number as the nearest 32-bit one.
    float Number() {
        const std::string text = Text();
        std::size_t used = 0;
        const float value = text.empty() ? 0 : std::stof(text, &used);
        EXPECT_EQ(used, text.size()) << text;
        return value;
    }

  private:
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
};

// A value of a record file. int16_t and float stand for themselves.
using RecordValue = std::variant<std::int16_t, float, std::string>;
constexpr std::size_t kRecordBytes = 128;

inline std::string RecordBytes(const RecordValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        const auto length = static_cast<std::uint16_t>(text->size());
        return std::string{static_cast<char>(length & 0xFF), static_cast<char>(length >> 8)} + *text;
    }
    std::uint32_t bits = 0;
    std::size_t count = 2;
    if (const auto* whole = std::get_if<std::int16_t>(&value)) {
        bits = static_cast<std::uint16_t>(*whole);
    } else {
        std::memcpy(&bits, &std::get<float>(value), 4);
        count = 4;
    }
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) bytes += static_cast<char>(bits >> (8 * i) & 0xFF);
    return bytes;
}

// True when the file holds exactly these values: record k at (k - 1) * 128, zeros behind a value, the last record as
// long as its value.
inline testing::AssertionResult HoldsRecords(const std::string& bytes, const std::vector<RecordValue>& values) {
    std::string expected;
    for (std::size_t k = 0; k < values.size(); ++k) {
        expected.resize(k * kRecordBytes, '\0');
        expected += RecordBytes(values[k]);
    }
    for (std::size_t k = 0; k < values.size(); ++k) {
        const std::string record = RecordBytes(values[k]);
        if (bytes.size() < k * kRecordBytes + record.size())
            return testing::AssertionFailure() << "the file ends before record " << k + 1;
        if (bytes.compare(k * kRecordBytes, record.size(), record) != 0)
            return testing::AssertionFailure() << "record " << k + 1 << " holds something else";
    }
    if (bytes.size() != expected.size())
        return testing::AssertionFailure() << bytes.size() << " bytes instead of " << expected.size();
    if (bytes != expected) return testing::AssertionFailure() << "something stands between the records";
    return testing::AssertionSuccess();
}

}  // namespace lithmark::tests
