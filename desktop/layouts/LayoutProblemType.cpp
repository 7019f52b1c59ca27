#include <QBoxLayout>
#include <QLineEdit>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmProblemType.h"

namespace lithmark {

static const LayoutOf<frmProblemType> kLayoutProblemType([](FormView& view, frmProblemType& form) {
    constexpr int kWordsWidth = 300;
    QVBoxLayout* window = WindowColumn(view);
    window->addWidget(view.Place(form.Frame3D1));
    FillGroup(view, form, form.Frame3D1, {form.txtAuftr, form.txtDatum, form.txtProj});
    for (Control* box : ControlList{form.txtAuftr, form.txtDatum, form.txtProj})
        view.WidgetOf(*box)->setMinimumWidth(kWordsWidth);
    window->addWidget(view.Place(form.frmSelectOption));
    FillGroup(view, form, form.frmSelectOption, {form.cmbItem});
    window->addStretch(1);
    window->addLayout(ButtonRow(view, {form.cmdHelp, form.cmdOpen, form.cmdSaveAs}, {form.cmdSave, form.CmdCancel}));
});

}  // namespace lithmark
