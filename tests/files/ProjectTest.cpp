#include "ProjectTest.h"

namespace lithmark::tests {

void ProjectTest::SetUp() {
    StartIn(Language::English);
}

void ProjectTest::TearDown() {
    EXPECT_FALSE(IsNumberedFileOpen(1)) << "a file was left open";
    DropNumberedFile(1);
    FreshSession();
}

void ProjectTest::StartIn(Language language) {
    FreshSession(language);
    Session.ProgramDir = Session.DataDir = Session.WorkDir = folder.Dir();
    Session.ProjectName = Session.WorkName = "Raft1";
}

void ProjectTest::StartProblem(int problem) {
    StartIn(LanguageTexts().Current());
    Session.ProblemType = problem;
    Session.Datum = "1 April 2026";
    SetProblemDefaults();
}

const std::vector<DefaultFile>& DefaultFiles() {
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

}  // namespace lithmark::tests
