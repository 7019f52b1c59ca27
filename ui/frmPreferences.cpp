#include "ui/frmPreferences.h"

#include "base/NumberText.h"
#include "core/Session.h"
#include "core/Units.h"
#include "files/CommonStep.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"

namespace lithmark {

namespace {

using R = SessionRecord;
constexpr int kGeometryTab = 0, kIterationTab = 1;
constexpr double kLeastSize = 0.25;  // m
constexpr double kMostWhole = 32000;

// The least element size in the unit of the boxes. Where a box rounds it down, the rounded value will do: 0.25 m show
// as 0.82 ft, and the default must pass.
double LeastSizeShown() {
    const double least = kLeastSize * Session.Len1Factor;
    const auto shown = ParseNumber(FormatValue(least, Session.FmtLength), SharedServices().DecimalSign);
    return shown && *shown<least&& * shown> 0.9 * least ? *shown : least;
}

}  // namespace

frmPreferences::frmPreferences() : KeptForm("frmPreferences") {
    const Limit least(LeastSizeShown);
    SetFields({
        FieldRow({lblDx, 400131_text}, {}, txtDx, {lblUnitDx, Unit::Length}, {&R::PrefDx, &R::FmtLength}, {least},
                 {GoTo(txtDy)}),
        FieldRow({lblDy, 400132_text}, {}, txtDy, {lblUnitDy, Unit::Length}, {&R::PrefDy, &R::FmtLength}, {least},
                 {GoTo(txtDz)}),
        FieldRow({lblDz, 400148_text}, {}, txtDz, {lblUnitDz, Unit::Length}, {&R::PrefDz, &R::FmtLength}, {least},
                 {GoTo(txtND)}),
        FieldRow({lblND, 400149_text}, {}, txtND, {lblUnitNd, Unit::None}, &R::PrefND, {2, kMostWhole},
                 {Press(cmdSave)}),
        FieldRow({lblTol, 400134_text}, {}, txtTol, {}, &R::PrefTol, {1e-14}, {GoTo(txtImax)}),
        FieldRow({lblImax, 400105_text}, {}, txtImax, {}, &R::PrefImax, {1, kMostWhole}, {Press(cmdSave)}),
    });
    SetCaptionRows({{fraGeometry, 400129_text, Styles::Heading},
                    {fraIteration, 400130_text},
                    {cmdSave, 111_text, Styles::Button},
                    {CmdCancel, 7_text, Styles::Button},
                    {cmdHelp, 8_text, Styles::Button}});
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmPreferences::Load() {
    SharedServices().PrepareForm(*this);
    Caption = Text(92_text);
    sstMainData.Items = {Text(400129_text), Text(400130_text)};
    SelectRow(sstMainData, kGeometryTab);
    ShowCaptions();
    ShowPreferences();
    OfferUnsavedInput({});
}

void frmPreferences::ShowPreferences() {
    LoadPreferences();
    ShowFields();
}

void frmPreferences::cmdSave_Click() {
    Session.FileSaved = false;
    UnderCommonStep([&] { StorePreferences(); });
    if (!Session.FileSaved) return;
    InputIsSaved();
    Unload();
}

// A bad value is told on the tab that holds it, and nothing is stored then.
void frmPreferences::StorePreferences() {
    if (const std::vector<BoxFault> faults = Faults(); !faults.empty()) {
        const Control* box = faults.front().Box;
        SelectRow(sstMainData, box == &txtTol || box == &txtImax ? kIterationTab : kGeometryTab);
        return Refuse(faults);
    }
    StoreFields(Session);
    // The circle is divided symmetrically.
    if (Session.PrefND % 2 != 0) Session.PrefND = Session.PrefND + 1;
    SavePreferences();
}

void frmPreferences::cmdHelp_Click() {
    ShowHelp(Caption, Text(904012_text));
}

}  // namespace lithmark
