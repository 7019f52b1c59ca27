#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "desktop/FormView.h"
#include "desktop/ScrollColumn.h"
#include "desktop/Sizes.h"
#include "desktop/SpokenAlert.h"
#include "desktop/WidgetInk.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmNumberFormats.h"

namespace lithmark {

static const LayoutOf<frmNumberFormats> kLayout([](FormView& view, frmNumberFormats& form) {
    // The widest preview has its place from the first.
    constexpr int kPreviewWidth = 150;
    QVBoxLayout* window = WindowColumn(view);
    QWidget* frame = view.Place(form.fraFormats);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad, sizes::kGroupPad);
    grid->setHorizontalSpacing(sizes::kColumnGap);
    grid->setVerticalSpacing(sizes::kRowGap);
    grid->setColumnStretch(0, 1);
    for (int i = 0; i < frmNumberFormats::kFormats; ++i) {
        AddLabelled(view, *grid, form.lblFormat[i], form.txtFormat[i]);
        auto& box = dynamic_cast<QLineEdit&>(*view.WidgetOf(form.txtFormat[i]));
        box.setFixedWidth(sizes::kBoxWidth);
        // A pattern runs from left to right in every language, as the number does.
        box.setLayoutDirection(Qt::LeftToRight);
        auto& preview = view.Place<QLabel>(form.lblPreview[i]);
        preview.setLayoutDirection(Qt::LeftToRight);
        preview.setMinimumWidth(kPreviewWidth);
        grid->addWidget(&preview, grid->rowCount() - 1, 2);
    }
    auto* fields = new QWidget;
    auto* column = new QVBoxLayout(fields);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(frame);
    column->addStretch();
    window->addWidget(new ScrollColumn(fields, &view), 1);
    auto& fault = view.Place<QLabel>(form.lblFault);
    MakeAlert(fault);
    view.Alert = &fault;
    fault.setWordWrap(true);
    SetInk(fault, Ink::Error);
    window->addWidget(&fault);
    window->addLayout(ButtonRow(view, {form.cmdDefault, form.cmdHelp}, {form.cmdSave, form.CmdCancel}));
});

}  // namespace lithmark
