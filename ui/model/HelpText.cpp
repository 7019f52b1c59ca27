#include "ui/model/HelpText.h"

#include "services/SharedServices.h"
#include "ui/model/CommonStep.h"

namespace lithmark {

void ShowHelp(const std::string& title, const std::string& text) {
    UnderCommonStep([&] {
        SharedServices().SetHelpText(text);
        SharedServices().ShowHelpText(title);
    });
}

}  // namespace lithmark
