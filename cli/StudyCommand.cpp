#include "cli/StudyCommand.h"

#include <csignal>
#include <filesystem>
#include <memory>

#include "base/NumberText.h"
#include "cli/Output.h"
#include "cli/StudySheet.h"
#include "core/Session.h"
#include "files/ProblemData.h"
#include "services/SharedServices.h"
#include "study/StudyFailure.h"
#include "study/StudyIdentity.h"
#include "study/StudyJoin.h"
#include "study/StudyRun.h"
#include "study/StudyTakes.h"
#include "study/WorkerPool.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailCommandLine(TextId text, const std::string& subject = {}) {
    throw CommandFailure(ExitStatus::BadCommandLine, Text(text, {{"|1", subject}}));
}

// Options that contradict each other.
void CheckOptions(const StudyOptions& study) {
    const StudyRequest& request = study.Request;
    const bool rows =
        !request.Vary.empty() || !request.Rows.empty() || !request.Cases.empty() || !request.Random.empty();
    if (!rows) FailCommandLine(908060_text);
    const auto apart = [](bool one, bool other, const char* names) {
        if (one && other) FailCommandLine(908061_text, names);
    };
    apart(!study.Join.empty(), !study.Shard.empty(), "--join, --shard");
    apart(!study.Join.empty(), !study.Resume.empty(), "--join, --resume");
    const auto needs = [](bool one, bool other, const char* names) {
        if (one && !other) FailCommandLine(908062_text, names);
    };
    needs(study.RetryAborted, !study.Resume.empty(), "--retry-aborted, --resume");
    needs(!request.Correlate.empty(), !request.Random.empty(), "--correlate, --random");
    needs(!study.Design.empty(), !request.Random.empty(), "--design, --random");
}

void Tell(const std::string& text) {
    SharedServices().ShowMessageBox(Text(160030_text), text, MessageIcon::Information);
}

// What a user should know of the rows before they are worked.
void TellOfPlan(const StudyRequest& request, const StudyPlan& plan) {
    if (plan.Samples() && plan.Samples()->Count() != request.Samples)
        Tell(Text(908063_text, {{"|1", std::to_string(plan.Samples()->Count())}}));
    for (const StudyField& field : plan.Fields())
        if (!IsFieldOfProblem(field.Name)) Tell(Text(908064_text, {{"|1", field.Name}}));
}

std::string OutputOf(const CommonOptions& options, const StudyOptions& study) {
    if (options.Output == "-") return {};
    return options.Output.empty() ? study.Resume : options.Output;
}

std::unique_ptr<RowWriter> WriterOf(const CommonOptions& options, const std::string& output, const StudyHead& head,
                                    std::uint64_t rows) {
    CommonOptions asked = options;
    asked.Output = output;
    const std::string format = FormatInForce(asked, kStudyFormats);
    if (format == "xlsx") return SheetWriter(output, head, rows);
    const RowFormat rowFormat = format == "csv"    ? RowFormat::Csv
                                : format == "json" ? RowFormat::Json
                                                   : RowFormat::JsonLines;
    return std::make_unique<TextRowWriter>(output, rowFormat, head);
}

// How the study as a whole came out.
ExitStatus StatusOf(const StudyTally& tally, const StudyOptions& study, const std::string& project) {
    if (tally.Missing > 0)
        throw CommandFailure(ExitStatus::Interrupted, Text(908065_text, {{"|1", project},
                                                                         {"|2", std::to_string(tally.Missing)},
                                                                         {"|3", std::to_string(tally.Rows)}}));
    if (tally.Aborted == 0 || !study.Shard.empty()) return ExitStatus::Done;
    const bool all = tally.Aborted == tally.Rows;
    throw CommandFailure(
        all ? ExitStatus::Aborted : ExitStatus::SomeAborted,
        Text(908066_text,
             {{"|1", std::to_string(tally.Aborted)}, {"|2", std::to_string(tally.Rows)}, {"|3", tally.FirstMessage}}));
}

}  // namespace

ExitStatus StudyCommand(const CommonOptions& options, const StudyOptions& study, ConsoleHost& host) {
    CheckOptions(study);
    std::signal(SIGPIPE, SIG_IGN);  // an output that nobody reads any more is a failed write
    OpenProjectForRun(options);
    host.EndOnTermination();

    StudyRequest request = study.Request;
    request.Sobol = study.Design == "sobol";
    const StudyPlan plan(request);
    TellOfPlan(request, plan);
    const std::vector<ResultLimit> limits = LimitsOf(request);
    const std::string output = OutputOf(options, study);
    if (!study.Resume.empty() && study.Resume != output && !fs::exists(study.Resume))
        throw CommandFailure(ExitStatus::FileTrouble, Text(902005_text, {{"|1", study.Resume}}));
    StudyHead head{!plan.Cases().empty(), plan.Fields(), TakesOf(request), {}};
    head.Study = StudyIdentity(request, plan, head.Takes);

    StudyRun run(plan, head);
    if (!study.Shard.empty()) run.Part = Shard::Parse(study.Shard);
    run.Resume = study.Resume;
    run.RetryAborted = study.RetryAborted;
    run.Jobs = study.Jobs > 0 ? study.Jobs : WorkerPool::AllCores();
    run.GoOn = [](double part) { return CurrentHost().Progress(part); };
    const auto writer = WriterOf(options, output, head, run.Part.Count(plan.Count()));
    host.PrintMessages();
    const StudyTally tally =
        study.Join.empty() ? run.Work(*writer) : JoinParts(plan, head, study.Join, *writer, run.Seen);
    return StatusOf(tally, study, options.Project);
}

}  // namespace lithmark
