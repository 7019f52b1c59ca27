// frmUnits: the units of the whole program. A save writes the file "Units" and puts the units in force; dialogs that
// are shown already keep theirs.
#pragma once

#include "services/storage/UnitsFile.h"
#include "ui/model/Controls.h"

namespace lithmark {

class frmUnits : public Form {
  public:
    frmUnits();

    // (0) and (1) are the two groups of lengths and of forces.
    ControlArray<TextLabel, 2> lblLength{*this, "lblLength"};
    ControlArray<ComboBox, 2> CboLength{*this, "CboLength"};
    ControlArray<TextLabel, 2> LblForce{*this, "LblForce"};
    ControlArray<ComboBox, 2> CboForce{*this, "CboForce"};
    TextLabel Lbltemperature{*this, "Lbltemperature"};
    ComboBox CboTemperature{*this, "CboTemperature"};
    // A set of units by one choice; the first row stands for any other.
    TextLabel lblPreset{*this, "lblPreset"};
    ComboBox CboPreset{*this, "CboPreset"};
    // How a few quantities read in the chosen units.
    TextLabel lblPreview{*this, "lblPreview"};
    Button cmdSave{*this, "cmdSave"}, CmdCancel{*this, "CmdCancel"}, cmdHelp{*this, "cmdHelp"};

    void Load() override;
    void cmdSave_Click();
    void CmdCancel_Click() { Unload(); }
    void cmdHelp_Click();
    void CboPreset_Click();

  private:
    // The units that the lists say.
    UnitSettings Chosen() const;
    void ShowChosen();
};

}  // namespace lithmark
