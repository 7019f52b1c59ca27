// NumericLib: dense linear algebra, convergence, line fitting and the quadrature of a four-node quadrilateral.
//
// Stored values are Singles; how wide the work inside an operation runs is told with it.
#pragma once

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark::NumericLib {

// The inverse of an n by n matrix. SingularMatrix when a pivot vanishes.
void Invert(int n, const Matrix<Single>& m, Matrix<Single>& inverse);
// y = M x, sums in 64 bits, rounded once.
void MatVec(int n, const Matrix<Single>& m, const Array<Single>& x, Array<Single>& y);
// The product of a rows by inner and an inner by cols matrix.
void MatMul(int rows, int inner, int cols, const Matrix<Single>& a, const Matrix<Single>& b, Matrix<Single>& product);
// True when the greatest absolute difference of the two vectors is at most the tolerance. `previous` takes `current`.
bool VectorsConverged(int n, const Array<Single>& current, Array<Single>& previous, double tolerance);
// The least-squares straight line through n points.
void FitLine(int n, const Array<Single>& x, const Array<Single>& y, Single& intercept, Single& slope);

// The corners (x, y) of the rectangle x1..x2, y1..y2 in the order that ShapeFunctions expects: 4 by 2.
void QuadCorners(double x1, double x2, double y1, double y2, Matrix<Single>& corners);
// Gauss-Legendre abscissae (column 1) and weights (column 2) of order n (1 to 4) on -1..1.
void GaussPoints(Matrix<Single>& points, int n);
// Shape values N(1..4) of the bilinear quadrilateral and their derivatives dN by xi (row 1) and eta (row 2), at the
// Gauss point whose xi is row i and whose eta is row j.
void ShapeFunctions(Matrix<Single>& dN, Array<Single>& n, const Matrix<Single>& points, int i, int j);

}  // namespace lithmark::NumericLib
