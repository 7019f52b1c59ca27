#include "ui/frmPreferences.h"

#include "base/NumberText.h"
#include "core/Session.h"
#include "core/Units.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"
#include "ui/model/CommonStep.h"

namespace lithmark {

namespace {

constexpr Style kButton{1}, kHeading{4};
constexpr int kGeometryTab = 0, kIterationTab = 1;
constexpr double kLeastSize = 0.25;  // m
constexpr double kMostWhole = 32000;
const std::string kPlain;  // the format of plain numbers

// The least element size in the unit of the boxes. Where a box rounds it down, the rounded value will do: 0.25 m show
// as 0.82 ft, and the default must pass.
double LeastSizeShown() {
    const double least = kLeastSize * Session.Len1Factor;
    const auto shown = ParseNumber(FormatValue(least, Session.FmtLength), SharedServices().DecimalSign);
    return shown && *shown<least&& * shown> 0.9 * least ? *shown : least;
}

}  // namespace

frmPreferences::frmPreferences() : FieldForm("frmPreferences") {
    const Limit least(LeastSizeShown);
    SetFields({
        {txtDx, Session.PrefDx, Unit::Length, Session.FmtLength, least, kNoLimit, lblDx},
        {txtDy, Session.PrefDy, Unit::Length, Session.FmtLength, least, kNoLimit, lblDy},
        {txtDz, Session.PrefDz, Unit::Length, Session.FmtLength, least, kNoLimit, lblDz},
        {txtND, Session.PrefND, Unit::None, kPlain, 2, kMostWhole, lblND},
        {txtTol, Session.PrefTol, Unit::None, kPlain, 1e-14, kNoLimit, lblTol},
        {txtImax, Session.PrefImax, Unit::None, kPlain, 1, kMostWhole, lblImax},
    });
    SetEnterRows({
        {&txtDx, {GoTo(txtDy)}},
        {&txtDy, {GoTo(txtDz)}},
        {&txtDz, {GoTo(txtND)}},
        {&txtND, {Press(cmdSave)}},
        {&txtTol, {GoTo(txtImax)}},
        {&txtImax, {Press(cmdSave)}},
    });
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmPreferences::Load() {
    SharedServices().PrepareForm(*this);
    Caption = Text(92_text);
    sstMainData.Items = {Text(400129_text), Text(400130_text)};
    SelectRow(sstMainData, kGeometryTab);
    SetCaptions({{fraGeometry, 400129_text, kHeading},
                 {lblDx, 400131_text},
                 {lblDy, 400132_text},
                 {lblDz, 400148_text},
                 {lblND, 400149_text},
                 {fraIteration, 400130_text},
                 {lblTol, 400134_text},
                 {lblImax, 400105_text},
                 {cmdSave, 111_text, kButton},
                 {CmdCancel, 7_text, kButton},
                 {cmdHelp, 8_text, kButton}});
    SetCaptions({{lblUnitDx, LabelOf(Unit::Length)},
                 {lblUnitDy, LabelOf(Unit::Length)},
                 {lblUnitDz, LabelOf(Unit::Length)},
                 {lblUnitNd, LabelOf(Unit::None)}});
    ShowPreferences();
}

void frmPreferences::ShowPreferences() {
    LoadPreferences();
    ShowFields();
}

void frmPreferences::cmdSave_Click() {
    Session.FileSaved = false;
    UnderCommonStep([&] { StorePreferences(); });
    if (Session.FileSaved) Unload();
}

// A bad value is told on the tab that holds it, and nothing is stored then.
void frmPreferences::StorePreferences() {
    for (const FieldRow& row : Fields()) {
        const bool iteration = &row.Box == &txtTol || &row.Box == &txtImax;
        SelectRow(sstMainData, iteration ? kIterationTab : kGeometryTab);
        if (!row.Check(*this)) return;
    }
    StoreFields();
    // The circle is divided symmetrically.
    if (Session.PrefND % 2 != 0) Session.PrefND = Session.PrefND + 1;
    SavePreferences();
}

void frmPreferences::cmdHelp_Click() {
    SharedServices().SetHelpText(Text(904012_text));
    UnderCommonStep([&] { SharedServices().ShowHelpText(Caption); });
}

}  // namespace lithmark
