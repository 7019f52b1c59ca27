#include <vector>

#include "cli/Commands.h"
#include "cli/Documents.h"
#include "cli/Output.h"
#include "cli/RunFiles.h"
#include "contour/ChartReading.h"
#include "contour/ChartTable.h"
#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "kernels/RunProject.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "study/CsvText.h"

namespace lithmark {

namespace {

// Rows first..last of a table of texts, each of the columns 1 to the last.
Json TableJson(const Matrix<std::string>& table, int firstRow, int lastRow) {
    Json rows = Json::array();
    for (int r = firstRow; r <= lastRow; ++r) {
        Json row = Json::array();
        for (int c = 1; c <= table.UpperCol(); ++c) row.push_back(table(r, c));
        rows.push_back(row);
    }
    return rows;
}

Json ListFromOne(const Array<std::string>& items) {
    Json list = Json::array();
    for (int i = 1; i <= items.Upper(); ++i) list.push_back(items(i));
    return list;
}

const char* NameOf(LineStyle style) {
    switch (style) {
        case LineStyle::Points:
            return "Points";
        case LineStyle::LinesNoMarkers:
            return "LinesNoMarkers";
        case LineStyle::Solid:
            break;
    }
    return "Solid line";
}

std::string ChartJson(const ChartArguments& chart) {
    Json json = Json::object();
    json["curves"] = ToJson(chart.Curves);
    json["lastColumn"] = ToJson(chart.LastColumn);
    json["headerRows"] = ToJson(chart.HeaderRows);
    json["lastRow"] = ToJson(chart.LastRow);
    json["xTitle"] = chart.XTitle;
    json["yTitle"] = chart.YTitle;
    json["legends"] = ListFromOne(chart.Legends);
    json["tableTitle"] = chart.TableTitle;
    json["cells"] = TableJson(chart.Cells, 1, chart.LastRow);
    json["header"] = TableJson(chart.Header, 0, chart.HeaderRows);
    json["flag"] = chart.Flag;
    json["lineStyles"] = Json::array();
    for (int i = 1; i <= chart.LineStyles.Upper(); ++i) json["lineStyles"].push_back(NameOf(chart.LineStyles(i)));
    json["xStart"] = ToJson(chart.XStart);
    json["xEnd"] = ToJson(chart.XEnd);
    json["projectText"] = chart.ProjectText;
    json["chartTitle"] = chart.ChartTitle;
    return JsonText(json);
}

std::string ChartIn(const std::string& format, const ChartArguments& chart) {
    if (format == "json") return ChartJson(chart);
    if (format == "csv") return ChartCsv(chart);
    if (!Documents()) FailFormat(format);
    return Documents()->Chart(format, chart);
}

// The curve asked for, held against the problem: the fixed set of problem 5, the sets of the time-settlement problems,
// those of the rafts. Without one: the curve that the dialog would propose.
void ChooseCurve(const ChartOptions& chart) {
    const ProblemRow& problem = ProblemInForce();
    const auto fail = [](TextId text, const std::string& subject) {
        throw CommandFailure(ExitStatus::BadCommandLine, Text(text, {{"|1", subject}}));
    };
    if (!problem.Calculated || problem.Curves == CurveFamily::None)
        fail(902030_text, std::to_string(problem.ProblemType));
    const bool time = problem.Curves == CurveFamily::TimeSettlement, raft = problem.Curves == CurveFamily::MiddleRow;
    CurveRequest request;
    request.Set = CurveSetNamed(chart.Curve).value_or(raft ? CurveSet::ContactPressure : CurveSet::Load);
    if ((time && IsRaftCurve(request.Set)) || (raft && !IsRaftCurve(request.Set)) ||
        (request.Set == CurveSet::Corrected && !Session.Ms))
        fail(902031_text, CurveSetName(request.Set));
    if (chart.LoadUnit == "%") request.LoadUnit = CurveUnit::PerCent;
    if (chart.SettlementUnit == "%") request.SettlementUnit = CurveUnit::PerCent;
    RequestCurve(request);
}

}  // namespace

ExitStatus ChartCommand(const CommonOptions& options, const ChartOptions& chartOptions, ConsoleHost& host) {
    const std::string format = FormatInForce(options, kChartFormats);
    OpenProjectForRun(options);
    ChooseCurve(chartOptions);
    const RunFiles files(options.NoExport ? RunFiles::Where::Nowhere : RunFiles::Where::BesideProject);
    RunProject();
    if (Session.CalcAborted) throw CommandFailure(ExitStatus::Aborted, AbortedLine(host));
    ChartArguments chart;
    if (!UnderCommonStep([&] { chart = BuildChart(); })) throw CommandFailure(ExitStatus::Aborted, AbortedLine(host));
    chart.SettlementsDown = chartOptions.Downward && TurnOf(chart) != ChartTurn::None;
    WriteOutput(options.Output, ChartIn(format, chart));
    TellNotices(host);
    return ExitStatus::Done;
}

}  // namespace lithmark
