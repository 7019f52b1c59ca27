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
    void SetUp() override { StartIn(Language::English); }
    void TearDown() override {
        EXPECT_FALSE(IsNumberedFileOpen(1)) << "a file was left open";
        DropNumberedFile(1);
        FreshSession();
    }
    void StartIn(Language language) {
        FreshSession(language);
        Session.ProgramDir = Session.DataDir = Session.WorkDir = folder.Dir();
        Session.ProjectName = Session.WorkName = "Raft1";
    }
    // A fresh record with the defaults of a problem.
    void StartProblem(int problem) {
        StartIn(LanguageTexts().Current());
        Session.ProblemType = problem;
        Session.Datum = "1 April 2026";
        SetProblemDefaults();
    }
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

inline const std::vector<DefaultFile>& DefaultFiles() {
    static const std::vector<DefaultFile> files = {
        {1, "SSD", {"1", "1", "0", "7854", "100", "5", "5", ".25", "5000", "2"}, {}, {}, {}},
        {4,
         "CON",
         {"0", "0", "1", "7854", "150", "2", "2", "5", ".85", "51.82", "8.69", ".16", "5000", "2", "2"},
         {},
         {},
         {}},
        {5,
         "RAT",
         {"0", "0", "1", "7854",    "150",     "2", "2", "2", "100",    "5",
          "1", "4", "5", "1.5E-06", "1.5E-06", "1", "1", "1", "#TRUE#", "years"},
         {20},
         {19},
         {}},
        {6,
         "TST",
         {"2",      "1",    "1.5E-06", "4E-05", "24000", "80000", "36",
          "130",    ".019", "8",       "12.1",  "6350",  "18",    "1 April 2026",
          "#TRUE#", "4.61", "4",       "days",  "5",     "19",    "1",
          "42",     "2",    "83",      "4",     "94",    "7",     "100",
          "12",     "5",    "49",      "1",     "74",    "2",     "89",
          "3",      "97",   "4",       "100",   "5",     "[mm]",  "10",
          ".14",    ".25",  ".282",    "1",     ".424",  "2.25",  ".564",
          "4",      ".839", "9",       "1.019", "16",    "1.148", "25",
          "1.231",  "36",   "1.257",   "49",    "1.309", "1440"},
         {14, 18, 41},
         {15},
         {19, 30, 42}},
        {9, "RDE", {"7854", "5", "5", "5", ".25", "5000", "2", "0", "0", "#TRUE#", "#TRUE#"}, {}, {10, 11}, {}},
        {10,
         "RCO",
         {"0", "7854", "5", "5", "5", "0", "0", "0", "5000", "2", "1", "0", "0", "0", "#TRUE#", "#TRUE#"},
         {},
         {15, 16},
         {}},
        {11,
         "SC1",
         {"25",  "1", ".5", ".2", "#TRUE#", "1", "2",  "1000",  "2",      "2",  ".5",
          "1.5", "1", "1",  "0",  "0",      "1", "50", "50000", "150000", ".5", "18"},
         {},
         {5},
         {2, 17}}};
    return files;
}

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
