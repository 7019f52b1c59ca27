// BasContour: settlements or contact pressures of a raft as ten colour bands and isolines over its mesh.
//
// The mesh and the node values come from the files that a raft run leaves in the project directory. A triangular
// element is drawn as it is, a quadrilateral is split by its centre into four triangles; values are linear in a
// triangle. The ten classes share the range of the node values evenly.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Array.h"
#include "base/Integer.h"
#include "base/Single.h"
#include "contour/Surface.h"

namespace lithmark {

// What of the plot is wanted: the four check boxes of the contour window.
struct ContourOptions {
    bool ColorContours = true, Displaylines = true, DrawGrid = true, DisplayValues = true;
    bool operator==(const ContourOptions&) const = default;
};

enum class ZoomCornerOf { UpperLeft, UpperRight, LowerLeft, LowerRight };

struct WorldWindow {
    Single XMin, XMax, YMin, YMax;
};

class BasContour {
  public:
    static constexpr int kClasses = 10;
    static constexpr int kColorIsoline = 1, kColorBoundary = 3, kColorMesh = 5;

    // Reads, finds the boundary, takes the window. Then Redraw and DrawLegend show the plot. A missing file, a damaged
    // one or a value count that does not fit is a Failure.
    void Prepare();
    void Redraw(Surface& picBox, const ContourOptions& options);
    void DrawLegend(Surface& picBox2) const;

    // Cuts a third off the two sides that lie opposite the corner.
    void ZoomCorner(ZoomCornerOf corner);
    // Swaps the current and the previous window.
    void ZoomPrevious();
    void ZoomOriginal();

    // The steps of Prepare. ReadContourData reads the files of Session's open project; contact
    // pressures or settlements, as was asked for (core/CurveRequest.h).
    void ReadContourData();
    void FindBoundary();
    void ComputeWindow();

    // State, as the drawing needs it.
    Integer NodeCount = 0, ElementCount = 0;
    Array<Single> CtrX, CtrY, CtrZ;      // coordinates in metres, values in display units
    Array<Integer> ElemNodeCount;        // 3 or 4
    Matrix<Integer> ElemNode, ElemNext;  // per element and corner; ElemNext is 0 for an edge that two elements share
    Single ZMin, ZMax, ZStep;
    std::string ZFormat;
    Array<Integer> ClassColor = Array<Integer>::Of({2, 4, 13, 6, 7, 8, 9, 10, 11, 12});
    Array<std::string> ClassLabel{1, kClasses};
    Array<Integer> ClassLabelled{1, kClasses};
    WorldWindow Window, PrevWindow, OrigWindow;

    // The texts of the classes. Told: the value of the plot by the number format of the results. Fine: in the unit of
    // the caption, with as many digits as tell the ten classes apart.
    enum class Labels { Told, Fine };
    void LabelClasses(Labels labels);
    // What a value of the plot is multiplied by to stand in the unit of the caption. Deliberate: settlements are drawn
    // in metres times the factor of the unit, a hundredth of what the caption's unit says.
    double CaptionFactor() const;
    // The value of the plot at a place, linear in its triangle; nothing beside the raft.
    std::optional<double> ValueAt(double x, double y) const;

    // Hands every triangle to `visit`: the places of its corners in metres, and their values as they are drawn.
    void VisitTriangles(
        const std::function<void(const double (&x)[3], const double (&y)[3], const double (&z)[3])>& visit) const;

    // The class, 1 to 10, of a value in display units.
    int ClassOf(double value) const;

  private:
    struct Triangle {
        Single X[4], Y[4], Z[4];  // slots 1 to 3
    };
    struct Edge {
        Single Left, Right, ZLeft, ZRight;  // pixel columns and values where a row crosses the triangle's two sides
    };

    void FillColors(Surface& surface);
    void FillTriangle(Surface& surface, Triangle& t) const;
    void FillRows(Surface& surface, int tipRow, int midRow, Single tipX, Single tipZ, const Edge& mid) const;
    void FillSpan(Surface& surface, int row, double left, double right, double zLeft, double zRight) const;
    void DrawIsolines(Surface& surface, const ContourOptions& options);
    void IsolinesOfTriangle(Surface& surface, const ContourOptions& options, Triangle& t);
    void DrawMesh(Surface& surface, const ContourOptions& options) const;
    void SetWorldScale(Surface& surface) const;
    template <typename Draw>
    void ForEachTriangle(Draw&& draw) const;

    int PixLeft = 0, PixRight = 0, PixTop = 0, PixBottom = 0;
};

}  // namespace lithmark
