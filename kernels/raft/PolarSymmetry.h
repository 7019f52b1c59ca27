// Values on a circular raft that follow from its symmetry.
#pragma once

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark {

// Turns a profile from the centre (1) to the edge (K) into one over the whole diameter, 1 to N = 2K - 1, in place.
void MirrorProfile(int N, int K, Array<Single>& values);

// Fills node values of the polar mesh (nodes ray by ray outward, NRing - 1 a ray behind the centre node) that the first
// quarter or half gives, in place. NQuarter and NHalf are the last nodes of the first quarter and half. With Exz
// exactly 0 the second quarter mirrors the first about the ray that ends in NQuarter; the second half always mirrors
// the first about the ray that ends in NHalf.
void CopyBySymmetry(int NHalf, int NQuarter, int NTotal, int NRing, Single Exz, Array<Single>& values);

}  // namespace lithmark
