// Where a user's own files lie. Every folder ends in a separator; it is empty for a user without a home.
#pragma once

#include <string>

namespace lithmark {

// The user's settings: $XDG_CONFIG_HOME/lithmark, else ~/.config/lithmark. It is told, not made.
std::string UserSettingsDir();

// What is no setting but survives the program's end: $XDG_STATE_HOME/lithmark, else ~/.local/state/lithmark.
std::string UserStateDir();

// Makes the user's settings directory, when that is the program directory, ahead of the first file in it. One that
// cannot be made shows in the writing.
void MakeSettingsDir(const std::string& programDir);

// The user's documents: what XDG_DOCUMENTS_DIR of user-dirs.dirs names, else ~/Documents, and the home where neither is
// a folder.
std::string UserDocumentsDir();

// Where this program's projects lie in the documents: the folder "Lithmark". It is told, not made.
std::string UserProjectsDir();

// Makes that folder, when `dir` is it, ahead of the first project in it. One that cannot be made shows in the writing.
void MakeProjectsDir(const std::string& dir);

// Where projects lie while no data directory is set: the program directory. Only the user's own settings directory is
// no place for them; then it is UserProjectsDir. A user without a home has the folder that the program was started in.
std::string DataDirUnset(const std::string& programDir);

}  // namespace lithmark
