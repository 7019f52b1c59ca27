#include <string>
#include <type_traits>
#include <variant>

#include "base/Utf8.h"
#include "cli/Commands.h"
#include "cli/Output.h"
#include "core/Catalogue.h"
#include "core/FieldMeanings.h"
#include "core/SessionFields.h"
#include "files/ProblemData.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// The project's heading data and every field of its data file, in base units, a line each: a table that a script can
// split at " = ".
std::string ShownText(const ProblemRow& problem, bool hasData) {
    std::string text = PrintableText(Session.ProjectName) + "\n" + Text(problem.MenuText) + "\n\n";
    const auto line = [&](std::string_view name, const std::string& value) {
        text += std::string(name) + " = " + PrintableText(value) + "\n";
    };
    for (const char* name : {"ProblemType", "Auftr", "Datum", "Proj"})
        line(name, SessionFieldText(FindSessionField(name)->Ref));
    text += "\n";
    for (const std::string_view name : ProblemFieldNames(Session.ProblemType))
        line(name, SessionFieldText(FindSessionField(name)->Ref));
    if (!hasData) text += "\n" + Text(10018_text) + " " + problem.Extension + "\n";
    return text;
}

Json ValueJson(const FieldRef& ref) {
    return std::visit(
        [](const auto* field) {
            using Value = std::remove_cvref_t<decltype(*field)>;
            if constexpr (std::is_same_v<Value, bool> || std::is_same_v<Value, std::string>) {
                return Json(*field);
            } else {
                return ToJson(*field);
            }
        },
        ref);
}

// A field, or an element of one, with what it means; without words where the problem has none for it.
Json FieldJson(const std::string& name, Json value) {
    const FieldMeaning* meaning = FindMeaning(Session.ProblemType, name);
    return {{"name", name},
            {"symbol", meaning ? std::string(meaning->Symbol) : std::string()},
            {"value", std::move(value)},
            {"unit", meaning ? BaseUnitText(meaning->Unit) : std::string()},
            {"text", meaning ? MeaningText(*meaning) : std::string()}};
}

std::string ShownJson(const ProblemRow& problem) {
    Json json = Json::object();
    json["project"] = Session.ProjectName;
    json["problem"] = static_cast<int>(Session.ProblemType);
    json["title"] = Text(problem.MenuText);
    Json fields = Json::array();
    for (const std::string_view word : ProblemFieldNames(Session.ProblemType)) {
        const std::string name(word);
        const Json value = ValueJson(FindSessionField(name)->Ref);
        const auto element = [&name](std::size_t i) { return name + "(" + std::to_string(i) + ")"; };
        if (FindMeaning(Session.ProblemType, element(1))) {
            for (std::size_t i = 0; i < value.size(); ++i) fields.push_back(FieldJson(element(i + 1), value[i]));
        } else {
            fields.push_back(FieldJson(name, value));
        }
    }
    json["fields"] = std::move(fields);
    return JsonText(json);
}

}  // namespace

ExitStatus ShowCommand(const CommonOptions& options, ConsoleHost&) {
    const std::string format = FormatInForce(options, kShowFormats);
    const bool hasData = ReadProject(options.Project);
    RefuseProjectFile(options.Output);
    RequireFolderOf(options.Output);
    ApplySets(options.Sets);
    const ProblemRow& problem = *FindProblem(Session.ProblemType);
    WriteOutput(options.Output, format == "json" ? ShownJson(problem) : ShownText(problem, hasData));
    return ExitStatus::Done;
}

}  // namespace lithmark
