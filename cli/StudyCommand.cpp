#include "cli/StudyCommand.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

#include "base/NumberText.h"
#include "base/Paths.h"
#include "cli/Output.h"
#include "cli/StudyAnswers.h"
#include "cli/StudySheet.h"
#include "core/Session.h"
#include "files/ProblemData.h"
#include "services/SharedServices.h"
#include "services/platform/Process.h"
#include "study/StudyFailure.h"
#include "study/StudyIdentity.h"
#include "study/StudyJoin.h"
#include "study/StudyRun.h"
#include "study/StudySummary.h"
#include "study/StudyTakes.h"
#include "study/Worker.h"

namespace lithmark {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailCommandLine(TextId text, const std::string& subject = {}) {
    throw CommandFailure(ExitStatus::BadCommandLine, Text(text, {{"|1", subject}}));
}

// Options that contradict each other.
void CheckOptions(const StudyOptions& study) {
    const StudyRequest& request = study.Request;
    const bool random = !request.Random.empty(), vary = !request.Vary.empty(), find = !study.Find.empty();
    if (!random && !vary && request.Rows.empty() && request.Cases.empty() && !find) FailCommandLine(908060_text);
    const bool shard = !study.Shard.empty(), join = !study.Join.empty(), resume = !study.Resume.empty();
    const bool summary = !study.Summary.empty(), share = !study.Share.empty();
    struct Pair {
        bool One, Other;
        const char* Names;
    };
    for (const Pair& pair : {Pair{join, shard, "--join, --shard"},
                             {join, resume, "--join, --resume"},
                             {summary, shard, "--summary, --shard"},
                             {summary, study.Tornado, "--summary, --tornado"},
                             {summary, find, "--summary, --find"},
                             {study.Tornado, find, "--tornado, --find"},
                             {study.Tornado, !request.Rows.empty(), "--tornado, --rows"},
                             {study.Tornado, shard, "--tornado, --shard"},
                             {study.Tornado, join, "--tornado, --join"},
                             {study.Tornado, resume, "--tornado, --resume"},
                             {find, shard, "--find, --shard"},
                             {find, join, "--find, --join"},
                             {find, resume, "--find, --resume"},
                             {share, !request.Take.empty(), "--share, --take"}})
        if (pair.One && pair.Other) FailCommandLine(908061_text, pair.Names);
    for (const Pair& pair : {Pair{study.RetryAborted, resume, "--retry-aborted, --resume"},
                             {!request.Correlate.empty(), random, "--correlate, --random"},
                             {!study.Design.empty(), random, "--design, --random"},
                             {study.Tornado, random || vary, "--tornado, --random/--vary"},
                             {share, find, "--share, --find"},
                             {share, random, "--share, --random"}})
        if (pair.One && !pair.Other) FailCommandLine(908062_text, pair.Names);
    if (find && request.Limit.size() != 1) FailCommandLine(908307_text);
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
    const std::string format = FormatOf(asked, {"csv", "json", "jsonl", "xlsx"});
    if (format == "xlsx") return SheetWriter(output, head, rows);
    const RowFormat rowFormat = format == "csv"    ? RowFormat::Csv
                                : format == "json" ? RowFormat::JsonList
                                                   : RowFormat::JsonLines;
    return std::make_unique<TextRowWriter>(output, rowFormat, head);
}

// Where the summary goes and in which format.
struct SummaryFile {
    std::string Path, Format;
};

SummaryFile SummaryFileOf(const CommonOptions& options, const StudyOptions& study, const std::string& output) {
    CommonOptions asked = options;
    asked.Output = study.Summary == "-" ? std::string() : study.Summary;
    asked.Format.clear();
    SummaryFile file{asked.Output, FormatInForce(asked, {"csv", "json", "jsonl", "xlsx"})};
    std::error_code error;
    const fs::path folder = PathOf(file.Path).parent_path();
    if (!folder.empty() && !fs::is_directory(folder, error))
        throw CommandFailure(ExitStatus::FileTrouble, Text(902003_text, {{"|1", folder.generic_string()}}));
    if (file.Path == output || fs::equivalent(PathOf(file.Path), PathOf(output), error))
        FailCommandLine(908061_text, "--summary, --output");
    RefuseProjectFile(file.Path);
    return file;
}

// What a study reads is not what it writes: a table of rows would be gone, and a part of a study that is summed up.
void RefuseInputs(const StudyOptions& study, const std::string& output) {
    const auto refuse = [](const std::string& read, const std::string& written, const char* names) {
        std::error_code error;
        if (!read.empty() && !written.empty() && fs::equivalent(PathOf(read), PathOf(written), error))
            FailCommandLine(908061_text, names);
    };
    refuse(study.Request.Rows, output, "--rows, --output");
    refuse(study.Request.Rows, study.Summary, "--rows, --summary");
    for (const std::string& part : study.Join) refuse(part, study.Summary, "--join, --summary");
}

// A document or picture is handed over before the project is opened, which might be packed.
void HandOverEarly(const CommonOptions& options, const StudyOptions& study) {
    CommonOptions asked = options;
    asked.Output = OutputOf(options, study);
    FormatInForce(asked, kStudyFormats);
    if (study.Summary.empty() || study.Summary == "-") return;
    asked.Output = study.Summary;
    asked.Format.clear();
    FormatInForce(asked, kStudyFormats);
}

}  // namespace

