#include <cerrno>
#include <cstring>

#include "base/SystemErrors.h"

namespace lithmark {

bool IsQuotaError(int error) {
    return error == EDQUOT;
}

std::string NameOfError(int error) {
    const char* name = ::strerrorname_np(error);
    return name != nullptr ? name : "";
}

}  // namespace lithmark
