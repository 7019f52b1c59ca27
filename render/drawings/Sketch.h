// Sketch: what drawings are made of. Lines, arrows, fills in the colours of the window, dimension lines, and the
// numbers of the form's boxes, which stay inside the area, keep clear of each other and, near their place, of the
// lines. A small one has symbols in place of numbers, one as small as on a card no words and no dimensions.
#pragma once

#include <QLineF>
#include <QPainter>
#include <string>
#include <vector>

#include "render/drawings/DrawnForm.h"
#include "render/drawings/Inks.h"

namespace lithmark {

// Where a number stands in the drawing.
struct DrawnNumber {
    const Control* Box;
    QRectF At;
};

// The side of a place on which its number stands.
enum class Side { Left, Right, Above, Below, On };

class Sketch {
  public:
    // `scale` is what Steady keeps from one painting to the next; 0 at first.
    Sketch(QPainter& painter, const QRectF& area, const DrawnForm& form, Theme theme, double& scale);

    QPainter& Painter;
    const QRectF Area;
    const DrawnForm& Form;
    const SessionRecord& Record;

    QColor Colour(Ink ink) const { return ColourOf(ink, theme_); }
    QPen Pen(Ink ink, double width = 1, Qt::PenStyle style = Qt::SolidLine) const;
    double LineHeight() const;
    // The scale kept as long as the figure takes 50 to 100 % of its room; `fit` is the scale that fills the room.
    double Steady(double fit);

    void Line(const QPointF& from, const QPointF& to, const QPen& pen);
    // With its head at `to`.
    void Arrow(const QPointF& from, const QPointF& to, const QPen& pen);
    void Polygon(const QPolygonF& polygon, const QPen& pen, const QBrush& brush);
    void Rect(const QRectF& rect, const QPen& pen, const QBrush& brush);
    void Dot(const QPointF& at, double radius, Ink ink);
    // Ground of which nothing is known.
    void Hatch(const QRectF& rect);
    // Two zigzags across a line that is cut.
    void Break(const QPointF& from, const QPointF& to, Ink ground);

    // A symbol that belongs to no box.
    void Symbol(const std::string& plain, const QPointF& at, Side side, Ink ink);
    // The number of a box; nothing when the box cannot be reached. `symbol` where the form gives none.
    void Number(const std::string& box, const QPointF& at, Side side, Ink ink = Ink::Text, const char* symbol = "");
    // Numbers under each other, in the middle of a place.
    void Numbers(std::initializer_list<const char*> boxes, const QPointF& middle, Ink ink = Ink::Text);
    // The line of a box's dimension with its number; a tick where both ends are one.
    void Dimension(const std::string& box, const QPointF& from, const QPointF& to, Side side, bool broken = false,
                   const char* symbol = "", Ink ink = Ink::Text);
    // The pen of what shows a box's value: strong with the focus, dashed in error.
    QPen PenOf(const std::string& box, const QPen& usual) const;

    // Writes the numbers over all that was drawn, and gives their places.
    std::vector<DrawnNumber> Finish();

  private:
    struct Words {
        const Control* Box;
        std::string Symbol;
        QString Rest;
        QPointF At;
        Side On;
        Ink In;
        bool Focused, Faulty;
        int Stack = 0;  // words of one stack stay under each other; 0 stands alone
    };
    QSizeF SizeOf(const Words& words) const;
    QRectF PlaceOf(const Words& words, const QSizeF& size) const;
    QRectF FreePlace(QRectF wanted, std::size_t rows) const;
    // How much of the lines a plate would hide.
    double Hidden(const QRectF& plate) const;
    void Write(const Words& words, const QRectF& at);
    QFont LetterFont() const;
    QFont IndexFont() const;

    const Theme theme_;
    double& scale_;
    const bool symbolsOnly_, plain_;
    int stacks_ = 0;
    std::vector<Words> words_;
    std::vector<QRectF> taken_;
    // What was drawn, and how much of it a number gives way to.
    struct Stroke {
        QLineF Line;
        double Weight;
    };
    std::vector<Stroke> strokes_;
};

}  // namespace lithmark
