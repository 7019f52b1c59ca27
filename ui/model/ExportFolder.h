// Where documents, pictures and tables of a project go: the folder that its last one went to, kept from one day to the
// next in the user's settings. Another project has another one.
#pragma once

#include <string>

namespace lithmark {

// With a trailing separator: the folder of the open project's last export as long as it is there, else the project's
// own.
std::string ExportFolder();
// The open project has exported to a folder. Without a project nothing is kept.
void RememberExportFolder(const std::string& folder);

}  // namespace lithmark
