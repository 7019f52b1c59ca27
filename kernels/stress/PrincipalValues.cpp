#include "kernels/stress/PrincipalValues.h"

#include <cmath>

namespace lithmark {

PrincipalStresses ComputePrincipalStresses(Single Sigma_x, Single Sigma_y, Single Sigma_z, Single Tau_xz) {
    const double root = std::sqrt(Square(Tau_xz) + Square((Sigma_z - Sigma_x) / 2));
    const Single max_Tau = root;
    const Single max_Sigma = (Sigma_z + Sigma_x) / 2 + root;
    const Single min_Sigma = (Sigma_z + Sigma_x) / 2 - root;
    const Single p = (Sigma_x + Sigma_y + Sigma_z) / 3;
    const Single mid = (p - max_Sigma) - min_Sigma;
    const Single q =
        std::sqrt(Square(max_Sigma - min_Sigma) + Square(mid - min_Sigma) + Square(max_Sigma - mid)) / std::sqrt(2.0);
    return {max_Tau, max_Sigma, min_Sigma, p, q};
}

PrincipalStrains ComputePrincipalStrains(Single Varepsilon_x, Single Varepsilon_y, Single Varepsilon_z,
                                         Single Gamma_xz) {
    const Single max_Gamma = std::sqrt(Square(Gamma_xz) + Square(Varepsilon_z - Varepsilon_x));
    const Single root = std::sqrt(Square(Gamma_xz / 2) + Square((Varepsilon_z - Varepsilon_x) / 2));
    const Single max_Epsilon = (Varepsilon_z + Varepsilon_x) / 2 + root;
    const Single min_Epsilon = (Varepsilon_z + Varepsilon_x) / 2 - root;
    const Single Epsilon_p = Varepsilon_x + Varepsilon_y + Varepsilon_z;
    const Single mid = (Epsilon_p - max_Epsilon) - min_Epsilon;
    const Single Epsilon_q =
        std::sqrt(Square(max_Epsilon - min_Epsilon) + Square(mid - min_Epsilon) + Square(max_Epsilon - mid)) *
        std::sqrt(2.0) / 3;
    return {max_Gamma, max_Epsilon, min_Epsilon, Epsilon_p, Epsilon_q};
}

}  // namespace lithmark
