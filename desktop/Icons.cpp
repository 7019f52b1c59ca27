#include "desktop/Icons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <functional>
#include <map>

#include "core/Catalogue.h"
#include "desktop/ProblemIcons.h"
#include "render/SansFont.h"
#include "render/drawings/Inks.h"
#include "render/drawings/Logo.h"
#include "services/ListTools.h"

namespace lithmark {

namespace {

using namespace iconcolours;
const QColor kInk(0x2B, 0x3A, 0x4A), kGreen(0x2E, 0x8B, 0x57), kPaper(0xFF, 0xFF, 0xFF);

// Lines that are seen on the windows' ground.
QColor Outline() {
    return ThemeOf(QGuiApplication::palette()) == Theme::Dark ? ColourOf(Ink::Quiet, Theme::Dark) : kInk;
}

// Drawings on a field of 24 by 24.
using Drawing = std::function<void(QPainter&)>;

void Paper(QPainter& p) {
    QPainterPath page;
    page.moveTo(6, 3);
    page.lineTo(14, 3);
    page.lineTo(18, 7);
    page.lineTo(18, 21);
    page.lineTo(6, 21);
    page.closeSubpath();
    p.setPen(QPen(Outline(), 1.4));
    p.setBrush(kPaper);
    p.drawPath(page);
    p.drawPolyline(QPolygonF({{14, 3}, {14, 7}, {18, 7}}));
}

void NewIcon(QPainter& p) {
    Paper(p);
    p.setPen(QPen(kGreen, 2.2));
    p.drawLine(QPointF(12, 11), QPointF(12, 18));
    p.drawLine(QPointF(8.5, 14.5), QPointF(15.5, 14.5));
}

// Two pages whose lines differ in one.
void CompareIcon(QPainter& p) {
    for (const double left : {2.5, 13.0}) {
        p.setPen(QPen(Outline(), 1.4));
        p.setBrush(kPaper);
        p.drawRect(QRectF(left, 4, 8.5, 16));
        p.setPen(QPen(kInk, 1.2));
        for (const double y : {8.0, 16.0}) p.drawLine(QPointF(left + 2, y), QPointF(left + 6.5, y));
        p.setPen(QPen(kGreen, 2));
        p.drawLine(QPointF(left + 2, 12), QPointF(left + (left < 12 ? 4 : 6.5), 12));
    }
}

void FolderIcon(QPainter& p) {
    p.setPen(QPen(Outline(), 1.4));
    p.setBrush(kSand);
    p.drawPolygon(QPolygonF({{3, 6}, {9, 6}, {11, 8}, {20, 8}, {20, 19}, {3, 19}}));
    p.setBrush(kSand.lighter(112));
    p.drawPolygon(QPolygonF({{5.5, 11}, {22, 11}, {20, 19}, {3, 19}}));
}

void SaveIcon(QPainter& p) {
    p.setPen(QPen(Outline(), 1.4));
    p.setBrush(kBlue);
    p.drawPolygon(QPolygonF({{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}}));
    p.setBrush(kPaper);
    p.drawRect(QRectF(7.5, 13, 9, 7));
    p.drawRect(QRectF(8, 4, 7, 5));
}

void ExitIcon(QPainter& p) {
    p.setPen(QPen(kClay.darker(115), 2.4, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(4.5, 5.5, 15, 15), 125 * 16, 290 * 16);
    p.drawLine(QPointF(12, 3), QPointF(12, 12));
}

// A folder that is put away.
void CloseIcon(QPainter& p) {
    FolderIcon(p);
    p.setPen(QPen(kClay.darker(115), 2.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(14, 11.5), QPointF(20, 17.5));
    p.drawLine(QPointF(20, 11.5), QPointF(14, 17.5));
}

void FormatsIcon(QPainter& p) {
    p.setPen(Outline());
    p.setFont(SansFont(11, true));
    p.drawText(QRectF(0, 3, 24, 14), Qt::AlignCenter, QStringLiteral("0.0"));
    p.setPen(QPen(kBlue, 1.6));
    p.drawLine(QPointF(4, 19), QPointF(20, 19));
}

void ListIcon(QPainter& p) {
    Paper(p);
    p.setPen(QPen(kBlue, 1.6));
    for (const double y : {10.0, 13.0, 16.0}) p.drawLine(QPointF(8.5, y), QPointF(15.5, y));
}

void GearIcon(QPainter& p) {
    p.translate(12, 12);
    p.setPen(QPen(Outline(), 3.4));
    for (int i = 0; i < 8; ++i) {
        p.drawLine(QPointF(0, -6), QPointF(0, -9));
        p.rotate(45);
    }
    p.setPen(QPen(Outline(), 1.4));
    p.setBrush(kBlue.lighter(140));
    p.drawEllipse(QPointF(0, 0), 6.4, 6.4);
    p.setBrush(kPaper);
    p.drawEllipse(QPointF(0, 0), 2.4, 2.4);
}

void RulerIcon(QPainter& p) {
    p.setPen(QPen(Outline(), 1.4));
    p.setBrush(kSand);
    p.drawRect(QRectF(2, 8, 20, 8));
    for (int i = 1; i < 8; ++i) p.drawLine(QPointF(2 + 2.5 * i, 8), QPointF(2 + 2.5 * i, i % 2 == 0 ? 13 : 11));
}

void GlobeIcon(QPainter& p) {
    p.setPen(QPen(Outline(), 1.3));
    p.setBrush(kBlue.lighter(165));
    p.drawEllipse(QRectF(3, 3, 18, 18));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QRectF(8, 3, 8, 18));
    p.drawLine(QPointF(3, 12), QPointF(21, 12));
    p.drawArc(QRectF(1.5, -7, 21, 15), 200 * 16, 140 * 16);
    p.drawArc(QRectF(1.5, 16, 21, 15), 20 * 16, 140 * 16);
}

void CompanyIcon(QPainter& p) {
    p.setPen(QPen(Outline(), 1.4));
    p.setBrush(kSand.lighter(115));
    p.drawRect(QRectF(5, 3, 14, 18));
    p.setPen(Qt::NoPen);
    p.setBrush(kBlue);
    for (const double y : {6.0, 10.0, 14.0})
        for (const double x : {8.0, 13.5}) p.drawRect(QRectF(x, y, 2.6, 2.6));
    p.setBrush(Outline());
    p.drawRect(QRectF(10.4, 17, 3.2, 4));
}

void HelpIcon(QPainter& p, const QString& sign) {
    p.setPen(QPen(Outline(), 1.4));
    p.setBrush(kBlue);
    p.drawEllipse(QRectF(3, 3, 18, 18));
    p.setFont(SansFont(13, true));
    p.setPen(Qt::white);
    p.drawText(QRectF(3, 3, 18, 18), Qt::AlignCenter, sign);
}

QIcon IconDrawnBy(const Drawing& drawing) {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 24.0, size / 24.0);
        drawing(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

const std::map<std::string, Drawing>& Drawings() {
    static const std::map<std::string, Drawing> drawings = {
        {"mnuNewProject", NewIcon},
        {"mnuOpenProject", FolderIcon},
        {"mnuSaveProjectAs", SaveIcon},
        {"mnuFileList", ListIcon},
        {"mnuFileExit", ExitIcon},
        {"mnuCompare", CompareIcon},
        {"mnuCloseProject", CloseIcon},
        {"mnuNumberFormats", FormatsIcon},
        {"mnuProblem(0)", ListIcon},
        {"mnuFirmaData", CompanyIcon},
        {"mnuDirOfData", FolderIcon},
        {"mnuPreferences", GearIcon},
        {"MnuLanguage", GlobeIcon},
        {"mnuUnits", RulerIcon},
        {"mnuHelpContents", [](QPainter& p) { HelpIcon(p, QStringLiteral("?")); }},
        {"mnuShortDescription", ListIcon},
        {"mnuNewVersion", [](QPainter& p) { HelpIcon(p, QStringLiteral("!")); }},
        {"mnuAbout", [](QPainter& p) { HelpIcon(p, QStringLiteral("i")); }},
    };
    return drawings;
}

}  // namespace

QIcon ProgramIcon() {
    return IconDrawnBy([](QPainter& p) { DrawLogo(p, QRectF(0, 0, 24, 24)); });
}

QIcon IconOf(const std::string& key) {
    const auto found = Drawings().find(key);
    if (found != Drawings().end()) return IconDrawnBy(found->second);
    if (!key.starts_with("mnuProblem(")) return {};
    const ProblemRow* problem = FirstProblemOf(ListTools().KeyIndex(key));
    return problem == nullptr ? QIcon() : IconOfProblem(problem->ProblemType);
}

QIcon IconOfProblem(int problemType) {
    if (FindProblem(problemType) == nullptr) return IconDrawnBy(Paper);
    return IconDrawnBy([problemType](QPainter& painter) { DrawProblemIcon(painter, problemType, Outline()); });
}

}  // namespace lithmark
