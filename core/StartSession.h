// What the state record holds before a project is opened.
#pragma once

namespace lithmark {

// PrefDx, PrefDy, PrefDz, PrefND, PrefTol and PrefImax at their defaults.
void SetDefaultPreferences();

// A fresh Session with everything at the value that holds when no settings file and no project says otherwise: base
// units, number formats, preferences, today's date, the words of the current language. The language is in force before
// the call. Settings files are read afterwards (files/SettingsFiles.h).
void StartSession();

}  // namespace lithmark
