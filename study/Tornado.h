// Which field moves a result how far: one field after the other from its low to its high value, the others in the
// middle.
//
// A random field goes from its 5 % quantile to its 95 %, a varied one from its least value to its greatest. In the
// middle a random field has its median and a varied one the project's value. Correlations take no part: one field moves
// alone.
#pragma once

#include <string>
#include <vector>

#include "study/QuestionRows.h"
#include "study/StudyPlan.h"
#include "study/StudyRun.h"
#include "study/Take.h"

namespace lithmark {

struct Influence {
    std::string Field, Low, High;
    float AtLow = kMissing, AtHigh = kMissing;

    // How far the result moves; kMissing where one of the two has none.
    float Swing() const;
};

struct Tornado {
    std::string Case, Result;
    float Middle = kMissing;
    std::vector<Influence> Influences;  // the greatest swing first, those without one last
};

// A tornado for each case and result, cases slowest. `tally` counts the rows that were worked for them; nothing of a
// case that could not be worked to its end.
std::vector<Tornado> WorkTornados(const StudyPlan& plan, const std::vector<Take>& takes, QuestionRows& rows,
                                  StudyTally& tally);

}  // namespace lithmark
