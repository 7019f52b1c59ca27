#include "ui/model/HelpText.h"

#include "files/CommonStep.h"
#include "services/SharedServices.h"

namespace lithmark {

void ShowHelp(const std::string& title, const std::string& text) {
    UnderCommonStep([&] {
        SharedServices().SetHelpText(text);
        SharedServices().ShowHelpText(title);
    });
}

}  // namespace lithmark
