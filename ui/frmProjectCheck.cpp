#include "ui/frmProjectCheck.h"

#include "core/Session.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"

namespace lithmark {

namespace {}  // namespace

frmProjectCheck::frmProjectCheck(std::string title, std::string missing)
    : Form("frmProjectCheck"), missing_(std::move(missing)) {
    Caption = std::move(title);
    cmdok.OnClick = [this] { cmdok_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void frmProjectCheck::Load() {
    SharedServices().PrepareForm(*this);
    SetCaptions({{fraProjectCheck, 60001_text},
                 {lblProjectCheck, 10018_text},
                 {cmdok, 6_text, Styles::Button},
                 {CmdCancel, 7_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
    txtProjectCheck.Text = missing_;
    txtProjectCheck.ReadOnly = true;
}

void frmProjectCheck::cmdok_Click() {
    Session.DialogOk = true;
    Unload();
}

void frmProjectCheck::CmdCancel_Click() {
    Session.DialogOk = false;
    Unload();
}

void frmProjectCheck::cmdHelp_Click() {
    ShowHelp(Caption, Text(906003_text));
}

}  // namespace lithmark
