// The program from its command line to its exit status.
#pragma once

namespace lithmark {

int RunProgram(int argc, char** argv);

}  // namespace lithmark
