// Comparison: two stored projects of one problem beside each other: the inputs that differ, the results, the curves
// over each other. The results are those of the command line.
#pragma once

#include <string>
#include <vector>

#include "services/host/Charting.h"
#include "ui/answer/AnswerRun.h"
#include "ui/compare/StoredProject.h"

namespace lithmark {

struct ComparedPair {
    StoredProject One, Other;
    std::string NameOfOne, NameOfOther;  // told apart where both are called the same
};

struct PairReading {
    std::optional<ComparedPair> Pair;
    std::string Fault;  // with the name of the file that it is about
};
// Two project files. A fault: one cannot be read, both are the same, they are of two problems.
PairReading ReadPair(const std::string& one, const std::string& other);

// A line: what it is about, and what each project has, in the units and formats of the windows.
struct ComparedRow {
    std::string Label, Symbol, Unit;
    std::string One, Other;  // "–" where it does not count in a project; each with its unit where they have two
    std::string Change;      // of a number, from the first to the other: "+4.1 %"
};

// The inputs that differ and count in one of them at least, in the order of the dialog.
std::vector<ComparedRow> DifferingInputs(const ComparedPair& pair);

// What the work on a project gave.
struct ComparedAnswer {
    Answer Is;
    std::string Failure;  // why there is no answer
};
// The commands for either of them: curves of both reach the same depth.
std::vector<CommandWords> ComparisonCommands(const ComparedPair& pair);
ComparedAnswer AnswerOfProject(const StoredProject& project, const std::vector<CommandOutput>& outputs);

// The results that one of them has, the one that is looked for most often first.
std::vector<ComparedRow> ComparedResults(const Answer& one, const Answer& other);

// The curves that both have, each set as a chart; a curve is called by its project.
std::vector<ChartArguments> ComparedCharts(const ComparedPair& pair, const Answer& one, const Answer& other);

// The comparison as a table with a head, numbers with a point: for files.
std::vector<std::vector<std::string>> ComparisonTable(const ComparedPair& pair, const std::vector<ComparedRow>& inputs,
                                                      const std::vector<ComparedRow>& results);
std::string ComparisonCsv(const std::vector<std::vector<std::string>>& table);

}  // namespace lithmark
