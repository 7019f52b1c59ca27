// The notices of the run that Session holds.
#pragma once

#include <string>

namespace lithmark {

// Their ids, parted by blanks; empty where there are none.
inline std::string NoticeIds() {
    return {};
}

}  // namespace lithmark
