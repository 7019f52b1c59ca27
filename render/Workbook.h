// A spreadsheet file in memory. Texts that a sheet cannot hold as they stand are made so.
#pragma once

#include <unistd.h>
#include <xlsxwriter.h>

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/Failure.h"
#include "base/RemovedOnEnd.h"
#include "base/Utf8.h"
#include "services/storage/ReadFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

// A workbook, written by way of a scratch file; Bytes closes it.
class Workbook {
  public:
    Workbook() {
        folder_ = std::filesystem::temp_directory_path().string();
        path_ = folder_ + "/lithmark-XXXXXX";
        const int descriptor = mkstemp(path_.data());
        if (descriptor < 0) FailWithSystemError(errno, FailureKind::WriteError, path_);
        close(descriptor);
        registered_.emplace(path_);
        lxw_workbook_options options = {};
        options.tmpdir = folder_.data();
        book_ = workbook_new_opt(path_.c_str(), &options);
        if (!book_) FailInFile(FailureKind::OutOfMemory, path_);
        Bold = workbook_add_format(book_);
        format_set_bold(Bold);
        Head = workbook_add_format(book_);
        format_set_bold(Head);
        format_set_text_wrap(Head);
        format_set_bottom(Head, LXW_BORDER_THIN);
        format_set_align(Head, LXW_ALIGN_VERTICAL_TOP);
    }
    ~Workbook() {
        if (book_) workbook_close(book_);
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    lxw_workbook* Book() { return book_; }

    lxw_worksheet* AddSheet(const std::string& name) {
        // A sheet's name has at most 31 characters and none of []:*?/\ .
        std::string clean;
        for (const char c : FirstCharacters(PrintableText(name), 31))
            clean += std::string_view("[]:*?/\\'").find(c) == std::string_view::npos ? c : '_';
        lxw_worksheet* sheet = workbook_add_worksheet(book_, clean.empty() ? nullptr : clean.c_str());
        if (!sheet) FailInFile(FailureKind::WriteError, path_);
        if (LanguageTexts().RightToLeft()) worksheet_right_to_left(sheet);
        return sheet;
    }

    std::string Bytes() {
        const lxw_error error = workbook_close(book_);
        book_ = nullptr;
        if (error != LXW_NO_ERROR) FailInFile(FailureKind::WriteError, path_);
        return ReadWholeFile(path_, kMostBytes);
    }

    lxw_format* Bold = nullptr;
    lxw_format* Head = nullptr;

  private:
    static constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 30;

    lxw_workbook* book_ = nullptr;
    std::string folder_, path_;
    std::optional<RemovedOnEnd> registered_;
};

// A text in a cell, as a sheet takes it.
inline void WriteText(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const std::string& text,
                      lxw_format* format) {
    worksheet_write_string(sheet, row, column, PrintableText(text).c_str(), format);
}

}  // namespace lithmark
