#include "ui/frmContour.h"

#include <algorithm>

#include "contour/FieldSection.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "core/Units.h"
#include "files/CommonStep.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"

namespace lithmark {

frmContour::frmContour() : Form("frmContour") {
    chkColorContours.OnClick = [this] { chkColorContours_Click(); };
    for (OptionButton& view : optView) view.OnClick = [this] { optView_Click(); };
    chkSection.OnClick = [this] { chkSection_Click(); };
    cmdRedraw.OnClick = [this] { cmdRedraw_Click(); };
    cmdPrevious.OnClick = [this] { cmdPrevious_Click(); };
    cmdOriginal.OnClick = [this] { cmdOriginal_Click(); };
    cmdULeft.OnClick = [this] { Zoom(ZoomCornerOf::UpperLeft); };
    cmdURight.OnClick = [this] { Zoom(ZoomCornerOf::UpperRight); };
    cmdLLeft.OnClick = [this] { Zoom(ZoomCornerOf::LowerLeft); };
    cmdLRight.OnClick = [this] { Zoom(ZoomCornerOf::LowerRight); };
    cmdok.OnClick = [this] { cmdok_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmContour::Load() {
    SharedServices().PrepareForm(*this);
    Caption = Text(140017_text);
    const bool pressure = PressureContoursRequested();
    SetCaptions({{fraResult, pressure ? 90098_text : ProblemInForce().RaftSettlement, Styles::Heading},
                 {chkColorContours, 80093_text},
                 {chkDisplaylines, 80094_text},
                 {chkDrawGrid, 400078_text},
                 {chkchkDisplayValues, 15_text},
                 {chkFineLabels, 906520_text},
                 {optView[0], 910020_text},
                 {optView[1], 910021_text},
                 {chkSection, 910022_text},
                 {cmdRedraw, 400079_text},
                 {cmdPrevious, 400080_text},
                 {cmdOriginal, 26_text},
                 {cmdULeft, 400081_text},
                 {cmdURight, 400082_text},
                 {cmdLLeft, 400083_text},
                 {cmdLRight, 400084_text},
                 {cmdok, 6_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
    drawings_ = 0;
    for (CheckBox* box : {&chkColorContours, &chkDisplaylines, &chkDrawGrid, &chkchkDisplayValues}) box->Value = true;
    chkDisplaylines.Enabled = true;
    SelectOption(optView[0]);
    chkFineLabels.Value = chkSection.Value = false;
    optView_Click();
    cmdOriginal.Enabled = cmdPrevious.Enabled = false;
}

void frmContour::Activate() {
    SharedServices().SetPointer(PointerShape::Hourglass);
    UnderCommonStep([&] {
        Plot.Prepare();
        field_.emplace(Plot);
        section_ = MiddleLine(Plot);
        DrawAnew();
    });
    SharedServices().SetPointer(PointerShape::Default);
}

// A plot without colours always has lines.
void frmContour::chkColorContours_Click() {
    chkDisplaylines.Enabled = true;
    if (chkColorContours.Value) return;
    chkDisplaylines.Value = true;
    chkDisplaylines.Enabled = false;
}

// The view changes at once; labels belong to the one, a section to the other.
void frmContour::optView_Click() {
    chkFineLabels.Enabled = !ShowsField();
    chkSection.Enabled = ShowsField();
    if (Ready()) DrawAnew();
}

void frmContour::chkSection_Click() {
    if (Ready()) DrawAnew();
}

std::optional<FieldLine> frmContour::Section() const {
    return Ready() && ShowsField() && chkSection.Value ? std::optional(section_) : std::nullopt;
}

void frmContour::SetSection(const FieldLine& line) {
    const auto inside = [this](const FieldPoint& at) {
        return FieldPoint{std::clamp<double>(at.X, Plot.OrigWindow.XMin, Plot.OrigWindow.XMax),
                          std::clamp<double>(at.Y, Plot.OrigWindow.YMin, Plot.OrigWindow.YMax)};
    };
    const FieldLine held{inside(line.From), inside(line.To)};
    if (!(held.From == held.To)) section_ = held;
}

void frmContour::cmdRedraw_Click() {
    if (Ready()) DrawAnew();
}

void frmContour::Zoom(ZoomCornerOf corner) {
    if (!Ready()) return;
    Plot.ZoomCorner(corner);
    DrawAnew();
    cmdOriginal.Enabled = cmdPrevious.Enabled = true;
}

void frmContour::cmdPrevious_Click() {
    Plot.ZoomPrevious();
    DrawAnew();
    cmdOriginal.Enabled = true;
}

void frmContour::cmdOriginal_Click() {
    Plot.ZoomOriginal();
    DrawAnew();
    cmdOriginal.Enabled = cmdPrevious.Enabled = false;
}

void frmContour::cmdHelp_Click() {
    ShowHelp(Caption, Text(906509_text));
}

ContourOptions frmContour::Wanted() const {
    return {chkColorContours.Value, chkDisplaylines.Value, chkDrawGrid.Value, chkchkDisplayValues.Value};
}

std::string frmContour::UnitShown() {
    return PressureContoursRequested() ? LabelOf(Unit::Pressure) : Session.Len2Label;
}

std::optional<double> frmContour::ValueShown(double x, double y) const {
    const auto value = Ready() ? Plot.ValueAt(x, y) : std::nullopt;
    return value ? std::optional(*value * Plot.CaptionFactor()) : std::nullopt;
}

void frmContour::DrawAnew() {
    drawn_ = Wanted();
    fineDrawn_ = chkFineLabels.Value;
    Plot.LabelClasses(fineDrawn_ ? BasContour::Labels::Fine : BasContour::Labels::Told);
    ++drawings_;
}

}  // namespace lithmark
