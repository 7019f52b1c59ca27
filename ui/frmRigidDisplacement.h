// frmRigidDisplacement: the dialog of problem 9, a rigid raft on an elastic layer.
#pragma once

#include "ui/model/RaftForm.h"

namespace lithmark {

class frmRigidDisplacement : public RaftForm {
  public:
    frmRigidDisplacement();

    TextLabel lblPoissonRatio{*this, "lblPoissonRatio"}, Label60{*this, "Label60"}, Label14{*this, "Label14"};
    TextBox txt_Nue{*this, "txt_Nue"};

  protected:
    // Deliberate: a rectangular raft on an elastic layer takes no eccentric load.
    bool EccentricInX() const override { return !Rectangular(); }
    bool EccentricInY() const override { return false; }
    std::vector<EnterStep> ToSoil() override { return {GoTo(txt_Es)}; }
    std::string Help() const override { return Text(906507_text); }
};

}  // namespace lithmark
