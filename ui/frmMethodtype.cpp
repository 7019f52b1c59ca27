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
    SharedServices().PrepareForm(*this);
    Session.DialogOk = false;
    Caption = Text(300045_text);
    SetCaptions({{fraModelType, 300032_text, Styles::Heading},
                 {OptMethodType[0], 300047_text},
                 {OptMethodType[1], 300048_text},
                 {OptMethodType[2], 300033_text},
                 {cmdok, 6_text, Styles::Button},
                 {CmdCancel, 7_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
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
