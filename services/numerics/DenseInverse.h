// The in-place inverse of a dense matrix, as NumericLib uses it.
//
// Method: Gauss-Jordan elimination with partial (row) pivoting, worked in blocks of columns so that nearly all the work
// is a product of a tall and a flat block (Quintana-Orti, Quintana, Sun, van de Geijn, 2001). Besides the matrix only
// the two blocks are held.
//
// Arithmetic: every multiplication and every addition is rounded to the stored width, and the sum that an element
// receives from a block of columns is taken in the order of those columns. This order depends on n alone. So the digits
// are the same for every instruction set, number of threads, machine and build type.
#pragma once

#include <functional>

#include "base/Single.h"

namespace lithmark::detail {

enum class SimdLevel { Baseline, Avx2, Avx512 };

// The widest level that this processor has.
SimdLevel WidestSimdLevel();
// As many threads as pay for a matrix of this order on this machine.
int UsefulThreads(int n);

// Replaces the n by n matrix, stored row by row without gaps, by its inverse. SingularMatrix when a pivot is exactly 0
// or the elimination leaves the range of the stored width; the matrix then holds nothing of use. `progress` is told by
// the calling thread how much is done, 0 to 1 and never less than before; it may be empty. What it throws ends the work
// within one block of rows, some hundredths of a second, and leaves; the matrix is of no use then.
void InvertInPlace(int n, Single::Storage* matrix, SimdLevel level, int threads,
                   const std::function<void(double)>& progress = {});

}  // namespace lithmark::detail
