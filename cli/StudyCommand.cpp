#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <optional>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "cli/Commands.h"
#include "cli/Output.h"
#include "cli/Workers.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "files/GloableVariable.h"
#include "services/SharedServices.h"
#ifdef LITHMARK_RENDER
#include "render/ChartDocument.h"
#endif

namespace lithmark {

namespace {

namespace fs = std::filesystem;

constexpr int kMostRuns = 1000000;

// One varied field and the values it takes, as texts for --set.
struct Variation {
    std::string Field;
    std::vector<std::string> Values;
};

// One calculation: the value of each varied field, and what came of it.
struct StudyRun {
    std::vector<std::string> Values;
    bool Aborted = true;
    std::string Message;
    Json Results = Json::object();
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

// A folder of its own for each calculation, since a raft run writes files beside its project. Gone at the end.
class ScratchProject {
  public:
    ScratchProject() {
        std::string name = (fs::temp_directory_path() / "lithmark-study-XXXXXX").string();
        if (!mkdtemp(name.data())) throw CommandFailure(ExitStatus::FileTrouble, Text(902003_text, {{"|1", name}}));
        dir_ = name;
    }
    ~ScratchProject() {
        std::error_code ignored;
        fs::remove_all(dir_, ignored);
    }
    ScratchProject(const ScratchProject&) = delete;
    ScratchProject& operator=(const ScratchProject&) = delete;

    // Copies what a calculation reads and gives the copy's project file.
    std::string Copy(const std::vector<fs::path>& files) const {
        for (const fs::path& file : files) fs::copy_file(file, dir_ / file.filename());
        return (dir_ / files.front().filename()).string();
    }

