// Every form of the program, for what holds for all of them. A new form is a row here.
#pragma once

#include <memory>
#include <vector>

#include "ui/frmAbout.h"
#include "ui/frmDataDir.h"
#include "ui/frmOptionDraw.h"
#include "ui/frmPreferences.h"
#include "ui/frmProblemType.h"
#include "ui/frmProjectCheck.h"
#include "ui/frmResultTools.h"
#include "ui/frmUnits.h"
#include "ui/frmstress.h"

namespace lithmark::tests {

// What cmdHelp shows: a text of the form's own, a page of the help, or there is no such button.
enum class HelpBy { Text, Page, Nothing };

struct FormRow {
    int ProblemType;          // the problem it is shown for
    const char* CloseButton;  // closes and stores nothing
    std::unique_ptr<Form> (*Make)();
    HelpBy Help = HelpBy::Text;
};

template <typename F>
std::unique_ptr<Form> MakeForm() {
    return std::make_unique<F>();
}

inline std::unique_ptr<Form> MakeProjectCheck() {
    return std::make_unique<frmProjectCheck>("Title", "Stresses in soil\r\n");
}

inline const std::vector<FormRow>& AllForms() {
    static const std::vector<FormRow> rows = {
        {1, "cmdok", MakeForm<frmstress>},
        {2, "cmdok", MakeForm<frmstress>},
        {3, "cmdok", MakeForm<frmstress>},
        {1, "cmdok", MakeForm<frmResultTools>},
        {10, "cmdok", MakeForm<frmResultTools>},
        {8, "CmdCancel", MakeForm<frmOptionDraw>},
        {9, "CmdCancel", MakeForm<frmOptionDraw>},
        {1, "CmdCancel", MakeForm<frmProblemType>},
        {1, "CmdCancel", MakeProjectCheck},
        {1, "CmdCancel", MakeForm<frmDataDir>, HelpBy::Page},
        {1, "CmdCancel", MakeForm<frmUnits>, HelpBy::Page},
        {1, "CmdCancel", MakeForm<frmPreferences>},
        {1, "cmdok", MakeForm<frmAbout>, HelpBy::Nothing},
    };
    return rows;
}

}  // namespace lithmark::tests
