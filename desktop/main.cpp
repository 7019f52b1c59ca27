#include "desktop/Application.h"

int main(int argc, char** argv) {
    return lithmark::RunDesktop(argc, argv);
}
