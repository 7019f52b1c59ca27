// How fast this machine is, for limits that are told in seconds.
#pragma once

namespace lithmark::tests {

// How many times as long as a usual processor this one takes, with the options that the program is compiled with, for
// what long runs do most: a row of numbers added to another one; at least 1. Processor time of this thread, and the
// shortest of several: a busy machine counts little. Measured once.
double Slowness();

}  // namespace lithmark::tests
