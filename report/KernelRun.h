// The one failure path of a kernel.
#pragma once

#include <exception>
#include <string>
#include <utility>

#include "core/Session.h"
#include "files/CommonStep.h"
#include "report/Notices.h"
#include "report/StepTables.h"

namespace lithmark {

// The failure as it is told: one of a calculation that says no more than its kind names the input that it comes from,
// where `cause` knows one.
Failure WithCause(Failure failure, const std::string& cause);

// Tells a failed run: what went wrong, and behind it the notices, since no result is shown that they could stand
// beside.
void TellFailedRun(const Failure& failure);

// Runs the body of a kernel, with an empty board of notices and no tables of steps. Any run-time failure ends it: the
// shared failure routine tells it, with what `cause` then says of the input (report/Causes.h), and drops the open file,
// and Session.CalcAborted is set. A run that the user ends leaves the notices and steps of the one before it. The
// pointer stays as the body left it. No exception leaves.
template <typename Body, typename Cause>
void RunKernel(Body&& body, Cause&& cause) {
    const NoticeBoard formerNotices = Notices();
    StepRecorder formerSteps = std::move(Steps());
    Notices().Clear();
    Steps().Clear();
    try {
        body();
    } catch (const std::exception& error) {
        const Failure failure = FailureFrom(error);
        if (failure.Kind() == FailureKind::Cancelled) {
            Notices() = formerNotices;
            Steps() = std::move(formerSteps);
            FileError(failure);
        } else {
            TellFailedRun(WithCause(failure, cause()));
        }
        Session.CalcAborted = true;
    }
}
template <typename Body>
void RunKernel(Body&& body) {
    RunKernel(std::forward<Body>(body), [] { return std::string(); });
}

}  // namespace lithmark
