// What Qt needs before it can draw.
#pragma once

namespace lithmark {

// Makes sure that a QApplication exists. Where no program has made one, it is made without a display, so that documents
// and pictures can be drawn anywhere.
void EnsureRenderApplication();

}  // namespace lithmark
