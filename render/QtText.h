// A text of the program (UTF-8) as Qt's.
#pragma once

#include <QString>
#include <string>

namespace lithmark {

inline QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace lithmark
