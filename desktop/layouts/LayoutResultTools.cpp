#include <QBoxLayout>
#include <QLineEdit>
#include <QShortcut>

#include "desktop/FormView.h"
#include "desktop/ReportView.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "render/QtText.h"
#include "services/texts/LanguageTexts.h"
#include "ui/frmResultTools.h"

namespace lithmark {

static const LayoutOf<frmResultTools> kLayout([](FormView& view, frmResultTools& form) {
    QWidget* result = view.Place(form.fraResult);
    auto* report = &view.Place<ReportView>(form.txtResult);

    auto* find = new QLineEdit(&view);
    find->setObjectName(QStringLiteral("txtFind"));
    find->setPlaceholderText(Q(Text(903000_text)));
    find->setClearButtonEnabled(true);
    QObject::connect(find, &QLineEdit::returnPressed, report, [find, report] { report->FindNext(find->text()); });
    auto* shortcut = new QShortcut(QKeySequence::Find, &view);
    QObject::connect(shortcut, &QShortcut::activated, find, [find] {
        find->setFocus();
        find->selectAll();
    });
    auto* text = new QVBoxLayout(result);
    text->addWidget(find);
    text->addWidget(report, 1);
    text->addWidget(view.Place(form.lblNotices));
    text->addWidget(view.Place(form.lstNotices));
    text->addWidget(view.Place(form.chkTables));
    text->addWidget(view.Place(form.chkNotices));

    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(sizes::kRowGap);
    for (Control* button : ControlList{form.cmdPrinter, form.cmdWord, form.cmdClipboard, form.CmdTextEditor,
                                       form.CmdExcel, form.cmdVERDA})
        buttons->addWidget(view.Place(*button));
    buttons->addStretch(1);
    for (Control* button : ControlList{form.cmdHelp, form.cmdok}) buttons->addWidget(view.Place(*button));

    auto* columns = new QHBoxLayout;
    columns->setSpacing(sizes::kEdge);
    columns->addWidget(result, 1);
    columns->addLayout(buttons);
    WindowColumn(view)->addLayout(columns, 1);
    view.resize(900, 680);
});

}  // namespace lithmark
