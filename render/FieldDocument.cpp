#include "render/FieldDocument.h"

#include <qcustomplot.h>

#include <algorithm>

#include "contour/FieldSection.h"
#include "core/Session.h"
#include "render/ChartDocument.h"
#include "render/PictureFile.h"
#include "render/QtText.h"
#include "render/SansFont.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

namespace {

constexpr QRgb kInk = 0xFF1B2530, kMeshInk = 0x60000000, kEdgeInk = 0xFF4E5963, kSectionInk = 0xFF951A54;

// Places of the raft inside a square that shows the plot's window.
class Map {
  public:
    Map(const QRectF& square, const WorldWindow& window) : square_(square), window_(window) {}
    QPointF operator()(const FieldPoint& at) const {
        return {square_.left() + (at.X - window_.XMin) / (window_.XMax - window_.XMin) * square_.width(),
                square_.top() + (window_.YMax - at.Y) / (window_.YMax - window_.YMin) * square_.height()};
    }

  private:
    const QRectF square_;
    const WorldWindow window_;
};

// One path, so that edges that two polygons share leave no seam between them.
QPainterPath PathOf(const std::vector<std::vector<FieldPoint>>& polygons, const Map& map) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const auto& polygon : polygons) {
        path.moveTo(map(polygon.front()));
        for (std::size_t i = 1; i < polygon.size(); ++i) path.lineTo(map(polygon[i]));
        path.closeSubpath();
    }
    return path;
}

// From the whole raft in the lowest colour upwards, each class over the one below, so that no ground shows between.
void FillClasses(QPainter& painter, const FieldPlot& field, const Map& map) {
    painter.setPen(Qt::NoPen);
    for (int cls = 1; cls <= field.Classes(); ++cls) {
        const double level = field.Limits()[static_cast<std::size_t>(cls - 1)];
        painter.setBrush(QColor::fromRgb(field.ColourOf(cls)));
        painter.drawPath(PathOf(field.RegionAbove(cls == 1 ? std::min(level, field.Least()) : level), map));
    }
    painter.setBrush(Qt::NoBrush);
}

// Words on a ground of their own that keep inside the square and clear of each other; written over all that was drawn.
class Words {
  public:
    Words(QPainter& painter, const QRectF& square, double pixels)
        : painter_(painter), square_(square), font_(SansFont(std::max(7.0, pixels))) {}

    // Above the place if there is room, below it otherwise. False where other words stand already.
    bool Place(const QPointF& place, const std::string& text, bool must, double clear = 0) {
        const QFontMetricsF metrics(font_, painter_.device());
        const QSizeF size(metrics.horizontalAdvance(Q(text)) + 6, metrics.height() + 2);
        for (const double dy : {-clear - size.height(), clear}) {
            QRectF box(QPointF(place.x() - size.width() / 2, place.y() + (clear > 0 ? dy : -size.height() / 2)), size);
            box.moveLeft(std::clamp(box.left(), square_.left() + 2, square_.right() - size.width() - 2));
            const bool inside = box.top() >= square_.top() && box.bottom() <= square_.bottom();
            const bool free = std::none_of(placed_.begin(), placed_.end(),
                                           [&](const auto& other) { return other.At.intersects(box); });
            if (!inside || (!free && !must)) continue;
            placed_.push_back({box, Q(text)});
            return true;
        }
        return false;
    }
    void Write() const {
        painter_.setFont(font_);
        painter_.setPen(QColor::fromRgb(kInk));
        for (const Placed& words : placed_) {
            painter_.fillRect(words.At, QColor(255, 255, 255, 220));
            painter_.drawText(words.At, Qt::AlignCenter, words.Text);
        }
    }

  private:
    struct Placed {
        QRectF At;
        QString Text;
    };
    QPainter& painter_;
    const QRectF square_;
    const QFont font_;
    std::vector<Placed> placed_;
};

