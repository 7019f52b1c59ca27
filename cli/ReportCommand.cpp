#include "cli/Commands.h"
#include "cli/Documents.h"
#include "cli/Output.h"
#include "cli/RunFiles.h"
#include "core/Session.h"
#include "kernels/RunProject.h"
#include "report/AfterReport.h"
#include "report/StepTables.h"
#include "report/StepTablesCsv.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

std::string JsonReport(const ReportOptions& report, const ConsoleHost& host) {
    Json json = Json::object();
    json["project"] = Session.ProjectName;
    json["problem"] = static_cast<int>(Session.ProblemType);
    json["aborted"] = Session.CalcAborted;
    json["messages"] = MessagesJson(host);
    json["notices"] = NoticesJson();
    json["results"] = ResultsJson();
    json["report"] = Session.CalcAborted ? std::string() : Session.ResultText;
    if (report.Tables) json["tables"] = StepTablesJson();
    return JsonText(json);
}

std::string ReportIn(const std::string& format, const ReportOptions& report) {
    if (format == "csv") return StepTablesCsv(Steps().Tables());
    if (format == "txt") return ReportWith({.Notices = false, .Tables = report.Tables});
    if (!Documents()) FailFormat(format);
    if (format == "xlsx") return Documents()->StepTables(Steps().Tables());
    const std::string text = ReportWith({.Notices = !report.NoNotices, .Tables = report.Tables});
    return Documents()->Report(format, text, report.Figures);
}

}  // namespace

ExitStatus ReportCommand(const CommonOptions& options, const ReportOptions& report, ConsoleHost& host) {
    const std::string format = FormatInForce(options, kReportFormats);
    if (!report.Tables && (format == "csv" || format == "xlsx"))
        throw CommandFailure(ExitStatus::BadCommandLine, Text(907259_text, {{"|1", format}}));
    const bool document = format == "html" || format == "pdf" || format == "rtf";
    if (report.Figures && !document)
        throw CommandFailure(ExitStatus::BadCommandLine, Text(911004_text, {{"|1", format}}));
    OpenProjectForRun(options);
    Steps().SwitchOn(report.Tables);
    // Contour lines among the figures are drawn from the files of the run.
    const RunFiles::Where without = report.Figures ? RunFiles::Where::Aside : RunFiles::Where::Nowhere;
    const RunFiles files(options.NoExport ? without : RunFiles::Where::BesideProject);
    RunProject();
    if (format == "json") WriteOutput(options.Output, JsonReport(report, host));
    if (Session.CalcAborted) throw CommandFailure(ExitStatus::Aborted, AbortedLine(host));
    if (format != "json") WriteOutput(options.Output, ReportIn(format, report));
    TellNotices(host);
    return ExitStatus::Done;
}

}  // namespace lithmark
