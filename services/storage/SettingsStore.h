// The store behind SaveSetting and GetSetting: one JSON file of application titles, sections and keys.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "base/Failure.h"

namespace lithmark {

using SettingValue = std::variant<bool, long, std::string>;

// What a reader met instead of a store: a damaged file, which was set aside under the same name with ".damaged" behind
// it, or one that cannot be read (or set aside) and stays as it is.
struct StoreTrouble {
    std::string SetAside;
    std::optional<Failure> Unreadable;
};

// The value of a key, or nothing when it, its section or the file is missing or in trouble. Nothing is thrown.
std::optional<SettingValue> ReadSetting(const std::string& file, const std::string& app, const std::string& section,
                                        const std::string& key, StoreTrouble& trouble);

// Puts a value in, written whole or not at all; what other programs stored meanwhile stays. Makes the file's folder.
// Throws the Failure of the write; nothing is written over a store that cannot be read.
void WriteSetting(const std::string& file, const std::string& app, const std::string& section, const std::string& key,
                  const SettingValue& value, StoreTrouble& trouble);

}  // namespace lithmark
