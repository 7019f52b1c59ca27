// The report of problems 6, 7 and 8.
//
// Deliberate: settlements of the parameter block and the thicknesses carry the labels of the units in force but no
// factor, those of the tables have both.

#include <string>

#include "base/NumberText.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/Units.h"
#include "kernels/timesettlement/TimeSettlementRun.h"
#include "report/ToolLib.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

std::string RowNumber(int number) {
    return NumberToText(number);
}

std::string PercentText(double percent) {
    return FormatValue(percent, Session.FmtPercent);
}

std::string ForceText(double force) {
    return FormatValue(force * Session.Force1Factor, Session.FmtForce);
}

std::string SettlementText(double settlement) {
    return FormatValue(settlement * Session.Len2Factor, Session.FmtSettlement);
}

void TitleRows() {
    AddParameter(Text(300034_text) + " " + Text(300058_text));
    AddParameter(ProblemInForce().Subject);
    AddParameter(Ruler());
    ReportParameters();
}

void MeasurementRows() {
    const std::string measured = " " + NumberToText(static_cast<int>(Session.DesignCode)) + " ";
    AddParameter();
    AddParameter(Text(300065_text) + measured + Text(300066_text), "Sm", Session.Len2Label, Session.Sm,
                 Session.FmtSettlement);
    AddParameter(Text(300063_text) + measured + Text(300064_text), "Sz", Session.Len2Label,
                 Session.SettlementSum(Session.DesignCode + 1), Session.FmtSettlement);
    if (Session.MeasureFactor != 0) {
        AddParameter(300059_text, "f", "[-]", Session.MeasureFactor, Session.FmtRatio);
        AddParameter(300055_text, "Sr", Session.Len2Label, Session.Sc * Session.MeasureFactor, Session.FmtSettlement);
    }
}

void OedometerRows() {
    AddParameter();
    AddParameter(300035_text, "Hm", Session.Len1Label, Session.Hm);
    AddParameter(300060_text, "Sm", Session.MeasuredUnit, Session.OedSettlement(Session.NOed));
    AddParameter(300061_text, "Tm", Text(76_text), Session.OedTime(Session.NOed), Session.FmtTime);
    AddParameter(300025_text, "Hb", Session.Len1Label, Session.h);
}

void CvRow() {
    AddParameter(10243_text, "Cv", LabelOf(Unit::AreaPerTime), Session.CvTS * FactorOf(Unit::AreaPerTime),
                 Session.FmtCv);
}

void TheoryRows(const TimeSettlementRun& run) {
    const std::string pressureUnit = LabelOf(Unit::Pressure);
    const double pressureFactor = FactorOf(Unit::Pressure);
    AddParameter();
    AddParameter(300025_text, "Hb", Session.Len1Label, Session.h);
    if (Session.CvChoice == CvFrom::SoilData) {
        AddParameter(10242_text, "k", LabelOf(Unit::LengthPerTime), Session.kf * FactorOf(Unit::LengthPerTime),
                     Session.FmtPermeability);
        AddParameter(90152_text, "Es", pressureUnit, Session.EsTS * pressureFactor, Session.FmtModulus);
        AddParameter(90153_text, "Ws", pressureUnit, Session.Ws * pressureFactor, Session.FmtModulus);
        AddParameter(300023_text, "qv", pressureUnit, Session.qv * pressureFactor, Session.FmtStress);
        AddParameter(300024_text, "qe", pressureUnit, Session.qe * pressureFactor, Session.FmtStress);
        AddParameter(300057_text, "Est", pressureUnit, run.EstMix * pressureFactor, Session.FmtModulus);
        // Deliberate: told among the data that it comes from and once more as a result.
        CvRow();
    }
    CvRow();
}

void ParameterBlock(const TimeSettlementRun& run) {
    TitleRows();
    AddParameter();
    AddParameter(Text(300051_text) + " " + Session.StartDate);
    AddParameter(300026_text, "Pt", Session.Force1Label, Session.Pt * Session.Force1Factor, Session.FmtForce);
    AddParameter(400124_text, "Sc", Session.Len2Label, Session.Sc, Session.FmtSettlement);
    if (Session.Ms) MeasurementRows();
    if (Session.ProblemType == Problem::TimeOedometer) OedometerRows();
    if (Session.ProblemType == Problem::TimeTheory) TheoryRows(run);
    AddParameter();
    AddParameter(300062_text, "Tb", Session.TimeUnit, Session.ConsolidationEnd, Session.FmtTime);
    AddParameter();
    ReportParameters();
}

// Sets up a table of rows 1 to `rows` with the time in column 0 and, when asked for, remarks in the last column.
void BeginTable(const std::string& number, TextId title, int lastColumn, int rows, bool remarks) {
    ReportSectionTitle(number);
    TableColumns(lastColumn, rows, Text(title));
    TableColumn(0, 10247_text, "t", Session.TimeUnit);
    if (remarks) TableColumn(lastColumn, " ", " ", " ");
}

void EndTable() {
    ReportTable();
    ReportLines({Label{std::string{}}});
}

