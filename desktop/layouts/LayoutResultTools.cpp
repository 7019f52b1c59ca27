#include <QBoxLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QShortcut>

#include "desktop/FormView.h"
#include "desktop/ReportView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark {

void LayoutResultTools(FormView& view) {
    QGroupBox* text = StackGroup(view, "fraResult", {"txtResult"});
    auto* report = static_cast<ReportView*>(view.WidgetOf("txtResult"));

    auto* find = new QLineEdit(&view);
    find->setObjectName(QStringLiteral("txtFind"));
    find->setPlaceholderText(QString::fromStdString(Text(903000_text)));
    find->setClearButtonEnabled(true);
    QObject::connect(find, &QLineEdit::returnPressed, report, [find, report] { report->FindNext(find->text()); });
    auto* shortcut = new QShortcut(QKeySequence::Find, &view);
    QObject::connect(shortcut, &QShortcut::activated, find, [find] {
        find->setFocus();
        find->selectAll();
    });
    static_cast<QBoxLayout*>(text->layout())->insertWidget(0, find);

    auto* buttons = new QVBoxLayout;
    for (const char* name : {"cmdPrinter", "cmdWord", "cmdClipboard", "CmdTextEditor", "CmdExcel", "cmdVERDA"})
        buttons->addWidget(view.WidgetOf(name));
    buttons->addStretch(1);
    for (const char* name : {"cmdHelp", "cmdok"}) buttons->addWidget(view.WidgetOf(name));

    auto* window = new QHBoxLayout(&view);
    window->addWidget(text, 1);
    window->addLayout(buttons);
    view.resize(900, 680);
}

void LayoutOptionDraw(FormView& view) {
    auto* window = new QVBoxLayout(&view);
    window->addWidget(
        StackGroup(view, "fraSelectOption",
                   {"optDraw(0)", "optDraw(1)", "optDraw(2)", "optDraw(3)", "optDraw(4)", "optDraw(5)", "optDraw(6)"}));
    auto* units = new QHBoxLayout;
    units->addWidget(StackGroup(view, "fraLoadUnit", {"optLoadUnit(0)", "optLoadUnit(1)"}));
    units->addWidget(StackGroup(view, "fraSettlementUnit", {"optSettlementUnit(0)", "optSettlementUnit(1)"}));
    window->addLayout(units);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, {"cmdHelp"}, {"cmdok", "CmdCancel"}));
}

}  // namespace lithmark
