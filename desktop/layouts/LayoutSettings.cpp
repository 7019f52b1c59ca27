#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabBar>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"

namespace lithmark {

void LayoutDataDir(FormView& view) {
    auto* folder = qobject_cast<QGroupBox*>(view.WidgetOf("Frame3D1"));
    auto* line = new QHBoxLayout(folder);
    auto* path = qobject_cast<QLineEdit*>(view.WidgetOf("txtDataDir"));
    path->setMinimumWidth(380);
    // A path reads from left to right in every language.
    path->setLayoutDirection(Qt::LeftToRight);
    line->addWidget(path, 1);
    line->addWidget(view.WidgetOf("CmdBrowse"));
    auto* window = new QVBoxLayout(&view);
    window->addWidget(folder);
    window->addWidget(StackGroup(view, "FraCompressFlag", {"chkCompressFlag(0)"}));
    window->addStretch(1);
    window->addLayout(ButtonRow(view, {"cmdHelp"}, {"cmdSave", "CmdCancel"}));
}

void LayoutUnits(FormView& view) {
    auto* grid = new QGridLayout;
    int row = 0;
    const auto line = [&](const char* label, const char* list) {
        auto* caption = qobject_cast<QLabel*>(view.WidgetOf(label));
        auto* box = qobject_cast<QComboBox*>(view.WidgetOf(list));
        caption->setBuddy(box);
        grid->addWidget(caption, row, 0);
        grid->addWidget(box, row, 1);
        ++row;
    };
    line("lblLength(0)", "CboLength(0)");
    line("lblLength(1)", "CboLength(1)");
    line("LblForce(0)", "CboForce(0)");
    line("LblForce(1)", "CboForce(1)");
    line("Lbltemperature", "CboTemperature");
    grid->setColumnStretch(0, 1);
    grid->setHorizontalSpacing(24);
    auto* window = new QVBoxLayout(&view);
    window->addLayout(grid);
    window->addStretch(1);
    window->addSpacing(10);
    window->addLayout(ButtonRow(view, {"cmdHelp"}, {"cmdSave", "CmdCancel"}));
}

void LayoutPreferences(FormView& view) {
    auto* tabs = qobject_cast<QTabBar*>(view.WidgetOf("sstMainData"));
    tabs->setExpanding(false);
    auto* pages = new QStackedWidget(&view);
    // Each frame on a page of its own, with its lines at the top.
    const auto page = [pages](QGroupBox* frame) {
        auto* widget = new QWidget(pages);
        auto* column = new QVBoxLayout(widget);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(frame);
        column->addStretch(1);
        pages->addWidget(widget);
    };
    page(FieldGroup(view, "fraGeometry",
                    {{"lblDx", nullptr, "txtDx", "lblUnitDx"},
                     {"lblDy", nullptr, "txtDy", "lblUnitDy"},
                     {"lblDz", nullptr, "txtDz", "lblUnitDz"},
                     {"lblND", nullptr, "txtND", "lblUnitNd"}}));
    page(FieldGroup(view, "fraIteration",
                    {{"lblTol", nullptr, "txtTol", nullptr}, {"lblImax", nullptr, "txtImax", nullptr}}));
    view.AfterRefresh = [tabs, pages] { pages->setCurrentIndex(tabs->currentIndex()); };

    auto* window = new QVBoxLayout(&view);
    window->addWidget(tabs);
    window->addWidget(pages);
    window->addStretch(1);
    window->addLayout(ButtonRow(view, {"cmdHelp"}, {"cmdSave", "CmdCancel"}));
}

}  // namespace lithmark
