// A page, A4 across, with a title and a plot below it, as a picture or a document.
#pragma once

#include <functional>
#include <string>

class QCustomPlot;

namespace lithmark {

enum class PictureKind { Svg, Png, Pdf };

// The file's bytes; `fill` puts into the empty plot what it shows.
std::string PlotPage(PictureKind kind, const std::string& title, const std::function<void(QCustomPlot&)>& fill);

}  // namespace lithmark
