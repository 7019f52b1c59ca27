// A tornado as a picture or a document: a bar for each field from the result at its low value to that at its high one.
#pragma once

#include <string>
#include <vector>

#include "render/PlotPage.h"

class QCustomPlot;

namespace lithmark {

struct ChartInks;

struct TornadoPicture {
    struct Bar {
        std::string Name;
        double AtLow = 0, AtHigh = 0;
    };

    std::string Title, Axis;
    std::string LowLegend, HighLegend;
    double Middle = 0;      // the result where the bars begin
    std::vector<Bar> Bars;  // from above
};

// Puts the bars, axes and legend into a plot in place of what it holds.
void FillTornado(QCustomPlot& plot, const TornadoPicture& picture, const ChartInks& inks);

// The file's bytes. Names, axis and bars run from left to right in every language.
std::string TornadoFile(PictureKind kind, const TornadoPicture& picture);

}  // namespace lithmark
