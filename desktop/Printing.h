// A report on paper, after a preview.
#pragma once

#include <string>

class QWidget;

namespace lithmark {

void PrintReport(QWidget* parent, const std::string& text, const std::string& fontName, int fontSize, bool rightToLeft);

}  // namespace lithmark
