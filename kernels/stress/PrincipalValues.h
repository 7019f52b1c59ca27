// Principal stresses and strains at a point, by the circle of stresses (Mohr 1882) in the x-z plane. They are not the
// eigenvalues of the full tensors: Tau_xy and Tau_yz take no part.
#pragma once

#include "base/Single.h"

namespace lithmark {

// kN/m2. p is the mean normal stress.
struct PrincipalStresses {
    Single max_Tau, max_Sigma, min_Sigma, p, q;
};

// From stresses in kN/m2; Overflow when a value does not fit 32 bits. Deliberate: the intermediate stress that q uses
// is taken from the mean instead of the sum of the normal stresses, so q is not the deviatoric stress of textbooks.
PrincipalStresses ComputePrincipalStresses(Single Sigma_x, Single Sigma_y, Single Sigma_z, Single Tau_xz);

// Without unit. Epsilon_p is the volumetric strain, the sum of the normal strains.
struct PrincipalStrains {
    Single max_Gamma, max_Epsilon, min_Epsilon, Epsilon_p, Epsilon_q;
};

// Overflow when a value does not fit 32 bits.
PrincipalStrains ComputePrincipalStrains(Single Varepsilon_x, Single Varepsilon_y, Single Varepsilon_z,
                                         Single Gamma_xz);

}  // namespace lithmark
