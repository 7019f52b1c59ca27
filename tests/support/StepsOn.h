// The recorder of steps switched on for a test, and its tables by title.
#pragma once

#include <stdexcept>
#include <string>

#include "report/StepTables.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark::tests {

struct StepsOn {
    StepsOn() { Steps().SwitchOn(true); }
    ~StepsOn() {
        Steps().SwitchOn(false);
        Steps().Clear();
    }
    StepsOn(const StepsOn&) = delete;
    StepsOn& operator=(const StepsOn&) = delete;
};

inline const StepTable& TableTitled(TextId title) {
    for (const StepTable& table : Steps().Tables())
        if (table.Title == Text(title)) return table;
    throw std::runtime_error("no table " + Text(title));
}

// The number in a row of sums, by the column of the table.
inline double InSum(const StepTable& table, std::size_t sum, std::size_t column) {
    return table.Sums.at(sum).Cells.at(column - 1).Number.value();
}

}  // namespace lithmark::tests
