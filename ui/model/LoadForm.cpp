#include "ui/model/LoadForm.h"

#include <utility>

#include "core/Problems.h"

namespace lithmark {

namespace {

using R = SessionRecord;
// The drawing's forms, in the order of the options.
constexpr const char* kLoads[] = {"point", "rectangle", "circle"};

std::string LengthOrRadius() {
    return Text(400120_text) + "/ " + Text(400001_text);
}

}  // namespace

LoadForm::LoadForm(std::string name, PictureOf picture, std::string loadUnit)
    : PictureForm(std::move(name), std::move(picture)), lblLoadUnit(*this, std::move(loadUnit)) {}

FieldRow LoadForm::RowX(std::vector<EnterStep> enter, CheckedWhen checked) {
    return FieldRow({lbl_x_Coord, Axis::X}, {}, txt_x, {lblm1, Unit::Length}, {&R::x, &R::FmtLength}, {},
                    std::move(enter), checked);
}

FieldRow LoadForm::RowY(std::vector<EnterStep> enter, CheckedWhen checked) {
    return FieldRow({lbl_y_Coord, Axis::Y}, {}, txt_y, {lblm2, Unit::Length}, {&R::y, &R::FmtLength}, {},
                    std::move(enter), checked);
}

FieldRow LoadForm::RowZ(std::vector<EnterStep> enter) {
    return FieldRow({lbl_z_Coord, Axis::Z}, {}, txt_z, {lblm3, Unit::Length}, {&R::z, &R::FmtLength}, {0},
                    std::move(enter));
}

FieldRow LoadForm::RowQ(std::vector<EnterStep> enter) {
    return FieldRow({lplPointLoad, 400186_text}, {lblQp, "Q"}, txt_Q, {lblkn, Unit::Force}, {&R::Q, &R::FmtForce}, {0},
                    std::move(enter), CheckedWhen::Shown);
}

FieldRow LoadForm::RowP(std::vector<EnterStep> enter, Words name) {
    return FieldRow({LblDistributedload, 400170_text}, {lblq, "p"}, txt_P, {lblLoadUnit, Unit::Pressure},
                    {&R::P, &R::FmtStress}, {0}, std::move(enter), CheckedWhen::Shown, std::move(name));
}

FieldRow LoadForm::RowA(std::vector<EnterStep> enter) {
    return FieldRow({lblLength_Radius, LengthOrRadius}, {lbla, "a"}, txt_A, {lblm4, Unit::Length},
                    {&R::A, &R::FmtLength}, {0}, std::move(enter), CheckedWhen::Shown);
}

FieldRow LoadForm::RowB(std::vector<EnterStep> enter) {
    return FieldRow({lblWidth, 101_text}, {lblb, "b"}, txt_B, {lblm5, Unit::Length}, {&R::B, &R::FmtLength}, {0},
                    std::move(enter), CheckedWhen::Shown);
}

ChoiceRow LoadForm::Loads(std::vector<Words> captions) {
    return ChoiceRow(optLoadType, std::move(captions),
                     {&R::LoadType, {LoadShape::Point, LoadShape::Rectangle, LoadShape::Circle}},
                     [this] { optLoadType_Click(); });
}

void LoadForm::optLoadType_Click() {
    const int load = LoadCounts() ? optLoadType.Selected() : -1;
    ShowLines(txt_Q, load == 0);
    ShowLines({txt_P, txt_A}, load == 1 || load == 2);
    ShowLines(txt_B, load == 1);
    PctInvertedT.Variant = load < 0 ? "" : kLoads[load];
}

}  // namespace lithmark
