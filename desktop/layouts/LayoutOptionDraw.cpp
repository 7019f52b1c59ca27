#include <QBoxLayout>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmOptionDraw.h"

namespace lithmark {

static const LayoutOf<frmOptionDraw> kLayoutOptionDraw([](FormView& view, frmOptionDraw& form) {
    QVBoxLayout* window = WindowColumn(view);
    window->addWidget(view.Place(form.fraSelectOption));
    FillGroup(view, form.fraSelectOption, form.optDraw);
    auto* units = new QHBoxLayout;
    units->addWidget(view.Place(form.fraLoadUnit));
    FillGroup(view, form.fraLoadUnit, form.optLoadUnit);
    units->addWidget(view.Place(form.fraSettlementUnit));
    FillGroup(view, form.fraSettlementUnit, form.optSettlementUnit);
    window->addLayout(units);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, form.cmdHelp, {form.cmdok, form.CmdCancel}));
});

}  // namespace lithmark
