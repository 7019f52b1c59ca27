#include "services/storage/SettingsStore.h"

#include <cstdint>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <system_error>

#include "base/Paths.h"
#include "services/platform/Files.h"
#include "services/storage/JsonDepth.h"
#include "services/storage/ReadFile.h"
#include "services/storage/WrittenFile.h"

namespace lithmark {

namespace {

using Json = nlohmann::json;

constexpr std::uint64_t kMostBytes = std::uint64_t{4} << 20;

Json ReadStore(const std::string& file, StoreTrouble& trouble) {
    std::string content;
    try {
        content = ReadWholeFile(file, kMostBytes);
    } catch (const Failure& failure) {
        if (failure.Kind() != FailureKind::FileMissing) trouble.Unreadable = failure;
        return Json::object();
    }
    if (!IsJsonTooDeep(content)) {
        Json store = Json::parse(content, nullptr, false);
        if (store.is_object()) return store;
    }
    const std::string aside = file + ".damaged";
    if (platform::RenameOver(file, aside) == 0)
        trouble.SetAside = aside;
    else
        trouble.Unreadable = Failure(FailureKind::ReadError).InFile(file);
    return Json::object();
}

const Json* Member(const Json* object, const std::string& name) {
    if (object == nullptr || !object->is_object()) return nullptr;
    const auto found = object->find(name);
    return found == object->end() ? nullptr : &*found;
}

Json& ObjectMember(Json& object, const std::string& name) {
    Json& member = object[name];
    if (!member.is_object()) member = Json::object();
    return member;
}

}  // namespace

std::optional<SettingValue> ReadSetting(const std::string& file, const std::string& app, const std::string& section,
                                        const std::string& key, StoreTrouble& trouble) {
    const Json store = ReadStore(file, trouble);
    const Json* value = Member(Member(Member(&store, app), section), key);
    if (value == nullptr) return std::nullopt;
    if (value->is_boolean()) return value->get<bool>();
    if (value->is_number_integer()) return value->get<long>();
    if (value->is_string()) return value->get<std::string>();
    return std::nullopt;
}

void WriteSetting(const std::string& file, const std::string& app, const std::string& section, const std::string& key,
                  const SettingValue& value, StoreTrouble& trouble) {
    Json store = ReadStore(file, trouble);
    if (trouble.Unreadable) throw Failure(*trouble.Unreadable);
    Json& place = ObjectMember(ObjectMember(store, app), section)[key];
    std::visit([&](const auto& plain) { place = plain; }, value);
    std::error_code error;  // a folder that cannot be made shows in the write
    std::filesystem::create_directories(PathOf(file).parent_path(), error);
    WriteWholeFile(file, store.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

}  // namespace lithmark
