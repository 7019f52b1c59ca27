#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmTimeSettlement1.h"

namespace lithmark {

static const LayoutOf<frmTimeSettlement1> kLayoutTimeSettlement1([](FormView& view, frmTimeSettlement1& form) {
    LayoutProblem(view, form,
                  {{form.fraData,
                    {form.txt_Sc, form.txt_Pt, form.txtTimePeriod, form.txt_Date, form.cmdTimeLoad,
                     form.CmdTimeSettlementPoints}},
                   {form.frmSelectTimeUnit, form.optTimeUnit},
                   {form.frmEMS, {form.chkMs, form.txt_Sm, form.cmbDesignCode}}});
});

}  // namespace lithmark
