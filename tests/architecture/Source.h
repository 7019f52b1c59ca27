// The sources of the house as texts, for tests on who includes whom.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace lithmark::tests {

// Floors from the lowest up; cli and desktop share the top.
const std::map<std::string, int>& Floors();

struct SourceFile {
    std::string Path;    // relative to the root
    std::string Floor;   // its first folder
    std::string Folder;  // all its folders
    std::string Text;
};

// Every source and header of the floors.
const std::vector<SourceFile>& Sources();

// What a text includes, as it is written between the quotes or brackets.
std::vector<std::string> Includes(const std::string& text);

// A file of the tree as a text.
std::string TextOf(const std::string& path);

}  // namespace lithmark::tests
