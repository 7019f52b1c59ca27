// A stress run as plain numbers, so that the kernels of two stored widths can be compared in one program.
#pragma once

#include <array>

namespace stresswide {

struct Case {
    double x, y, z, Q, P, A, B, Nue, Es;
    int LoadType, Divisions;
};

constexpr std::size_t kStresses = 6, kStrains = 6, kDisplacements = 4;
// Sigma_x .. Tau_yz, Varepsilon_x .. Gamma_yz, u, v, w, s.
using Values = std::array<double, kStresses + kStrains + kDisplacements>;

Values SingleValues(const Case& c);  // stored quantities of 32 bits, as in the program
Values WideValues(const Case& c);    // of 64 bits

}  // namespace stresswide
