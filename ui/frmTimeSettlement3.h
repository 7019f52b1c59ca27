// frmTimeSettlement3: the dialog of problem 8: the curve follows from the theory of Terzaghi and Fröhlich.
#pragma once

#include "ui/model/TimeSettlementForm.h"

namespace lithmark {

class frmTimeSettlement3 : public TimeSettlementForm {
  public:
    frmTimeSettlement3();

    TextLabel lblHo{*this, "lblHo"}, lbl_ho{*this, "lbl_ho"}, lblm1{*this, "lblm1"};
    TextBox txt_Hb{*this, "txt_Hb"};
    CheckBox chkDrainage{*this, "chkDrainage"};  // one-sided

    // The soil.
    FrameBox frmSoilProperties{*this, "frmSoilProperties"};
    CheckBox chk_Cv{*this, "chk_Cv"};  // the coefficient of consolidation is given
    TextLabel lblCv{*this, "lblCv"}, lbl_cv{*this, "lbl_cv"}, lblm2s1{*this, "lblm2s1"};
    TextLabel lblKf{*this, "lblKf"}, lbl_kf{*this, "lbl_kf"}, lblms1{*this, "lblms1"};
    TextLabel lblEs{*this, "lblEs"}, lbl_es{*this, "lbl_es"}, lblknm1{*this, "lblknm1"};
    TextLabel lblWs{*this, "lblWs"}, lbl_ws{*this, "lbl_ws"}, lblknm2{*this, "lblknm2"};
    TextLabel lblQv{*this, "lblQv"}, lbl_qv{*this, "lbl_qv"}, lblknm3{*this, "lblknm3"};
    TextLabel lblQe{*this, "lblQe"}, lbl_qe{*this, "lbl_qe"}, lblknm4{*this, "lblknm4"};
    TextBox txt_Cv{*this, "txt_Cv"}, txt_kf{*this, "txt_kf"}, txt_Es{*this, "txt_Es"}, txt_Ws{*this, "txt_Ws"},
        txt_qv{*this, "txt_qv"}, txt_qe{*this, "txt_qe"};

    void chk_Cv_Click();
};

}  // namespace lithmark
