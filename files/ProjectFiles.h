// The project file .PO3 (which problem) and the order file .AUF (heading data).
#pragma once

#include <string>
#include <vector>

#include "base/Integer.h"
#include "files/ProblemData.h"

namespace lithmark {

// Reads the problem number of a project file, whose version line may hold anything. Only a file that could be read
// changes it.
ReadOutcome ReadProjectFile(const std::string& dir, const std::string& name, Integer& problemType);
// The same for DataDir and ProjectName, into ProblemType.
ReadOutcome ReadProjectFile();
// Reads Auftr, Datum and Proj from the order file of DataDir and ProjectName.
ReadOutcome ReadOrderFile();

// Both files under WorkDir and WorkName, as the project dialog keeps them. A missing order file leaves the heading data
// as they are; a damaged one keeps the problem number from nothing. WriteProjectData writes both or none and sets
// Session.FileSaved.
ReadOutcome ReadProjectData();
void WriteProjectData();

// Writes the project file of a directory and name: the literal "Version 9", ProblemType, 0. Throws Failure. Who calls
// it holds ProjectStore's BeginSave.
void WriteProjectFile(const std::string& dir, const std::string& name);

// The lines of the two files for a record.
std::vector<std::string> ProjectFileLines(const SessionRecord& record);
std::vector<std::string> OrderFileLines(const SessionRecord& record);

// True when the open project has a file of this extension, in whatever letter case.
bool ProjectHasFile(const std::string& extension);

}  // namespace lithmark
