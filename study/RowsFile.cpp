#include "study/RowsFile.h"

#include <array>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "services/SharedServices.h"
#include "services/platform/Files.h"
#include "services/platform/Process.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"
#include "study/CsvText.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

std::string ReadStandardInput() {
    std::string text;
    std::array<char, 65536> buffer;
    for (;;) {
        const std::int64_t count = platform::ReadFrom(platform::kStandardInput, buffer.data(), buffer.size());
        if (count < 0) FailStudyFile(902002_text, "-");
        if (count == 0) return text;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::string ReadText(const std::string& path) {
    constexpr std::uint64_t kMostBytes = std::uint64_t{4} << 30;
    if (path == "-") return ReadStandardInput();
    try {
        return ReadWholeFile(path, kMostBytes);
    } catch (const Failure& failure) {
        SharedServices().SetCurrentFile(path);
        throw StudyFailure(StudyFailure::Cause::File, SharedServices().FailureText(failure));
    }
}

bool IsEmptyLine(const std::vector<std::string>& cells) {
    return cells.size() == 1 && Trim(cells.front()).empty();
}

}  // namespace

RowsFile::RowsFile(const std::string& path) : text_(ReadText(path)) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text_.starts_with(kByteOrderMark)) text_.erase(0, kByteOrderMark.size());
    CsvReader reader(text_);
    const auto head = reader.Next(true);
    if (!head) FailStudyFile(908019_text, path);
    for (const std::string& name : *head) fields_.push_back(FindStudyField(Trim(name)));
    for (std::size_t start = reader.At();; start = reader.At()) {
        const auto cells = reader.Next(true);
        if (!cells) break;
        if (IsEmptyLine(*cells) && fields_.size() > 1) continue;
        if (cells->size() != fields_.size())
            throw StudyFailure(StudyFailure::Cause::File,
                               Text(908020_text, {{"|1", path}, {"|2", NumberToText(reader.Line())}}));
        starts_.push_back(start);
    }
}

std::vector<std::string> RowsFile::Values(std::uint64_t row) const {
    CsvReader reader(std::string_view(text_).substr(starts_[row]));
    std::vector<std::string> values = reader.Next(true).value();
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = ValueText(fields_[i], Trim(values[i]));
    return values;
}

}  // namespace lithmark
