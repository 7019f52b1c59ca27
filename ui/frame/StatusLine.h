// What the status bar tells at all times.
#pragma once

#include <string>

namespace lithmark {

struct StatusLine {
    std::string Saved;    // whether the open project's data are; empty without a project
    std::string Problem;  // "[9] Settlements under a rigid raft"; empty without a project
    std::string Units;    // "m, cm, kN, MN"
    std::string DecimalSign;
};

}  // namespace lithmark
