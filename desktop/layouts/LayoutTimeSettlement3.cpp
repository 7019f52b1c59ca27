#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmTimeSettlement3.h"

namespace lithmark {

static const LayoutOf<frmTimeSettlement3> kLayoutTimeSettlement3([](FormView& view, frmTimeSettlement3& form) {
    LayoutProblem(view, form,
                  {{form.frmSoilProperties,
                    {form.chk_Cv, form.txt_Cv, form.txt_kf, form.txt_Es, form.txt_Ws, form.txt_qv, form.txt_qe}},
                   {form.fraData,
                    {form.txt_Hb, form.chkDrainage, form.txt_Sc, form.txt_Pt, form.txtTimePeriod, form.txt_Date,
                     form.cmdTimeLoad}},
                   {form.frmSelectTimeUnit, form.optTimeUnit},
                   {form.frmEMS, {form.chkMs, form.txt_Sm, form.cmbDesignCode}}});
});

}  // namespace lithmark
