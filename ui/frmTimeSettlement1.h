// frmTimeSettlement1: the dialog of problem 6: the curve of relative settlements under a sudden load is entered
// directly.
#pragma once

#include "ui/model/TimeSettlementForm.h"

namespace lithmark {

class frmTimeSettlement1 : public TimeSettlementForm {
  public:
    frmTimeSettlement1();

    Button CmdTimeSettlementPoints{*this, "CmdTimeSettlementPoints"};

    void CmdTimeSettlementPoints_Click();
};

}  // namespace lithmark
