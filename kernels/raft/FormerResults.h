// What a raft run overwrites in the record, so that a run that the user ends leaves the results of the one before it.
#pragma once

#include "base/Failure.h"
#include "core/Session.h"

namespace lithmark {

class FormerResults {
  public:
    void Restore() const {
        SessionRecord& s = Session;
        s.NodeX = nodeX_;
        s.NodeY = nodeY_;
        s.NodeArea = nodeArea_;
        s.NodeForce = nodeForce_;
        s.NodePressure = nodePressure_;
        s.NodeSettlement = nodeSettlement_;
        s.RaftMidX = raftMidX_;
        s.RaftMidSettlement = raftMidSettlement_;
        s.RaftMidPressure = raftMidPressure_;
        s.RaftMidFlexible = raftMidFlexible_;
        s.RaftMidCount = raftMidCount_;
        s.RaftMeanPressure = raftMeanPressure_;
        s.PrefDx = prefDx_;
        s.PrefDy = prefDy_;
        s.A0 = a0_;
        s.Nue = nue_;
    }

  private:
    const Array<Single> nodeX_ = Session.NodeX, nodeY_ = Session.NodeY, nodeArea_ = Session.NodeArea,
                        nodeForce_ = Session.NodeForce, nodePressure_ = Session.NodePressure,
                        nodeSettlement_ = Session.NodeSettlement, raftMidX_ = Session.RaftMidX,
                        raftMidSettlement_ = Session.RaftMidSettlement, raftMidPressure_ = Session.RaftMidPressure,
                        raftMidFlexible_ = Session.RaftMidFlexible;
    const Integer raftMidCount_ = Session.RaftMidCount;
    const Single raftMeanPressure_ = Session.RaftMeanPressure, prefDx_ = Session.PrefDx, prefDy_ = Session.PrefDy,
                 a0_ = Session.A0, nue_ = Session.Nue;
};

// Works the body of a raft run. When the user ends it, the record, z and h are as they were before; the failure goes
// on.
template <typename Body>
void RunUnlessCancelled(Single& z, Single& h, Body&& body) {
    const FormerResults former;
    const Single formerZ = z, formerH = h;
    try {
        body();
    } catch (const Failure& failure) {
        if (failure.Kind() == FailureKind::Cancelled) {
            former.Restore();
            z = formerZ;
            h = formerH;
        }
        throw;
    }
}

}  // namespace lithmark
