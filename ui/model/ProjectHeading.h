// What stands over the reports of a project.
#pragma once

#include "core/Session.h"
#include "services/TextTools.h"

namespace lithmark {

// That of a new project: no order, no project, the day of today.
inline void ClearHeading() {
    Session.Auftr.clear();
    Session.Datum = TextTools().LongDateOfToday();
    Session.Proj.clear();
}

}  // namespace lithmark
