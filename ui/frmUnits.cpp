#include "ui/frmUnits.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "core/Session.h"
#include "core/Units.h"
#include "files/CommonStep.h"
#include "files/SettingsFiles.h"
#include "services/SharedServices.h"
#include "ui/model/FormatCheck.h"

namespace lithmark {

namespace {

// A row for each unit: its long name and its label. The row of the label in force is selected; a label that no row
// holds leaves the list as it was.
void Fill(ComboBox& list, std::span<const UnitRow> units, const std::string& label) {
    list.Items.clear();
    // Behind a name that runs from right to left a unit keeps its own order of signs.
    const bool mirrored = LanguageTexts().RightToLeft();
    const std::string before = mirrored ? "\u2066" : "", after = mirrored ? "\u2069" : "";
    for (const UnitRow& unit : units)
        list.Items.push_back(Text(unit.Name).append(", ").append(before).append(Text(unit.UnitLabel)).append(after));
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

// The rows of the lists that make a preset, by the units' forms in files.
struct Preset {
    TextId Name;
    const char *Length1, *Length2, *Force1, *Force2, *Temperature;
};
constexpr Preset kPresets[] = {
    {913451_text, "[m]", "[cm]", "[kN]", "[MN]", "[°C]"},
    {913452_text, "[ft]", "[in]", "[kip]", "[kip]", "[°F]"},
    {913453_text, "[m]", "[cm]", "[kgf]", "[kgf]", "[°C]"},
};

int RowOf(const char* unit, std::span<const UnitRow> units) {
    const auto row = std::ranges::find(units, std::string_view(unit), [](const UnitRow& u) { return u.InFiles; });
    return static_cast<int>(row - units.begin());
}

}  // namespace

frmUnits::frmUnits() : Form("frmUnits") {
    CboPreset.OnChange = [this] { CboPreset_Click(); };
    for (ComboBox* list : {&CboLength[0], &CboLength[1], &CboForce[0], &CboForce[1], &CboTemperature})
        list->OnChange = [this] { ShowChosen(); };
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
                 {lblPreset, 913450_text},
                 {cmdSave, 111_text, Styles::Button},
                 {CmdCancel, 7_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
    Fill(CboLength[0], LengthUnits(), Session.Len1Label);
    Fill(CboLength[1], LengthUnits(), Session.Len2Label);
    Fill(CboForce[0], ForceUnits(), Session.Force1Label);
    Fill(CboForce[1], ForceUnits(), Session.Force2Label);
    Fill(CboTemperature, TemperatureUnits(), Session.TempLabel);
    CboPreset.Items = {Text(913454_text)};
    for (const Preset& preset : kPresets) CboPreset.Items.push_back(Text(preset.Name));
    ShowChosen();
}

void frmUnits::CboPreset_Click() {
    if (CboPreset.ListIndex >= 1) {
        const Preset& preset = kPresets[CboPreset.ListIndex - 1];
        SelectRow(CboLength[0], RowOf(preset.Length1, LengthUnits()));
        SelectRow(CboLength[1], RowOf(preset.Length2, LengthUnits()));
        SelectRow(CboForce[0], RowOf(preset.Force1, ForceUnits()));
        SelectRow(CboForce[1], RowOf(preset.Force2, ForceUnits()));
        SelectRow(CboTemperature, RowOf(preset.Temperature, TemperatureUnits()));
    }
    ShowChosen();
}

UnitSettings frmUnits::Chosen() const {
    UnitSettings units;
    Take(Selected(CboLength[0], LengthUnits()), units.Len1Label, units.Len1Factor);
    Take(Selected(CboLength[1], LengthUnits()), units.Len2Label, units.Len2Factor);
    units.Len2Factor /= 100;  // to the centimetre
    Take(Selected(CboForce[0], ForceUnits()), units.Force1Label, units.Force1Factor);
    Take(Selected(CboForce[1], ForceUnits()), units.Force2Label, units.Force2Factor);
    units.Force2Factor *= 1000;  // to the meganewton
    units.TempLabel = Text(Selected(CboTemperature, TemperatureUnits()).UnitLabel);
    return units;
}

void frmUnits::ShowChosen() {
    const auto shows = [this](const Preset& preset) {
        return CboLength[0].ListIndex == RowOf(preset.Length1, LengthUnits()) &&
               CboLength[1].ListIndex == RowOf(preset.Length2, LengthUnits()) &&
               CboForce[0].ListIndex == RowOf(preset.Force1, ForceUnits()) &&
               CboForce[1].ListIndex == RowOf(preset.Force2, ForceUnits()) &&
               CboTemperature.ListIndex == RowOf(preset.Temperature, TemperatureUnits());
    };
    const auto preset = std::ranges::find_if(kPresets, shows);
    SelectRow(CboPreset, preset == std::end(kPresets) ? 0 : 1 + static_cast<int>(preset - kPresets));
    UnderCommonStep([&] { lblPreview.Caption = UnitsInUse(Chosen()); });
}

void frmUnits::cmdSave_Click() {
    UnderCommonStep([&] {
        SetUnits(Chosen());
        if (!WriteUnits()) return;
        Session.DialogOk = true;
        Unload();
    });
}

void frmUnits::cmdHelp_Click() {
    UnderCommonStep([] { SharedServices().ShowHelpTopic("7_7"); });
}

}  // namespace lithmark
