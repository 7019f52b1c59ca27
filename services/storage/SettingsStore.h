// The store behind SaveSetting and GetSetting: one JSON file of application titles, sections and keys.
#pragma once

#include <optional>
#include <string>
#include <variant>

namespace lithmark {

using SettingValue = std::variant<bool, long, std::string>;

// The value of a key, or nothing when it, its section or the file is missing. A damaged file is set aside under the
// same name with ".damaged" behind it; `damagedName` then takes that name. Nothing is thrown.
std::optional<SettingValue> ReadSetting(const std::string& file, const std::string& app, const std::string& section,
                                        const std::string& key, std::string& damagedName);

// Puts a value in, written whole or not at all; what other programs stored meanwhile stays. Makes the file's folder.
// Throws the Failure of the write.
void WriteSetting(const std::string& file, const std::string& app, const std::string& section, const std::string& key,
                  const SettingValue& value, std::string& damagedName);

}  // namespace lithmark
