// What the tests of the data files share: a project "Raft1" in a folder of its own, and a host that records.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "core/Catalogue.h"
#include "files/GloableVariable.h"
#include "files/ProblemData.h"
#include "services/SharedServices.h"
#include "support/DistinctFields.h"
#include "support/Files.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {

class ProjectTest : public testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
    void StartIn(Language language);
    // A fresh record with the defaults of a problem.
    void StartProblem(int problem);
    std::string Path(const std::string& extension) const { return folder / ("Raft1." + extension); }

    TestFolder folder;
    ScriptedHost host;
};

// A problem's data file as its defaults give it, line by line, and what its lines hold.
struct DefaultFile {
    int ProblemType;
    std::string Extension;
    std::vector<std::string> Lines;
    std::vector<int> RawLines, FlagLines, CountLines;  // from 1; all others hold numbers
};

const std::vector<DefaultFile>& DefaultFiles();

// The first `count` lines, each ended by `lineEnd`.
inline std::string JoinLines(const std::vector<std::string>& lines, std::size_t count,
                             const std::string& lineEnd = "\r\n") {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += lines[i] + lineEnd;
    return text;
}
inline std::string JoinLines(const std::vector<std::string>& lines, const std::string& lineEnd = "\r\n") {
    return JoinLines(lines, lines.size(), lineEnd);
}

}  // namespace lithmark::tests
