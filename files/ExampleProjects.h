// The examples that the program brings along, a folder each. They lie where only the system writes: to work on one is
// to work on a copy.
#pragma once

#include <string>
#include <vector>

namespace lithmark {

// Names in the order of the alphabet; none where the program brings no examples along.
std::vector<std::string> ExampleNames();

// Copies an example's files to a folder of its own and gives the path of the copy's project file. The folder lies in
// "Lithmark" in the data directory and has the example's name, with a number where there is such a folder already, so
// that no copy takes another one's place. Throws Failure.
std::string CopyExample(const std::string& name);

}  // namespace lithmark
