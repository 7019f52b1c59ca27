// A report on paper, after a preview.
#pragma once

#include <string>

#include "render/PictureFile.h"

class QWidget;

namespace lithmark {

void PrintReport(QWidget* parent, const std::string& text, const std::string& fontName, int fontSize, bool rightToLeft);
// A chart or a plot on a sheet across, after a preview.
void PrintPicture(QWidget* parent, const QSize& size, const Draw& draw);

}  // namespace lithmark
