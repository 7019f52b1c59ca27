#include "render/drawings/Drawings.h"

#include <algorithm>
#include <string_view>

namespace lithmark {

namespace {

struct DrawingRow {
    std::string_view Name;
    DrawingFunction Draw;
};
constexpr DrawingRow kDrawings[] = {
    {"stress", StressDrawing}, {"consolidation", ConsolidationDrawing},
    {"rate", RateDrawing},     {"building", BuildingDrawing},
    {"raft", RaftDrawing},     {"logo", LogoDrawing},
};

}  // namespace

DrawingFunction FindDrawing(const std::string& name) {
    const auto row = std::ranges::find(kDrawings, name, &DrawingRow::Name);
    return row == std::end(kDrawings) ? nullptr : row->Draw;
}

}  // namespace lithmark
