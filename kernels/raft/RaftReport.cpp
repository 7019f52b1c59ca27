// The report of problems 9 and 10: data, middle row, all nodes. Both shapes of raft write the same; a circle has no row
// for the width, and its middle row runs along a diameter. Deliberate: the second eccentricity has
// no row.
#include "base/NumberText.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/Units.h"
#include "kernels/raft/RaftRun.h"
#include "report/ToolLib.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

bool IsDisplacement() {
    return Session.ProblemType == Problem::RaftDisplacement;
}

void AddLength(const Label& label, const std::string& symbol, double length) {
    AddParameter(label, symbol, Session.Len1Label, length * Session.Len1Factor, Session.FmtLength);
}

void AddStress(const Label& label, const std::string& symbol, double stress, const std::string& format) {
    AddParameter(label, symbol, LabelOf(Unit::Pressure), stress * FactorOf(Unit::Pressure), format);
}

void AddRatio(const Label& label, const std::string& symbol, double ratio) {
    AddParameter(label, symbol, "[-]", ratio, Session.FmtRatio);
}

void WriteTitles(const RaftInput& input) {
    AddParameter(ProblemInForce().MenuText);
    if (input.AnalysisType) {
        AddParameter(Text(300081_text) + " " + Text(300082_text));
        AddParameter(Text(300084_text) + " " + Text(input.SettlementAt ? 300086_text : 300085_text));
    } else {
        AddParameter(Text(300081_text) + " " + Text(300083_text));
    }
    AddParameter(Ruler());
    ReportParameters();
}

void WriteData(const RaftInput& input) {
    AddSection(140095_text);
    AddParameter(400186_text, "Q", Session.Force1Label, input.Q * Session.Force1Factor, Session.FmtForce);
    AddLength(300076_text, "e", input.Exz_x);
    if (Session.LoadType == LoadShape::Rectangle) {
        AddLength(400001_text, "a", input.A);
        AddLength(101_text, "b", input.B);
    }
    if (Session.LoadType == LoadShape::Circle) AddLength(400120_text, "a", input.A);
    if (!IsDisplacement()) AddLength(Text(90001_text, {{"|1", LanguageTexts().AxisName(Axis::Z)}}), "z", input.z);
    AddLength(40052_text, "h", input.h);

    AddSection(140162_text);
    if (IsDisplacement()) {
        AddStress(90029_text, "Es", input.Es, Session.FmtModulus);
        AddRatio(90004_text, "Nue_s", Session.Nue);
    } else if (input.SoilPropertyType == SoilDefinition::ByModulus) {
        AddStress(90029_text, "Es", input.Es, Session.FmtModulus);
    } else if (input.SoilPropertyType == SoilDefinition::ByCompressionIndex) {
        AddRatio(300004_text, "Cc", input.Cc);
        AddRatio(10175_text, "eo", input.eo);
        AddParameter(10244_text, "Gamma_c", LabelOf(Unit::UnitWeight), input.Gamma, Session.FmtUnitWeight);
        AddStress(120001_text, "Gamma*z", input.Po, Session.FmtStress);
    }
    AddParameter();
    ReportParameters();
}

void NumberRows() {
    for (int row = 1; row <= Session.TableLastRow; ++row) Session.TableCells(row, 0) = NumberToText(row);
}

void FillColumn(int column, const Array<Single>& values, double factor, const std::string& format) {
    for (int row = 1; row <= Session.TableLastRow; ++row)
        Session.TableCells(row, column) = FormatValue(values(row) * factor, format);
}

// Contact pressure, contact force and settlement along the middle row. Deliberate: the force takes the
// stress format.
void WriteMiddleRow(const RaftResult& result) {
    ReportSectionTitle("T1");
    TableColumns(4, Session.RaftMidCount,
                 Text(90098_text) + "/ " + Text(400122_text) + "/ " + Text(ProblemInForce().RaftSettlement));
    TableColumn(0, 13_text, Text(90000_text), "[-]");
    TableColumn(1, 400005_text, "x", Session.Len1Label);
    TableColumn(2, 90098_text, "q", LabelOf(Unit::Pressure));
    TableColumn(3, 400122_text, "f", Session.Force1Label);
    TableColumn(4, IsDisplacement() ? 90046_text : 40081_text, "s", Session.Len2Label);
    NumberRows();
    FillColumn(1, Session.RaftMidX, Session.Len1Factor, Session.FmtLength);
    FillColumn(2, Session.RaftMidPressure, FactorOf(Unit::Pressure), Session.FmtStress);
    FillColumn(3, result.MidForce, Session.Force1Factor, Session.FmtStress);
    FillColumn(4, Session.RaftMidSettlement, Session.Len2Factor, Session.FmtSettlement);
    ReportTable();
    Session.ResultText += kLineEnd;
}

void WriteAllNodes() {
    ReportSectionTitle("T2");
    TableColumns(4, Session.NodeX.Upper(), Text(90098_text) + "/ " + Text(ProblemInForce().RaftSettlement));
    TableColumn(0, 13_text, Text(90000_text), "[-]");
    TableColumn(1, 400005_text, "x", Session.Len1Label);
    TableColumn(2, 400005_text, "y", Session.Len1Label);
    TableColumn(3, 90098_text, "q", LabelOf(Unit::Pressure));
    TableColumn(4, IsDisplacement() ? 90046_text : 40081_text, "s_NL", Session.Len2Label);
    NumberRows();
    FillColumn(1, Session.NodeX, Session.Len1Factor, Session.FmtLength);
    FillColumn(2, Session.NodeY, Session.Len1Factor, Session.FmtLength);
    FillColumn(3, Session.NodePressure, FactorOf(Unit::Pressure), Session.FmtStress);
    FillColumn(4, Session.NodeSettlement, Session.Len2Factor, Session.FmtSettlement);
    ReportTable();
    Session.ResultText += kLineEnd;
}

}  // namespace

void WriteRaftReport(const RaftResult& result) {
    ReportHeading();
    WriteTitles(result.Input);
    WriteData(result.Input);
    WriteMiddleRow(result);
    WriteAllNodes();
}

}  // namespace lithmark
