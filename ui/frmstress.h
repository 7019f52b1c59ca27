// frmstress: the dialog of the problems 1 (stresses), 2 (strains) and 3 (displacements) at a point of the soil under a
// point load, a rectangular or a circular load.
#pragma once

#include "ui/model/LoadForm.h"

namespace lithmark {

class frmstress : public LoadForm {
  public:
    frmstress();

    FrameBox fraData{*this, "fraData"};

    // The soil.
    FrameBox frmSoilProperties{*this, "frmSoilProperties"};
    TextLabel lblE_Modulus{*this, "lblE_Modulus"}, Label69{*this, "Label69"}, lblknm1{*this, "lblknm1"};
    TextLabel lblPoissonRatio{*this, "lblPoissonRatio"}, Label60{*this, "Label60"}, Label14{*this, "Label14"};
    TextBox txt_Es{*this, "txt_Es"}, txt_Nue{*this, "txt_Nue"};

  protected:
    void ShowForProblem() override;
    std::string Help() const override;
};

}  // namespace lithmark
