#include "services/storage/DraftStore.h"

#include <cstdint>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <system_error>

#include "base/Paths.h"
#include "services/storage/JsonDepth.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

namespace {

using Json = nlohmann::json;
namespace fs = std::filesystem;

// FNV-1a: a project's path may be longer than a file's name.
std::string NameOf(const std::string& text) {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4) digits += "0123456789abcdef"[(hash >> shift) & 15U];
    return digits;
}

std::string FileOf(const std::string& dir, const std::string& project, const std::string& form) {
    return (PathOf(dir) / (NameOf(project + '\n' + form) + ".json")).generic_string();
}

Json ListOf(const StoredDraft::Pairs& pairs) {
    Json list = Json::array();
    for (const auto& [name, text] : pairs) list.push_back({name, text});
    return list;
}

StoredDraft::Pairs PairsOf(const Json& list) {
    StoredDraft::Pairs pairs;
    for (const Json& pair : list) pairs.emplace_back(pair.at(0).get<std::string>(), pair.at(1).get<std::string>());
    return pairs;
}

}  // namespace

std::optional<StoredDraft> ReadDraft(const std::string& dir, const std::string& project, const std::string& form) {
    try {
        const std::string content = ReadWholeFile(FileOf(dir, project, form));
        if (IsJsonTooDeep(content)) return std::nullopt;
        const Json stored = Json::parse(content);
        StoredDraft draft{stored.at("project").get<std::string>(),
                          stored.at("form").get<std::string>(),
                          stored.at("shown").get<std::string>(),
                          stored.at("when").get<std::string>(),
                          PairsOf(stored.at("texts")),
                          PairsOf(stored.at("data"))};
        if (draft.Project != project || draft.Form != form) return std::nullopt;
        return draft;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

void WriteDraft(const std::string& dir, const StoredDraft& draft) {
    const Json stored = {{"project", draft.Project}, {"form", draft.Form},           {"shown", draft.Shown},
                         {"when", draft.When},       {"texts", ListOf(draft.Texts)}, {"data", ListOf(draft.Data)}};
    std::error_code error;  // a folder that cannot be made shows in the write
    if (fs::create_directories(PathOf(dir), error)) fs::permissions(PathOf(dir), fs::perms::owner_all, error);
    WriteWholeFile(FileOf(dir, draft.Project, draft.Form),
                   stored.dump(1, ' ', false, Json::error_handler_t::replace) + "\n");
}

void RemoveDraft(const std::string& dir, const std::string& project, const std::string& form) noexcept {
    std::error_code error;
    fs::remove(PathOf(FileOf(dir, project, form)), error);
}

}  // namespace lithmark
