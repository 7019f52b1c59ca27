#include "desktop/ProblemIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "core/Problems.h"

namespace lithmark {

namespace {

using namespace iconcolours;

void Fill(QPainter& p, const QRectF& rect, const QColor& colour) {
    p.fillRect(rect, colour);
}

void Arrow(QPainter& p, const QPointF& from, const QPointF& to, const QColor& colour, double width = 1.8) {
    p.setPen(QPen(colour, width));
    p.drawLine(from, to);
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    const QPointF along = way / length * 3.2, across(-along.y() * 0.7, along.x() * 0.7);
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPolygon(QPolygonF({to + along * 0.3, to - along + across, to - along - across}));
}

// Load on the surface of the soil.
void LoadedSoil(QPainter& p) {
    Fill(p, {2, 10, 20, 12}, kSand);
    for (const double x : {7.0, 12.0, 17.0}) Arrow(p, {x, 2}, {x, 8.5}, kBlue);
}

// An element of soil with stresses on its sides.
void Stress(QPainter& p, const QColor& outline) {
    LoadedSoil(p);
    p.setPen(QPen(outline, 1.4));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(9.5, 13.5, 5, 5));
    Arrow(p, {4, 16}, {7.6, 16}, outline, 1.2);
    Arrow(p, {20, 16}, {16.4, 16}, outline, 1.2);
}

// The element as it was and as it became.
void Strain(QPainter& p, const QColor& outline) {
    LoadedSoil(p);
    p.setPen(QPen(outline, 1, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(8, 12.5, 8, 8));
    p.setPen(QPen(outline, 1.5));
    p.setBrush(Qt::white);
    p.drawPolygon(QPolygonF({{8, 15}, {17, 15}, {15.5, 20.5}, {6.5, 20.5}}));
}

// A point and where it goes.
void Displacement(QPainter& p, const QColor& outline) {
    LoadedSoil(p);
    p.setPen(Qt::NoPen);
    p.setBrush(outline);
    p.drawEllipse(QPointF(9, 13.5), 2, 2);
    Arrow(p, {9, 13.5}, {15.5, 20}, outline, 1.6);
}

// A layer of clay that is pressed together.
void Settlement(QPainter& p, const QColor& outline) {
    Fill(p, {2, 10, 20, 3}, kSand);
    Fill(p, {2, 13, 20, 9}, kClay);
    Arrow(p, {12, 2}, {12, 8.5}, kBlue);
    p.setPen(QPen(outline, 1.5));
    p.setBrush(Qt::NoBrush);
    QPainterPath bowl(QPointF(2, 13));
    bowl.cubicTo(QPointF(8, 13), QPointF(9, 17.5), QPointF(12, 17.5));
    bowl.cubicTo(QPointF(15, 17.5), QPointF(16, 13), QPointF(22, 13));
    p.drawPath(bowl);
}

// Pore water pressure over the depth, and where the water goes.
void Consolidation(QPainter& p, const QColor& outline) {
    Fill(p, {4, 7, 16, 12}, kClay);
    Arrow(p, {12, 6}, {12, 2}, kBlue, 1.6);
    Arrow(p, {12, 20}, {12, 23}, kBlue, 1.6);
    p.setPen(QPen(outline, 1.6));
    p.setBrush(Qt::NoBrush);
    QPainterPath isochrone(QPointF(5, 7));
    isochrone.cubicTo(QPointF(20, 9), QPointF(20, 17), QPointF(5, 19));
    p.drawPath(isochrone);
}

// A settlement curve that runs out.
void Curve(QPainter& p, const QColor& outline) {
    p.setPen(QPen(outline, 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF({{21.5, 4}, {4, 4}, {4, 21.5}}));
    QPainterPath curve(QPointF(4, 4));
    curve.cubicTo(QPointF(6, 15), QPointF(12, 18), QPointF(21, 18.5));
    p.setPen(QPen(kBlue, 2.2));
    p.drawPath(curve);
}

// Its points are given.
void RelativeCurve(QPainter& p, const QColor& outline) {
    Curve(p, outline);
    p.setPen(QPen(outline, 1));
    p.setBrush(Qt::white);
    for (const QPointF& point : {QPointF(5.8, 10), QPointF(9, 14.6), QPointF(14, 17.4), QPointF(20, 18.4)})
        p.drawEllipse(point, 1.9, 1.9);
}

// It comes from a ring with a sample.
void Oedometer(QPainter& p, const QColor& outline) {
    Curve(p, outline);
    Fill(p, {12, 6.5, 9, 5}, kClay);
    p.setPen(QPen(outline, 1.6));
    p.drawLine(QPointF(11.5, 5.5), QPointF(11.5, 12));
    p.drawLine(QPointF(21.5, 5.5), QPointF(21.5, 12));
    p.drawLine(QPointF(12, 6), QPointF(21, 6));
}

// It comes from a layer that drains.
void TheoryCurve(QPainter& p, const QColor& outline) {
    Curve(p, outline);
    Fill(p, {11, 8, 11, 4.5}, kClay);
    Arrow(p, {16.5, 8}, {16.5, 5.5}, kBlue, 1.4);
    p.setPen(QPen(outline, 1, Qt::DashLine));
    p.drawLine(QPointF(5, 21), QPointF(22, 21));
}

void Raft(QPainter& p, const QColor& outline, const QColor& below) {
    Fill(p, {2, 13, 20, 9}, kSand);
    if (below != kSand) Fill(p, {2, 16.5, 20, 5.5}, below);
    Fill(p, {4, 9.5, 16, 3.5}, outline);
    Fill(p, {10, 3, 4, 7}, outline);
    p.setPen(QPen(kBlue, 1.4));
    for (const double x : {5.5, 9.5, 14.5, 18.5}) p.drawLine(QPointF(x, 14.5), QPointF(x, 19));
}

void Table(QPainter& p, const QColor& outline) {
    Fill(p, {3, 4, 18, 4}, kSand);
    p.setPen(QPen(outline, 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(3, 4, 18, 16));
    for (const double y : {8.0, 12.0, 16.0}) p.drawLine(QPointF(3, y), QPointF(21, y));
    for (const double x : {9.0, 15.0}) p.drawLine(QPointF(x, 4), QPointF(x, 20));
}

}  // namespace

void DrawProblemIcon(QPainter& painter, int problemType, const QColor& outline) {
    switch (problemType) {
        case Problem::SoilStress:
            return Stress(painter, outline);
        case Problem::SoilStrain:
            return Strain(painter, outline);
        case Problem::SoilDisplacement:
            return Displacement(painter, outline);
        case Problem::Consolidation:
            return Settlement(painter, outline);
        case Problem::ConsolidationRate:
            return Consolidation(painter, outline);
        case Problem::TimeDirect:
            return RelativeCurve(painter, outline);
        case Problem::TimeOedometer:
            return Oedometer(painter, outline);
        case Problem::TimeTheory:
            return TheoryCurve(painter, outline);
        case Problem::RaftDisplacement:
            return Raft(painter, outline, kSand);
        case Problem::RaftConsolidation:
            return Raft(painter, outline, kClay);
        default:
            return Table(painter, outline);
    }
}

}  // namespace lithmark
