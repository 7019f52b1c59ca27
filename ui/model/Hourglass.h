// The pointer while the program works.
#pragma once

#include "services/SharedServices.h"
#include "services/host/Host.h"

namespace lithmark {

// A run that failed and a file that is missing leave the hourglass; a form that waits for its user does not.
inline void EndHourglass() {
    SharedServices().SetPointer(PointerShape::Default);
}

}  // namespace lithmark
