#include "kernels/timesettlement/HistoryTables.h"

#include <algorithm>
#include <vector>

#include "base/NumberText.h"
#include "core/Session.h"
#include "kernels/timesettlement/TimeSettlementRun.h"
#include "report/StepTables.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr std::size_t kStepsPerTable = 6;

double Increment(int slot) {
    return Single(Session.LoadCurve(slot) - Session.LoadCurve(slot - 1));
}

// The report's slots, the measurement's among them.
int LastShown() {
    const int measured = Session.Ms ? Session.DesignCode + 1 : 0;
    return std::clamp(std::max(Session.TimePeriod + 1, measured), 1, kLastSlot);
}

void BeginSlots(StepTable& table) {
    table.AddColumn(907242_text, "j");
    table.AddColumn(10247_text, "t", Session.TimeUnit);
    for (int j = 1; j <= LastShown(); ++j) table.Rows.push_back({double(j), j - 1.0});
}

void AddSlots() {
    StepTable& table = Steps().Add(Text(907241_text));
    BeginSlots(table);
    table.AddColumn(300053_text, "El", "[%]");
    table.AddColumn(907243_text, "dEl", "[%]");
    table.AddColumn(907244_text, "U(j-1)", "[%]");
    for (int j = 1; j <= LastShown(); ++j) {
        auto& row = table.Rows[static_cast<std::size_t>(j - 1)];
        for (const double value : {double(Session.LoadCurve(j)), Increment(j), double(Session.SuddenPercent(j - 1))})
            row.emplace_back(value);
    }
    table.AddSums({3});
    table.Notes.push_back(Text(907245_text));
}

// One block of load steps; the last one has the sums.
void AddShares(const std::vector<int>& slots, std::size_t first) {
    StepTable& table = Steps().Add(Text(907246_text));
    BeginSlots(table);
    const std::size_t end = std::min(slots.size(), first + kStepsPerTable);
    for (std::size_t k = first; k < end; ++k) {
        const int i = slots[k];
        table.AddColumn(907247_text, "j = " + NumberToText(i), Session.Len2Label);
        for (int j = 1; j <= LastShown(); ++j)
            table.Rows[static_cast<std::size_t>(j - 1)].emplace_back(
                j < i ? 0 : Session.Sc * Increment(i) * Session.SuddenPercent(j - i) / 10000 * Session.Len2Factor);
    }
    if (end < slots.size()) return;
    table.AddColumn(907248_text, "Zse", Session.Len2Label);
    for (int j = 1; j <= LastShown(); ++j)
        table.Rows[static_cast<std::size_t>(j - 1)].emplace_back(Session.SettlementSum(j) * Session.Len2Factor);
    table.Notes.push_back(Text(907249_text));
}

}  // namespace

void AddHistoryTables() {
    AddSlots();
    std::vector<int> slots;
    for (int i = 1; i <= LastShown(); ++i)
        if (Increment(i) != 0) slots.push_back(i);
    for (std::size_t first = 0; first < slots.size(); first += kStepsPerTable) AddShares(slots, first);
}

}  // namespace lithmark
