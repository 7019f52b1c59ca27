#include "cli/Commands.h"
#include "core/Session.h"
#include "kernels/RunResults.h"
#include "report/Notices.h"

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

}  // namespace lithmark
