// The commands of lithmark-cli. Each returns its exit status or throws CommandFailure.
#pragma once

#include <string>
#include <vector>

#include "cli/Failures.h"
#include "cli/Json.h"
#include "cli/Project.h"

namespace lithmark {

ExitStatus NewCommand(const CommonOptions& options, int problem, ConsoleHost& host);
ExitStatus ShowCommand(const CommonOptions& options, ConsoleHost& host);

struct ReportOptions {
    bool Tables = false;     // with the tables for a check by hand
    bool NoNotices = false;  // documents without the box of notices
    bool Figures = false;    // documents with the curves and contour lines of the results
};
ExitStatus ReportCommand(const CommonOptions& options, const ReportOptions& report, ConsoleHost& host);

// What each command writes, its usual format first.
inline const std::vector<std::string> kShowFormats = {"txt", "json"};
inline const std::vector<std::string> kReportFormats = {"txt", "json", "html", "pdf", "rtf", "csv", "xlsx"};
inline const std::vector<std::string> kChartFormats = {"json", "csv", "svg", "png", "pdf", "xlsx"};
inline const std::vector<std::string> kContourFormats = {"json", "svg", "png", "pdf"};

struct ChartOptions {
    std::string Curve;           // "Tab1" to "Tab6"; empty: the dialog's first choice
    std::string LoadUnit;        // "%" or "force"
    std::string SettlementUnit;  // "%" or "length"
    bool Downward = false;       // settlements or depths point down
};
ExitStatus ChartCommand(const CommonOptions& options, const ChartOptions& chart, ConsoleHost& host);

struct ContourCommandOptions {
    std::string Result;   // "settlement" or "pressure"
    int Size = 0;         // pixels of the plot's side; 0: the format's own
    bool Field = false;   // as a field of values instead of ten classes
    std::string Section;  // "X1,Y1,X2,Y2" in metres, or "middle"; empty: none
};
ExitStatus ContourCommand(const CommonOptions& options, const ContourCommandOptions& contour, ConsoleHost& host);

// The results of the run by the names of their fields, for the problem that was run.
Json ResultsJson();
// The messages of a run, in order.
Json MessagesJson(const ConsoleHost& host);
// The notices of the last run: id and text.
Json NoticesJson();
// Its tables for a check by hand: title, columns, rows, sums, notes.
Json StepTablesJson();

}  // namespace lithmark
