// Parts of a painted field of values: its classes, the lines between them with their numbers, the least and the
// greatest value. Regions and lines are painted as such, sharp in every size.
#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "contour/FieldPlot.h"

class QPainter;

namespace lithmark {

// Where a place of the field is painted.
using FieldMap = std::function<QPointF(const FieldPoint&)>;

// Words on a ground of their own that keep inside an area and clear of each other; written over all that was painted.
class FieldWords {
  public:
    FieldWords(QPainter& painter, const QRectF& area, double pixels);

    // Above the place if there is room, below it otherwise; `clear` keeps them off it. False where other words stand
    // already, unless they must stand.
    bool Place(const QPointF& place, const std::string& text, bool must, double clear = 0);
    void Write() const;

  private:
    struct Placed {
        QRectF At;
        QString Text;
    };
    QPainter& painter_;
    const QRectF area_;
    const QFont font_;
    std::vector<Placed> placed_;
};

// From the whole field in the lowest colour upwards, each class over the one below, so that no ground shows between.
void PaintClasses(QPainter& painter, const FieldPlot& field, const FieldMap& map);
// On the limits between classes, with their numbers; in the classes' colours where the classes are not painted.
void PaintClassLines(QPainter& painter, const FieldPlot& field, bool painted, bool numbers, const FieldMap& map,
                     FieldWords& words);
// Triangles that point down at the least value and up at the greatest.
void PaintExtremes(QPainter& painter, const FieldPlot& field, const FieldMap& map, const QRectF& area,
                   FieldWords& words);

}  // namespace lithmark
