// The project file .PO3 (which problem) and the order file .AUF (heading data).
#pragma once

#include <string>

#include "files/ProblemData.h"

namespace lithmark {

// Reads ProblemType from the project file of DataDir and ProjectName. The version line may hold anything.
ReadOutcome ReadProjectFile();
// Reads Auftr, Datum and Proj from the order file of DataDir and ProjectName.
ReadOutcome ReadOrderFile();

// Both files under WorkDir and WorkName, as the project dialog keeps them. WriteProjectData sets Session.FileSaved.
ReadOutcome ReadProjectData();
void WriteProjectData();

// Writes the project file of a directory and name: the literal "Version 9", ProblemType, 0. Throws Failure.
void WriteProjectFile(const std::string& dir, const std::string& name);

// True when the open project has a file of this extension, in whatever letter case.
bool ProjectHasFile(const std::string& extension);

}  // namespace lithmark
