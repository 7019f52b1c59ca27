#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmRigidConsolidation.h"

namespace lithmark {

static const LayoutOf<frmRigidConsolidation> kLayoutRigidConsolidation([](FormView& view, frmRigidConsolidation& form) {
    LayoutProblem(view, form,
                  {{form.frmSelectOption, form.optLoadType},
                   {form.fraAnalysisType, form.optAnalysisType},
                   {form.fraPointCoordinates, {form.txt_z, form.txt_h}},
                   {form.fraData, {form.txt_Q, form.txt_Exz_x, form.txt_Exz_y, form.txt_A, form.txt_B}},
                   {form.frmSoilProperties,
                    {form.optSoilPeropertyType, form.txt_Es, form.txt_Po, form.txt_Cc, form.txt_eo, form.txt_Gamma}},
                   {form.fraSettlementAt, form.optSettlementAt}});
});

}  // namespace lithmark
