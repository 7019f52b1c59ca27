#include "study/PartFile.h"

#include <array>
#include <cerrno>

#include "base/NumberText.h"
#include "services/SharedServices.h"
#include "services/platform/Files.h"
#include "services/storage/WrittenFile.h"
#include "study/CsvText.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

[[noreturn]] void FailFile(const std::string& path, int error) {
    try {
        FailWithSystemError(error, FailureKind::ReadError);
    } catch (const Failure& failure) {
        SharedServices().SetCurrentFile(path);
        throw StudyFailure(StudyFailure::Cause::File, SharedServices().FailureText(failure));
    }
}

constexpr std::string_view kRowKey = "{\"Row\":";

std::string RowOf(const std::string& record) {
    return record.substr(kRowKey.size(), record.find_first_of(",}") - kRowKey.size());
}

}  // namespace

PartFile::PartFile(const std::string& path, const StudyHead& head)
    : path_(path), head_(head), columns_(head.Columns()), file_(platform::OpenStream(path), &std::fclose) {
    if (!file_) FailFile(path, errno);
    ReadHead();
}

// A line without its line end; nothing for a last one that has none. One that no row can fill is not read to its end.
std::optional<std::string> PartFile::NextLine() {
    constexpr std::size_t kLongest = std::size_t{1} << 24;
    std::string line;
    std::array<char, 4096> piece;
    while (std::fgets(piece.data(), piece.size(), file_.get())) {
        line += piece.data();
        if (line.size() > kLongest) {
            ++line_;
            FailLine();
        }
        if (!line.ends_with('\n')) continue;
        ++line_;
        line.pop_back();
        if (line.ends_with('\r')) line.pop_back();
        return line;
    }
    if (std::ferror(file_.get())) FailFile(path_, errno);
    return std::nullopt;
}

void PartFile::ReadHead() {
    const int first = std::fgetc(file_.get());
    std::ungetc(first, file_.get());
    json_ = first == '[' || first == '{';
    if (json_) return;
    const auto head = NextLine();
    otherHead_ = head && *head + "\r\n" != CsvRecord(columns_);
}

std::optional<std::vector<std::string>> PartFile::Cells(const std::string& line) const {
    if (!json_) return CsvReader(line).Next(true);
    return JsonCells(line.ends_with(',') ? std::string_view(line).substr(0, line.size() - 1) : line, columns_);
}

void PartFile::FailRow(TextId text, const std::string& row) const {
    // What stands in a row's place in a file that is none may be anything; then its line is named.
    constexpr std::size_t kMostDigits = 20;
    const bool named = !row.empty() && row.size() <= kMostDigits && row.find_first_not_of("0123456789") == row.npos;
    throw StudyFailure(StudyFailure::Cause::File,
                       Text(text, {{"|1", path_}, {"|2", named ? row : NumberToText(line_)}}));
}

void PartFile::FailLine() const {
    FailRow(908025_text, NumberToText(line_));
}

std::optional<StudyLine> PartFile::Next(const StudyPlan& plan) {
    std::optional<std::string> text;
    do text = NextLine();
    while (text && json_ && (*text == "[" || *text == "]"));
    if (!text && otherHead_) FailLine();
    if (!text) return std::nullopt;
    const auto cells = Cells(*text);
    // A table of other columns is one of another study; so are objects of other keys.
    if (otherHead_) FailRow(908026_text, cells && !cells->empty() ? cells->front() : NumberToText(line_));
    if (!cells && json_ && text->starts_with(kRowKey)) FailRow(908026_text, RowOf(*text));
    if (!cells || cells->size() != columns_.size()) FailLine();
    if (cells->back() != head_.Study) FailRow(908026_text, cells->front());
    auto line = LineOfCells(head_, *cells);
    if (!line || line->Row <= last_) FailLine();
    if (line->Row > plan.Count()) FailRow(908026_text, cells->front());
    const PlannedRow planned = plan.Row(line->Row - 1);
    if (planned.Values != line->Values || planned.Case != line->Case) FailRow(908027_text, cells->front());
    last_ = line->Row;
    return line;
}

}  // namespace lithmark
