// FieldPlot: the values of a raft as a field, in the unit of the caption: classes at round numbers, the regions above
// their limits, the lines on them, the least and the greatest value, and the values along a section.
//
// Values are linear in the triangles of BasContour's mesh, so all of it is exact for them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "contour/BasContour.h"

namespace lithmark {

struct FieldPoint {
    double X = 0, Y = 0;  // metres
    bool operator==(const FieldPoint&) const = default;
};

struct FieldLine {
    FieldPoint From, To;
};

class FieldPlot {
  public:
    struct Corner {
        FieldPoint At;
        double Value;
    };
    using Triangle = std::array<Corner, 3>;

    // Of a plot whose data have been read.
    explicit FieldPlot(const BasContour& plot);
    // Of triangles that turn against the clock, in any units; one at least.
    explicit FieldPlot(std::vector<Triangle> triangles);

    // The limits of the classes, round numbers, one more than classes. A field that is even but for rounding has one
    // class around its value.
    const std::vector<double>& Limits() const noexcept { return limits_; }
    int Classes() const noexcept { return static_cast<int>(limits_.size()) - 1; }
    bool Even() const noexcept { return even_; }
    // 0xRRGGBB of a class, from 1.
    std::uint32_t ColourOf(int cls) const;
    // The class, from 1, of a value; a value on a limit belongs to the class above it, the greatest to the last.
    int ClassOf(double value) const;
    // A limit with the decimals that the classes' width calls for; a value with two more.
    std::string LimitText(double limit) const;
    std::string ValueText(double value) const;

    // The nodes with the least and the greatest value; more than one where they are equal but for rounding, as the
    // corners of a raft under a central load.
    double Least() const noexcept { return least_; }
    double Greatest() const noexcept { return greatest_; }
    std::vector<FieldPoint> LeastAt() const { return NodesAt(least_); }
    std::vector<FieldPoint> GreatestAt() const { return NodesAt(greatest_); }

    // The region where the value is `level` or more, as polygons that share edges and do not overlap, all turning the
    // same way.
    std::vector<std::vector<FieldPoint>> RegionAbove(double level) const;
    // The line on which the value is `level`, a piece for each triangle that it crosses.
    std::vector<FieldLine> LineAt(double level) const;

    struct SectionPoint {
        double Distance;  // metres from the section's begin
        FieldPoint At;
        double Value;
    };
    // The values along a line, at every edge that it crosses and at its ends where they lie on the raft; empty beside
    // the raft.
    std::vector<SectionPoint> Section(const FieldLine& line) const;

    // The value at a place; nothing beside the triangles.
    std::optional<double> ValueAt(const FieldPoint& at) const;

  private:
    // Classes, least and greatest value of the nodes.
    void Classify();
    std::vector<FieldPoint> NodesAt(double value) const;

    std::vector<Triangle> triangles_;
    std::vector<Corner> nodes_;
    std::vector<double> limits_;
    double least_ = 0, greatest_ = 0;
    int decimals_ = 0;
    bool even_ = false;
};

}  // namespace lithmark
