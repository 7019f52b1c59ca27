// A spreadsheet file in memory. Texts that a sheet cannot hold as they stand are made so; a sheet runs in the direction
// of the language and prints across on one page's width, its head on each page.
#pragma once

#include <xlsxwriter.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "services/platform/RemovedOnEnd.h"

namespace lithmark {

// A workbook, written by way of a scratch file; Bytes closes it.
class Workbook {
  public:
    Workbook();
    ~Workbook();
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    lxw_workbook* Book() { return book_; }
    // Printed across, as wide as a page and as long as it takes; or all of it on one page.
    enum class Printed { OnPages, OnOnePage };
    lxw_worksheet* AddSheet(const std::string& name, Printed printed = Printed::OnPages);
    // The format of numbers with so many decimals; -1: with an exponent.
    lxw_format* Decimals(int decimals, bool bold = false);

    // A text in a cell. One that begins like a formula is a text for whoever edits it, too.
    void WriteText(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const std::string& text,
                   lxw_format* format = nullptr);
    // The heads of the columns from the first on. They stay in sight and stand again on each printed page; columns are
    // as wide, and the row as high, as the words need. `widest` has what else is in the columns, in characters.
    void WriteHead(lxw_worksheet* sheet, lxw_row_t row, const std::vector<std::string>& heads,
                   const std::vector<std::size_t>& widest);

    std::string Bytes();

    lxw_format* Bold = nullptr;
    lxw_format* Head = nullptr;

  private:
    lxw_error Close() noexcept;
    // A format of texts, which run in the direction of the language.
    lxw_format* AddTextFormat();

    lxw_workbook* book_ = nullptr;
    std::string folder_, path_;
    std::optional<RemovedOnEnd> registered_;
    std::map<std::pair<int, bool>, lxw_format*> decimals_;
    lxw_format *text_ = nullptr, *words_ = nullptr;
};

// How the numbers of a column are shown: with as many decimals as the texts have; -1: with an exponent.
int DecimalsOf(const std::vector<std::string>& numbers, char decimalSign);

}  // namespace lithmark
