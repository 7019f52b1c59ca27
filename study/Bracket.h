// Two values of a field on either side of a limit, drawn together until they are one for all that matters.
//
// What is drawn is the point of method ITP (Oliveira and Takahashi 2020): between the middle and the point of the
// chord, so that smooth results need a handful of trials, and results that jump never more than one more than halving
// does.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "study/SearchRange.h"

namespace lithmark {

// A value of the field and what came of it. Beyond is above 0.
struct Trial {
    double Value = 0;
    double Excess = 0;           // result less limit
    std::vector<float> Numbers;  // what else was taken
    std::string Notices;

    bool Beyond() const noexcept { return Excess > 0; }
};

class Bracket {
  public:
    // One of the two is beyond and one is not. `part`: SearchRange::Small.
    Bracket(const SearchRange& range, double part, Trial low, Trial high);

    // The value to be tried next; nothing at the end.
    std::optional<double> Next() const;
    void Put(Trial trial);
    // The value that was tried gave nothing: the bracket stays as wide as it is.
    void End() noexcept { ended_ = true; }

    // The end that is not beyond.
    const Trial& Inside() const noexcept { return low_.Beyond() ? high_ : low_; }
    bool BeyondAbove() const noexcept { return high_.Beyond(); }

  private:
    double Wanted() const;

    const SearchRange* range_;
    double part_;
    Trial low_, high_;
    double firstWidth_;
    double reach_;  // what may be missed of the middle: halved with every trial
    bool ended_ = false;
};

}  // namespace lithmark
