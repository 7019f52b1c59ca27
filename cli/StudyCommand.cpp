#include <algorithm>
#include <cmath>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "cli/Commands.h"
#include "cli/Output.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "study/OrderedRows.h"
#include "study/StudyFailure.h"
#ifdef LITHMARK_RENDER
#include "render/ChartDocument.h"
#endif

namespace lithmark {

namespace {

constexpr int kMostRuns = 1000000;

// One varied field and the values it takes, as texts for --set.
struct Variation {
    std::string Field;
    std::vector<std::string> Values;
};

// One calculation: the value of each varied field, and what came of it.
struct StudyRun {
    std::vector<std::string> Values;
    RowOutcome Outcome;
};

[[noreturn]] void FailCommandLine(TextId text, const std::string& subject) {
    throw CommandFailure(ExitStatus::BadCommandLine, Text(text, {{"|1", subject}}));
}

// FIELD=FROM:TO:STEP. The last value may miss TO by a billionth of a step.
Variation ReadVariation(const std::string& text) {
    const auto equals = text.find('=');
    if (equals == std::string::npos) FailCommandLine(902043_text, text);
    const std::vector<std::string> parts = Split(text.substr(equals + 1), ':');
    if (parts.size() != 3) FailCommandLine(902043_text, text);
    const auto from = ParseNumber(parts[0]), to = ParseNumber(parts[1]), step = ParseNumber(parts[2]);
    if (!from || !to || !step) FailCommandLine(902043_text, text);
    const double steps = *step == 0 ? (*from == *to ? 0 : -1) : (*to - *from) / *step;
    if (!(steps > -1e-9)) FailCommandLine(902044_text, text);
    if (steps > kMostRuns) FailCommandLine(902045_text, std::to_string(kMostRuns));

    Variation variation{text.substr(0, equals), {}};
    const auto count = static_cast<int>(std::floor(steps + 1e-9)) + 1;
    for (int i = 0; i < count; ++i) {
        // Fifteen digits: 0.1 three times is 0.3.
        const double value = *from + i * *step;
        variation.Values.push_back(FormatNumber(value, "0.00000000000000E+00"));
    }
    ApplySets({variation.Field + "=" + variation.Values.front()});
    for (std::string& value : variation.Values) value = NumberToText(*ParseNumber(value));
    return variation;
}

// All combinations; the last field varies fastest.
std::vector<StudyRun> Combinations(const std::vector<Variation>& variations) {
    std::size_t count = 1;
    for (const Variation& variation : variations) {
        count *= variation.Values.size();
        if (count > kMostRuns) FailCommandLine(902045_text, std::to_string(kMostRuns));
    }
    std::vector<StudyRun> runs(count);
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t rest = i, block = count;
        for (const Variation& variation : variations) {
            block /= variation.Values.size();
            runs[i].Values.push_back(variation.Values[rest / block]);
            rest %= block;
        }
    }
    return runs;
}

// What the table shows: as asked, or every result that is a single number.
std::vector<Take> TakesInForce(const StudyOptions& study) {
    if (study.Take.empty()) return SingleNumbers(Session.ProblemType);
    std::vector<Take> takes;
    for (const std::string& text : study.Take) {
        const auto take = ParseTake(Session.ProblemType, text);
        if (!take || take->What == Take::Kind::List) FailCommandLine(902046_text, text);
        takes.push_back(*take);
    }
    return takes;
}

float NumberOf(const StudyRun& run, std::size_t take) {
    return run.Outcome.Aborted ? kMissing : run.Outcome.Numbers[take];
}

// Head and rows as texts: the varied fields, the results, the status of each row.
std::vector<std::vector<std::string>> StudyTable(const std::vector<Variation>& variations,
                                                 const std::vector<Take>& takes, const std::vector<StudyRun>& runs) {
    std::vector<std::vector<std::string>> table(1);
    for (const Variation& variation : variations) table[0].push_back(variation.Field);
    for (const Take& take : takes) table[0].push_back(take.Name);
    table[0].push_back(Text(902048_text));
    for (const StudyRun& run : runs) {
        std::vector<std::string> row;
        for (const std::string& value : run.Values) row.push_back(JsonNumber(*ParseNumber(value)));
        for (std::size_t i = 0; i < takes.size(); ++i) {
            const float number = NumberOf(run, i);
            row.push_back(IsMissing(number) ? "" : JsonNumber(Single(number)));
        }
        const std::string message = run.Outcome.Message();
        row.push_back(run.Outcome.Aborted ? message : message.empty() ? "ok" : "ok: " + message);
        table.push_back(std::move(row));
    }
    return table;
}

std::string StudyCsv(const std::vector<std::vector<std::string>>& table) {
    std::string csv;
    for (const auto& row : table) {
        for (std::size_t i = 0; i < row.size(); ++i) csv += (i > 0 ? "," : "") + CsvCell(row[i]);
        csv += "\r\n";
    }
    return csv;
}

std::string StudyJson(const std::vector<Variation>& variations, const std::vector<Take>& takes,
                      const std::vector<StudyRun>& runs) {
    Json json = Json::object();
    json["vary"] = Json::array();
    for (const Variation& variation : variations) json["vary"].push_back(variation.Field);
    json["take"] = Json::array();
    for (const Take& take : takes) json["take"].push_back(take.Name);
    json["rows"] = Json::array();
    for (const StudyRun& run : runs) {
        Json row = Json::object();
        row["values"] = Json::array();
        for (const std::string& value : run.Values) row["values"].push_back(static_cast<float>(*ParseNumber(value)));
        row["results"] = Json::array();
        for (std::size_t i = 0; i < takes.size(); ++i) {
            const float number = NumberOf(run, i);
            row["results"].push_back(IsMissing(number) ? Json() : Json(number));
        }
        row["aborted"] = run.Outcome.Aborted;
        row["message"] = run.Outcome.Message();
        json["rows"].push_back(row);
    }
    return JsonText(json);
}

// Works all runs, in order; false when the user ended the study. Only the runs that are ready stay then.
bool Calculate(const std::vector<Variation>& variations, const std::vector<Take>& takes, std::vector<StudyRun>& runs) {
    WorkerPool pool(Session, takes, WorkerPool::AllCores());
    const auto count = static_cast<double>(runs.size());
    OrderedRows rows;
    rows.Count = runs.size();
    rows.Input = [&](std::uint64_t i) {
        RowInput input;
        for (std::size_t n = 0; n < variations.size(); ++n) input.push_back({variations[n].Field, runs[i].Values[n]});
        return input;
    };
    rows.Ready = [&](std::uint64_t i, const RowOutcome& outcome) { runs[i].Outcome = outcome; };
    rows.GoOn = [&](std::uint64_t done) { return CurrentHost().Progress(static_cast<double>(done) / count); };
    runs.resize(WorkInOrder(pool, rows));
    return runs.size() == rows.Count;
}

// A result that no run has gets no column.
void DropWhatNoRunHas(std::vector<Take>& takes, std::vector<StudyRun>& runs) {
    for (std::size_t i = takes.size(); i-- > 0;) {
        if (std::ranges::any_of(runs, [&](const StudyRun& run) { return !IsMissing(NumberOf(run, i)); })) continue;
        const auto at = static_cast<std::ptrdiff_t>(i);
        takes.erase(takes.begin() + at);
        for (StudyRun& run : runs)
            if (!run.Outcome.Aborted) run.Outcome.Numbers.erase(run.Outcome.Numbers.begin() + at);
    }
}

void WriteStudy(const CommonOptions& options, const std::string& format, const std::vector<Variation>& variations,
                const std::vector<Take>& takes, const std::vector<StudyRun>& runs) {
    if (format == "json") return WriteOutput(options.Output, StudyJson(variations, takes, runs));
    const auto table = StudyTable(variations, takes, runs);
    if (format == "csv") return WriteOutput(options.Output, StudyCsv(table));
#ifdef LITHMARK_RENDER
    if (format == "xlsx") return WriteOutput(options.Output, TableXlsx(Session.ProjectName, table));
#endif
    FailFormat(format);
}

}  // namespace

ExitStatus StudyCommand(const CommonOptions& options, const StudyOptions& study, ConsoleHost& host) {
    const std::string format = FormatInForce(options, kStudyFormats);
    host.EndOnTermination();
    OpenProjectForRun(options);
    const SessionRecord start = Session;  // the check of a variation sets its field
    std::vector<Variation> variations;
    for (const std::string& vary : study.Vary) variations.push_back(ReadVariation(vary));
    std::vector<StudyRun> runs = Combinations(variations);
    Session = start;
    std::vector<Take> takes = TakesInForce(study);
    const bool complete = Calculate(variations, takes, runs);
    if (study.Take.empty()) DropWhatNoRunHas(takes, runs);
    WriteStudy(options, format, variations, takes, runs);
    if (!complete) throw CommandFailure(ExitStatus::Interrupted, Text(902011_text, {{"|1", options.Project}}));
    return ExitStatus::Done;
}

}  // namespace lithmark
