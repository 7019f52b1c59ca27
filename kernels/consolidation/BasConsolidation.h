// BasConsolidation: consolidation settlement of a clay layer under a load on the surface, the kernel of problem 4.
//
// Assumptions
// - Stresses are those of the elastic, homogeneous half-space (Boussinesq, 1885; superposed after Newmark, 1935).
// - The load is flexible, on the surface, with its centre at the origin.
// - Strain is vertical only: the mean stress increase of the layer, or of each sublayer, compresses it like a sample in
//   the oedometer, by the modulus Es or by the semi-logarithmic law with Cc (Terzaghi, 1925), normally consolidated.
//
// x, y plan position of the vertical [m]; z depth of the layer's top [m]; h its thickness [m]. Load: LoadType 1 point
// load Q [kN]; 2 pressure P [kN/m2] on a rectangle A by B [m]; 3 pressure P on a circle of radius A. Soil:
// SoilPropertyType 1 modulus Es [kN/m2]; 2 void ratio eo, compression index Cc, unit weight Gamma [kN/m3] and initial
// vertical stress Po [kN/m2] at the layer's top.
//
// Failures: Es = 0; a layer of less than half a sublayer (Session.PrefDz) by Cc; no initial stress in the middle of the
// first sublayer; a point load right above a layer that begins at the surface; the point on a node of the circle's mesh
// other than on the axis; a circle of radius 0 or with a mesh too large.
//
// Accuracy: that of Singles; for the circle off the axis that of its mesh. With 12 divisions the mean stress is within
// 2 % from a depth of one radius downward, and worse above it near a node. On the axis the circle is exact.
#pragma once

#include <vector>

#include "base/Integer.h"
#include "base/Single.h"
#include "kernels/consolidation/ConsolidationInput.h"

namespace lithmark {

// Leaves the settlement Session.s [cm] and the mean stress increase Session.Sigma_z [kN/m2] of the last interval
// worked, and writes the report to Session.ResultText. Another soil type than 1 and 2 computes nothing and reports the
// s of before; another load type leaves Sigma_z as it is. A failure is shown, sets Session.CalcAborted and ends the
// run.
void ComputeConsolidation(Single x, Single y, Single z, Single Q, Single P, Single A, Single B, Single h, Single eo,
                          Single Po, Single Gamma, Single Cc, Single Es, Integer LoadType, Integer SoilPropertyType);

// An interval of depth as it was worked: depths [m], stresses [kN/m2], its share of the settlement [cm].
struct Sublayer {
    Single Top, Bottom, Before, Increase;
    double Share = 0;
};

// The two results alone, without report, pointer and failure handling. The circle's radius is Session.A0. Throws
// Failure. With a record the intervals go there too; by Es the stress before plays no part.
void SolveConsolidation(const ConsolidationInput& in, std::vector<Sublayer>* record = nullptr);

}  // namespace lithmark
