// frmAbout: the program's name and version.
#pragma once

#include "ui/model/Controls.h"

namespace lithmark {

class frmAbout : public Form {
  public:
    frmAbout();

    PictureBox imgLogo{*this, "imgLogo"};
    TextLabel lblTitle{*this, "lblTitle"}, lblVersion{*this, "lblVersion"}, lblDescription{*this, "lblDescription"},
        lblDisclaimer{*this, "lblDisclaimer"};
    Button cmdok{*this, "cmdok"};

    void Load() override;
    void cmdok_Click() { Unload(); }
};

}  // namespace lithmark
