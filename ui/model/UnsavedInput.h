// Unsaved input: what the user typed into a dialog, kept in the user's state folder until it is saved or declined, and
// put back into the dialog when it opens again (KeptForm).
#pragma once

#include "services/storage/DraftStore.h"

namespace lithmark {

class FieldForm;

// What was typed is kept this many milliseconds after the last key.
inline constexpr int kKeepAfter = 1000;

// A dialog as it stands: the texts of its controls. Whose it is says who keeps it.
StoredDraft DraftOf(const FieldForm& form);
// Puts Session's values of the problem's data file in, which hold what no control shows (tables).
void AddData(StoredDraft& draft);

// The folder of the drafts.
std::string DraftFolder();

// False where a draft holds nothing but texts that stand in other units, formats or another language.
bool CanTake(const FieldForm& form, const StoredDraft& draft);
// Session takes the values of a draft. What a name or a text cannot give stays as it is.
void TakeDraftData(const StoredDraft& draft);
// The controls of a form that shows these values take the texts of the draft, and events follow as if the user had
// made each change. Does nothing when the texts stand in other units, formats or another language.
void TakeDraftTexts(FieldForm& form, const StoredDraft& draft);

}  // namespace lithmark
