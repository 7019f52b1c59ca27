// What the tests of the circular raft share.
#pragma once

#include <gtest/gtest.h>

#include "core/Session.h"
#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/CircularRaftRun.h"
#include "raft/RaftProblem.h"
#include "support/Pi.h"

namespace lithmark::tests {

// A raft of radius 5 m under 7854 kN, a mean pressure of 100 kN/m2, on 5 m of soil from the surface on.
inline RaftInput RoundRaft() {
    RaftInput input = SquareRaft();
    input.z = 0;
    return input;
}

// A fresh record with a raft problem of its own in it.
class CircularRaft : public testing::Test {
  protected:
    CircularRaft() {
        ResetSession();
        Session.ProblemType = Problem::RaftDisplacement;
        Session.LoadType = 3;
        Session.Nue = 0.25;
        Session.PrefND = 12;
    }
    ~CircularRaft() override { ResetSession(); }

    RaftResult Calculate() { return CalculateCircularRaft(Input); }
    static double ForceSum() { return SumOf(Session.NodeForce); }
    static double MomentSum() { return MomentOf(Session.NodeX, Session.NodeForce); }

    RaftInput Input = RoundRaft();
};

}  // namespace lithmark::tests
