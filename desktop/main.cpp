#include "desktop/Application.h"
#include "services/platform/RemovedOnEnd.h"

int main(int argc, char** argv) {
    lithmark::EndCleanlyOnSignals();
    return lithmark::RunDesktop(argc, argv);
}
