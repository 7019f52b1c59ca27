// What the tests of the command line tool share: running the built program, and projects of their own to run it on.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/Files.h"

namespace lithmark::tests {

using Json = nlohmann::ordered_json;

struct CliResult {
    int Status = -1;  // exit status; -1 when the program was killed
    std::string Out, Err;
};

class CliTest : public testing::Test {
  protected:
    // Runs lithmark-cli with the words and the settings folder of the test.
    CliResult Run(std::vector<std::string> words) const;
    CliResult RunPlain(const std::vector<std::string>& words, const std::string& out = {}) const;

    // A copy of an example in the test's folder; gives its project file. Settings of the example come along.
    std::string Example(const std::string& name) const;
    // A new project with the defaults of a problem.
    std::string New(const std::string& name, int problem, const std::vector<std::string>& sets = {}) const;
    void Settings(const std::string& name, const std::string& bytes) const { WriteBytes(settings_ / name, bytes); }

    TestFolder work;
    bool asOrdinaryUser = false;
    std::string otherProgram;  // instead of the built one
    std::string runner;        // a command that runs the program, with a blank at its end

  private:
    TestFolder settings_, output_;
};

// The run ended with the status and one line on standard error that holds all of `parts`; nothing on standard output.
void ExpectFailure(const CliResult& result, int status, const std::vector<std::string>& parts);

// The words, and some more behind them.
std::vector<std::string> With(std::vector<std::string> words, const std::vector<std::string>& more);
std::vector<std::string> Keys(const Json& json);
std::vector<std::string> LinesOf(const std::string& text);

}  // namespace lithmark::tests
