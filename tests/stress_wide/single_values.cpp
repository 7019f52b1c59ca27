#include "stress_wide/StressValues.inc"

stresswide::Values stresswide::SingleValues(const Case& c) {
    return lithmark::StressValues(c);
}
