#include <QBoxLayout>
#include <QPushButton>

#include "desktop/FindBar.h"
#include "desktop/FormView.h"
#include "desktop/ReportView.h"
#include "desktop/SaveReport.h"
#include "desktop/ScreenRoom.h"
#include "desktop/ScrollColumn.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"
#include "ui/frmResultTools.h"

namespace lithmark {

static const LayoutOf<frmResultTools> kLayoutResultTools([](FormView& view, frmResultTools& form) {
    QWidget* result = view.Place(form.fraResult);
    auto* find = new FindBar(&view);
    auto* report = &view.Place<ReportView>(form.txtResult);
    find->LookIn(*report);

    auto* text = new QVBoxLayout(result);
    text->addWidget(find);
    text->addWidget(report, 1);
    text->addWidget(view.Place(form.lblNotices));
    text->addWidget(view.Place(form.lstNotices));
    text->addWidget(view.Place(form.chkTables));
    text->addWidget(view.Place(form.chkNotices));
    text->addWidget(view.Place(form.chkFigures));

    // The buttons scroll where the screen is small; those that end the window stay.
    auto* ways = new QWidget;
    auto* buttons = new QVBoxLayout(ways);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(sizes::kRowGap);
    for (Control* button : ControlList{form.cmdPrinter, form.cmdWord, form.cmdClipboard, form.CmdTextEditor,
                                       form.CmdExcel, form.cmdVERDA})
        buttons->addWidget(view.Place(*button));
    auto* save = new QPushButton(Q(Text(9_text, Styles::DialogButton)), &view);
    save->setObjectName(QStringLiteral("cmdSaveAs"));
    save->setAutoDefault(false);
    QObject::connect(save, &QPushButton::clicked, &view, [&view, &form] {
        SaveReport(&view);
        form.ShowParts();
        view.Refresh();
    });
    buttons->addWidget(save);
    buttons->addStretch(1);
    auto* side = new QVBoxLayout;
    side->setSpacing(sizes::kRowGap);
    side->addWidget(new ScrollColumn(ways, &view), 1);
    for (Control* button : ControlList{form.cmdHelp, form.cmdok}) side->addWidget(view.Place(*button));

    auto* columns = new QHBoxLayout;
    columns->setSpacing(sizes::kEdge);
    columns->addWidget(result, 1);
    columns->addLayout(side);
    WindowColumn(view)->addLayout(columns, 1);
    view.resize(QSize(900, 680).boundedTo(ScreenRoom(view)));
});

}  // namespace lithmark
