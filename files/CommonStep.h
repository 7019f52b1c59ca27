// The common step after a failure: no exception leaves a kernel, a file routine or a command.
#pragma once

#include <exception>
#include <utility>

#include "base/Failure.h"
#include "files/GloableVariable.h"

namespace lithmark {

// Runs a command. A failure is told by the common step, which drops an open file too, and ends the command; false then.
template <typename Command>
bool UnderCommonStep(Command&& command) {
    try {
        std::forward<Command>(command)();
        return true;
    } catch (const std::exception& error) {
        FileError(FailureFrom(error));
    }
    return false;
}

// Runs a step that must not keep the following ones from running: what goes wrong in it is passed over.
template <typename Step>
void PassingOverErrors(Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const std::exception&) {
        DropNumberedFile(1);
    }
}

}  // namespace lithmark
