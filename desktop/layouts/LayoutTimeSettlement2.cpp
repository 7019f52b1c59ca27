#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmTimeSettlement2.h"

namespace lithmark {

static const LayoutOf<frmTimeSettlement2> kLayoutTimeSettlement2([](FormView& view, frmTimeSettlement2& form) {
    LayoutProblem(view, form,
                  {{form.fraData,
                    {form.txt_Hb, form.chkDrainage, form.txt_Hm, form.txt_Sc, form.txt_Pt, form.txtTimePeriod,
                     form.txt_Date, form.cmdTimeLoad, form.CmdOdomterSettlement}},
                   {form.frmOdomterUnit, form.optOdomterUnit},
                   {form.frmSelectTimeUnit, form.optTimeUnit},
                   {form.frmEMS, {form.chkMs, form.txt_Sm, form.cmbDesignCode}}});
});

}  // namespace lithmark
