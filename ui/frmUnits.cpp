#include "ui/frmUnits.h"

#include <algorithm>
#include <span>

#include "core/Session.h"
#include "core/Units.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"
#include "ui/model/CommonStep.h"

namespace lithmark {

namespace {

constexpr Style kButton{1};

// Units in the order in which a row is searched for them; one that matches none of the others is the first of its
// table.
constexpr TextId kLengths[] = {36_text, 38_text, 40_text, 42_text, 44_text};
constexpr TextId kForces[] = {47_text, 49_text, 51_text, 53_text, 55_text, 57_text, 59_text, 61_text};
constexpr TextId kTemperatures[] = {31_text, 30_text, 32_text};

// A row for each unit: its long name and its label. The row of the label in force is selected; a label that no row
// holds leaves the list as it was.
void Fill(ComboBox& list, std::span<const UnitRow> units, const std::string& label) {
    list.Items.clear();
    for (const UnitRow& unit : units) list.Items.push_back(Text(unit.Name) + ", " + Text(unit.UnitLabel));
    const auto row = std::find_if(list.Items.begin(), list.Items.end(),
                                  [&](const std::string& item) { return item.find(label) != std::string::npos; });
    if (row != list.Items.end()) SelectRow(list, static_cast<int>(row - list.Items.begin()));
}

std::string SelectedText(const ComboBox& list) {
    const bool selected = list.ListIndex >= 0 && list.ListIndex < static_cast<int>(list.Items.size());
    return selected ? list.Items[static_cast<std::size_t>(list.ListIndex)] : std::string();
}

// The unit of a list's row.
const UnitRow& Selected(const ComboBox& list, std::span<const UnitRow> units, std::span<const TextId> searched) {
    const std::string row = SelectedText(list);
    for (const TextId label : searched)
        if (row.find(Text(label)) != std::string::npos)
            return *std::find_if(units.begin(), units.end(),
                                 [&](const UnitRow& unit) { return unit.UnitLabel == label; });
    return units.front();
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
                 {cmdSave, 111_text, kButton},
                 {CmdCancel, 7_text, kButton},
                 {cmdHelp, 8_text, kButton}});
    Fill(CboLength[0], LengthUnits(), Session.Len1Label);
    Fill(CboLength[1], LengthUnits(), Session.Len2Label);
    Fill(CboForce[0], ForceUnits(), Session.Force1Label);
    Fill(CboForce[1], ForceUnits(), Session.Force2Label);
    Fill(CboTemperature, TemperatureUnits(), Session.TempLabel);
}

void frmUnits::cmdSave_Click() {
    UnderCommonStep([&] {
        Take(Selected(CboLength[0], LengthUnits(), kLengths), Session.Len1Label, Session.Len1Factor);
        Take(Selected(CboLength[1], LengthUnits(), kLengths), Session.Len2Label, Session.Len2Factor);
        Session.Len2Factor /= 100;  // to the centimetre
        Take(Selected(CboForce[0], ForceUnits(), kForces), Session.Force1Label, Session.Force1Factor);
        Take(Selected(CboForce[1], ForceUnits(), kForces), Session.Force2Label, Session.Force2Factor);
        Session.Force2Factor *= 1000;  // to the meganewton
        Session.TempLabel = Text(Selected(CboTemperature, TemperatureUnits(), kTemperatures).UnitLabel);
        if (!WriteUnits()) return;
        Session.DialogOk = true;
        Unload();
    });
}

void frmUnits::cmdHelp_Click() {
    UnderCommonStep([] { SharedServices().ShowHelpTopic("7_7"); });
}

}  // namespace lithmark
