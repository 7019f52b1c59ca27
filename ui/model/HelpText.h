// The help box of a form: a few lines in the language in force.
#pragma once

#include <string>
#include <vector>

namespace lithmark {

struct HelpLines {
    std::vector<std::string> German, English, Arabic;
};

// What ends the last line; all others end in CR.
enum class LastHelpLine { EndsInNothing, EndsInReturn };

// The lines of the language that text 140156 names, as one text.
std::string HelpText(const HelpLines& lines, LastHelpLine last = LastHelpLine::EndsInNothing);

// Shows them in the help box under a title. A failure is told.
void ShowHelp(const std::string& title, const HelpLines& lines, LastHelpLine last = LastHelpLine::EndsInNothing);

}  // namespace lithmark
