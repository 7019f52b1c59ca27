// The result that is drawn over the field that varies: a curve, or one for each value of a second field. Rows of random
// fields give what 5, 50 and 95 % of the samples do not exceed, with a second field the middle one of them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "study/window/StudyQuestion.h"
#include "study/window/StudyTable.h"

namespace lithmark {

struct StudyCurve {
    std::string Name;
    std::vector<double> Y;  // not a number where a row aborted or is missing: a gap, never a line across
};

// A limit crossed between two neighbours of a curve, linear between them.
struct CurveCrossing {
    std::size_t Curve, Before;  // the neighbour on the left
    double X;
};

// All in the units of the windows.
struct StudyCurves {
    std::vector<double> X;       // ascending
    std::vector<double> Family;  // of the second field, a curve each; one without a meaning where there is none
    std::vector<StudyCurve> Curves;
    std::vector<CurveCrossing> Crossings;
    std::optional<double> Limit;
    // The present value and its result.
    std::optional<double> PresentX, PresentY;
};

// The number of the drawn result in a row, in base units; kMissing where the row aborted or has none.
float PlottedNumber(const StudyQuestion& asked, const StudyTable& table, const StudyLine& line);

// `present` has the one row of the values that the dialog holds; null while there is none.
StudyCurves CurvesOf(const StudyQuestion& asked, const StudyTable& table, const StudyTable* present);

// The rows of a table between which the limit is crossed, by their places among its lines; for curves of single rows.
std::vector<std::size_t> CrossedRows(const StudyQuestion& asked, const StudyTable& table);

// "s = 5.00 cm at a = 3.42 m", for each crossing and each curve, of a contour for the outermost ones; that there is
// none where rows are on one side alone; empty without a limit.
std::string CrossingText(const StudyQuestion& asked, const StudyCurves& curves);

}  // namespace lithmark
