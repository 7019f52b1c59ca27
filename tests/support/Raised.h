// What the board of notices holds, for tests.
#pragma once

#include <string>

#include "report/Notices.h"

namespace lithmark::tests {

inline bool Raised(NoticeId id) {
    return Notices().Holds(id);
}

// The text of a notice in the language in force; empty when it was not raised.
inline std::string Told(NoticeId id) {
    for (const Notice& notice : Notices().All())
        if (notice.Id == id) return NoticeText(notice);
    return {};
}

}  // namespace lithmark::tests
