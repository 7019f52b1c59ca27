// The functions behind the targets.
#pragma once

#include <string_view>

namespace lithmark::fuzz {

void ReadProjectFileTarget(std::string_view bytes);
void ReadOrderFileTarget(std::string_view bytes);
// The data file of a problem, under the name that it has in the case's folder.
void ReadDataFile(std::string_view bytes, int problem, const char* name);
void ReadArchiveTarget(std::string_view bytes);
void ReadSettingsStore(std::string_view bytes);
void ReadUnits(std::string_view bytes);
void ReadNumberFormats(std::string_view bytes);
void ReadPreferences(std::string_view bytes);
void ReadDataDirectory(std::string_view bytes);
void ReadContour(std::string_view bytes);
// What a user typed into the box of a number; input that was kept; a study's table of rows and its parts.
void ReadTypedNumber(std::string_view bytes);
void ReadKeptInput(std::string_view bytes);
void ReadStudyRows(std::string_view bytes);
void ReadStudyPart(std::string_view bytes);
// A data file, and the kernel of the problem on what it holds.
void RunKernelOn(std::string_view bytes, int problem, const char* name);

}  // namespace lithmark::fuzz
