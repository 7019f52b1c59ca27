#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmConsolidation.h"

namespace lithmark {

static const LayoutOf<frmConsolidation> kLayoutConsolidation([](FormView& view, frmConsolidation& form) {
    LayoutProblem(view, form,
                  {{form.frmSelectOption, form.optLoadType},
                   {form.fraPointCoordinates, {form.txt_x, form.txt_y, form.txt_z, form.txt_h}},
                   {form.frmSoilProperties,
                    {form.optSoilPeropertyType, form.txt_Es, form.txt_Cc, form.txt_eo, form.txt_Po, form.txt_Gamma}},
                   {form.fraData, {form.txt_Q, form.txt_P, form.txt_A, form.txt_B}}});
});

}  // namespace lithmark
