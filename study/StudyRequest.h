// What is asked of a study, as texts from a command line or a window; study/StudyPlan.h understands them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lithmark {

struct StudyRequest {
    std::vector<std::string> Vary;       // FIELD=FROM:TO:STEP, FROM:TO:*COUNT, FROM:TO:^COUNT or A,B,C
    std::string Rows;                    // a file of rows, "-" for standard input; empty: none
    std::vector<std::string> Cases;      // NAME:FIELD=*1.35,FIELD=/1.25
    std::vector<std::string> Random;     // FIELD=DISTRIBUTION
    std::vector<std::string> Correlate;  // A,B=R
    std::uint64_t Samples = 1000;
    std::uint64_t Seed = 1;
    bool Sobol = false;
    std::vector<std::string> Take;   // results; empty: the problem's single numbers
    std::vector<std::string> Limit;  // RESULT=VALUE
};

}  // namespace lithmark
