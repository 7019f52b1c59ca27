#include <QBoxLayout>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmMethodtype.h"

namespace lithmark {

static const LayoutOf<frmMethodtype> kLayoutMethodtype([](FormView& view, frmMethodtype& form) {
    QVBoxLayout* window = WindowColumn(view);
    window->addWidget(view.Place(form.fraModelType), 1);
    FillGroup(view, form.fraModelType, form.OptMethodType);
    window->addLayout(ButtonRow(view, form.cmdHelp, {form.cmdok, form.CmdCancel}));
});

}  // namespace lithmark
