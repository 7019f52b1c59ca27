#include "render/FieldDocument.h"

#include <qcustomplot.h>

#include <algorithm>

#include "contour/FieldSection.h"
#include "core/Session.h"
#include "render/ChartDocument.h"
#include "render/FieldPainter.h"
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

}  // namespace

void DrawField(QPainter& painter, const QRectF& square, const FieldPicture& picture) {
    const Map map(square, picture.Plot.Window);
    const FieldPlot& field = picture.Field;
    painter.save();
    painter.fillRect(square, Qt::white);
    painter.setClipRect(square);
    painter.setRenderHint(QPainter::Antialiasing);
    if (picture.Options.ColorContours) PaintClasses(painter, field, map);
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
    FieldWords words(painter, square, std::max(11.0, square.width() / 48));
    // The extremes first: their numbers must stand, those of the lines may give way.
    if (picture.Options.DisplayValues && !field.Even()) PaintExtremes(painter, field, map, square, words);
    if (picture.Options.Displaylines) {
        PaintClassLines(painter, field, picture.Options.ColorContours, picture.Options.DisplayValues, map, words);
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
