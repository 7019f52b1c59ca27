#include "cli/Commands.h"
#include "core/Session.h"
#include "kernels/RunResults.h"
#include "report/Notices.h"
#include "report/StepTables.h"

namespace lithmark {

Json ResultsJson() {
    Json json = Json::object();
    for (const RunResult& result : ResultsOf(Session.ProblemType)) {
        if (result.IsList()) {
            Json list = Json::array();
            for (const Single value : result.List()) list.push_back(ToJson(value));
            json[std::string(result.Name)] = std::move(list);
        } else if (const auto value = result.Number()) {
            json[std::string(result.Name)] =
                result.Whole ? ToJson(Integer(static_cast<int>(*value))) : ToJson(Single(*value));
        }
    }
    return json;
}

Json MessagesJson(const ConsoleHost& host) {
    Json list = Json::array();
    for (const auto& message : host.Messages()) list.push_back({{"title", message.Title}, {"text", message.Text}});
    return list;
}

Json NoticesJson() {
    Json list = Json::array();
    for (const Notice& notice : Notices().All())
        list.push_back({{"id", std::string(NoticeName(notice.Id))}, {"text", NoticeText(notice)}});
    return list;
}

Json StepTablesJson() {
    const auto cellJson = [](const StepCell& cell) {
        if (cell.Number) return Json(static_cast<Single::Storage>(*cell.Number));
        return cell.Word.empty() ? Json() : Json(cell.Word);
    };
    const auto cellsJson = [&cellJson](const std::vector<StepCell>& cells) {
        Json list = Json::array();
        for (const StepCell& cell : cells) list.push_back(cellJson(cell));
        return list;
    };
    Json tables = Json::array();
    for (const StepTable& table : Steps().Tables()) {
        Json json = Json::object();
        json["title"] = table.Title;
        json["columns"] = Json::array();
        for (const StepColumn& column : table.Columns)
            json["columns"].push_back({{"title", column.Title}, {"symbol", column.Symbol}, {"unit", column.Unit}});
        json["rows"] = Json::array();
        for (const auto& row : table.Rows) json["rows"].push_back(cellsJson(row));
        json["sums"] = Json::array();
        for (const StepSum& sum : table.Sums)
            json["sums"].push_back({{"label", sum.Label}, {"cells", cellsJson(sum.Cells)}});
        json["notes"] = table.Notes;
        tables.push_back(std::move(json));
    }
    return tables;
}

}  // namespace lithmark
