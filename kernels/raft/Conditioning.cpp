#include "kernels/raft/Conditioning.h"

#include <algorithm>
#include <cmath>

#include "services/numerics/NumericLib.h"

namespace lithmark {

namespace {

// The greatest sum of a row's absolute values. `between` is called now and then.
template <typename Between>
double Norm(int n, const Matrix<Single>& matrix, const Between& between) {
    double greatest = 0;
    for (int r = 1; r <= n; ++r) {
        double sum = 0;
        for (const Single value : matrix.Row(r)) sum += std::abs(value);
        greatest = std::max(greatest, sum);
        if (r % 256 == 0) between();
    }
    return greatest;
}

}  // namespace

RaftMeasures& MeasuresOfRaft() {
    static RaftMeasures measures;
    return measures;
}

void InvertFlexibility(int n, const Matrix<Single>& flexibility, Matrix<Single>& stiffness,
                       const std::function<void(double part)>& progress) {
    const auto tell = [&progress](double part) {
        if (progress) progress(part);
    };
    const double norm = Norm(n, flexibility, [&] { tell(0); });
    NumericLib::Invert(n, flexibility, stiffness, progress);
    MeasuresOfRaft().Condition = norm * Norm(n, stiffness, [&] { tell(1); });
}

}  // namespace lithmark
