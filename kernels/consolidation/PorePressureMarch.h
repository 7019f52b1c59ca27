// Explicit marching of pore water pressures in time on a row of nodes.
//
// In one step every node becomes the weighted sum of itself, its two neighbours above and its two neighbours below: the
// forward-time, central-space form of Terzaghi's consolidation equation (1923), with whatever boundary and interface
// rows the caller gives. Pressures are stored quantities of 32 bits; each of the up to five terms is added in 64 bits
// and rounded as it is stored, in the order of the weights.
#pragma once

#include <span>
#include <vector>

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark {

// Weights of a node's value two above, one above, itself, one below and two below; all zero at first.
struct FivePointRow {
    Single Cm2, Cm1, C0, Cp1, Cp2;
};

class PorePressureMarch {
  public:
    // Takes the first step from the nodes' initial values. Rows and values have the same bounds. A weight for a node
    // beyond the ends of the row counts for nothing.
    PorePressureMarch(const Array<FivePointRow>& rows, const Array<Single>& initial);

    // `steps` further steps. Overflow when a value outgrows 32 bits, as it does where the scheme is unstable; Cancelled
    // when the user ends the run.
    void Advance(int steps);

    // The values reached; those that one more step would give, same failure.
    std::span<const Single::Storage> Values() const noexcept { return cur_; }
    std::span<const Single::Storage> OneStepOn();

  private:
    using Values_ = std::vector<Single::Storage>;
    // Nodes first .. last inside a layer, all with the same three weights.
    struct PlainRun {
        std::size_t First, Last;
        double Cm1, C0, Cp1;
    };
    struct OtherRow {
        std::size_t Node;
        FivePointRow Row;
    };

    void Product(const Values_& old, Values_& out) const;

    std::vector<PlainRun> plain_;
    std::vector<OtherRow> others_;
    Values_ cur_, next_;
};

}  // namespace lithmark
