#include "ui/frmOptionDraw.h"

#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "core/Session.h"
#include "core/Units.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"

namespace lithmark {

namespace {

// The options stand in the order of the curve sets.
constexpr int kContactPressure = static_cast<int>(CurveSet::ContactPressure);
constexpr int kRaftSettlement = static_cast<int>(CurveSet::RaftSettlement);
constexpr int kCorrected = static_cast<int>(CurveSet::Corrected);

CurveUnit UnitOf(const OptionButton& perCent) {
    return perCent.Value ? CurveUnit::PerCent : CurveUnit::InForce;
}

}  // namespace

frmOptionDraw::frmOptionDraw() : Form("frmOptionDraw") {
    cmdok.OnClick = [this] { cmdok_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmOptionDraw::Load() {
    SharedServices().PrepareForm(*this);
    // Every opening starts from the same choice.
    RequestCurve({});
    Session.DialogOk = false;

    Caption = Text(400002_text);
    SetCaptions({{fraSelectOption, 300072_text},
                 {optDraw[0], 300019_text},
                 {optDraw[1], 300052_text},
                 {optDraw[2], 140188_text},
                 {optDraw[kCorrected], 300054_text},
                 {optDraw[kContactPressure], 300077_text},
                 {optDraw[6], 40080_text},
                 {fraLoadUnit, 300039_text},
                 {fraSettlementUnit, 300040_text},
                 {cmdok, 6_text, Styles::Button},
                 {CmdCancel, 7_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
    const bool raft = IsRaft(Session.ProblemType);
    if (raft) optDraw[kRaftSettlement].Caption = Text(ProblemInForce().MenuText);
    SetCaptions({{optLoadUnit[0], LabelOf(Unit::PerCent)},
                 {optLoadUnit[1], Session.Force1Label},
                 {optSettlementUnit[0], LabelOf(Unit::PerCent)},
                 {optSettlementUnit[1], Session.Len2Label}});

    Show({optDraw[0], optDraw[1], optDraw[2]}, !raft);
    optDraw[kCorrected].Visible = !raft && Session.Ms;
    Show({optDraw[kContactPressure], optDraw[kRaftSettlement]}, raft);
    optDraw[6].Visible = false;
    Show({fraLoadUnit, optLoadUnit, fraSettlementUnit, optSettlementUnit}, !raft);

    SelectOption(optDraw[raft ? kContactPressure : 0]);
    SelectOption(optLoadUnit[1]);
    SelectOption(optSettlementUnit[1]);
}

void frmOptionDraw::cmdok_Click() {
    const int chosen = optDraw.Selected();
    RequestCurve({chosen >= 0 && chosen < kCurveSets ? static_cast<CurveSet>(chosen) : CurveSet::Load,
                  UnitOf(optLoadUnit[0]), UnitOf(optSettlementUnit[0])});
    Session.DialogOk = true;
    Unload();
}

void frmOptionDraw::cmdHelp_Click() {
    ShowHelp(Text(400002_text), Text(906002_text));
}

}  // namespace lithmark
