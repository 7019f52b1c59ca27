#include "services/storage/DataFile.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/storage/FileEncoding.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

// Walks through the values of a text.
class TextReader {
  public:
    explicit TextReader(std::string text) : text_(std::move(text)) {}

    long Line() const noexcept { return line_; }

    std::string_view RawLine() {
        NeedMore();
        const std::size_t end = LineEnd();
        const std::string_view line = Piece(end);
        CheckIsText(line);
        position_ = end;
        SkipLineEnd();
        return line;
    }

    // The text up to a comma or the line end, without blanks around it.
    std::string Value() {
        NeedMore();
        const std::size_t end = ValueEnd(position_);
        std::string value = Trim(Piece(end));
        Leave(end);
        return value;
    }

    // The same; a text in double quotes ends at the closing one and may hold commas.
    std::string ListItem() {
        NeedMore();
        const std::size_t lineEnd = LineEnd();
        const std::size_t first = std::min(text_.find_first_not_of(" \t", position_), lineEnd);
        std::string item;
        std::size_t end = ValueEnd(first);
        const std::size_t close = first < lineEnd && text_[first] == '"' ? text_.find('"', first + 1) : lineEnd;
        if (close < lineEnd) {
            item = text_.substr(first + 1, close - first - 1);
            end = ValueEnd(close);
        } else {
            item = Trim(Piece(end));
            if (item.starts_with('"')) item.erase(0, 1);
            if (item.ends_with('"')) item.pop_back();
        }
        CheckIsText(item);
        Leave(end);
        return item;
    }

  private:
    void NeedMore() const {
        if (position_ >= text_.size()) Fail(FailureKind::EndOfFile, {}, line_);
    }
    void CheckIsText(std::string_view piece) const {
        if (piece.find('\0') != std::string_view::npos) Fail(FailureKind::ReadError, Excerpt(piece), line_);
    }
    std::string_view Piece(std::size_t end) const { return std::string_view(text_).substr(position_, end - position_); }
    std::size_t LineEnd() const { return std::min(text_.find_first_of("\r\n", position_), text_.size()); }
    std::size_t ValueEnd(std::size_t from) const { return std::min(text_.find_first_of(",\r\n", from), text_.size()); }
    // Goes behind the comma or the line end at `end`.
    void Leave(std::size_t end) {
        position_ = end;
        if (position_ < text_.size() && text_[position_] == ',')
            ++position_;
        else
            SkipLineEnd();
    }
    void SkipLineEnd() {
        if (position_ >= text_.size()) return;
        position_ += text_.compare(position_, kLineEnd.size(), kLineEnd) == 0 ? kLineEnd.size() : 1;
        ++line_;
    }

    std::string text_;
    std::size_t position_ = 0;
    long line_ = 1;
};

struct NumberedFile {
    std::unique_ptr<TextReader> Reader;
    std::unique_ptr<WrittenFile> Writer;
    std::string Path;
};

std::map<int, NumberedFile>& OpenFiles() {
    static std::map<int, NumberedFile> files;
    return files;
}

// The files that a set holds back, with the paths that they were opened under; nothing when no set stands.
struct HeldFiles {
    std::vector<std::string> Paths;
    std::vector<std::unique_ptr<WrittenFile>> Files;
};
std::optional<HeldFiles>& HeldBack() {
    static std::optional<HeldFiles> files;
    return files;
}

TextReader& ReaderOf(int fileNumber) {
    const auto found = OpenFiles().find(fileNumber);
    if (found == OpenFiles().end() || !found->second.Reader) Fail(FailureKind::ReadError);
    return *found->second.Reader;
}

WrittenFile& WriterOf(int fileNumber) {
    const auto found = OpenFiles().find(fileNumber);
    if (found == OpenFiles().end() || !found->second.Writer) Fail(FailureKind::WriteError);
    return *found->second.Writer;
}

// Reads a value's text, gives it to `convert` and puts text and line into the failure of a text that does not convert.
template <typename Convert>
auto ReadValue(int fileNumber, Convert convert) {
    TextReader& reader = ReaderOf(fileNumber);
    const long line = reader.Line();
    const std::string text = reader.Value();
    try {
        return convert(text);
    } catch (const Failure& failure) {
        Fail(failure.Kind(), Excerpt(text), line);
    }
}

long ToLong(double value) {
    const double whole = RoundHalfEven(value);
    if (whole < INT32_MIN || whole > INT32_MAX) Fail(FailureKind::Overflow);
    return static_cast<long>(whole);
}

void WriteLine(int fileNumber, std::string_view text) {
    WrittenFile& file = WriterOf(fileNumber);
    file.Append(text);
    file.Append(kLineEnd);
}

std::string ItemText(const ListItem& item) {
    return std::visit(
        [](const auto& value) -> std::string {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                return {};
            else if constexpr (std::is_same_v<T, bool>)
                return FlagText(value);
            else if constexpr (std::is_same_v<T, std::string>)
                return '"' + value + '"';
            else if constexpr (std::is_same_v<T, Integer>)
                return NumberToText(static_cast<int>(value));
            else
                return NumberToText(value);
        },
        item);
}

