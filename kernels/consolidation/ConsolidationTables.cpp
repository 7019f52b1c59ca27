#include "kernels/consolidation/ConsolidationTables.h"

#include "core/Problems.h"
#include "core/Session.h"
#include "core/Units.h"
#include "report/StepTables.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

void AddLayers(const ConsolidationRateInput& in, const MarchRecord& march) {
    StepTable& table = Steps().Add(Text(907224_text));
    table.AddColumn(907225_text, "i");
    table.AddColumn(40052_text, "h", Session.Len1Label);
    table.AddColumn(907226_text, "n");
    table.AddColumn(907227_text, "dz", Session.Len1Label);
    table.AddColumn(10243_text, "Cv", LabelOf(Unit::AreaPerTime));
    table.AddColumn(907228_text, "dt", in.TimeUnit);
    table.AddColumn(907229_text, "Cv dt/dz2", "[-]");
    for (int i = 1; i <= in.NumLayers; ++i)
        table.Rows.push_back({double(i), in.hLayer(i) * Session.Len1Factor, double(march.n(i)),
                              march.dz(i) * Session.Len1Factor, in.CvLayer(i) * FactorOf(Unit::AreaPerTime),
                              march.TimeStep, march.Lambda(i)});
    table.Notes.push_back(
        Text(907230_text, {{"|1", FormatValue(in.T, "")}, {"|2", in.TimeUnit}, {"|3", FormatValue(march.Steps, "")}}));
}

void AddNodes(const MarchRecord& march) {
    const double length = Session.Len1Factor, pressure = FactorOf(Unit::Pressure);
    StepTable& table = Steps().Add(Text(907231_text));
    table.AddColumn(13_text, "i");
    table.AddColumn(300018_text, "z", Session.Len1Label);
    table.AddColumn(907232_text, "dz", Session.Len1Label);
    table.AddColumn(300016_text, "u0", LabelOf(Unit::Pressure));
    table.AddColumn(300017_text, "uf", LabelOf(Unit::Pressure));
    table.AddColumn(907233_text, "u0*dz", LabelOf(Unit::LineLoad));
    table.AddColumn(907233_text, "uf*dz", LabelOf(Unit::LineLoad));
    for (int m = 0; m <= Session.IsoLast; ++m) {
        const double dz = march.Weight(m) * length;
        const double u0 = Session.IsoU0(m) * pressure, uf = Session.IsoUf(m) * pressure;
        table.Rows.push_back({double(m), march.Depth(m) * length, dz, u0, uf, u0 * dz, uf * dz});
    }
    table.AddSums({2, 5, 6});
    table.Notes.push_back(Text(907234_text, {{"|1", FormatValue(Session.Uc, "")}}));
}

void AddWeights(const MarchRecord& march) {
    StepTable& table = Steps().Add(Text(907235_text));
    table.AddColumn(13_text, "i");
    for (const char* symbol : {"u(i-2)", "u(i-1)", "u(i)", "u(i+1)", "u(i+2)"})
        table.AddColumn(907236_text, symbol, "[-]");
    for (int m = 0; m <= Session.IsoLast; ++m) {
        const FivePointRow& row = march.Rows(m);
        table.Rows.push_back({double(m), row.Cm2, row.Cm1, row.C0, row.Cp1, row.Cp2});
    }
    table.Notes.push_back(Text(907237_text));
}

}  // namespace

void AddSublayerTable(const ConsolidationInput& in, const std::vector<Sublayer>& sublayers) {
    if (sublayers.empty()) return;
    const bool byIndex = in.SoilPropertyType == SoilDefinition::ByCompressionIndex;
    const double length = Session.Len1Factor, stress = FactorOf(Unit::Pressure), settlement = Session.Len2Factor;
    StepTable& table = Steps().Add(Text(907217_text));
    table.AddColumn(907218_text, "i");
    table.AddColumn(907219_text, "z", Session.Len1Label);
    table.AddColumn(907220_text, "dz", Session.Len1Label);
    if (byIndex) table.AddColumn(907221_text, "p", LabelOf(Unit::Pressure));
    table.AddColumn(907222_text, "Sigma_z", LabelOf(Unit::Pressure));
    table.AddColumn(907223_text, "ds/dz", "[%]");
    table.AddColumn(40081_text, "ds", Session.Len2Label);
    for (std::size_t i = 0; i < sublayers.size(); ++i) {
        const Sublayer& part = sublayers[i];
        const double dz = part.Bottom - part.Top;
        std::vector<StepCell> row = {i + 1.0, (part.Top + part.Bottom) / 2 * length, dz * length};
        if (byIndex) row.emplace_back(part.Before * stress);
        row.insert(row.end(), {part.Increase * stress, Quotient(part.Share, dz), part.Share * settlement});
        table.Rows.push_back(std::move(row));
    }
    const std::size_t last = table.Columns.size() - 1;
    table.AddSums({2, last});
    std::vector<StepCell> result(last);
    result[1] = in.h * length;
    result[last - 1] = Session.s * settlement;
    table.AddLine(Text(907238_text), std::move(result));
    table.Notes.push_back(Text(byIndex ? 907239_text : 907240_text));
}

void AddMarchTables(const ConsolidationRateInput& in, const MarchRecord& march) {
    AddLayers(in, march);
    AddNodes(march);
    AddWeights(march);
}

}  // namespace lithmark
