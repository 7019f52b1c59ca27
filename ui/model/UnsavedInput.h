// Unsaved input: what the user typed into a problem's dialog, kept in the user's state folder until it is saved or
// declined, and put back into the dialog when it opens again.
#pragma once

#include "services/storage/DraftStore.h"

namespace lithmark {

class FieldForm;

// The dialog of the open project as it stands: the texts of its controls, and Session's values of the problem's data
// file, which hold what no control shows (tables).
StoredDraft DraftOf(const FieldForm& form);

// The folder of the drafts.
std::string DraftFolder();

// Session takes the values of a draft. What a name or a text cannot give stays as it is.
void TakeDraftData(const StoredDraft& draft);
// The controls of a form that shows these values take the texts of the draft, and events follow as if the user had
// made each change. Does nothing when the texts stand in other units, formats or another language.
void TakeDraftTexts(FieldForm& form, const StoredDraft& draft);

}  // namespace lithmark
