// A case of a study: the project's values of some fields times factors.
#pragma once

#include <string>
#include <vector>

#include "study/Row.h"

namespace lithmark {

struct StudyCase {
    std::string Name;
    RowInput Changes;

    // NAME:FIELD=*1.35,FIELD=/1.25 on the project that Session holds. A table's column without an index stands for all
    // its elements. StudyFailure for any other text, and where a product does not fit its field.
    static StudyCase Parse(const std::string& text);
};

}  // namespace lithmark
