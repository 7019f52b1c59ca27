#include <QBoxLayout>
#include <QGridLayout>

#include "desktop/FormView.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmUnits.h"

namespace lithmark {

static const LayoutOf<frmUnits> kLayout([](FormView& view, frmUnits& form) {
    QVBoxLayout* window = WindowColumn(view);
    auto* grid = new QGridLayout;
    for (const int group : {0, 1}) AddLabelled(view, *grid, form.lblLength[group], form.CboLength[group]);
    for (const int group : {0, 1}) AddLabelled(view, *grid, form.LblForce[group], form.CboForce[group]);
    AddLabelled(view, *grid, form.Lbltemperature, form.CboTemperature);
    grid->setColumnStretch(0, 1);
    grid->setHorizontalSpacing(sizes::kGroupGap);
    grid->setVerticalSpacing(sizes::kRowGap);
    window->addLayout(grid);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, form.cmdHelp, {form.cmdSave, form.CmdCancel}));
});

}  // namespace lithmark