void LoadTable(const TimeSettlementRun& run) {
    const int rows = Session.TimePeriod;
    BeginTable("T1", 400125_text, 3, rows, true);
    TableColumn(1, 40087_text, "El", "[%]");
    TableColumn(2, 40087_text, "Ex", Session.Force1Label);
    for (int j = 1; j <= rows; ++j) {
        Session.TableCells(j, 0) = RowNumber(j);
        Session.TableCells(j, 1) = PercentText(Session.LoadCurve(j));
        Session.TableCells(j, 2) = ForceText(run.LoadForce(j));
        Session.TableCells(j, 3) = run.LoadMark(j);
    }
    EndTable();
}

void DirectCurveTable() {
    const int rows = Session.TimePeriod;
    BeginTable("T2", 300052_text, 3, rows, true);
    TableColumn(0, Text(10247_text), "t", Session.TimeUnit);
    TableColumn(1, Text(40081_text), "Sts", "[%]");
    TableColumn(2, 40081_text, "Setn", Session.Len2Label);
    for (int j = 1; j <= rows; ++j) {
        Session.TableCells(j, 0) = RowNumber(j);
        Session.TableCells(j, 1) = PercentText(Session.SuddenPercent(j));
        Session.TableCells(j, 2) = SettlementText(Session.SuddenSettlement(j));
        Session.TableCells(j, 3) = " ";
    }
    Session.TableCells(rows, 3) = Text(300073_text);
    EndTable();
}

// Column "Stm" holds the reading with the row's number, not a value at the row's time.
void OedometerTable(const TimeSettlementRun& run) {
    const int rows = Session.TimePeriod;
    BeginTable("T2", 300052_text, 4, rows, true);
    TableColumn(1, 40081_text, "Stm", "[%]");
    TableColumn(2, 40081_text, "Sts", "[%]");
    TableColumn(3, 40081_text, "Setn", Session.Len2Label);
    for (int j = 1; j <= rows; ++j) {
        Session.TableCells(j, 0) = RowNumber(j);
        Session.TableCells(j, 1) = PercentText(run.CurvePercent(j));
        Session.TableCells(j, 2) = PercentText(Session.SuddenPercent(j));
        Session.TableCells(j, 3) = SettlementText(Session.SuddenSettlement(j));
        Session.TableCells(j, 4) = " ";
    }
    Session.TableCells(rows, 4) = Text(300073_text);
    EndTable();
}

void TheoryTable(const TimeSettlementRun& run) {
    const int rows = Session.TimePeriod;
    BeginTable("T2", 300089_text, 5, rows, true);
    TableColumn(1, 300068_text, "Uu", "[-]");
    TableColumn(2, 400126_text, "Tv", "[-]");
    TableColumn(3, 300069_text, "Uc", "[%]");
    TableColumn(4, 40081_text, "Setn", Session.Len2Label);
    bool finishTold = false;
    for (int j = 1; j <= rows; ++j) {
        Session.TableCells(j, 0) = RowNumber(j);
        Session.TableCells(j, 1) = FormatValue(run.FormulaCase(j), "");
        Session.TableCells(j, 2) = FormatValue(run.TimeFactor(j), Session.FmtRatio);
        Session.TableCells(j, 3) = PercentText(run.DegreeU(j) * 100);
        Session.TableCells(j, 4) = SettlementText(Session.SuddenSettlement(j));
        const bool finishRow = !finishTold && run.DegreeU(j) >= kFinished;
        Session.TableCells(j, 5) = finishRow ? Text(300073_text) : " ";
        finishTold = finishTold || finishRow;
    }
    EndTable();
}

// T3, the settlement of the building, and T4, the same corrected by the measurement. Row j is the time j - 1.
void SettlementTable(const TimeSettlementRun& run, const std::string& number, TextId title, bool corrected) {
    const int rows = Session.TimePeriod + 1;
    BeginTable(number, title, corrected ? 4 : 3, rows, corrected);
    TableColumn(1, 300053_text, "EL", "[%]");
    TableColumn(2, 40087_text, "Ex", Session.Force1Label);
    TableColumn(3, 40081_text, "Zse", Session.Len2Label);
    for (int j = 1; j <= rows; ++j) {
        Session.TableCells(j, 0) = RowNumber(j - 1);
        Session.TableCells(j, 1) = PercentText(Session.LoadCurve(j));
        Session.TableCells(j, 2) = ForceText(run.LoadForce(j));
        const double settlement = Session.SettlementSum(j) * Session.Len2Factor;
        Session.TableCells(j, 3) =
            FormatValue(corrected ? settlement * Session.MeasureFactor : settlement, Session.FmtSettlement);
        if (corrected) Session.TableCells(j, 4) = run.MeasureMark(j);
    }
    EndTable();
}

}  // namespace

void WriteTimeSettlementReport(const TimeSettlementRun& run) {
    ReportHeading();
    ParameterBlock(run);
    LoadTable(run);
    switch (Session.ProblemType) {
        case Problem::TimeDirect:
            DirectCurveTable();
            break;
        case Problem::TimeOedometer:
            OedometerTable(run);
            break;
        case Problem::TimeTheory:
            TheoryTable(run);
            break;
        default:
            break;
    }
    SettlementTable(run, "T3", 300034_text, false);
    if (Session.Ms) SettlementTable(run, "T4", 300054_text, true);
}

}  // namespace lithmark
