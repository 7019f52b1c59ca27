#include "kernels/raft/Conditioning.h"

#include <algorithm>
#include <cmath>

#include "services/numerics/NumericLib.h"

namespace lithmark {

namespace {

// The greatest sum of a row's absolute values.
double Norm(int n, const Matrix<Single>& matrix) {
    double greatest = 0;
    for (int r = 1; r <= n; ++r) {
        double sum = 0;
        for (const Single value : matrix.Row(r)) sum += std::abs(value);
        greatest = std::max(greatest, sum);
    }
    return greatest;
}

}  // namespace

RaftMeasures& MeasuresOfRaft() {
    static RaftMeasures measures;
    return measures;
}

void InvertFlexibility(int n, const Matrix<Single>& flexibility, Matrix<Single>& stiffness) {
    const double norm = Norm(n, flexibility);
    NumericLib::Invert(n, flexibility, stiffness);
    MeasuresOfRaft().Condition = norm * Norm(n, stiffness);
}

}  // namespace lithmark
