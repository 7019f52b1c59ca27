#include "cli/Commands.h"
#include "cli/Output.h"
#include "core/Session.h"
#include "kernels/RunProject.h"
#include "services/texts/LanguageTexts.h"
#ifdef LITHMARK_RENDER
#include "render/ReportDocument.h"
#endif

namespace lithmark {

namespace {

std::string JsonReport(const ConsoleHost& host) {
    Json json = Json::object();
    json["project"] = Session.ProjectName;
    json["problem"] = static_cast<int>(Session.ProblemType);
    json["aborted"] = Session.CalcAborted;
    json["messages"] = MessagesJson(host);
    json["notices"] = NoticesJson();
    json["results"] = ResultsJson();
    json["report"] = Session.CalcAborted ? std::string() : Session.ResultText;
    return JsonText(json);
}

std::string ReportIn(const std::string& format) {
    if (format == "txt") return Session.ResultText;
#ifdef LITHMARK_RENDER
    if (format == "html") return ReportHtml(Session.ResultText);
    if (format == "pdf") return ReportPdf(Session.ResultText);
    if (format == "rtf") return ReportRtf(Session.ResultText);
#endif
    FailFormat(format);
}

}  // namespace

ExitStatus ReportCommand(const CommonOptions& options, ConsoleHost& host) {
    const std::string format = FormatInForce(options, kReportFormats);
    OpenProjectForRun(options);
    RunProject();
    if (format == "json") WriteOutput(options.Output, JsonReport(host));
    if (Session.CalcAborted) throw CommandFailure(ExitStatus::Aborted, AbortedLine(host));
    if (format != "json") WriteOutput(options.Output, ReportIn(format));
    TellNotices(host);
    return ExitStatus::Done;
}

}  // namespace lithmark
