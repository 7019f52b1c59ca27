#include "kernels/stress/StressTables.h"

#include "core/Problems.h"
#include "core/Session.h"
#include "core/Units.h"
#include "report/StepTables.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

using Sum = CornerRecord::Sum;

// Lengths are metres here whatever the unit in force: terms hold logarithms of lengths.
const std::string& Metres() {
    static const std::string metres = Text(28_text);
    return metres;
}

void BeginCornerTable(StepTable& table) {
    table.AddColumn(907204_text, "i");
    table.AddColumn(907205_text, "");
    for (int i = 0; i < 4; ++i) table.Rows.push_back({i + 1.0, i % 2 == 0 ? "+" : "-"});
}

void AddGeometry(const CornerRecord& record) {
    StepTable& table = Steps().Add(Text(907203_text));
    BeginCornerTable(table);
    table.AddColumn(907206_text, "X", Metres());
    table.AddColumn(907206_text, "Y", Metres());
    for (const char* symbol : {"Rx", "Ry", "R3"}) table.AddColumn(907207_text, symbol, Metres());
    for (std::size_t i = 0; i < 4; ++i) {
        const CornerRecord::Corner& c = record.Corners[i];
        for (const Single length : {c.X, c.Y, c.Rx, c.Ry, c.R3}) table.Rows[i].emplace_back(length);
    }
}

// Columns of terms with their sums; gives the sums.
std::vector<StepCell> AddTerms(StepTable& table, const CornerRecord& record,
                               const std::vector<std::pair<Sum, std::string>>& sums, const std::string& unit) {
    std::vector<std::size_t> columns;
    bool leftOut = false;
    for (const auto& [of, symbol] : sums) {
        table.AddColumn(907208_text, symbol, unit);
        for (std::size_t i = 0; i < 4; ++i) {
            const auto& term = record.Terms[of][i];
            table.Rows[i].push_back(term ? StepCell(*term) : StepCell());
            leftOut = leftOut || !term;
        }
        columns.push_back(table.Columns.size() - 1);
    }
    table.AddSums(columns);
    table.Notes.push_back(Text(907271_text));
    if (leftOut) table.Notes.push_back(Text(907209_text));
    return table.Sums.back().Cells;
}

// The cells of a line under the terms: the first of these columns has the corner's sign and no number.
std::vector<StepCell> UnderTerms(const std::vector<double>& numbers) {
    std::vector<StepCell> cells(1);
    for (const double number : numbers) cells.emplace_back(number);
    return cells;
}

void AddStressTerms(const SoilStressInput& in, const CornerRecord& record) {
    StepTable& table = Steps().Add(Text(907211_text));
    BeginCornerTable(table);
    AddTerms(table, record,
             {{Sum::SigmaZ, "Sigma_z"},
              {Sum::SigmaX, "Sigma_x"},
              {Sum::SigmaY, "Sigma_y"},
              {Sum::TauXy, "Tau_xy"},
              {Sum::TauXz, "Tau_xz"},
              {Sum::TauYz, "Tau_yz"}},
             "[-]");
    const double unit = FactorOf(Unit::Pressure), f = in.P / (2 * PI) * unit;
    table.AddLine(Text(907212_text, {{"|1", LabelOf(Unit::Pressure)}}), UnderTerms({f, -f, -f, f, -f, -f}));
    table.AddLine(Text(907213_text, {{"|1", LabelOf(Unit::Pressure)}}),
                  UnderTerms({Session.Sigma_z * unit, Session.Sigma_x * unit, Session.Sigma_y * unit,
                              Session.Tau_xy * unit, Session.Tau_xz * unit, Session.Tau_yz * unit}));
}

void AddDisplacementTerms(const SoilStressInput& in, const CornerRecord& record) {
    StepTable& table = Steps().Add(Text(907214_text));
    BeginCornerTable(table);
    const std::vector<StepCell> sums =
        AddTerms(table, record,
                 {{Sum::U, "u"}, {Sum::V, "v"}, {Sum::WLog, "w"}, {Sum::SLog, "s"}, {Sum::Angle, "z*angle"}}, Metres());
    const double nu = in.Nue, unit = Session.Len2Factor, f = Quotient(in.P * 100, 2 * PI * in.Es) * unit;
    const std::vector<double> factors = {-f * (1 + nu), -f * (1 + nu), f * (1 - Square(nu)), f * (1 - Square(nu)),
                                         f * ((1 - nu) - 2 * Square(nu))};
    table.AddLine(Text(907212_text, {{"|1", Session.Len2Label}}), UnderTerms(factors));
    std::vector<double> products;
    for (std::size_t i = 0; i < factors.size(); ++i) products.push_back(factors[i] * sums[i + 1].Number.value());
    table.AddLine(Text(907215_text, {{"|1", Session.Len2Label}}), UnderTerms(products));
    table.AddLine(Text(907213_text, {{"|1", Session.Len2Label}}),
                  UnderTerms({Session.u * unit, Session.v * unit, Session.w * unit, Session.s * unit}));
    table.Notes.push_back(Text(907216_text));
}

}  // namespace

void AddCornerTables(const SoilStressInput& in, const CornerRecord& record) {
    if (in.LoadType != LoadShape::Rectangle) return;
    AddGeometry(record);
    if (Session.ProblemType == Problem::SoilDisplacement)
        AddDisplacementTerms(in, record);
    else
        AddStressTerms(in, record);
}

}  // namespace lithmark
