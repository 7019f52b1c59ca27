// Every form of the program, for what holds for all of them. A new form is a row here.
#pragma once

#include <memory>
#include <vector>

#include "ui/frmOptionDraw.h"
#include "ui/frmResultTools.h"
#include "ui/frmstress.h"

namespace lithmark::tests {

struct FormRow {
    int ProblemType;          // the problem it is shown for
    const char* CloseButton;  // closes and stores nothing
    std::unique_ptr<Form> (*Make)();
};

template <typename F>
std::unique_ptr<Form> MakeForm() {
    return std::make_unique<F>();
}

inline const std::vector<FormRow>& AllForms() {
    static const std::vector<FormRow> rows = {
        {1, "cmdok", MakeForm<frmstress>},         {2, "cmdok", MakeForm<frmstress>},
        {3, "cmdok", MakeForm<frmstress>},         {1, "cmdok", MakeForm<frmResultTools>},
        {10, "cmdok", MakeForm<frmResultTools>},   {8, "CmdCancel", MakeForm<frmOptionDraw>},
        {9, "CmdCancel", MakeForm<frmOptionDraw>},
    };
    return rows;
}

}  // namespace lithmark::tests
