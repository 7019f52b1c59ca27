// BasSoilStress: stresses, strains and displacements at a point of the soil under one load on its surface, the kernel
// of the problems 1 (stress), 2 (strain) and 3 (displacement).
#pragma once

#include "base/Integer.h"
#include "base/Single.h"
#include "kernels/elastic/RectangularLoad.h"
#include "kernels/elastic/SoilStressInput.h"

namespace lithmark {

// Computes the sixteen results in Session (Sigma and Tau in kN/m2, strains, u, v, w, s in cm) and writes the report of
// the current ProblemType to Session.ResultText. All results are computed whatever the problem. LoadType 1 point load
// Q, 2 pressure P on a rectangle A by B, 3 pressure P on a circle of radius A; with any other load type the stresses
// stay as they are and the strains follow from them. Any failure (E = 0, Poisson's ratio -1, a singular point, a mesh
// too large, overflow) is shown, sets Session.CalcAborted and ends the run; the hourglass stays.
void ComputeSoilStress(Single x, Single y, Single z, Single Q, Single P, Single A, Single B, Single Nue, Single Es,
                       Integer LoadType);

// The sixteen results alone, without report, pointer and failure handling. The circle's radius is Session.A0. Throws
// Failure. With a record the steps of a rectangle go there too.
void SolveSoilStress(const SoilStressInput& in, CornerRecord* record = nullptr);

}  // namespace lithmark
