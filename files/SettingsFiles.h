// The settings files of the program directory: "Units", "NOFORMAT", "Preferen.tol" and "STEU".
#pragma once

#include <string>
#include <vector>

namespace lithmark {

struct SessionRecord;

// Puts the units of the file "Units" into Session. Without the file the base units hold.
void LoadUnits();
// Writes Session's units in the form that no language changes; false after a failure, which went through FileError.
bool WriteUnits();

// The eighteen number formats of "NOFORMAT", a raw line each, and the two derived ones. A file that is missing or
// cannot be opened gives the defaults without a word; so do, behind a message, the lines that a short file lacks.
void LoadNumberFormats();
// Writes Session's eighteen formats; false after a failure, which went through FileError.
bool WriteNumberFormats();

// The six preferences of "Preferen.tol", in the same way.
void LoadPreferences();
// Writes them and sets Session.FileSaved; a failure goes through FileError.
void SavePreferences();

// The lines of "NOFORMAT" and "Preferen.tol" for a record.
std::vector<std::string> NumberFormatLines(const SessionRecord& record);
std::vector<std::string> PreferenceLines(const SessionRecord& record);

// The data directory and Session.CompressFlag of "STEU"; true when both could be read. Otherwise DataDirUnset and 2;
// a damaged file is told.
bool ReadDataDirSettings(std::string& dataDir);
// Writes both and sets Session.FileSaved; a failure goes through FileError.
void WriteDataDirSettings(const std::string& dataDir);

}  // namespace lithmark
