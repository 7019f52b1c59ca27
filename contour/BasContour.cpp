#include "contour/BasContour.h"

#include <algorithm>

#include "core/Session.h"
#include "core/Units.h"

namespace lithmark {

void BasContour::Prepare() {
    ReadContourData();
    FindBoundary();
    ComputeWindow();
}

void BasContour::Redraw(Surface& picBox, const ContourOptions& options) {
    if (ZStep != 0) {
        if (options.ColorContours) FillColors(picBox);
        if (options.Displaylines) DrawIsolines(picBox, options);
    }
    DrawMesh(picBox, options);
}

void BasContour::ComputeWindow() {
    Single xMin = CtrX(1), xMax = CtrX(1), yMin = CtrY(1), yMax = CtrY(1);
    ZMin = ZMax = CtrZ(1);
    for (int i = 2; i <= NodeCount; ++i) {
        xMin = std::min<double>(xMin, CtrX(i));
        xMax = std::max<double>(xMax, CtrX(i));
        yMin = std::min<double>(yMin, CtrY(i));
        yMax = std::max<double>(yMax, CtrY(i));
        ZMin = std::min<double>(ZMin, CtrZ(i));
        ZMax = std::max<double>(ZMax, CtrZ(i));
    }
    ZStep = (ZMax - ZMin) / kClasses;
    // A square window with a twentieth of the greater side as margin.
    const Single size = std::max(xMax - xMin, yMax - yMin);
    const Single cx = (xMin + xMax) * 0.5;
    const Single cy = (yMin + yMax) * 0.5;
    Window = {cx - 0.55 * size, cx + 0.55 * size, cy - 0.55 * size, cy + 0.55 * size};
    OrigWindow = PrevWindow = Window;

    LabelClasses(Labels::Told);
}

int BasContour::ClassOf(double value) const {
    const double d = std::floor((value - ZMin) / ZStep) + 1;
    return static_cast<int>(std::clamp<double>(d, 1, kClasses));
}

void BasContour::SetWorldScale(Surface& surface) const {
    surface.SetWorldScale(Window.XMin, Window.YMax, Window.XMax, Window.YMin);
}

// Hands every triangle of the mesh to `draw`, in the order of the elements.
template <typename Draw>
void BasContour::ForEachTriangle(Draw&& draw) const {
    Triangle t;
    const auto corner = [&](int slot, int node) {
        t.X[slot] = CtrX(node);
        t.Y[slot] = CtrY(node);
        t.Z[slot] = CtrZ(node);
    };
    for (int e = 1; e <= ElementCount; ++e) {
        if (ElemNodeCount(e) == 3) {
            for (int j = 1; j <= 3; ++j) corner(j, ElemNode(e, j));
            draw(t);
            continue;
        }
        double x = 0, y = 0, z = 0;
        for (int j = 1; j <= 4; ++j) {
            x += CtrX(ElemNode(e, j));
            y += CtrY(ElemNode(e, j));
            z += CtrZ(ElemNode(e, j));
        }
        for (int j = 1; j <= 4; ++j) {
            // Anew each time: drawing puts the corners in another order.
            t.X[1] = 0.25 * x;
            t.Y[1] = 0.25 * y;
            t.Z[1] = 0.25 * z;
            corner(2, ElemNode(e, j));
            corner(3, ElemNode(e, j == 4 ? 1 : j + 1));
            draw(t);
        }
    }
}

void BasContour::VisitTriangles(
    const std::function<void(const double (&x)[3], const double (&y)[3], const double (&z)[3])>& visit) const {
    ForEachTriangle([&](const Triangle& t) {
        visit({t.X[1], t.X[2], t.X[3]}, {t.Y[1], t.Y[2], t.Y[3]}, {t.Z[1], t.Z[2], t.Z[3]});
    });
}

std::optional<double> BasContour::ValueAt(double x, double y) const {
    std::optional<double> value;
    ForEachTriangle([&](Triangle& t) {
        if (value) return;
        const double ax = t.X[2] - t.X[1], ay = t.Y[2] - t.Y[1], bx = t.X[3] - t.X[1], by = t.Y[3] - t.Y[1];
        const double area = ax * by - ay * bx;
        if (area == 0) return;
        const double px = x - t.X[1], py = y - t.Y[1];
        const double second = (px * by - py * bx) / area, third = (ax * py - ay * px) / area;
        constexpr double kEdge = -1e-9;  // a place on an edge belongs to both triangles
        if (second < kEdge || third < kEdge || second + third > 1 - kEdge) return;
        value = t.Z[1] + second * (t.Z[2] - t.Z[1]) + third * (t.Z[3] - t.Z[1]);
    });
    return value;
}

void BasContour::FillColors(Surface& surface) {
    surface.SetPixelScale();
    surface.Clear();
    const PixelExtent extent = surface.Pixels();
    PixLeft = extent.Left;
    PixRight = extent.Left + extent.Width;
    PixTop = extent.Top;
    PixBottom = extent.Top + extent.Height;
    ForEachTriangle([&](Triangle& t) { FillTriangle(surface, t); });
}

namespace {

// Selection sort of the three corners, ascending by `key`; ties keep their order.
template <typename Triangle, typename Key>
void SortCorners(Triangle& t, Key Triangle::*key) {
    for (int i = 1; i <= 2; ++i)
        for (int j = i + 1; j <= 3; ++j)
            if ((t.*key)[j] < (t.*key)[i]) {
                std::swap(t.X[i], t.X[j]);
                std::swap(t.Y[i], t.Y[j]);
                std::swap(t.Z[i], t.Z[j]);
            }
}

}  // namespace

void BasContour::FillTriangle(Surface& surface, Triangle& t) const {
    SortCorners(t, &Triangle::Y);
    // The point of the long edge at the height of the middle corner.
    const double rise = t.Y[3] - t.Y[1];
    const Single slope = Quotient(t.X[3] - t.X[1], rise);
    const Single zSlope = Quotient(t.Z[3] - t.Z[1], rise);
    Single xLeft = t.X[1] + slope * (t.Y[2] - t.Y[1]), zLeft = t.Z[1] + zSlope * (t.Y[2] - t.Y[1]);
    Single xRight = t.X[2], zRight = t.Z[2];
    if (xRight < xLeft) {
        std::swap(xLeft, xRight);
        std::swap(zLeft, zRight);
    }
    const auto column = [&](double x) -> Single {
        return PixLeft + Quotient(x - Window.XMin, Window.XMax - Window.XMin) * (PixRight - PixLeft);
    };
    const auto row = [&](double y) {
        const Single yp = PixTop + Quotient(Window.YMax - y, Window.YMax - Window.YMin) * (PixBottom - PixTop);
        // A zoomed window puts rows far outside; they are cut off before they leave the whole numbers.
        return static_cast<int>(std::clamp(RoundHalfEven(yp), -1e9, 1e9));
    };
    const Edge mid{column(xLeft), column(xRight), zLeft, zRight};
    const int midRow = row(t.Y[2]);
    FillRows(surface, row(t.Y[1]), midRow, column(t.X[1]), t.Z[1], mid);
    FillRows(surface, row(t.Y[3]), midRow, column(t.X[3]), t.Z[3], mid);
}

// From the tip's row to the middle row, both included.
void BasContour::FillRows(Surface& surface, int tipRow, int midRow, Single tipX, Single tipZ, const Edge& mid) const {
    const int step = midRow < tipRow ? -1 : 1;
    const int visibleTop = PixTop, visibleBottom = PixBottom - 1;
    int first = tipRow, last = midRow;
    if (step > 0) {
        first = std::max(first, visibleTop);
        last = std::min(last, visibleBottom);
    } else {
        first = std::min(first, visibleBottom);
        last = std::max(last, visibleTop);
    }
    for (int row = first; step > 0 ? row <= last : row >= last; row += step) {
        const double part = midRow == tipRow ? 1.0 : static_cast<double>(row - tipRow) / (midRow - tipRow);
        FillSpan(surface, row, tipX + part * (mid.Left - tipX), tipX + part * (mid.Right - tipX),
                 tipZ + part * (mid.ZLeft - tipZ), tipZ + part * (mid.ZRight - tipZ));
    }
}

void BasContour::FillSpan(Surface& surface, int row, double left, double right, double zLeft, double zRight) const {
    const int first = static_cast<int>(std::max<double>(std::ceil(left), PixLeft));
    const int last = static_cast<int>(std::min<double>(std::floor(right), PixRight - 1));
    const double slope = right == left ? 0 : (zRight - zLeft) / (right - left);
    for (int pixel = first; pixel <= last; ++pixel)
        surface.Pixel(pixel, row, ClassColor(ClassOf(zLeft + (pixel - left) * slope)));
}

void BasContour::DrawIsolines(Surface& surface, const ContourOptions& options) {
    if (!options.ColorContours) surface.Clear();
    SetWorldScale(surface);
    ForEachTriangle([&](Triangle& t) { IsolinesOfTriangle(surface, options, t); });
    ClassLabelled.Redim(1, kClasses);
}

namespace {

// Lifts `upper` by the told 0.00001, and by one unit in the last place where that is lost in a large value, so that the
// two differ.
void Separate(const Single& lower, Single& upper) {
    if (upper != lower) return;
    upper += 0.00001;
    if (upper == lower) upper = std::nextafter(lower.Stored(), std::numeric_limits<Single::Storage>::max());
}

}  // namespace

void BasContour::IsolinesOfTriangle(Surface& surface, const ContourOptions& options, Triangle& t) {
    SortCorners(t, &Triangle::Z);
    const Single d = (t.Z[1] - ZMin) / ZStep;
    int k = static_cast<int>(std::floor(d)) + 1;
    Single level = k * ZStep + ZMin;
    const auto between = [&](const Single(&v)[4], int from, int to) -> Single {
        return v[from] + (level - t.Z[from]) / (t.Z[to] - t.Z[from]) * (v[to] - v[from]);
    };
    // Values that differ by rounding alone could keep the level where it is; there is no line above the tenth.
    for (; level <= t.Z[3] && k <= kClasses; level += ZStep, ++k) {
        Separate(t.Z[1], t.Z[3]);
        const Single ax = between(t.X, 1, 3), ay = between(t.Y, 1, 3);
        const int m = level > t.Z[2] ? 3 : 1;
        if (t.Z[m] == t.Z[2]) Separate(t.Z[2], t.Z[m]);
        const Single bx = between(t.X, m, 2), by = between(t.Y, m, 2);
        surface.Line(ax, ay, bx, by, options.ColorContours ? kColorIsoline : static_cast<int>(ClassColor(k)));
        if (ClassLabelled(k) == 0 && ax > Window.XMin && ax < Window.XMax && ay > Window.YMin && ay < Window.YMax) {
            // Deliberate: the line lies on the upper limit of its class, the text names the class's middle, as the
            // legend does.
            if (options.DisplayValues) surface.Print(ax, ay, ClassLabel(k));
            ClassLabelled(k) = 1;
        }
    }
}

void BasContour::DrawMesh(Surface& surface, const ContourOptions& options) const {
    SetWorldScale(surface);
    const auto line = [&](int from, int to, int color) {
        surface.Line(CtrX(from), CtrY(from), CtrX(to), CtrY(to), color);
    };
    if (options.Displaylines)
        for (int e = 1; e <= ElementCount; ++e)
            for (int j = 1; j <= ElemNodeCount(e); ++j)
                if (ElemNext(e, j) > 0) line(ElemNode(e, j), ElemNext(e, j), kColorBoundary);
    if (options.DrawGrid)
        for (int e = 1; e <= ElementCount; ++e)
            for (int j = 1; j <= ElemNodeCount(e); ++j)
                line(ElemNode(e, j), ElemNode(e, j == ElemNodeCount(e) ? 1 : j + 1), kColorMesh);
}

void BasContour::DrawLegend(Surface& picBox2) const {
    // Upwards: the lowest class at the bottom, a label's upper edge just below that of its box.
    picBox2.SetWorldScale(0, 1, 1, 0);
    double y = 0;
    for (int i = 1; i <= kClasses; ++i, y += 0.1) {
        picBox2.FilledBox(0, y, 0.1, y + 0.1, ClassColor(i));
        picBox2.Print(0.15, y + 0.08, ClassLabel(i));
    }
}

void BasContour::ZoomCorner(ZoomCornerOf corner) {
    constexpr double a = 0.67, b = 1 - 0.67;
    PrevWindow = Window;
    const bool left = corner == ZoomCornerOf::UpperLeft || corner == ZoomCornerOf::LowerLeft;
    const bool upper = corner == ZoomCornerOf::UpperLeft || corner == ZoomCornerOf::UpperRight;
    if (left)
        Window.XMax = a * Window.XMax + b * Window.XMin;
    else
        Window.XMin = a * Window.XMin + b * Window.XMax;
    if (upper)
        Window.YMin = a * Window.YMin + b * Window.YMax;
    else
        Window.YMax = a * Window.YMax + b * Window.YMin;
}

void BasContour::ZoomPrevious() {
    std::swap(Window, PrevWindow);
}

void BasContour::ZoomOriginal() {
    Window = PrevWindow = OrigWindow;
}

}  // namespace lithmark
