// A study as words of the command line.
#pragma once

#include <string>
#include <vector>

#include "study/StudyRequest.h"

namespace lithmark {

// The options of the command study that ask for a request; what the command takes without being told is left out.
std::vector<std::string> OptionsOf(const StudyRequest& request);

// "study", the project, the options of a request, and further words.
std::vector<std::string> StudyWords(const std::string& project, const StudyRequest& request,
                                    const std::vector<std::string>& more = {});

// "lithmark-cli" and the words as they are typed into a shell: those that it would take apart or change stand in
// quotes.
std::string CommandText(const std::vector<std::string>& words);

}  // namespace lithmark
