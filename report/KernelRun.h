// The one failure path of a kernel.
#pragma once

#include <new>

#include "base/Failure.h"
#include "core/Session.h"
#include "files/GloableVariable.h"
#include "report/Notices.h"
#include "report/StepTables.h"

namespace lithmark {

// Runs the body of a kernel, with an empty board of notices and no tables of steps. Any run-time failure ends it: the
// shared failure routine tells it and drops the open file, and Session.CalcAborted is set. The pointer stays as the
// body left it. No exception leaves.
template <typename Body>
void RunKernel(Body&& body) {
    Notices().Clear();
    Steps().Clear();
    try {
        body();
    } catch (const Failure& failure) {
        FileError(failure);
        Session.CalcAborted = true;
    } catch (const std::bad_alloc&) {
        FileError(Failure(FailureKind::OutOfMemory));
        Session.CalcAborted = true;
    }
}

}  // namespace lithmark
