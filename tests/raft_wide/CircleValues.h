// A run of the circular raft as plain numbers, so that the kernels of two stored widths can be compared in one program.
#pragma once

#include <vector>

namespace raftwide {

struct Case {
    int ProblemType, SoilPropertyType;
    bool AnalysisType, SettlementAt;
    double z, h, e;
    int Divisions;
};

struct Values {
    std::vector<double> Force, Settlement, Flexible;  // kN per node, cm per node, cm along the diameter
    double LimitingDepth = 0;
};

Values SingleValues(const Case& c);  // stored quantities of 32 bits, as in the program
Values WideValues(const Case& c);    // of 64 bits

}  // namespace raftwide
