// The report of problem 5.

#include <string>

#include "base/NumberText.h"
#include "core/Problems.h"
#include "core/Session.h"
#include "core/Units.h"
#include "kernels/consolidation/ConsolidationRateRun.h"
#include "report/LoadRows.h"
#include "report/ToolLib.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

void InitialPressureRows(const ConsolidationRateInput& in) {
    if (in.Pressure) {
        AddParameter(300012_text);
        AddParameter(300008_text, "uo", LabelOf(Unit::Pressure), in.U * FactorOf(Unit::Pressure), Session.FmtStress);
        return;
    }
    AddLoadTitle(in.LoadType, {400171_text, 400174_text, 400177_text});
    AddSection(140095_text);
    AddLoadRows(in.LoadType, in.Q, in.P, in.A, in.B, LengthFactor::Twice);
}

void LayerRows(const ConsolidationRateInput& in) {
    AddParameter();
    AddParameter(300013_text);
    if (!in.Pressure) AddCoordinateRows(in.x, in.y, in.z);
    for (int i = 1; i <= in.NumLayers; ++i) {
        const std::string number = NumberToText(i);
        AddParameter(Text(40052_text) + " " + number, "h" + number, Session.Len1Label,
                     in.hLayer(i) * Session.Len1Factor, Session.FmtLength);
    }
}

void PermeabilityRow(const ConsolidationRateInput& in, int i) {
    AddParameter(10242_text, "k" + NumberToText(i), LabelOf(Unit::LengthPerTime),
                 in.KLayer(i) * FactorOf(Unit::LengthPerTime), Session.FmtPermeability);
}

void CvRow(const ConsolidationRateInput& in, int i) {
    AddParameter(10243_text, "Cv" + NumberToText(i), LabelOf(Unit::AreaPerTime),
                 in.CvLayer(i) * FactorOf(Unit::AreaPerTime), Session.FmtCv);
}

void SoilRows(const ConsolidationRateInput& in, Single c) {
    AddSection(140162_text);
    if (in.DrainageCondition == Drainage::BottomDrained) AddParameter(300011_text);
    if (in.DrainageCondition == Drainage::BottomImpermeable) AddParameter(300010_text);
    const Single Tv = TimeFactorOfLayer1(in.DrainageCondition, in.hLayer(1), in.CvLayer(1), in.T, c);
    AddParameter(300007_text, "Tc", in.TimeUnit, in.T, Session.FmtTime);
    AddParameter(400126_text, "Tv", "[-]", Tv, Session.FmtRatio);
    CvRow(in, 1);
    if (in.NumLayers == 2) {
        PermeabilityRow(in, 1);
        CvRow(in, 2);
        PermeabilityRow(in, 2);
    }
}

void IsochroneTable() {
    TableColumns(3, Session.IsoLast + 1, Text(300014_text));
    TableColumn(0, 13_text, Text(90000_text), "[-]");
    TableColumn(1, 300018_text, "z", Session.Len1Label);
    TableColumn(2, 300016_text, "u0", LabelOf(Unit::Pressure));
    TableColumn(3, 300017_text, "uf", LabelOf(Unit::Pressure));
    const double pressureFactor = FactorOf(Unit::Pressure);
    for (int m = 0; m <= Session.IsoLast; ++m) {
        Session.TableCells(m + 1, 0) = NumberToText(m);
        Session.TableCells(m + 1, 1) = FormatValue(Session.IsoZ(m) * Session.Len1Factor, Session.FmtLength);
        Session.TableCells(m + 1, 2) = FormatValue(Session.IsoU0(m) * pressureFactor, Session.FmtStress);
        Session.TableCells(m + 1, 3) = FormatValue(Session.IsoUf(m) * pressureFactor, Session.FmtStress);
    }
    ReportTable();
}

}  // namespace

Single TimeFactorOfLayer1(Integer drainageCondition, Single hLayer, Single CvLayer, Single T, Single c) {
    Single H = 0;
    if (drainageCondition == Drainage::BottomDrained) H = hLayer / 2;
    if (drainageCondition == Drainage::BottomImpermeable) H = hLayer;
    return Quotient(CvLayer * T * c, Square(H));
}

void WriteConsolidationRateReport(const ConsolidationRateInput& in, Single c) {
    ReportHeading();
    AddParameter(140187_text);
    AddParameter(Ruler());
    ReportParameters();
    AddParameter();
    InitialPressureRows(in);
    LayerRows(in);
    SoilRows(in, c);
    AddSection(140096_text);
    AddParameter(140187_text, "Uc", "[%]", Session.Uc, Session.FmtPercent);
    ReportParameters();
    ReportLines({Label{std::string{}}});
    IsochroneTable();
    ReportLines({Label{std::string{}}});
}

}  // namespace lithmark
