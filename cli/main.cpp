// lithmark-cli: everything of Lithmark that can be done without a screen, for scripts, batch runs and tests.
#include "cli/RunProgram.h"

int main(int argc, char** argv) {
    return lithmark::RunProgram(argc, argv);
}
