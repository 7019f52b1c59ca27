#include <cerrno>
#include <utility>

#include "base/SystemErrors.h"

namespace lithmark {

bool IsQuotaError(int /*error*/) {
    return false;
}

std::string NameOfError(int error) {
    static constexpr std::pair<int, const char*> kNames[] = {
        {E2BIG, "E2BIG"},   {EAGAIN, "EAGAIN"}, {EBADF, "EBADF"},   {EBUSY, "EBUSY"},     {EEXIST, "EEXIST"},
        {EFBIG, "EFBIG"},   {EINTR, "EINTR"},   {EINVAL, "EINVAL"}, {EIO, "EIO"},         {EMFILE, "EMFILE"},
        {ENFILE, "ENFILE"}, {EPIPE, "EPIPE"},   {ESPIPE, "ESPIPE"}, {ETXTBSY, "ETXTBSY"}, {EXDEV, "EXDEV"}};
    for (const auto& [number, name] : kNames)
        if (number == error) return name;
    return "";
}

}  // namespace lithmark
