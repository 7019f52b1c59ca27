// What lists of projects tell of a project, read at a glance: nothing is opened, locked, unpacked or told.
#pragma once

#include <string>

namespace lithmark {

struct ProjectGlance {
    bool There = false;          // a file stands under the path
    int ProblemType = 0;         // 0 for a file that tells none
    std::string Order, Project;  // of the heading; empty without one
    std::string Changed;         // the day on which a file of the project was last changed, "2026-03-02"
};

// Of a project file, plain or packed. What cannot be read is left out.
ProjectGlance GlanceAt(const std::string& projectFile);

}  // namespace lithmark
