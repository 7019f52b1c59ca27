// What tests with files share: a folder of their own, bytes of files, and the kind of a failure.
#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "base/Failure.h"

namespace lithmark::tests {

// A folder of the test's own, gone with everything in it when the test ends.
class TestFolder {
  public:
    TestFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "lithmark-test-XXXXXX").string();
        path_ = mkdtemp(pattern.data());
    }
    ~TestFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    // The path of a name in the folder.
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }
    // The folder with its trailing separator.
    std::string Dir() const { return path_ + "/"; }
    // Names of everything in the folder, hidden files too, in order.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) names.push_back(entry.path().filename());
        std::sort(names.begin(), names.end());
        return names;
    }

  private:
    std::string path_;
};

inline void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

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
inline bool OnAFullDisk(rlim_t bytes, const std::function<bool()>& action) {
    const pid_t child = ::fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::_exit(action() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace lithmark::tests
