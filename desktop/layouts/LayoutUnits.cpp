#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>

#include "desktop/FormView.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmUnits.h"

namespace lithmark {

static const LayoutOf<frmUnits> kLayoutUnits([](FormView& view, frmUnits& form) {
    QVBoxLayout* window = WindowColumn(view);
    auto* grid = new QGridLayout;
    AddLabelled(view, *grid, form.lblPreset, form.CboPreset);
    for (const int group : {0, 1}) AddLabelled(view, *grid, form.lblLength[group], form.CboLength[group]);
    for (const int group : {0, 1}) AddLabelled(view, *grid, form.LblForce[group], form.CboForce[group]);
    AddLabelled(view, *grid, form.Lbltemperature, form.CboTemperature);
    grid->setColumnStretch(0, 1);
    grid->setHorizontalSpacing(sizes::kGroupGap);
    grid->setVerticalSpacing(sizes::kRowGap);
    window->addLayout(grid);
    auto& preview = view.Place<QLabel>(form.lblPreview);
    preview.setWordWrap(true);
    // The words may need a second line in another choice; the window keeps its place for it.
    preview.setMinimumHeight(2 * preview.fontMetrics().lineSpacing());
    window->addWidget(&preview);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, form.cmdHelp, {form.cmdSave, form.CmdCancel}));
});

}  // namespace lithmark
