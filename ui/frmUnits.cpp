#include "ui/frmUnits.h"

#include <algorithm>
#include <span>

#include "core/Session.h"
#include "core/Units.h"
#include "files/CommonStep.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// A row for each unit: its long name and its label. The row of the label in force is selected; a label that no row
// holds leaves the list as it was.
void Fill(ComboBox& list, std::span<const UnitRow> units, const std::string& label) {
    list.Items.clear();
    for (const UnitRow& unit : units) list.Items.push_back(Text(unit.Name) + ", " + Text(unit.UnitLabel));
    const auto row = std::find_if(list.Items.begin(), list.Items.end(),
                                  [&](const std::string& item) { return item.find(label) != std::string::npos; });
    if (row != list.Items.end()) SelectRow(list, static_cast<int>(row - list.Items.begin()));
}

// The unit of a list's row; the first of its table while none is selected.
const UnitRow& Selected(const ComboBox& list, std::span<const UnitRow> units) {
    const bool selected = list.ListIndex >= 0 && list.ListIndex < static_cast<int>(units.size());
    return units[selected ? static_cast<std::size_t>(list.ListIndex) : 0];
}

void Take(const UnitRow& unit, std::string& label, double& factor) {
    label = Text(unit.UnitLabel);
    factor = unit.Factor;
}

}  // namespace

frmUnits::frmUnits() : Form("frmUnits") {
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmUnits::Load() {
    SharedServices().PrepareForm(*this);
    Session.DialogOk = false;
    Caption = Text(17_text);
    SetCaptions({{lblLength[0], 10141_text},
                 {lblLength[1], 10142_text},
                 {LblForce[0], 10143_text},
                 {LblForce[1], 10144_text},
                 {Lbltemperature, 62_text},
                 {cmdSave, 111_text, Styles::Button},
                 {CmdCancel, 7_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
    Fill(CboLength[0], LengthUnits(), Session.Len1Label);
    Fill(CboLength[1], LengthUnits(), Session.Len2Label);
    Fill(CboForce[0], ForceUnits(), Session.Force1Label);
    Fill(CboForce[1], ForceUnits(), Session.Force2Label);
    Fill(CboTemperature, TemperatureUnits(), Session.TempLabel);
}

void frmUnits::cmdSave_Click() {
    UnderCommonStep([&] {
        Take(Selected(CboLength[0], LengthUnits()), Session.Len1Label, Session.Len1Factor);
        Take(Selected(CboLength[1], LengthUnits()), Session.Len2Label, Session.Len2Factor);
        Session.Len2Factor /= 100;  // to the centimetre
        Take(Selected(CboForce[0], ForceUnits()), Session.Force1Label, Session.Force1Factor);
        Take(Selected(CboForce[1], ForceUnits()), Session.Force2Label, Session.Force2Factor);
        Session.Force2Factor *= 1000;  // to the meganewton
        Session.TempLabel = Text(Selected(CboTemperature, TemperatureUnits()).UnitLabel);
        if (!WriteUnits()) return;
        Session.DialogOk = true;
        Unload();
    });
}

void frmUnits::cmdHelp_Click() {
    UnderCommonStep([] { SharedServices().ShowHelpTopic("7_7"); });
}

}  // namespace lithmark
