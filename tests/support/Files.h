// What tests with files share: a folder of their own, bytes of files, and the kind of a failure.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Failure.h"
#include "support/System.h"

namespace lithmark::tests {

// A folder of the test's own, gone with everything in it when the test ends.
class TestFolder {
  public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    // The path of a name in the folder.
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }
    // The folder with its trailing separator.
    std::string Dir() const { return path_ + "/"; }
    // Names of everything in the folder, hidden files too, in order.
    std::vector<std::string> Names() const;

  private:
    std::string path_;
};

void WriteBytes(const std::string& path, const std::string& bytes);
std::string ReadBytes(const std::string& path);

// The failure that an action ends in, or nothing.
inline std::optional<Failure> FailureOf(auto&& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure;
    }
    return std::nullopt;
}

inline std::optional<FailureKind> KindOf(auto&& action) {
    const auto failure = FailureOf(action);
    return failure ? std::optional(failure->Kind()) : std::nullopt;
}

// Runs an action in a process of its own in which no file can grow beyond so many bytes, as on a full disk. True when
// the action says so there.
bool OnAFullDisk(std::uint64_t bytes, const std::function<bool()>& action);

}  // namespace lithmark::tests
