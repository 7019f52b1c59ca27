#include <QBoxLayout>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmProjectCheck.h"

namespace lithmark {

static const LayoutOf<frmProjectCheck> kLayoutProjectCheck([](FormView& view, frmProjectCheck& form) {
    QVBoxLayout* window = WindowColumn(view);
    window->addWidget(view.Place(form.fraProjectCheck), 1);
    FillGroup(view, form.fraProjectCheck, {form.lblProjectCheck, form.txtProjectCheck});
    view.WidgetOf(form.txtProjectCheck)->setMinimumSize(460, 110);
    window->addLayout(ButtonRow(view, form.cmdHelp, {form.cmdok, form.CmdCancel}));
    view.resize(500, 230);
});

}  // namespace lithmark
