#include "cli/Commands.h"
#include "core/Session.h"
#include "kernels/RunResults.h"

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

}  // namespace lithmark
