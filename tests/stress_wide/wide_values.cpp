// Compiled with LITHMARK_WIDE_SINGLE in a namespace of its own; see tests/CMakeLists.txt.
#include "stress_wide/StressValues.inc"

static_assert(sizeof(lithmark::Single) == sizeof(double));

stresswide::Values stresswide::WideValues(const Case& c) {
    return lithmark::StressValues(c);
}
