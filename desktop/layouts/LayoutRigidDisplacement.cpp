#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmRigidDisplacement.h"

namespace lithmark {

static const LayoutOf<frmRigidDisplacement> kLayoutRigidDisplacement([](FormView& view, frmRigidDisplacement& form) {
    LayoutProblem(view, form,
                  {{form.frmSelectOption, form.optLoadType},
                   {form.fraAnalysisType, form.optAnalysisType},
                   {form.fraPointCoordinates, form.txt_h},
                   {form.fraData, {form.txt_Q, form.txt_Exz_x, form.txt_Exz_y, form.txt_A, form.txt_B}},
                   {form.frmSoilProperties, {form.txt_Es, form.txt_Nue}},
                   {form.fraSettlementAt, form.optSettlementAt}});
});

}  // namespace lithmark
