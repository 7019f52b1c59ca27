#include "core/StartSession.h"

#include "core/Session.h"
#include "core/Units.h"
#include "services/TextTools.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

void SetDefaultPreferences() {
    Session.PrefDx = 0.5;
    Session.PrefDy = 0.5;
    Session.PrefDz = 0.25;
    Session.PrefND = 12;
    Session.PrefTol = 0.001;
    Session.PrefImax = 1000;
}

void StartSession() {
    ResetSession();
    SetDefaultUnits();
    SetDefaultNumberFormats();
    SetDefaultPreferences();
    Session.Datum = TextTools().LongDateOfToday();
    Session.SymbolSuffix = Text(123_text);
    Session.WorkName = Text(93_text);
}

}  // namespace lithmark
