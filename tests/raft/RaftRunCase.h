// Whole runs of the rectangular raft for tests: a fresh record, a folder of the test's own, the run.
#pragma once

#include <gtest/gtest.h>

#include "kernels/raft/BasRectangularRigidRaft.h"
#include "support/Files.h"
#include "support/ScriptedHost.h"
#include "support/TestSession.h"

namespace lithmark::tests {

class RaftRunCase : public testing::Test {
  protected:
    void SetUp() override { Fresh(); }

    // A raft 5 m by 5 m with nodes 1.25 m apart, on an elastic layer; numerical, central.
    void Fresh(Language language = Language::English) {
        FreshSession(language);
        Session.WorkDir = folder_.Dir();
        Session.WorkName = "Raft1";
        Session.ProblemType = Problem::RaftDisplacement;
        Session.LoadType = 2;
        Session.Q = 7854;
        Session.A = Session.B = 5;
        Session.h = 5;
        Session.Es = 5000;
        Session.Nue = 0.25;
        Session.Cc = 0.16;
        Session.eo = 0.85;
        Session.Po = 51.82;
        Session.Gamma = 8.69;
        Session.SoilPropertyType = 1;
        Session.AnalysisType = false;
        Session.SettlementAt = true;
        Session.PrefDx = Session.PrefDy = 1.25;
    }
    void RunRectangle() {
        SessionRecord& s = Session;
        ComputeRectangularRaft(s.z, s.Q, s.A, s.B, s.h, s.eo, s.Po, s.Cc, s.Es, s.SoilPropertyType, s.Exz_x, s.Exz_y,
                               s.Gamma, s.AnalysisType, s.SettlementAt);
    }
    // Runs and expects no failure.
    void Run() {
        RunRectangle();
        ASSERT_FALSE(Session.CalcAborted) << host_.LastMessage().Text;
        ASSERT_TRUE(host_.Messages.empty());
    }
    std::string Bytes(const std::string& extension) const { return ReadBytes(folder_ / ("Raft1." + extension)); }

    TestFolder folder_;
    ScriptedHost host_;
};

}  // namespace lithmark::tests
