// The way from a problem's dialog to the window with its report. The dialogs know no other form, so the frame names the
// window once.
#pragma once

namespace lithmark {

// What shows the report of the last run, modally.
void SetResultViewer(void (*show)());
// A failure when nothing was named.
void ShowResultViewer();

}  // namespace lithmark
