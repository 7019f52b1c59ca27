#include "ui/frmRigidDisplacement.h"

namespace lithmark {
namespace {

using R = SessionRecord;

}  // namespace

frmRigidDisplacement::frmRigidDisplacement()
    : RaftForm("frmRigidDisplacement", {"RigidDisplacement.bmp", "Consolidation Form", "raft"}) {
    const auto always = CheckedWhen::Always;
    SetFields({RowH(), RowQ(), RowA(), RowEx(always), RowEy(always), RowB(0), RowEs({0}, {GoTo(txt_Nue)}, always),
               FieldRow({lblPoissonRatio, 90004_text}, {Label60, "Nue_s"}, txt_Nue, {Label14, Unit::None},
                        {&R::Nue, &R::FmtRatio}, {0, 0.5}, {GoTo(cmdResult)})});
    SetChoices({Shapes(), SettlementPlaces(), Analyses()});
    SetCaptionRows(SharedCaptions());
}

}  // namespace lithmark