void DrawLines(QPainter& painter, const FieldPicture& picture, const Map& map, Words& words) {
    const FieldPlot& field = picture.Field;
    for (std::size_t i = 1; i + 1 < field.Limits().size(); ++i) {
        const auto lines = field.LineAt(field.Limits()[i]);
        const QColor ink = picture.Options.ColorContours ? QColor::fromRgba(0xC01B2530)
                                                         : QColor::fromRgb(field.ColourOf(static_cast<int>(i)));
        painter.setPen(QPen(ink, picture.Options.ColorContours ? 0.8 : 1.6));
        for (const FieldLine& line : lines) painter.drawLine(map(line.From), map(line.To));
        if (!picture.Options.DisplayValues || lines.empty()) continue;
        // Deliberate: a third along the pieces of the line, so that the numbers of neighbours do not stand in a row.
        const FieldLine& piece = lines[lines.size() * (1 + i % 3) / 4];
        words.Place(map(piece.From), field.LimitText(field.Limits()[i]), false);
    }
}

// A triangle that points down at the least value and up at the greatest.
void DrawExtreme(QPainter& painter, const std::vector<FieldPoint>& places, const std::string& text, bool up,
                 const Map& map, const QRectF& square, Words& words) {
    const double size = std::max(4.0, square.width() / 90);
    const QPointF tip(0, up ? -size : size);
    bool told = false;
    for (const FieldPoint& place : places) {
        const QPointF at = map(place);
        if (!square.adjusted(-1, -1, 1, 1).contains(at)) continue;
        painter.setPen(QPen(QColor::fromRgb(kInk), 1));
        painter.setBrush(Qt::white);
        painter.drawPolygon(QPolygonF() << at + tip << at + QPointF(-size, -tip.y()) << at + QPointF(size, -tip.y()));
        painter.setBrush(Qt::NoBrush);
        if (!told) told = words.Place(at, text, true, size + 3);
    }
}

}  // namespace

