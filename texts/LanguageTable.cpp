#include "texts/LanguageTable.h"

#include <algorithm>
#include <iterator>

namespace lithmark {

namespace {

// A row of a file in texts/tables/.
#define TEXT(number, german, english, arabic) {number, german, english, arabic},

// The files are told apart by area, so their numbers interleave: the table is put in order by the compiler.
template <std::size_t N>
constexpr auto Sorted(const LanguageRow (&rows)[N]) {
    struct {
        LanguageRow Rows[N];
    } table{};
    std::copy(std::begin(rows), std::end(rows), table.Rows);
    std::sort(std::begin(table.Rows), std::end(table.Rows),
              [](const LanguageRow& a, const LanguageRow& b) { return a.Number < b.Number; });
    return table;
}

constexpr LanguageRow kRows[] = {
// clang-format off
#include "texts/tables/common.inc"
#include "texts/tables/units.inc"
#include "texts/tables/frame.inc"
#include "texts/tables/results.inc"
#include "texts/tables/stress.inc"
#include "texts/tables/consolidation.inc"
#include "texts/tables/timesettlement.inc"
#include "texts/tables/raft.inc"
#include "texts/tables/own_files.inc"
#include "texts/tables/own_services.inc"
#include "texts/tables/own_cli.inc"
#include "texts/tables/own_study.inc"
#include "texts/tables/own_render.inc"
#include "texts/tables/own_desktop.inc"
#include "texts/tables/own_desk.inc"
#include "texts/tables/own_ui.inc"
#include "texts/tables/own_kernels.inc"
#include "texts/tables/own_notices.inc"
#include "texts/tables/own_help.inc"
#include "texts/tables/own_dialogs.inc"
#include "texts/tables/own_storage.inc"
#include "texts/tables/own_windows.inc"
#include "texts/tables/own_studywindow.inc"
#include "texts/tables/own_habits.inc"
#include "texts/tables/own_answer.inc"
    // clang-format on
};

constexpr LanguageRow kColumnTitleRows[] = {
#include "texts/tables/column_titles.inc"
};

#undef TEXT

constexpr auto kTable = Sorted(kRows);
constexpr auto kColumnTitles = Sorted(kColumnTitleRows);

const LanguageRow* Find(std::span<const LanguageRow> table, int number) {
    const auto row = std::lower_bound(table.begin(), table.end(), number,
                                      [](const LanguageRow& candidate, int n) { return candidate.Number < n; });
    return row != table.end() && row->Number == number ? &*row : nullptr;
}

}  // namespace

std::span<const LanguageRow> LanguageTable() {
    return kTable.Rows;
}

std::span<const LanguageRow> ColumnTitleTable() {
    return kColumnTitles.Rows;
}

const LanguageRow* FindLanguageRow(int number) {
    return Find(LanguageTable(), number);
}

const LanguageRow* FindColumnTitle(int number) {
    return Find(ColumnTitleTable(), number);
}

const char* TextIn(const LanguageRow& row, Language language) {
    switch (language) {
        case Language::German:
            return row.German;
        case Language::Arabic:
            return row.Arabic;
        case Language::English:
        case Language::Ids:
            break;
    }
    return row.English;
}

}  // namespace lithmark
