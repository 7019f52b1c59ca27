#include <QBoxLayout>
#include <QGroupBox>

#include "desktop/FormView.h"
#include "desktop/layouts/LayoutTools.h"
#include "desktop/layouts/Layouts.h"

namespace lithmark {

void LayoutStress(FormView& view) {
    auto* fields = new QVBoxLayout;
    fields->addWidget(StackGroup(view, "frmSelectOption", {"optLoadType(0)", "optLoadType(1)", "optLoadType(2)"}));
    fields->addWidget(FieldGroup(view, "fraData",
                                 {{"lplPointLoad", "lblQp", "txt_Q", "lblkn"},
                                  {"LblDistributedload", "lblq", "txt_P", "lblknm2"},
                                  {"lblLength_Radius", "lbla", "txt_A", "lblm4"},
                                  {"lblWidth", "lblb", "txt_B", "lblm5"}}));
    fields->addWidget(FieldGroup(view, "fraPointCoordinates",
                                 {{"lbl_x_Coord", nullptr, "txt_x", "lblm1"},
                                  {"lbl_y_Coord", nullptr, "txt_y", "lblm2"},
                                  {"lbl_z_Coord", nullptr, "txt_z", "lblm3"}}));
    fields->addWidget(FieldGroup(
        view, "frmSoilProperties",
        {{"lblE_Modulus", "Label69", "txt_Es", "lblknm1"}, {"lblPoissonRatio", "Label60", "txt_Nue", "Label14"}}));
    fields->addStretch(1);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(14);
    columns->addLayout(fields, 3);
    columns->addWidget(view.WidgetOf("PctInvertedT"), 2);

    auto* window = new QVBoxLayout(&view);
    window->addLayout(columns, 1);
    window->addLayout(ButtonRow(view, {"cmdSave", "cmdSaveAs", "cmdOpen"}, {}));
    window->addLayout(ButtonRow(view, {"CmdMoreLess", "cmdHelp"}, {"cmdResult", "cmdok"}));
}

}  // namespace lithmark
