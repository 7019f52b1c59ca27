// The arguments of ShowChart: a table of curves with everything that a chart window, a picture or a spreadsheet needs.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"

namespace lithmark {

enum class LineStyle { Solid, Points, LinesNoMarkers };

struct ChartArguments {
    Integer Curves = 0;
    Integer LastColumn = 0;
    Integer HeaderRows = 0;  // index of the last header row
    Integer LastRow = 0;
    std::string XTitle, YTitle;
    Array<std::string> Legends;  // 0 .. Curves, from 1 in use
    std::string TableTitle;
    Matrix<std::string> Cells;   // rows 0 .. LastRow, columns 0 .. LastColumn; row and column 0 stay empty
    Matrix<std::string> Header;  // rows 0 .. HeaderRows, columns 0 .. LastColumn
    bool Flag = false;
    bool SettlementsDown = false;  // the y axis points down, since settlements are drawn
    Array<LineStyle> LineStyles;   // 0 .. Curves, from 1 in use
    Single XStart, XEnd;
    std::string ProjectText;  // four lines, each ended by a line feed
    std::string ChartTitle;
    std::string CompanyLine1, CompanyLine2;
    // Shows the same result as contour lines over the raft; empty where there are none.
    std::function<void()> ShowContours;
};

}  // namespace lithmark
