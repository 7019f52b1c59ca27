// What is said of a box of a number to those who hear it: symbol, unit, range, and what is wrong.
#pragma once

#include <QString>
#include <string>

namespace lithmark {

struct BoxWords {
    std::string Symbol = {};         // plain, as a report prints it; none where it is empty
    std::string Unit = {};           // with brackets or without; none where it is empty or "-"
    double Least = 0, Greatest = 0;  // kNoLimit (ui/model/FieldRow.h) where there is none
};

// "nu s, no unit, 0 to 0.5; error: more than 0.5"
QString Description(const BoxWords& box, const std::string& fault);
// "error: more than 0.5"
QString FaultInWords(const std::string& fault);

}  // namespace lithmark
