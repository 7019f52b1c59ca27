// The answer to --find.
#include <algorithm>
#include <utility>

#include "cli/StudyAnswers.h"
#include "services/SharedServices.h"
#include "study/Crossings.h"
#include "study/ShareSearch.h"
#include "study/StudyFailure.h"
#include "study/StudyTakes.h"

namespace lithmark {

namespace {

constexpr const char* kNone = "none";

// Ends with the progress of a question, whose rows are not known beforehand.
class Watch {
  public:
    explicit Watch(double rows) : rows_(rows) {}
    void Done() { done_ += 1; }
    std::function<bool()> GoOn() {
        return [this] { return CurrentHost().Progress(done_ / rows_); };
    }

  private:
    double rows_, done_ = 0;
};

// Rows of which some trials gave nothing.
std::string RowStatus(std::uint64_t tried, std::uint64_t aborted, const std::string& message) {
    if (aborted == 0) return "ok";
    std::string why = message.empty() ? Text(908024_text) : message;
    if (aborted == tried) return why;
    const std::string some = Text(908302_text, {{"|1", std::to_string(aborted)}, {"|2", std::to_string(tried)}});
    return "ok: " + some + " " + why;
}

// The cells that tell which row of the study a line answers.
std::vector<TableCell> KeyOf(const StudyPlan& plan, std::uint64_t row, const PlannedRow& planned, std::size_t fields) {
    std::vector<TableCell> cells = {TableCell::OfCount(row)};
    if (!plan.Cases().empty()) cells.push_back(TableCell::OfText(planned.Case));
    for (std::size_t i = 0; i < fields; ++i)
        cells.push_back(TableCell::OfValue(planned.Values[i], plan.Fields()[i].Numeric()));
    return cells;
}

std::vector<std::string> KeyColumns(const StudyPlan& plan, std::size_t fields) {
    std::vector<std::string> columns = {"Row"};
    if (!plan.Cases().empty()) columns.emplace_back("Case");
    for (std::size_t i = 0; i < fields; ++i) columns.push_back(plan.Fields()[i].Name);
    return columns;
}

TableCell ValueOrNone(const SearchRange& range, const std::optional<double>& value) {
    if (!value) return TableCell::OfText(kNone);
    return TableCell::OfValue(ValueText(range.Field(), *value), true);
}

// The one limit of a search, and the results to be taken, that of the limit among them.
struct Searched {
    ResultLimit Limit;
    std::vector<Take> Takes;
    std::size_t Limited = 0;
};

Searched SearchedOf(const StudyRequest& request) {
    const std::vector<ResultLimit> limits = LimitsOf(request);
    Searched searched{limits.front(), TakesOf(request), 0};
    const auto isLimited = [&](const Take& take) { return take.Name == searched.Limit.Result; };
    if (request.Take.empty()) std::erase_if(searched.Takes, [&](const Take& take) { return !isLimited(take); });
    searched.Limited =
        static_cast<std::size_t>(std::ranges::find_if(searched.Takes, isLimited) - searched.Takes.begin());
    return searched;
}

// A line for each crossing; one with "none" where a row has none, and with nothing where every trial aborted.
void AddCrossings(TextTable& table, const StudyPlan& plan, const SearchRange& range, const CrossedRow& row,
                  std::size_t takes) {
    const std::vector<TableCell> key = KeyOf(plan, row.Row, row.Planned, plan.Fields().size());
    const TableCell status = TableCell::OfText(
        RowStatus(static_cast<std::uint64_t>(row.Tried), static_cast<std::uint64_t>(row.Aborted), row.Message));
    const auto add = [&](TableCell value, const std::vector<float>& numbers, const char* beyond,
                         const std::string& notices) {
        std::vector<TableCell> cells = key;
        cells.push_back(std::move(value));
        for (std::size_t i = 0; i < takes; ++i)
            cells.push_back(i < numbers.size() ? TableCell::OfNumber(static_cast<double>(numbers[i]))
                                               : TableCell::Empty());
        cells.push_back(TableCell::OfText(beyond));
        cells.push_back(status);
        cells.push_back(TableCell::OfText(notices));
        table.Rows.push_back(std::move(cells));
    };
    for (const Crossing& crossing : row.Crossings)
        add(ValueOrNone(range, crossing.At.Value), crossing.At.Numbers, crossing.BeyondAbove ? "above" : "below",
            crossing.At.Notices);
    if (!row.Crossings.empty()) return;
    add(row.Aborted < row.Tried ? TableCell::OfText(kNone) : TableCell::Empty(), {}, "", "");
}

StudyTally FindCrossings(const StudyOptions& study, const StudyPlan& plan, const SearchRange& range, TextTable& table) {
    const Searched searched = SearchedOf(study.Request);
    table.Columns = KeyColumns(plan, plan.Fields().size());
    table.Columns.push_back(range.Field().Name);
    for (const Take& take : searched.Takes) {
        const bool taken = std::ranges::find(table.Columns, take.Name) != table.Columns.end();
        table.Columns.push_back(taken ? "result(" + take.Name + ")" : take.Name);
    }
    for (const char* column : {"Beyond", "Status", "Notices"}) table.Columns.emplace_back(column);
    Watch watch(static_cast<double>(plan.Count()));
    QuestionRows rows(searched.Takes, JobsOf(study), watch.GoOn());
    StudyTally tally;
    const CrossingSearch search(plan, range, searched.Limited, searched.Limit.Value);
    search.Run(rows, [&](const CrossedRow& row) {
        watch.Done();
        tally.Add(row.Aborted == row.Tried, row.Message);
        AddCrossings(table, plan, range, row, searched.Takes.size());
    });
    tally.Missing = plan.Count() - tally.Rows;
    return tally;
}

StudyTally FindShares(const StudyOptions& study, const StudyPlan& plan, const SearchRange& range, TextTable& table) {
    const Searched searched = SearchedOf(study.Request);
    const double share = ShareSearch::ParseShare(study.Share);
    const std::string& name = range.Field().Name;
    table.Columns = KeyColumns(plan, plan.BlockFields());
    for (const std::string& column : {name, name + "_low", name + "_high"}) table.Columns.push_back(column);
    for (const char* column : {"beyond", "se_beyond", "low", "high", "Status"}) table.Columns.emplace_back(column);
    const std::uint64_t blocks = plan.Count() / plan.BlockSize();
    Watch watch(static_cast<double>(blocks));
    QuestionRows rows({searched.Takes[searched.Limited]}, JobsOf(study), watch.GoOn());
    StudyTally tally;
    const ShareSearch search(plan, range, searched.Limit.Value, share);
    search.Run(rows, [&](const ShareRow& row) {
        watch.Done();
        const bool aborted = row.Aborted == row.Tried;
        tally.Add(aborted, row.Message);
        std::vector<TableCell> cells = KeyOf(plan, row.Row, row.Planned, plan.BlockFields());
        for (const auto& value : {row.Value, row.Low, row.High})
            cells.push_back(aborted ? TableCell::Empty() : ValueOrNone(range, value));
        for (const double part : {row.Share.Share, row.Share.Error, row.Share.Low, row.Share.High})
            cells.push_back(row.Value && !aborted ? TableCell::OfNumber(part) : TableCell::Empty());
        cells.push_back(TableCell::OfText(RowStatus(row.Tried, row.Aborted, row.Message)));
        table.Rows.push_back(std::move(cells));
    });
    tally.Missing = blocks - tally.Rows;
    return tally;
}

}  // namespace

ExitStatus AnswerFind(const CommonOptions& options, const StudyOptions& study, const StudyPlan& plan,
                      ConsoleHost& host) {
    const std::string format = FormatOf(options, {"csv", "json", "jsonl", "xlsx"});
    const SearchRange range(study.Find);
    if (plan.Sets(range.Field().Name)) FailRequest(908022_text, range.Field().Name);
    for (const StudyCase& each : plan.Cases())
        if (std::ranges::find(each.Changes, range.Field().Name, &FieldChange::Name) != each.Changes.end())
            FailRequest(908022_text, range.Field().Name);
    host.PrintMessages();
    TextTable table;
    const StudyTally tally =
        study.Share.empty() ? FindCrossings(study, plan, range, table) : FindShares(study, plan, range, table);
    if (!table.Rows.empty()) WriteTable(PathOf(options), format, table);
    return StatusOf(tally, options.Project);
}

}  // namespace lithmark
