// PolarMesh: the mesh of a circular raft, with its nodes at the centroids of sectors of equal rings.
//
// - ND divisions give NRing = ND/2 + 1 rings of equal area: a disc in the middle and ND/2 rings around it.
// - 2 ND rays stand dTheta = pi/ND apart, the first on the x axis, so each ring but the disc is cut into 2 ND sectors.
// - Node 1 is the centre; then the nodes run outward along a ray, NRing - 1 nodes each, ray by ray.
// - NQuarter and NHalf are the last nodes of the ray at 90 and of the ray at 180 degrees.
// Lengths in m, angles in radians; the origin is the centre of the raft.
#pragma once

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

struct PolarMesh {
    Integer ND;                              // divisions of the circle; meant to be even
    Integer NTotal, NRing, NHalf, NQuarter;  // nodes in all, radial stations, nodes of the half and of the quarter
    Single R;                                // radius of the raft
    Single dTheta;                           // angle between two rays

    // Per node, 1 to NTotal.
    Array<Single> NodeX, NodeY, NodeRadius;  // of the sector's centroid
    Array<Single> NodeArea;
    Array<Single> NodeInner, NodeOuter;    // radii of the sector
    Array<Single> NodeTheta1, NodeTheta2;  // angles of the sector
    Array<Integer> NodeRay;                // number of the ray: 1 to ND and then 1 to ND again; the centre's is 1

    // Per ring, 1 to NRing. RingArea is the area of one sector, and of the whole disc for ring 1.
    Array<Single> RingRadius, RingWidth, RingArea;
};

// The mesh of a raft of the given radius (m). Overflow, before memory is taken, when the nodes are more than an Integer
// counts (nd above 181); DivisionByZero for nd = 0 and for a radius of 0. An odd nd is taken as the formulas have it:
// the rays then do not close the circle.
PolarMesh BuildPolarMesh(Integer nd, Single radius);

}  // namespace lithmark
