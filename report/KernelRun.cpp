#include "report/KernelRun.h"

namespace lithmark {

Failure WithCause(Failure failure, const std::string& cause) {
    switch (failure.Kind()) {
        case FailureKind::DivisionByZero:
        case FailureKind::Overflow:
        case FailureKind::InvalidArgument:
        case FailureKind::SubscriptRange:
        case FailureKind::SingularMatrix:
        case FailureKind::OutOfMemory:
            if (cause.empty() || !failure.Detail().empty() || !failure.File().empty()) return failure;
            return Failure(FailureKind::BadInput, cause);
        default:
            return failure;
    }
}

void TellFailedRun(const Failure& failure) {
    std::string notices;
    for (const Notice& notice : Notices().All()) {
        if (!notices.empty()) notices += ' ';
        notices += NoticeText(notice);
    }
    FileError(failure, notices);
}

}  // namespace lithmark
