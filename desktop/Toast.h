// A word over the lower edge of a window that goes by itself.
#pragma once

#include <QString>

class QWidget;

namespace lithmark {

void ShowToast(QWidget& window, const QString& words);

}  // namespace lithmark
