#include "render/Workbook.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <utility>

#include "base/Failure.h"
#include "base/Utf8.h"
#include "render/ReportPaper.h"
#include "services/platform/Files.h"
#include "services/platform/Process.h"
#include "services/storage/ReadFile.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 30;
constexpr std::size_t kLeastWidth = 9, kMostWidth = 24;
constexpr double kRowHeight = 15;
constexpr int kA4 = 9;

// A text in the language of heads and feet, in which "&" begins a command.
std::string MarginText(const std::string& text) {
    return ReplaceAll(PrintableText(text), "&", "&&");
}

// Head and foot hold 255 characters.
std::string FirstOfMargin(const std::string& text) {
    constexpr std::size_t kMost = 250;
    return FirstCharacters(text, kMost);
}

// A part of a head or foot in the direction of the language, which those have none of.
std::string Directed(const std::string& text) {
    return LanguageTexts().RightToLeft() ? "\u202B" + text + "\u202C" : text;
}

void SetPage(lxw_worksheet* sheet, Workbook::Printed printed) {
    worksheet_set_landscape(sheet);
    worksheet_set_paper(sheet, kA4);
    worksheet_fit_to_pages(sheet, 1, printed == Workbook::Printed::OnOnePage ? 1 : 0);
    const ReportPaper paper = PaperInForce();
    std::string lines;
    for (const std::string& line : paper.HeadLines()) lines += (lines.empty() ? "" : "   ") + MarginText(line);
    std::string head = "&L" + Directed(lines);
    if (!paper.Company.empty()) head += "&R" + MarginText(paper.Company.front());
    worksheet_set_header(sheet, FirstOfMargin(head).c_str());
    const std::string page =
        "&C" + Directed(ReportPaper::PageText("&P", "&N")) + "&R" + MarginText(ReportPaper::Maker());
    worksheet_set_footer(sheet, FirstOfMargin(page).c_str());
}

// The lines that a text takes in a column.
std::size_t LinesOf(const std::string& text, std::size_t width) {
    std::size_t lines = 1, used = 0;
    for (const std::string& word : Split(text, ' ')) {
        const std::size_t count = CharacterCount(word);
        if (used > 0 && used + 1 + count > width) {
            ++lines;
            used = count;
        } else {
            used += (used > 0 ? 1 : 0) + count;
        }
    }
    return lines;
}

std::size_t LongestWord(const std::string& text) {
    std::size_t longest = 0;
    for (const std::string& word : Split(text, ' ')) longest = std::max(longest, CharacterCount(word));
    return longest;
}

}  // namespace

Workbook::Workbook() {
    folder_ = platform::TemporaryFolder();
    path_ = platform::MakeTemporaryFile();
    if (path_.empty()) FailWithSystemError(errno, FailureKind::WriteError, folder_);
    registered_.emplace(path_);
    lxw_workbook_options options = {};
    options.tmpdir = folder_.data();
    book_ = workbook_new_opt(path_.c_str(), &options);
    if (!book_) FailInFile(FailureKind::OutOfMemory, path_);
    text_ = AddTextFormat();
    Bold = AddTextFormat();
    format_set_bold(Bold);
    Head = AddTextFormat();
    format_set_bold(Head);
    format_set_text_wrap(Head);
    format_set_bottom(Head, LXW_BORDER_THIN);
    format_set_align(Head, LXW_ALIGN_VERTICAL_TOP);
    words_ = AddTextFormat();
    format_set_num_format(words_, "@");
    const ReportPaper paper = PaperInForce();
    lxw_doc_properties properties = {};
    std::string title = paper.Title, author = paper.Author;
    properties.title = title.data();
    properties.author = author.data();
    workbook_set_properties(book_, &properties);
}

// The library writes words of its own about what fails; the failure is told by the program.
lxw_error Workbook::Close() noexcept {
    if (!book_) return LXW_NO_ERROR;
    const platform::NoStandardErrors quiet;
    return workbook_close(std::exchange(book_, nullptr));
}

Workbook::~Workbook() {
    Close();
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

lxw_format* Workbook::AddTextFormat() {
    constexpr std::uint8_t kRightToLeft = 2;
    lxw_format* format = workbook_add_format(book_);
    if (LanguageTexts().RightToLeft()) format_set_reading_order(format, kRightToLeft);
    return format;
}

lxw_worksheet* Workbook::AddSheet(const std::string& name, Printed printed) {
    // A sheet's name has at most 31 characters and none of []:*?/\ .
    std::string clean;
    for (const char c : FirstCharacters(PrintableText(name), 31))
        clean += std::string_view("[]:*?/\\'").find(c) == std::string_view::npos ? c : '_';
    lxw_worksheet* sheet = workbook_add_worksheet(book_, clean.empty() ? nullptr : clean.c_str());
    if (!sheet) FailInFile(FailureKind::WriteError, path_);
    if (LanguageTexts().RightToLeft()) worksheet_right_to_left(sheet);
    SetPage(sheet, printed);
    return sheet;
}

lxw_format* Workbook::Decimals(int decimals, bool bold) {
    lxw_format*& format = decimals_[{decimals, bold}];
    if (format != nullptr) return format;
    format = workbook_add_format(book_);
    const std::string pattern = decimals < 0    ? "0.000000E+00"
                                : decimals == 0 ? "0"
                                                : "0." + std::string(static_cast<std::size_t>(decimals), '0');
    format_set_num_format(format, pattern.c_str());
    if (bold) format_set_bold(format);
    return format;
}

void Workbook::WriteText(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const std::string& text,
                         lxw_format* format) {
    const bool likeFormula = !text.empty() && std::string_view("=+-@").find(text.front()) != std::string_view::npos;
    if (format == nullptr) format = likeFormula ? words_ : text_;
    worksheet_write_string(sheet, row, column, PrintableText(text).c_str(), format);
}

void Workbook::WriteHead(lxw_worksheet* sheet, lxw_row_t row, const std::vector<std::string>& heads,
                         const std::vector<std::size_t>& widest) {
    std::size_t lines = 1;
    for (std::size_t c = 0; c < heads.size(); ++c) {
        const std::size_t content = std::max(LongestWord(heads[c]), c < widest.size() ? widest[c] : 0);
        const std::size_t width = std::clamp(content + 2, kLeastWidth, kMostWidth);
        const auto column = static_cast<lxw_col_t>(c);
        worksheet_set_column(sheet, column, column, static_cast<double>(width) + 1, nullptr);
        lines = std::max(lines, LinesOf(heads[c], width - 1));
        WriteText(sheet, row, column, heads[c], Head);
    }
    worksheet_set_row(sheet, row, kRowHeight * static_cast<double>(lines), nullptr);
    worksheet_freeze_panes(sheet, row + 1, 0);
    worksheet_repeat_rows(sheet, row, row);
}

std::string Workbook::Bytes() {
    if (Close() != LXW_NO_ERROR) FailInFile(FailureKind::WriteError, path_);
    return ReadWholeFile(path_, kMostBytes);
}

int DecimalsOf(const std::vector<std::string>& numbers, char decimalSign) {
    std::size_t most = 0;
    for (const std::string& number : numbers) {
        if (number.find_first_of("Ee") != std::string::npos) return -1;
        const std::size_t sign = number.find(decimalSign);
        if (sign != std::string::npos) most = std::max(most, number.size() - sign - 1);
    }
    return static_cast<int>(most);
}

}  // namespace lithmark
