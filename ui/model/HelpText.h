// The help box of a form.
#pragma once

#include <string>

namespace lithmark {

// Shows a help text, whose lines are parted by CR, under a title. A failure is told.
void ShowHelp(const std::string& title, const std::string& text);

}  // namespace lithmark
