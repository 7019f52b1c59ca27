#include "cli/StudyAnswers.h"

#include <algorithm>

#include "cli/Output.h"
#include "cli/StudySheet.h"
#include "services/texts/LanguageTexts.h"
#include "study/WorkerPool.h"

namespace lithmark {

std::string FormatOf(const CommonOptions& options, const std::vector<std::string>& formats) {
    std::string format = FormatInForce(options, formats);
    if (std::ranges::find(formats, format) == formats.end()) FailFormat(format);
    return format;
}

std::string PathOf(const CommonOptions& options) {
    return options.Output == "-" ? std::string() : options.Output;
}

ExitStatus StatusOf(const StudyTally& tally, const std::string& project) {
    if (tally.Missing > 0)
        throw CommandFailure(ExitStatus::Interrupted, Text(908065_text, {{"|1", project},
                                                                         {"|2", std::to_string(tally.Missing)},
                                                                         {"|3", std::to_string(tally.Rows)}}));
    if (tally.Aborted == 0) return ExitStatus::Done;
    const bool all = tally.Aborted == tally.Rows;
    throw CommandFailure(
        all ? ExitStatus::Aborted : ExitStatus::SomeAborted,
        Text(908066_text,
             {{"|1", std::to_string(tally.Aborted)}, {"|2", std::to_string(tally.Rows)}, {"|3", tally.FirstMessage}}));
}

void WriteTable(const std::string& path, const std::string& format, const TextTable& table) {
    WriteOutput(path, format == "csv"     ? table.Csv()
                      : format == "json"  ? table.Json()
                      : format == "jsonl" ? table.JsonLines()
                                          : SheetOf(table.Texts()));
}

int JobsOf(const StudyOptions& study) {
    return study.Jobs > 0 ? study.Jobs : WorkerPool::AllCores();
}

}  // namespace lithmark