// The bytes of a whole number, lowest first.
template <typename T>
std::string LittleEndian(T value) {
    std::string bytes;
    for (std::size_t i = 0; i < sizeof(T); ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
}

void PutBytes(int fileNumber, int record, const std::string& bytes) {
    if (record < 1) Fail(FailureKind::SubscriptRange);
    if (bytes.size() > kRecordLength) Fail(FailureKind::Overflow);
    WriterOf(fileNumber).WriteAt((static_cast<std::int64_t>(record) - 1) * kRecordLength, bytes);
}

}  // namespace

void OpenNumberedFile(int fileNumber, const std::string& path, FileMode mode) {
    if (IsNumberedFileOpen(fileNumber)) Fail(FailureKind::Other);
    NumberedFile file;
    file.Path = path;
    if (mode == FileMode::Output || mode == FileMode::RandomOutput)
        file.Writer = std::make_unique<WrittenFile>(path);
    else
        file.Reader = std::make_unique<TextReader>(DecodeFileText(ReadWholeFile(path), LanguageTexts().Current()));
    OpenFiles().emplace(fileNumber, std::move(file));
}

void CloseNumberedFile(int fileNumber) {
    // The number is free again also when putting the file in place fails.
    auto node = OpenFiles().extract(fileNumber);
    if (node.empty() || !node.mapped().Writer) return;
    if (HeldBack()) {
        HeldBack()->Paths.push_back(node.mapped().Path);
        HeldBack()->Files.push_back(std::move(node.mapped().Writer));
    } else {
        node.mapped().Writer->Commit();
    }
}

NumberedFileSet::NumberedFileSet() {
    if (HeldBack()) Fail(FailureKind::Other);
    HeldBack().emplace();
}

NumberedFileSet::~NumberedFileSet() {
    HeldBack().reset();
}

void NumberedFileSet::Commit(const std::function<void(const std::string& path)>& at) {
    const HeldFiles held = std::exchange(*HeldBack(), {});
    WrittenFile::CommitTogether(held.Files, [&](std::size_t i) { at(held.Paths[i]); });
}

void DropNumberedFile(int fileNumber) {
    OpenFiles().erase(fileNumber);
}

bool IsNumberedFileOpen(int fileNumber) {
    return OpenFiles().contains(fileNumber);
}

Single ReadSingle(int fileNumber) {
    return ReadValue(fileNumber, TextToSingle);
}

Integer ReadInteger(int fileNumber) {
    return ReadValue(fileNumber, [](const std::string& text) { return Integer::Rounded(TextToNumber(text)); });
}

long ReadLong(int fileNumber) {
    return ReadValue(fileNumber, [](const std::string& text) { return ToLong(TextToNumber(text)); });
}

double ReadDouble(int fileNumber) {
    return ReadValue(fileNumber, TextToNumber);
}

bool ReadFlag(int fileNumber) {
    return ReadValue(fileNumber, [](const std::string& text) {
        const std::string keyword = UpperAscii(text);
        if (keyword != FlagText(true) && keyword != FlagText(false)) Fail(FailureKind::BadFlag);
        return keyword == FlagText(true);
    });
}

std::string ReadRawLine(int fileNumber) {
    return std::string(ReaderOf(fileNumber).RawLine());
}

std::string ReadListItem(int fileNumber) {
    return ReaderOf(fileNumber).ListItem();
}

long LineToRead(int fileNumber) {
    return ReaderOf(fileNumber).Line();
}

void WriteNumber(int fileNumber, Single value) {
    WriteLine(fileNumber, NumberToText(value));
}

void WriteNumber(int fileNumber, Integer value) {
    WriteLine(fileNumber, NumberToText(static_cast<int>(value)));
}

void WriteNumber(int fileNumber, long value) {
    WriteLine(fileNumber, NumberToText(value));
}

void WriteNumber(int fileNumber, double value) {
    WriteLine(fileNumber, NumberToText(value));
}

std::string FlagText(bool value) {
    return value ? "#TRUE#" : "#FALSE#";
}

void WriteRawLine(int fileNumber, const std::string& text) {
    WriteLine(fileNumber, text);
}

std::string ListLine(std::initializer_list<ListItem> items) {
    std::string line;
    bool first = true;
    for (const ListItem& item : items) {
        if (!first) line += ',';
        line += ItemText(item);
        first = false;
    }
    return line;
}

void WriteList(int fileNumber, std::initializer_list<ListItem> items) {
    WriteLine(fileNumber, ListLine(items));
}

void PutRecord(int fileNumber, int record, Single value) {
    const auto stored = static_cast<float>(value.Stored());
    PutBytes(fileNumber, record, LittleEndian(std::bit_cast<std::uint32_t>(stored)));
}

void PutRecord(int fileNumber, int record, Integer value) {
    PutBytes(fileNumber, record, LittleEndian(static_cast<std::uint16_t>(static_cast<int>(value))));
}

void PutRecord(int fileNumber, int record, const std::string& value) {
    PutBytes(fileNumber, record, LittleEndian(static_cast<std::uint16_t>(value.size())) + value);
}

}  // namespace lithmark
