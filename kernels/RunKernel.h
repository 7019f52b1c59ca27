// The kernel of the open project's problem.
#pragma once

namespace lithmark {

// Runs the kernel of Session.ProblemType on the fields of Session, as the problem's dialog does. A problem without a
// kernel (11, or a raft of another load type than rectangle and circle) computes nothing: false.
bool RunProblemKernel();

}  // namespace lithmark
