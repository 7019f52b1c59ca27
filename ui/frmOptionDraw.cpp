#include "ui/frmOptionDraw.h"

#include "core/Catalogue.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"

namespace lithmark {

namespace {

constexpr Style kButton{1};
constexpr const char* kPerCent = "[%]";
constexpr int kContactPressure = 4, kRaftSettlement = 5, kCorrected = 3;
constexpr int kCurveSets = 6;

std::string CurveSetName(int index) {
    return "Tab" + std::to_string(index + 1);
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
    Session.CurveChoice = CurveSetName(0);
    Session.CurveLoadUnit = Session.Force1Label;
    Session.CurveSettlementUnit = Session.Len2Label;
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
                 {cmdok, 6_text, kButton},
                 {CmdCancel, 7_text, kButton},
                 {cmdHelp, 8_text, kButton}});
    const bool raft = IsRaft(Session.ProblemType);
    if (raft) optDraw[kRaftSettlement].Caption = Text(ProblemInForce().MenuText);
    SetCaptions({{optLoadUnit[0], kPerCent},
                 {optLoadUnit[1], Session.Force1Label},
                 {optSettlementUnit[0], kPerCent},
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
    if (const int index = optDraw.Selected(); index < kCurveSets) Session.CurveChoice = CurveSetName(index);
    Session.CurveLoadUnit = optLoadUnit[0].Value ? std::string(kPerCent) : Session.Force1Label;
    Session.CurveSettlementUnit = optSettlementUnit[0].Value ? std::string(kPerCent) : Session.Len2Label;
    Session.DialogOk = true;
    Unload();
}

void frmOptionDraw::cmdHelp_Click() {
    ShowHelp(Text(400002_text), Text(906002_text));
}

}  // namespace lithmark
