// The dialogs behind the problem menu.
#pragma once

#include <memory>

#include "services/host/Form.h"

namespace lithmark {

// True when an entry of the problem menu (1 to 9) has its dialogs.
bool ProblemDialogExists(int menuEntry);

// Shows the dialog of an entry modally. The time-settlement entry asks for the method first, and shows the method's
// dialog when Session.DialogOk says that one was chosen. NoSuchForm when a dialog does not exist.
void ShowProblemDialog(int menuEntry);

}  // namespace lithmark
