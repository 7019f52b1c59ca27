// A copy of the open project under another name.
#pragma once

#include <string>
#include <vector>

namespace lithmark {

// Copies the files of these extensions from the open project to another directory and name: all of them or, throwing
// Failure, none. They take their places in the order of the list, so the project file belongs at its end: a copy that
// can be opened is whole. A target that is packed is unpacked first.
void CopyProjectFiles(const std::vector<std::string>& extensions, const std::string& dir, const std::string& name);

}  // namespace lithmark