ExitStatus StudyCommand(const CommonOptions& options, const StudyOptions& study, ConsoleHost& host) {
    CheckOptions(study);
    HandOverEarly(options, study);
    platform::FailOnBrokenPipe();  // an output that nobody reads any more is a failed write
    RefuseInputs(study, OutputOf(options, study));
    OpenProjectForRun(options);
    WorkIfStartedAnew();
    host.EndOnTermination();

    StudyRequest request = study.Request;
    request.Sobol = study.Design == "sobol";
    const StudyPlan plan(request);
    TellOfPlan(request, plan);
    if (study.Tornado) return AnswerTornado(options, study, plan, host);
    if (!study.Find.empty()) return AnswerFind(options, study, plan, host);
    const std::vector<ResultLimit> limits = LimitsOf(request);
    const std::string output = OutputOf(options, study);
    if (!study.Resume.empty() && study.Resume != output && !fs::exists(PathOf(study.Resume)))
        throw CommandFailure(ExitStatus::FileTrouble, Text(902005_text, {{"|1", study.Resume}}));
    StudyHead head{!plan.Cases().empty(), plan.Fields(), TakesOf(request), {}};
    head.Study = StudyIdentity(plan, head.Takes, limits);

    StudyRun run(plan, head);
    if (!study.Shard.empty()) run.Part = Shard::Parse(study.Shard);
    run.Resume = study.Resume;
    run.RetryAborted = study.RetryAborted;
    run.Jobs = JobsOf(study);
    std::optional<SummaryFile> summaryFile;
    if (!study.Summary.empty()) summaryFile = SummaryFileOf(options, study, output);
    StudySummary summary(plan, head, limits);
    if (summaryFile) run.Seen = [&](const StudyLine& line) { summary.Add(line); };
    run.GoOn = [](double part) { return CurrentHost().Progress(part); };
    const auto writer = WriterOf(options, output, head, run.Part.Count(plan.Count()));
    host.PrintMessages();
    const StudyTally tally =
        study.Join.empty() ? run.Work(*writer) : JoinParts(plan, head, study.Join, *writer, run.Seen);
    if (summaryFile && tally.Missing == 0) WriteTable(summaryFile->Path, summaryFile->Format, summary.Table());
    // A shard is done once its rows are worked, whatever came of them.
    if (tally.Missing == 0 && !study.Shard.empty()) return ExitStatus::Done;
    return StatusOf(tally, options.Project);
}

}  // namespace lithmark