void DrawField(QPainter& painter, const QRectF& square, const FieldPicture& picture) {
    const Map map(square, picture.Plot.Window);
    const FieldPlot& field = picture.Field;
    painter.save();
    painter.fillRect(square, Qt::white);
    painter.setClipRect(square);
    painter.setRenderHint(QPainter::Antialiasing);
    if (picture.Options.ColorContours) FillClasses(painter, field, map);
    const BasContour& plot = picture.Plot;
    const auto node = [&](int i) { return map({plot.CtrX(i), plot.CtrY(i)}); };
    if (picture.Options.DrawGrid) {
        painter.setPen(QPen(QColor::fromRgba(kMeshInk), 0.4));
        for (int e = 1; e <= plot.ElementCount; ++e) {
            QPolygonF element;
            for (int j = 1; j <= plot.ElemNodeCount(e); ++j) element << node(plot.ElemNode(e, j));
            painter.drawPolygon(element);
        }
    }
    Words words(painter, square, std::max(11.0, square.width() / 48));
    // The extremes first: their numbers must stand, those of the lines may give way.
    if (picture.Options.DisplayValues && !field.Even()) {
        DrawExtreme(painter, field.LeastAt(), Text(910023_text, {{"|1", field.ValueText(field.Least())}}), false, map,
                    square, words);
        DrawExtreme(painter, field.GreatestAt(), Text(910024_text, {{"|1", field.ValueText(field.Greatest())}}), true,
                    map, square, words);
    }
    if (picture.Options.Displaylines) {
        DrawLines(painter, picture, map, words);
        painter.setPen(QPen(QColor::fromRgb(kEdgeInk), 1.6));
        for (int e = 1; e <= plot.ElementCount; ++e)
            for (int j = 1; j <= plot.ElemNodeCount(e); ++j)
                if (plot.ElemNext(e, j) > 0) painter.drawLine(node(plot.ElemNode(e, j)), node(plot.ElemNext(e, j)));
    }
    if (field.Even()) {
        const WorldWindow& w = plot.Window;
        words.Place(map({0.5 * (w.XMin + w.XMax), 0.5 * (w.YMin + w.YMax)}),
                    Text(910026_text, {{"|1", field.ValueText(field.Greatest())}}), true);
    }
    words.Write();
    painter.restore();
    if (picture.Section) DrawSection(painter, square, plot.Window, *picture.Section);
    painter.save();
    painter.setPen(QPen(QColor(0x88, 0x88, 0x88), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(square);
    painter.restore();
}

void DrawSection(QPainter& painter, const QRectF& square, const WorldWindow& window, const FieldLine& line) {
    const Map map(square, window);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(square);
    painter.setPen(QPen(QColor::fromRgb(kSectionInk), 2, Qt::DashLine));
    painter.drawLine(map(line.From), map(line.To));
    painter.setBrush(QColor::fromRgb(kSectionInk));
    for (const FieldPoint& end : {line.From, line.To}) painter.drawEllipse(map(end), 3.5, 3.5);
    painter.restore();
}

void DrawFieldLegend(QPainter& painter, const QRectF& area, const FieldPlot& field) {
    painter.save();
    const QFont font = SansFont(std::clamp(area.height() / 34, 12.0, 16.0));
    const double line = QFontMetricsF(font, painter.device()).height();
    const int classes = field.Classes();
    const double box = std::min((area.height() - line) / classes, 3 * line),
                 width = std::min(1.6 * line, area.width() / 3);
    const double bottom = area.top() + line / 2 + box * classes;
    painter.setFont(font);
    for (int cls = 1; cls <= classes; ++cls) {
        const QRectF place(area.left(), bottom - box * cls, width, box);
        painter.setPen(QPen(QColor::fromRgb(kEdgeInk), 0.5));
        painter.setBrush(QColor::fromRgb(field.ColourOf(cls)));
        painter.drawRect(place);
    }
    painter.setPen(QColor::fromRgb(kInk));
    for (int i = 0; i <= classes; ++i) {
        // Between two classes stands the limit that both share.
        const QRectF place(area.left() + width + line / 3, bottom - box * i - line / 2, area.width() - width, line);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                         Q(field.LimitText(field.Limits()[static_cast<std::size_t>(i)])));
    }
    painter.restore();
}

namespace {

struct FieldLayout {
    FieldLayout(const FieldPicture& picture, int side)
        : Side(side > 0 ? side : kUsualSide),
          Margin(Side / 30),
          Title(Side / 14),
          Legend(Side / 5),
          Curve(picture.Section ? Side / 3 : 0) {}
    QSize Size() const { return {Side + Legend + 3 * Margin, Side + Title + Curve + 3 * Margin}; }
    int Side, Margin, Title, Legend, Curve;
};

QString TitleOf() {
    return AxisLabel(FieldTitle()) + QStringLiteral("   ") + Q(Session.ProjectName);
}

}  // namespace

QSize FieldPageSize(const FieldPicture& picture, int size) {
    return FieldLayout(picture, size).Size();
}

void DrawFieldPage(QCPPainter& painter, const FieldPicture& picture, int size) {
    const FieldLayout layout(picture, size);
    painter.fillRect(QRect(QPoint(0, 0), layout.Size()), Qt::white);
    painter.setPen(QColor::fromRgb(kInk));
    painter.setFont(SansFont(layout.Title * 0.42, true));
    painter.drawText(QRect(layout.Margin, layout.Margin / 2, layout.Size().width() - 2 * layout.Margin, layout.Title),
                     Qt::AlignCenter, TitleOf());
    const QRectF square(layout.Margin, layout.Margin + layout.Title, layout.Side, layout.Side);
    DrawField(painter, square, picture);
    DrawFieldLegend(
        painter,
        QRectF(square.right() + layout.Margin, square.top() + 0.1 * layout.Side, layout.Legend, 0.8 * layout.Side),
        picture.Field);
    if (!picture.Section) return;
    const QSize room(layout.Side, layout.Curve);
    QCustomPlot curve;
    curve.setViewport(QRect(QPoint(0, 0), room));
    ChartLook look;
    look.Legend = false;
    FillPlot(curve, SectionChart(picture.Field, *picture.Section), look);
    painter.save();
    painter.translate(square.left(), square.bottom() + layout.Margin);
    curve.toPainter(&painter, room.width(), room.height());
    painter.restore();
}

std::string FieldSvg(const FieldPicture& picture, int size) {
    return SvgOf(FieldPageSize(picture, size), TitleOf(),
                 [&](QCPPainter& painter) { DrawFieldPage(painter, picture, size); });
}

std::string FieldPng(const FieldPicture& picture, int size) {
    return PngOf(FieldPageSize(picture, size), 1, [&](QCPPainter& painter) { DrawFieldPage(painter, picture, size); });
}

std::string FieldPdf(const FieldPicture& picture, int size) {
    return PdfOf(FieldPageSize(picture, size), TitleOf(),
                 [&](QCPPainter& painter) { DrawFieldPage(painter, picture, size); });
}

}  // namespace lithmark
