#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmConsolidationRate.h"

namespace lithmark {

static const LayoutOf<frmConsolidationRate> kLayoutConsolidationRate([](FormView& view, frmConsolidationRate& form) {
    LayoutProblem(
        view, form,
        {{form.frmSelectOption, {form.chkPressure, form.txt_U, form.optLoadType}},
         {form.fraPointCoordinates, {form.txt_x, form.txt_y, form.txt_z, form.chkLayers, form.txt_h1, form.txt_h2}},
         {form.fraData, {form.txt_Q, form.txt_P, form.txt_A, form.txt_B}},
         {form.frmSoilProperties,
          {form.cmbDrainageConditions, form.cmbTimeUnit, form.txt_T, form.txt_Cv1, form.txt_K1, form.txt_Cv2,
           form.txt_K2}}});
});

}  // namespace lithmark
