#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"

namespace lithmark {

void LayoutProblemType(FormView& view) {
    auto* data = qobject_cast<QGroupBox*>(view.WidgetOf("Frame3D1"));
    auto* grid = new QGridLayout(data);
    const auto row = [&](int line, const char* label, const char* box) {
        auto* caption = qobject_cast<QLabel*>(view.WidgetOf(label));
        auto* edit = qobject_cast<QLineEdit*>(view.WidgetOf(box));
        caption->setBuddy(edit);
        edit->setMinimumWidth(300);
        grid->addWidget(caption, line, 0);
        grid->addWidget(edit, line, 1);
    };
    row(0, "lblAuftrag", "txtAuftr");
    row(1, "lblDatum", "txtDatum");
    row(2, "lblProjekt", "txtProj");
    grid->addWidget(view.WidgetOf("DTPicker1"), 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(10);

    auto* choice = qobject_cast<QGroupBox*>(view.WidgetOf("frmSelectOption"));
    auto* line = new QHBoxLayout(choice);
    auto* item = qobject_cast<QLabel*>(view.WidgetOf("lblItem"));
    auto* list = qobject_cast<QComboBox*>(view.WidgetOf("cmbItem"));
    item->setBuddy(list);
    line->addWidget(item);
    line->addWidget(list, 1);

    auto* window = new QVBoxLayout(&view);
    window->addWidget(data);
    window->addWidget(choice);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, {"cmdHelp", "cmdOpen", "cmdSaveAs"}, {"cmdSave", "CmdCancel"}));
}

void LayoutProjectCheck(FormView& view) {
    auto* group = StackGroup(view, "fraProjectCheck", {"lblProjectCheck", "txtProjectCheck"});
    QWidget* list = view.WidgetOf("txtProjectCheck");
    list->setMinimumSize(460, 110);
    auto* window = new QVBoxLayout(&view);
    window->addWidget(group, 1);
    window->addLayout(ButtonRow(view, {"cmdHelp"}, {"cmdok", "CmdCancel"}));
    view.resize(500, 230);
}

void LayoutAbout(FormView& view) {
    auto* words = new QVBoxLayout;
    for (const char* name : {"lblTitle", "lblVersion", "lblDescription", "lblDisclaimer"}) {
        auto* label = qobject_cast<QLabel*>(view.WidgetOf(name));
        label->setWordWrap(true);
        label->setMinimumWidth(380);
        words->addWidget(label);
    }
    auto* title = qobject_cast<QLabel*>(view.WidgetOf("lblTitle"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    font.setBold(true);
    title->setFont(font);
    words->addStretch(1);

    QWidget* logo = view.WidgetOf("imgLogo");
    logo->setFixedSize(96, 96);
    auto* top = new QHBoxLayout;
    top->setSpacing(20);
    top->addWidget(logo, 0, Qt::AlignTop);
    top->addLayout(words, 1);
    auto* window = new QVBoxLayout(&view);
    window->setContentsMargins(20, 20, 20, 14);
    window->addLayout(top, 1);
    window->addSpacing(8);
    window->addLayout(ButtonRow(view, {}, {"cmdok"}));
}

}  // namespace lithmark
