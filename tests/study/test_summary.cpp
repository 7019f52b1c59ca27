// Summaries of studies: their intervals hold what they promise, and what stands in them for samples, copies, cases and
// aborted rows.
#include <gmock/gmock.h>

#include <cmath>
#include <map>

#include "study/PlainMath.h"
#include "study/StudyProblem.h"
#include "study/StudySummary.h"

namespace lithmark::tests {
namespace {

using Row = std::map<std::string, std::string>;

// Summaries of rows whose result is worked out here instead of by a run.
class Summaries : public testing::Test {
  protected:
    void SetUp() override { StartProblem(1); }

    StudyHead Head(const StudyPlan& plan) const {
        return {!plan.Cases().empty(), plan.Fields(), TakesOf(1, {"s"}), "00000000"};
    }
    // By the columns of the table.
    static std::vector<Row> RowsOf(const TextTable& table) {
        std::vector<Row> rows;
        for (const auto& cells : table.Rows) {
            rows.emplace_back();
            for (std::size_t i = 0; i < cells.size(); ++i) rows.back()[table.Columns[i]] = cells[i].Text;
        }
        return rows;
    }
    static double NumberOf(const Row& row, const std::string& column) { return std::stod(row.at(column)); }

    StudyRequest request;
};

StudyLine LineWith(const StudyPlan& plan, const StudyHead& head, std::uint64_t row, std::optional<double> result) {
    RowOutcome outcome;
    outcome.Aborted = !result;
    if (result) outcome.Numbers = {static_cast<float>(*result)};
    return LineOf(row, plan.Row(row - 1), outcome, head);
}

// X Y of two lognormal fields is lognormal, so the share above any limit is known. In 200 studies the 95 % interval
// must cover it in 180 to 198 of them: a wrong count of degrees of freedom, or an interval of a copy, would not.
TEST_F(Summaries, TheIntervalCoversTheKnownShareInNinetyToNinetyNinePercent) {
    constexpr int kSeeds = 200;
    request.Random = {"Q=lognormal:1000:30%", "z=lognormal:2:20%"};
    const double varianceQ = std::log(1 + 0.09), varianceZ = std::log(1 + 0.04);
    const double mean = std::log(1000) - varianceQ / 2 + std::log(2) - varianceZ / 2;
    for (const bool sobol : {false, true})
        for (const double known : {0.5, 0.2, 0.05}) {
            request.Sobol = sobol;
            request.Samples = 1024;
            const double limit = std::exp(mean + std::sqrt(varianceQ + varianceZ) * UpperNormalQuantile(known));
            int covered = 0, meanCovered = 0;
            for (int seed = 1; seed <= kSeeds; ++seed) {
                request.Seed = static_cast<std::uint64_t>(seed);
                const StudyPlan plan(request);
                const StudyHead head = Head(plan);
                StudySummary summary(plan, head, {{"s", static_cast<float>(limit)}});
                for (std::uint64_t row = 1; row <= plan.Count(); ++row) {
                    const auto values = plan.Row(row - 1).Values;
                    summary.Add(LineWith(plan, head, row, std::stod(values[0]) * std::stod(values[1])));
                }
                const Row told = RowsOf(summary.Table()).at(0);
                covered += NumberOf(told, "low") <= known && known <= NumberOf(told, "high");
                meanCovered += std::abs(NumberOf(told, "mean") - 2000) <= 2 * NumberOf(told, "se_mean");
            }
            EXPECT_GE(covered, kSeeds * 90 / 100) << (sobol ? "sobol " : "random ") << known;
            EXPECT_LE(covered, kSeeds * 99 / 100) << (sobol ? "sobol " : "random ") << known;
            // Two standard errors: 95 % of normal means, 93.6 % of Student's t with 15 degrees of freedom.
            EXPECT_GE(meanCovered, kSeeds * 88 / 100) << (sobol ? "sobol " : "random ") << known;
            EXPECT_LE(meanCovered, kSeeds * 99 / 100) << (sobol ? "sobol " : "random ") << known;
        }
}

TEST_F(Summaries, AbortedRowsAreCountedApart) {
    request.Random = {"Q=uniform:0:1"};
    request.Samples = 10;
    const StudyPlan plan(request);
    const StudyHead head = Head(plan);
    StudySummary summary(plan, head, {{"s", 4.5F}});
    // 1 to 8; two rows abort. Beyond 4.5 are 5, 6, 7, 8.
    for (std::uint64_t row = 1; row <= 10; ++row)
        summary.Add(LineWith(plan, head, row, row <= 8 ? std::optional<double>(row) : std::nullopt));
    const Row told = RowsOf(summary.Table()).at(0);
    EXPECT_EQ(told.at("Result"), "s");
    EXPECT_EQ(told.at("count"), "8");
    EXPECT_EQ(told.at("aborted"), "2");
    EXPECT_EQ(told.at("noticed"), "0");
    EXPECT_EQ(told.at("mean"), "4.5");
    EXPECT_NEAR(NumberOf(told, "sd"), std::sqrt(6.0), 1e-6);
    EXPECT_NEAR(NumberOf(told, "se_mean"), std::sqrt(6.0 / 8), 1e-6);
    EXPECT_EQ(told.at("min"), "1");
    EXPECT_EQ(told.at("p50"), "4.5");
    EXPECT_NEAR(NumberOf(told, "p5"), 1.35, 1e-6);
    EXPECT_NEAR(NumberOf(told, "p95"), 7.65, 1e-6);
    EXPECT_EQ(told.at("max"), "8");
    EXPECT_EQ(told.at("beyond"), "0.5");
    EXPECT_NEAR(NumberOf(told, "se_beyond"), std::sqrt(0.25 / 8), 1e-7);
    EXPECT_EQ(told.at("beyond_worst"), "0.6");
    EXPECT_EQ(told.at("beta"), "0");
}

TEST_F(Summaries, NoneBeyondHasNoReliabilityIndex) {
    request.Random = {"Q=uniform:0:1"};
    request.Samples = 1000;
    for (const bool sobol : {false, true}) {
        request.Sobol = sobol;
        const StudyPlan plan(request);
        const StudyHead head = Head(plan);
        StudySummary summary(plan, head, {{"s", 1}});
        for (std::uint64_t row = 1; row <= plan.Count(); ++row) summary.Add(LineWith(plan, head, row, 0.5));
        const Row told = RowsOf(summary.Table()).at(0);
        EXPECT_EQ(told.at("beyond"), "0");
        EXPECT_EQ(told.at("low"), "0");
        EXPECT_EQ(told.at("high").substr(0, 6), sobol ? "0.0037" : "0.0038") << told.at("high");
        EXPECT_EQ(told.at("beta"), "");
    }
}

TEST_F(Summaries, EachCombinationOfVariedFieldsHasItsOwn) {
    request.Random = {"Q=uniform:0:1"};
    request.Samples = 4;
    request.Vary = {"z=1,2"};
    request.Cases = {"A:P=*1", "B:P=*2"};
    const StudyPlan plan(request);
    const StudyHead head = Head(plan);
    StudySummary summary(plan, head, {});
    for (std::uint64_t row = 1; row <= plan.Count(); ++row)
        summary.Add(LineWith(plan, head, row, static_cast<double>((row - 1) / 4)));
    const TextTable table = summary.Table();
    EXPECT_EQ(table.Columns.size(), 14u) << "Case, z, Result and eleven figures; none of a limit";
    const auto rows = RowsOf(table);
    ASSERT_EQ(rows.size(), 4u);
    for (int i = 0; i < 4; ++i) {
        const Row& row = rows[static_cast<std::size_t>(i)];
        EXPECT_EQ(row.at("Case"), i < 2 ? "A" : "B");
        EXPECT_EQ(row.at("z"), i % 2 == 0 ? "1" : "2");
        EXPECT_EQ(row.at("mean"), std::to_string(i));
        EXPECT_EQ(row.at("count"), "4");
    }
}

// Rows of varied fields are no sample of anything: no mean, no deviation, no interval.
TEST_F(Summaries, VariedRowsHaveLeastGreatestAndBeyondAlone) {
    request.Vary = {"z=1,2,3,4"};
    const StudyPlan plan(request);
    const StudyHead head = Head(plan);
    StudySummary summary(plan, head, {{"s", 3}});
    for (std::uint64_t row = 1; row <= 4; ++row) summary.Add(LineWith(plan, head, row, static_cast<double>(row)));
    const Row told = RowsOf(summary.Table()).at(0);
    std::map<std::string, std::string> filled;
    for (const auto& [column, text] : told)
        if (!text.empty()) filled[column] = text;
    EXPECT_EQ(filled, (Row{{"Result", "s"}, {"min", "1"}, {"max", "4"}, {"limit", "3"}, {"beyond", "0.25"}}));
}

TEST_F(Summaries, TablesHaveAllForms) {
    const TextTable table{{"Result", "count", "mean"},
                          {{TableCell::OfText("a \"b\""), TableCell::OfCount(3), TableCell::OfNumber(std::nan(""))}}};
    EXPECT_EQ(table.Csv(), "Result,count,mean\r\n\"a \"\"b\"\"\",3,\r\n");
    EXPECT_EQ(table.JsonLines(), "{\"Result\":\"a \\\"b\\\"\",\"count\":3,\"mean\":null}\n");
    EXPECT_EQ(table.Json(), "[\n{\"Result\":\"a \\\"b\\\"\",\"count\":3,\"mean\":null}\n]\n");
}

}  // namespace
}  // namespace lithmark::tests
