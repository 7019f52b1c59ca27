// StoredProject: a project as its files stand, read beside the open one. Plain or packed, in use or not: nothing of it
// is locked, unpacked or changed, and nothing is told.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/Session.h"
#include "ui/compare/ProjectInputs.h"

namespace lithmark {

struct StoredProject {
    std::string File, Name;  // "/data/Crane.PO3", "Crane"
    SessionRecord Record;    // as the problem's dialog would store it
    std::vector<ProjectInput> Inputs;
    // Why the dialog would not work it out, a value beyond its range for one; empty where nothing is against it.
    std::string Stopped;
    // Another program has it open, by whom: what it has not saved is not seen. Empty otherwise.
    std::string Holder;
};

struct ProjectReading {
    std::optional<StoredProject> Project;
    std::string Fault;  // what is wrong, with the name of the file; empty with a project
};

// In the language, the units and the formats in force.
ProjectReading ReadStoredProject(const std::string& file);

}  // namespace lithmark
