#include "ui/model/HelpText.h"

#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "ui/model/CommonStep.h"

namespace lithmark {

std::string HelpText(const HelpLines& lines, LastHelpLine last) {
    const std::string language = Text(140156_text);
    const auto& chosen = language == "German" ? lines.German : language == "Arabic" ? lines.Arabic : lines.English;
    std::string text;
    for (const std::string& line : chosen) text += line + "\r";
    if (!text.empty() && last == LastHelpLine::EndsInNothing) text.pop_back();
    return text;
}

void ShowHelp(const std::string& title, const HelpLines& lines, LastHelpLine last) {
    UnderCommonStep([&] {
        SharedServices().SetHelpText(HelpText(lines, last));
        SharedServices().ShowHelpText(title);
    });
}

}  // namespace lithmark
