// A library that is loaded ahead of the C library and lets one file operation of a program fail, or ends the program
// there: the fault that tests put into every save.
//
//     LITHMARK_FAULT=<call>:<n>:<how>   call: open write sync rename close unlink; how: fail, or end
//     LITHMARK_FAULT_UNDER=<folder>     only operations on files in this folder count
//     LITHMARK_FAULT_MARK=<file>        made when the n-th operation came, outside that folder
//
// "end" is a pulled plug: the process is gone without a word, in a write after half its bytes.
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

template <typename F>
F Real(const char* name) {
    return reinterpret_cast<F>(dlsym(RTLD_NEXT, name));
}

// What is to happen, read once from the environment.
struct Plan {
    std::string Call, Under, Mark;
    long At = 0;
    bool Ends = false;

    Plan() {
        const char* fault = std::getenv("LITHMARK_FAULT");
        const char* under = std::getenv("LITHMARK_FAULT_UNDER");
        const char* mark = std::getenv("LITHMARK_FAULT_MARK");
        if (fault == nullptr || under == nullptr || mark == nullptr) return;
        const std::string text = fault;
        const auto first = text.find(':'), second = text.find(':', first + 1);
        if (second == std::string::npos) return;
        Call = text.substr(0, first);
        At = std::atol(text.c_str() + first + 1);
        Ends = text.substr(second + 1) == "end";
        Under = under;
        Mark = mark;
    }
};

const Plan& ThePlan() {
    static const Plan plan;
    return plan;
}

bool IsUnder(const char* path) {
    const std::string& folder = ThePlan().Under;
    return path != nullptr && !folder.empty() && std::strncmp(path, folder.c_str(), folder.size()) == 0;
}

bool IsUnder(int descriptor) {
    char link[64], path[PATH_MAX];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    if (length <= 0) return false;
    path[length] = '\0';
    return IsUnder(path);
}

// True when this operation is the one that is to fail. The mark is made then.
template <typename Subject>
bool Strikes(const char* call, Subject subject) {
    static long count = 0;
    const Plan& plan = ThePlan();
    if (plan.Call != call || !IsUnder(subject) || ++count != plan.At) return false;
    const int mark =
        static_cast<int>(Real<int (*)(const char*, int, ...)>("open")(plan.Mark.c_str(), O_WRONLY | O_CREAT, 0600));
    if (mark >= 0) Real<int (*)(int)>("close")(mark);
    return true;
}

[[noreturn]] void PullThePlug() {
    kill(getpid(), SIGKILL);
    for (;;) pause();
}

// Ends the program, or gives the result of a failed operation.
template <typename T>
T Result(int error, T failed) {
    if (ThePlan().Ends) PullThePlug();
    errno = error;
    return failed;
}

int OpenWith(const char* name, const char* path, int flags, mode_t mode) {
    if (Strikes("open", path)) return Result((flags & O_CREAT) != 0 ? ENOSPC : EIO, -1);
    return Real<int (*)(const char*, int, ...)>(name)(path, flags, mode);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return OpenWith("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return OpenWith("open64", path, flags, mode);
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    const auto real = Real<ssize_t (*)(int, const void*, size_t)>("write");
    if (Strikes("write", descriptor)) {
        if (ThePlan().Ends) real(descriptor, bytes, count / 2);
        return Result<ssize_t>(ENOSPC, -1);
    }
    return real(descriptor, bytes, count);
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset) {
    const auto real = Real<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite");
    if (Strikes("write", descriptor)) {
        if (ThePlan().Ends) real(descriptor, bytes, count / 2, offset);
        return Result<ssize_t>(ENOSPC, -1);
    }
    return real(descriptor, bytes, count, offset);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset) {
    return pwrite(descriptor, bytes, count, offset);
}

int fsync(int descriptor) {
    if (Strikes("sync", descriptor)) return Result(EIO, -1);
    return Real<int (*)(int)>("fsync")(descriptor);
}

int close(int descriptor) {
    const bool strikes = Strikes("close", descriptor);
    const int result = Real<int (*)(int)>("close")(descriptor);
    return strikes ? Result(EIO, -1) : result;
}

int rename(const char* from, const char* to) {
    if (Strikes("rename", to)) return Result(EIO, -1);
    return Real<int (*)(const char*, const char*)>("rename")(from, to);
}

int unlink(const char* path) {
    if (Strikes("unlink", path)) return Result(EIO, -1);
    return Real<int (*)(const char*)>("unlink")(path);
}

int remove(const char* path) {
    if (Strikes("unlink", path)) return Result(EIO, -1);
    return Real<int (*)(const char*)>("remove")(path);
}
}
