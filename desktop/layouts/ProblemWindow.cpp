#include "desktop/layouts/ProblemWindow.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>

#include "desktop/FormView.h"
#include "desktop/ScrollColumn.h"
#include "desktop/Sizes.h"
#include "desktop/layouts/LayoutTools.h"

namespace lithmark {

namespace {

using namespace sizes;

QWidget* Fields(FormView& view, const PictureForm& form, std::initializer_list<GroupOf> groups) {
    auto* fields = new QWidget;
    auto* column = new QVBoxLayout(fields);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kGroupGap);
    for (const GroupOf& group : groups) {
        if (group.Frame == nullptr) {
            auto* lines = new QWidget(fields);
            AddLines(view, &form, *FieldGrid(lines), group.Holds);
            column->addWidget(lines);
            continue;
        }
        // Held by another group, it has its place already.
        if (view.TimesPlaced(*group.Frame) == 0) column->addWidget(view.Place(*group.Frame));
        FillGroup(view, form, *group.Frame, group.Holds);
    }
    column->addStretch(1);
    return fields;
}

}  // namespace

void LayoutProblem(FormView& view, PictureForm& form, std::initializer_list<GroupOf> groups) {
    QVBoxLayout* window = WindowColumn(view);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(kGroupGap);
    columns->addWidget(new ScrollColumn(Fields(view, form, groups), &view));
    // Room to spare is the drawing's.
    columns->addWidget(view.Place(form.PctInvertedT), 1);
    window->addLayout(columns, 1);
    window->addLayout(ButtonRow(view, {form.cmdSave, form.cmdSaveAs, form.cmdOpen, form.CmdMoreLess, form.cmdHelp},
                                {form.cmdResult, form.cmdok}));
}

}  // namespace lithmark
