#include "desktop/layouts/ProblemWindow.h"
#include "ui/frmstress.h"

namespace lithmark {

static const LayoutOf<frmstress> kLayoutStress([](FormView& view, frmstress& form) {
    LayoutProblem(view, form,
                  {{form.frmSelectOption, form.optLoadType},
                   {form.fraData, {form.txt_Q, form.txt_P, form.txt_A, form.txt_B}},
                   {form.fraPointCoordinates, {form.txt_x, form.txt_y, form.txt_z}},
                   {form.frmSoilProperties, {form.txt_Es, form.txt_Nue}}});
});

}  // namespace lithmark
