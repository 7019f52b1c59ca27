#include "base/Failure.h"

namespace lithmark {

void Fail(FailureKind kind) {
    throw Failure(kind);
}

void Fail(FailureKind kind, std::string detail, long line) {
    throw Failure(kind, std::move(detail), line);
}

}  // namespace lithmark
