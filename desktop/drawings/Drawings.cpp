#include "desktop/drawings/Drawings.h"

#include <map>

namespace lithmark {

namespace {

std::map<std::string, DrawingFunction>& DrawingsByName() {
    static std::map<std::string, DrawingFunction> drawings;
    return drawings;
}

}  // namespace

DrawingNamed::DrawingNamed(const char* name, DrawingFunction draw) {
    DrawingsByName()[name] = draw;
}

DrawingFunction FindDrawing(const std::string& name) {
    const auto found = DrawingsByName().find(name);
    return found == DrawingsByName().end() ? nullptr : found->second;
}

}  // namespace lithmark
