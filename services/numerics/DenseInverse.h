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

#include "base/Single.h"

namespace lithmark::detail {

enum class SimdLevel { Baseline, Avx2, Avx512 };

// The widest level that this processor has.
SimdLevel WidestSimdLevel();
// As many threads as pay for a matrix of this order on this machine.
int UsefulThreads(int n);

// Replaces the n by n matrix, stored row by row without gaps, by its inverse. SingularMatrix when a pivot is exactly 0
// or the elimination leaves the range of the stored width; the matrix then holds nothing of use.
void InvertInPlace(int n, Single::Storage* matrix, SimdLevel level, int threads);

}  // namespace lithmark::detail
