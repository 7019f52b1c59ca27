// The run of the project that Session holds, without a dialog in front of it.
#pragma once

namespace lithmark {

struct SessionRecord;

// What is set beside the fields of the data file, by a dialog and by whatever else fills a record: A0 = A, the radius
// of circular loads.
void SetDerivedFields(SessionRecord& record);

// Runs the kernel of Session.ProblemType on a fresh report. Session.CalcAborted tells how it ended; without a kernel
// for the problem and its load it is set, behind a message.
void RunProject();

}  // namespace lithmark
