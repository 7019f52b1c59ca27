// The run of the project that Session holds, without a dialog in front of it.
#pragma once

namespace lithmark {

// What a dialog's store step sets beside the fields of the data file: A0 = A.
void SetDerivedFields();

// Runs the kernel of Session.ProblemType on a fresh report. Session.CalcAborted tells how it ended; without a kernel
// for the problem and its load it is set, behind a message.
void RunProject();

}  // namespace lithmark
