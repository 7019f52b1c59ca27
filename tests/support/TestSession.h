// A fresh state record as the program has it after its start, with the words of a project and a date that stay.
#pragma once

#include "core/Session.h"
#include "core/StartSession.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark::tests {

inline void FreshSession(Language language = Language::English) {
    LanguageTexts().SetCurrent(language);
    StartSession();
    Session.ProjectName = "Halle17";
    Session.Auftr = "A 17/4";
    Session.Datum = "2024-05-17";
    Session.Proj = "Lagerhalle, Prüffeld";
}

}  // namespace lithmark::tests
