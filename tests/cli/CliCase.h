// What the tests of the command line tool share: running the built program, and projects of their own to run it on.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/Files.h"
#include "support/Places.h"

namespace lithmark::tests {

using Json = nlohmann::ordered_json;

struct CliResult {
    int Status = -1;  // exit status; -1 when the program was killed
    std::string Out, Err;
};

class CliTest : public testing::Test {
  protected:
    // Runs lithmark-cli with the words and the settings folder of the test.
    CliResult Run(std::vector<std::string> words) const {
        words.insert(words.end(), {"--settings", settings_.Dir()});
        return RunPlain(words);
    }
    CliResult RunPlain(const std::vector<std::string>& words, const std::string& out = {}) const {
        // Root may write everywhere, unless this one ability is taken from it.
        const bool dropped = asOrdinaryUser && geteuid() == 0;
        std::string line = dropped ? "setpriv --bounding-set=-dac_override --inh-caps=-dac_override env " : "";
        line += runner + "XDG_CONFIG_HOME=" + Quoted(settings_.Dir()) + " " + Quoted(CommandLineTool().string());
        for (const std::string& word : words) line += " " + Quoted(word);
        const std::string outFile = out.empty() ? output_ / "out" : out, errFile = output_ / "err";
        line += " >" + Quoted(outFile) + " 2>" + Quoted(errFile) + " </dev/null";
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out.empty() ? ReadBytes(outFile) : "",
                ReadBytes(errFile)};
    }

    // A copy of an example in the test's folder; gives its project file. Settings of the example come along.
    std::string Example(const std::string& name) const {
        namespace fs = std::filesystem;
        const fs::path from = SourceDir() / "examples" / name;
        for (const auto& entry : fs::directory_iterator(from))
            if (entry.is_regular_file()) fs::copy_file(entry.path(), work / entry.path().filename().string());
        if (fs::exists(from / "settings"))
            for (const auto& entry : fs::directory_iterator(from / "settings"))
                fs::copy_file(entry.path(), settings_ / entry.path().filename().string());
        return work / (name + ".PO3");
    }
    // A new project with the defaults of a problem.
    std::string New(const std::string& name, int problem, const std::vector<std::string>& sets = {}) const {
        std::vector<std::string> words = {"new", work / name, "--problem", std::to_string(problem)};
        for (const std::string& set : sets) words.insert(words.end(), {"--set", set});
        const CliResult result = Run(words);
        EXPECT_EQ(result.Status, 0) << result.Err;
        return work / (name + ".PO3");
    }
    void Settings(const std::string& name, const std::string& bytes) const { WriteBytes(settings_ / name, bytes); }

    TestFolder work;
    bool asOrdinaryUser = false;
    std::string runner;  // a command that runs the program, with a blank at its end

  private:
    static std::string Quoted(const std::string& word) {
        std::string quoted = "'";
        for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
        return quoted + "'";
    }

    TestFolder settings_, output_;
};

// The run ended with the status and one line on standard error that holds all of `parts`; nothing on standard output.
inline void ExpectFailure(const CliResult& result, int status, const std::vector<std::string>& parts) {
    EXPECT_EQ(result.Status, status) << result.Err;
    EXPECT_EQ(result.Out, "");
    EXPECT_TRUE(result.Err.starts_with("lithmark-cli: ")) << result.Err;
    EXPECT_EQ(std::count(result.Err.begin(), result.Err.end(), '\n'), 1) << result.Err;
    for (const std::string& part : parts) EXPECT_THAT(result.Err, testing::HasSubstr(part));
}

inline std::vector<std::string> Keys(const Json& json) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : json.items()) keys.push_back(key);
    return keys;
}

inline std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    return lines;
}

}  // namespace lithmark::tests
