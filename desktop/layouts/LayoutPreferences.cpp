#include <QBoxLayout>
#include <QStackedWidget>
#include <QTabBar>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "ui/frmPreferences.h"

namespace lithmark {

static const LayoutOf<frmPreferences> kLayoutPreferences([](FormView& view, frmPreferences& form) {
    QVBoxLayout* window = WindowColumn(view);
    auto* tabs = &view.Place<QTabBar>(form.sstMainData);
    tabs->setExpanding(false);
    window->addWidget(tabs);
    auto* pages = new QStackedWidget(&view);
    // Each frame on a page of its own, with its lines at the top.
    const auto page = [&](FrameBox& frame, const ControlList& boxes) {
        auto* widget = new QWidget(pages);
        auto* column = new QVBoxLayout(widget);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(view.Place(frame));
        column->addStretch(1);
        FillGroup(view, form, frame, boxes);
        pages->addWidget(widget);
    };
    page(form.fraGeometry, {form.txtDx, form.txtDy, form.txtDz, form.txtND});
    page(form.fraIteration, {form.txtTol, form.txtImax});
    view.AfterRefresh = [tabs, pages] { pages->setCurrentIndex(tabs->currentIndex()); };
    window->addWidget(pages);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, form.cmdHelp, {form.cmdSave, form.CmdCancel}));
});

}  // namespace lithmark
