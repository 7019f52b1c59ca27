#include "ui/model/BoxMarks.h"

namespace lithmark {

bool IsUnfinished(const std::string& text) {
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string::npos) return true;
    const std::string typed = text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
    const std::size_t digits = typed.find_first_of("0123456789");
    if (digits == std::string::npos) return typed.find_first_not_of("+-.,") == std::string::npos && typed.size() <= 2;
    // An exponent without its digits.
    const std::size_t exponent = typed.find_first_of("eEdD");
    if (exponent == std::string::npos || exponent < digits) return false;
    return typed.find_first_not_of("0123456789.,+-") == exponent &&
           typed.find_first_not_of("+-", exponent + 1) == std::string::npos;
}

}  // namespace lithmark
