// Every form of the program, for what holds for all of them. A new form is a row here.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ui/frmAbout.h"
#include "ui/frmConsolidation.h"
#include "ui/frmConsolidationRate.h"
#include "ui/frmDataDir.h"
#include "ui/frmMethodtype.h"
#include "ui/frmNumberFormats.h"
#include "ui/frmOptionDraw.h"
#include "ui/frmPreferences.h"
#include "ui/frmProblemType.h"
#include "ui/frmProjectCheck.h"
#include "ui/frmResultTools.h"
#include "ui/frmRigidConsolidation.h"
#include "ui/frmRigidDisplacement.h"
#include "ui/frmTimeSettlement1.h"
#include "ui/frmTimeSettlement2.h"
#include "ui/frmTimeSettlement3.h"
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
    std::vector<std::string> AtOnce = {};  // fields of Session that a click sets without waiting for a store
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
        {4, "cmdok", MakeForm<frmConsolidation>},
        {5, "cmdok", MakeForm<frmConsolidationRate>},
        {6, "CmdCancel", MakeForm<frmMethodtype>},
        {6, "cmdok", MakeForm<frmTimeSettlement1>, HelpBy::Text, {"TimeUnit"}},
        {7, "cmdok", MakeForm<frmTimeSettlement2>, HelpBy::Text, {"TimeUnit", "OedUnit"}},
        {8, "cmdok", MakeForm<frmTimeSettlement3>, HelpBy::Text, {"TimeUnit"}},
        {9, "CmdOK", MakeForm<frmRigidDisplacement>},
        {10, "CmdOK", MakeForm<frmRigidConsolidation>},
        {1, "cmdok", MakeForm<frmResultTools>},
        {10, "cmdok", MakeForm<frmResultTools>},
        {8, "CmdCancel", MakeForm<frmOptionDraw>},
        {9, "CmdCancel", MakeForm<frmOptionDraw>},
        {1, "CmdCancel", MakeForm<frmProblemType>},
        {1, "CmdCancel", MakeProjectCheck},
        {1, "CmdCancel", MakeForm<frmDataDir>, HelpBy::Page},
        {1, "CmdCancel", MakeForm<frmUnits>, HelpBy::Page},
        {1, "CmdCancel", MakeForm<frmNumberFormats>},
        {1, "CmdCancel", MakeForm<frmPreferences>},
        {1, "cmdok", MakeForm<frmAbout>, HelpBy::Nothing},
    };
    return rows;
}

}  // namespace lithmark::tests
