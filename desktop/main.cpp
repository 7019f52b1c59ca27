#include "services/platform/RemovedOnEnd.h"
#include "desktop/Application.h"

int main(int argc, char** argv) {
    lithmark::EndCleanlyOnSignals();
    return lithmark::RunDesktop(argc, argv);
}
