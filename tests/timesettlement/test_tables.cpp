// Tables for a check by hand of the problems 6 to 8: the shares of the load steps sum to the settlement of each slot.
#include "support/StepsOn.h"
#include "timesettlement/TimeCase.h"

namespace lithmark::tests {
namespace {

class HistoryTables : public TimeSettlementTest {
  protected:
    StepsOn on_;
};

TEST_F(HistoryTables, SlotsHaveTheirLoadStepsAndTheDegreeOfTheTimeBefore) {
    StartTimeSettlement(6);
    RunWell();
    const StepTable& slots = TableTitled(907241_text);
    ASSERT_EQ(slots.Rows.size(), 19u);  // the report's 18 units, and time 0
    const double load[] = {19, 42, 42, 83}, step[] = {19, 23, 0, 41}, degree[] = {0, 49, 74, 89};
    for (std::size_t j = 0; j < 4; ++j) {
        EXPECT_EQ(slots.Rows[j][0].Number, static_cast<double>(j + 1));
        EXPECT_EQ(slots.Rows[j][1].Number, static_cast<double>(j));
        EXPECT_EQ(slots.Rows[j][2].Number, load[j]);
        EXPECT_EQ(slots.Rows[j][3].Number, step[j]);
        EXPECT_NEAR(*slots.Rows[j][4].Number, degree[j], 1e-5);
    }
    EXPECT_EQ(InSum(slots, 0, 3), 100.0);
}

TEST_F(HistoryTables, SharesSumToTheSettlementOfEachSlot) {
    for (const int problem : {6, 7, 8}) {
        StartTimeSettlement(problem);
        Run();
        ASSERT_FALSE(Session.CalcAborted);
        const StepTable& shares = TableTitled(907246_text);
        ASSERT_EQ(shares.Columns.size(), 8u);  // slot, time, five load steps, sum
        for (std::size_t j = 0; j < shares.Rows.size(); ++j) {
            const auto& row = shares.Rows[j];
            double sum = 0;
            for (std::size_t c = 2; c < 7; ++c) sum += *row[c].Number;
            EXPECT_NEAR(sum, Session.SettlementSum(static_cast<int>(j) + 1), 2e-6 * 12.1) << problem << ", " << j;
            EXPECT_EQ(row[7].Number, static_cast<double>(Session.SettlementSum(static_cast<int>(j) + 1)));
        }
    }
}

// 12.1 cm, a step of 23 % in slot 2, 74 % two units later: 12.1 0.23 0.74.
TEST_F(HistoryTables, AShareIsTheLoadStepTimesTheDegreeSinceIt) {
    StartTimeSettlement(6);
    RunWell();
    EXPECT_NEAR(*TableTitled(907246_text).Rows[3][3].Number, 12.1 * 0.23 * 0.74, 1e-5);
    EXPECT_EQ(TableTitled(907246_text).Columns[3].Symbol, "j = 2");
}

TEST_F(HistoryTables, ManyLoadStepsComeInBlocksAndTheLastHasTheSums) {
    StartTimeSettlement(6);
    SetLoads({{1, 10}, {2, 20}, {3, 30}, {4, 40}, {5, 50}, {6, 60}, {7, 80}, {8, 100}});
    RunWell();
    ASSERT_EQ(Steps().Tables().size(), 3u);
    EXPECT_EQ(Steps().Tables()[1].Columns.size(), 8u);
    EXPECT_EQ(Steps().Tables()[2].Columns.size(), 5u);
    EXPECT_EQ(Steps().Tables()[2].Columns.back().Symbol, "Zse");
}

}  // namespace
}  // namespace lithmark::tests
