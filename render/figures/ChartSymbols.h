// Charts as windows show them: the symbols of their axes as engineers write them.
#pragma once

#include "services/host/Charting.h"

namespace lithmark {

// "Stress Sigma_z [kN/m²]" becomes "Stress σ_z [kN/m²]". The table keeps the symbols of reports.
ChartArguments WithSymbolsInPrint(ChartArguments chart);

}  // namespace lithmark
