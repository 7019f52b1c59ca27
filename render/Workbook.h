// A spreadsheet file in memory.
#pragma once

#include <unistd.h>
#include <xlsxwriter.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

// A workbook, written by way of a scratch file; Bytes closes it.
class Workbook {
  public:
    Workbook() {
        path_ = (std::filesystem::temp_directory_path() / "lithmark-XXXXXX").string();
        const int descriptor = mkstemp(path_.data());
        if (descriptor < 0) Fail(FailureKind::WriteError, path_);
        close(descriptor);
        book_ = workbook_new(path_.c_str());
        if (!book_) Fail(FailureKind::OutOfMemory);
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
        for (const char c : FirstCharacters(name, 31))
            clean += std::string_view("[]:*?/\\'").find(c) == std::string_view::npos ? c : '_';
        lxw_worksheet* sheet = workbook_add_worksheet(book_, clean.empty() ? nullptr : clean.c_str());
        if (!sheet) Fail(FailureKind::WriteError);
        if (LanguageTexts().RightToLeft()) worksheet_right_to_left(sheet);
        return sheet;
    }

    std::string Bytes() {
        const lxw_error error = workbook_close(book_);
        book_ = nullptr;
        if (error != LXW_NO_ERROR) Fail(FailureKind::WriteError, lxw_strerror(error));
        return ReadWholeFile(path_);
    }

    lxw_format* Bold = nullptr;
    lxw_format* Head = nullptr;

  private:
    lxw_workbook* book_ = nullptr;
    std::string path_;
};

}  // namespace lithmark
