// What the two raft kernels share: the input of a run, its plot mesh, and what report and export need of a finished
// run.
#pragma once

#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"
#include "core/Problems.h"
#include "kernels/raft/PlotElements.h"

namespace lithmark {

// Input as the kernel works with it, in base units and in the order of the kernels' arguments; z and h change during a
// run.
struct RaftInput {
    Single z, Q, A, B, h, eo, Po, Cc, Es;
    Integer SoilPropertyType = SoilDefinition::ByModulus;
    Single Exz_x, Exz_y, Gamma;
    bool AnalysisType = Analysis::Numerical, SettlementAt = SettlementPlace::AllNodes;
};

// What a finished run hands to report and export; the node arrays and the middle row are Session's.
struct RaftResult {
    RaftInput Input;  // z and h as they are after the run
    bool Circular = false;
    Integer NX = 0, NY = 0;           // rectangle: grid intervals
    Array<std::string> GridX, GridY;  // rectangle: coordinate texts, "0.000"
    std::vector<RaftElement> Elements;
    Array<Single> MidForce;  // along the middle row, kN
};

// Appends the report of problems 9 and 10 to a new Session.ResultText.
void WriteRaftReport(const RaftResult& result);
// Writes the eleven export files of the project, in their order. They come to the disk together and then take their
// places; when one cannot be written, those finished before it take theirs, and the Failure is thrown.
void ExportRaft(const RaftResult& result);
// Poisson's ratio as the soil file tells it: Session.Nue, but 0 or eo for an analytical run on clay. Deliberate: it is
// Session.Nue from the end of the run on, so that the record and the files agree.
Single SoilFileNue(const RaftInput& input);
// Off: the runs that follow write no files. Nothing else changes: what would fail for its numbers fails all the same.
// On at the start of the program.
void SetRaftExport(bool on);

// Which input made a run fail, as report/Causes.h has it; empty when it was none of them. The element sizes are those
// before the run.
std::string CauseInRaft(const RaftInput& input, double dx, double dy);

}  // namespace lithmark
