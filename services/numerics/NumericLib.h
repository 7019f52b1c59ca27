// NumericLib: dense linear algebra, convergence, line fitting and the quadrature of a four-node quadrilateral.
//
// Stored values are Singles; how wide the work inside an operation runs is told with it. Results are resized by the
// operation, indices from 1. An argument that is too small for the counts is a SubscriptRange failure.
#pragma once

#include <functional>

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark::NumericLib {

using Progress = std::function<void(double part)>;

// The inverse of an n by n matrix, n from 1 on, by Gauss-Jordan elimination with row pivoting in the stored width. Both
// may be the same matrix; otherwise `m` stays. Besides the two, less than a tenth of their memory is needed. On a
// well-conditioned matrix an element is wrong by a few units of the last place of the greatest element; the error grows
// with the condition number. SingularMatrix when a pivot is exactly 0 or the elimination overflows; `inverse` is then
// of no use. The digits are the same on every machine. `progress` is told now and then how much is done, 0 to 1; what
// it throws ends the work at once and leaves.
void Invert(int n, const Matrix<Single>& m, Matrix<Single>& inverse, const Progress& progress = {});
// y = M x. An element is the sum of eight partial sums in 64 bits (columns 1, 9, ..; 2, 10, ..; and so on), rounded
// once. x and y may be the same. `progress` as for Invert.
void MatVec(int n, const Matrix<Single>& m, const Array<Single>& x, Array<Single>& y, const Progress& progress = {});
// The product of a rows by inner and an inner by cols matrix, sums in 64 bits, rounded once. `product` is neither a nor
// b.
void MatMul(int rows, int inner, int cols, const Matrix<Single>& a, const Matrix<Single>& b, Matrix<Single>& product);
// True when the greatest absolute difference of elements 1..n of the two vectors is at most the tolerance. `previous`
// takes `current`.
bool VectorsConverged(int n, const Array<Single>& current, Array<Single>& previous, double tolerance);
// The least-squares straight line y = intercept + slope x through points 1..n; sums about the means in 64 bits.
// DivisionByZero when there are fewer than two different abscissae.
void FitLine(int n, const Array<Single>& x, const Array<Single>& y, Single& intercept, Single& slope);

// The corners (x, y) of the rectangle x1..x2, y1..y2 in the order that ShapeFunctions expects, 4 by 2: (x1, y1),
// (x2, y1), (x2, y2), (x1, y2).
void QuadCorners(double x1, double x2, double y1, double y2, Matrix<Single>& corners);
// Gauss-Legendre abscissae (column 1, ascending) and weights (column 2) of order n on -1..1. InvalidArgument unless n
// is 1 to 4.
void GaussPoints(Matrix<Single>& points, int n);
// Shape values N(1..4) of the bilinear quadrilateral and their derivatives dN by xi (row 1) and eta (row 2), 2 by 4, at
// the Gauss point whose xi is row i and whose eta is row j of `points`.
void ShapeFunctions(Matrix<Single>& dN, Array<Single>& n, const Matrix<Single>& points, int i, int j);

}  // namespace lithmark::NumericLib
