#include "ui/frmMethodtype.h"

#include "core/Problems.h"
#include "core/Session.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"

namespace lithmark {

frmMethodtype::frmMethodtype() : Form("frmMethodtype") {
    cmdok.OnClick = [this] { cmdok_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmMethodtype::Load() {
    constexpr Style kButton{1}, kHeading{4};
    SharedServices().PrepareForm(*this);
    Session.DialogOk = false;
    Caption = Text(300045_text);
    SetCaptions({{fraModelType, 300032_text, kHeading},
                 {OptMethodType[0], 300047_text},
                 {OptMethodType[1], 300048_text},
                 {OptMethodType[2], 300033_text},
                 {cmdok, 6_text, kButton},
                 {CmdCancel, 7_text, kButton},
                 {cmdHelp, 8_text, kButton}});
    const bool oneOfThem = IsTimeSettlement(Session.ProblemType);
    SelectOption(OptMethodType[oneOfThem ? Session.ProblemType - Problem::TimeDirect : 0]);
}

void frmMethodtype::cmdok_Click() {
    Session.ProblemType = Problem::TimeDirect + OptMethodType.Selected();
    Session.DialogOk = true;
    Unload();
}

void frmMethodtype::cmdHelp_Click() {
    ShowHelp(Caption, Text(906506_text));
}

}  // namespace lithmark
