#include <QBoxLayout>

#include "desktop/FormView.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmDataDir.h"

namespace lithmark {

static const LayoutOf<frmDataDir> kLayoutDataDir([](FormView& view, frmDataDir& form) {
    constexpr int kPathWidth = 380;
    QVBoxLayout* window = WindowColumn(view);
    QWidget* folder = view.Place(form.Frame3D1);
    window->addWidget(folder);
    auto* line = new QHBoxLayout(folder);
    line->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
    QWidget* path = view.Place(form.txtDataDir);
    path->setMinimumWidth(kPathWidth);
    // A path reads from left to right in every language.
    path->setLayoutDirection(Qt::LeftToRight);
    line->addWidget(path, 1);
    line->addWidget(view.Place(form.CmdBrowse));
    window->addWidget(view.Place(form.FraCompressFlag));
    FillGroup(view, form.FraCompressFlag, form.chkCompressFlag);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, form.cmdHelp, {form.cmdSave, form.CmdCancel}));
});

}  // namespace lithmark