  private:
    fs::path dir_;
};

// The project's files that a calculation reads, the project file first. Found once, ahead of the calculations: the
// services that know the files' names belong to one thread.
std::vector<fs::path> FilesOfProject() {
    std::vector<fs::path> files;
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    for (const std::string& extension : {std::string("PO3"), std::string("AUF"), std::string(problem->Extension)}) {
        const fs::path file = DataFileName(Session.DataDir, Session.ProjectName, extension);
        if (fs::exists(file)) files.push_back(file);
    }
    return files;
}

void Calculate(const CommonOptions& options, const std::vector<fs::path>& files,
               const std::vector<Variation>& variations, StudyRun& run) {
    const ScratchProject scratch;
    std::vector<std::string> arguments = {"report", scratch.Copy(files), "--format",
                                          "json",   "--settings",        Session.ProgramDir};
    if (!options.Lang.empty()) arguments.insert(arguments.end(), {"--lang", options.Lang});
    const auto set = [&](const std::string& pair) {
        arguments.emplace_back("--set");
        arguments.push_back(pair);
    };
    for (const std::string& pair : options.Sets) set(pair);
    for (std::size_t i = 0; i < variations.size(); ++i) set(variations[i].Field + "=" + run.Values[i]);
    const WorkerResult worker = RunWorker(arguments);
    const Json report = Json::parse(worker.Output, nullptr, false);
    if (report.is_discarded()) {
        run.Message = worker.ExitStatus < 0 ? Text(902047_text) : Trim(ReplaceAll(worker.Errors, "\n", " "));
        return;
    }
    run.Aborted = report["aborted"];
    run.Results = report["results"];
    if (!report["messages"].empty()) {
        run.Message = report["messages"].back()["text"].get<std::string>();
        run.Message = OneLine(run.Message);
    }
}

// The number that "name", "name(i)", "max(name)" or "min(name)" names in a run's results.
std::optional<float> TakeResult(const Json& results, const std::string& take) {
    const auto open = take.find('(');
    if (open == std::string::npos || take.back() != ')') {
        const auto found = results.find(take);
        if (found == results.end() || !found->is_number()) return std::nullopt;
        return found->get<float>();
    }
    const std::string before = take.substr(0, open), inside = take.substr(open + 1, take.size() - open - 2);
    const bool greatest = before == "max", least = before == "min";
    const auto found = results.find(greatest || least ? inside : before);
    if (found == results.end() || !found->is_array() || found->empty()) return std::nullopt;
    const auto values = found->get<std::vector<float>>();
    if (greatest) return *std::max_element(values.begin(), values.end());
    if (least) return *std::min_element(values.begin(), values.end());
    const auto index = ParseNumber(inside);
    // Node and middle-row arrays count from 1, the others from 0.
    const double lower = before.starts_with("Node") || before.starts_with("RaftMid") ? 1 : 0;
    if (!index || *index != std::floor(*index) || *index < lower ||
        *index - lower >= static_cast<double>(values.size()))
        return std::nullopt;
    return values[static_cast<std::size_t>(*index - lower)];
}

// What the table shows: as asked, or every result that is a single number.
std::vector<std::string> TakesInForce(const StudyOptions& study, const std::vector<StudyRun>& runs) {
    const auto done = std::find_if(runs.begin(), runs.end(), [](const StudyRun& run) { return !run.Aborted; });
    if (!study.Take.empty()) {
        if (done != runs.end())
            for (const std::string& take : study.Take)
                if (!TakeResult(done->Results, take)) FailCommandLine(902046_text, take);
        return study.Take;
    }
    std::vector<std::string> takes;
    if (done != runs.end())
        for (const auto& [name, value] : done->Results.items())
            if (value.is_number()) takes.push_back(name);
    return takes;
}

// Head and rows as texts: the varied fields, the results, the status of each row.
std::vector<std::vector<std::string>> StudyTable(const std::vector<Variation>& variations,
                                                 const std::vector<std::string>& takes,
                                                 const std::vector<StudyRun>& runs) {
    std::vector<std::vector<std::string>> table(1);
    for (const Variation& variation : variations) table[0].push_back(variation.Field);
    table[0].insert(table[0].end(), takes.begin(), takes.end());
    table[0].push_back(Text(902048_text));
    for (const StudyRun& run : runs) {
        std::vector<std::string> row;
        for (const std::string& value : run.Values) row.push_back(JsonNumber(*ParseNumber(value)));
        for (const std::string& take : takes) {
            const auto result = run.Aborted ? std::nullopt : TakeResult(run.Results, take);
            row.push_back(result ? JsonNumber(Single(*result)) : "");
        }
        row.push_back(run.Aborted ? run.Message : run.Message.empty() ? "ok" : "ok: " + run.Message);
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

std::string StudyJson(const std::vector<Variation>& variations, const std::vector<std::string>& takes,
                      const std::vector<StudyRun>& runs) {
    Json json = Json::object();
    json["vary"] = Json::array();
    for (const Variation& variation : variations) json["vary"].push_back(variation.Field);
    json["take"] = takes;
    json["rows"] = Json::array();
    for (const StudyRun& run : runs) {
        Json row = Json::object();
        row["values"] = Json::array();
        for (const std::string& value : run.Values) row["values"].push_back(static_cast<float>(*ParseNumber(value)));
        row["results"] = Json::array();
        for (const std::string& take : takes) {
            const auto result = run.Aborted ? std::nullopt : TakeResult(run.Results, take);
            row["results"].push_back(result ? Json(*result) : Json());
        }
        row["aborted"] = run.Aborted;
        row["message"] = run.Message;
        json["rows"].push_back(row);
    }
    return JsonText(json);
}

}  // namespace

ExitStatus StudyCommand(const CommonOptions& options, const StudyOptions& study, ConsoleHost&) {
    const std::string format = FormatInForce(options, kStudyFormats);
    OpenProjectForRun(options);
    const std::vector<fs::path> files = FilesOfProject();
    std::vector<Variation> variations;
    for (const std::string& vary : study.Vary) variations.push_back(ReadVariation(vary));
    std::vector<StudyRun> runs = Combinations(variations);

    const int count = static_cast<int>(runs.size());
    bool cancelled = false;
    RunOnAllCores(
        count,
        [&](int i) {
            StudyRun& run = runs[static_cast<std::size_t>(i)];
            try {
                Calculate(options, files, variations, run);
            } catch (const std::exception& error) {
                run.Message = error.what();
            }
        },
        [&](int done) {
            // The host says so once; what other cores finish afterwards does not take it back.
            if (!CurrentHost().Progress(static_cast<double>(done) / count)) cancelled = true;
            return !cancelled;
        });
    if (cancelled) throw CommandFailure(ExitStatus::Aborted, Text(902011_text, {{"|1", options.Project}}));

    const std::vector<std::string> takes = TakesInForce(study, runs);
    if (format == "json") {
        WriteOutput(options.Output, StudyJson(variations, takes, runs));
        return ExitStatus::Done;
    }
    const auto table = StudyTable(variations, takes, runs);
    if (format == "csv") {
        WriteOutput(options.Output, StudyCsv(table));
        return ExitStatus::Done;
    }
#ifdef LITHMARK_RENDER
    if (format == "xlsx") {
        WriteOutput(options.Output, TableXlsx(Session.ProjectName, table));
        return ExitStatus::Done;
    }
#endif
    FailFormat(format);
}

}  // namespace lithmark
