#include "kernels/RunProject.h"

#include "core/Session.h"
#include "kernels/RunKernel.h"
#include "services/SharedServices.h"

namespace lithmark {

void SetDerivedFields(SessionRecord& record) {
    record.A0 = record.A;
}

void RunProject() {
    Session.CalcAborted = false;
    Session.ResultText.clear();
    if (RunProblemKernel()) return;
    Session.CalcAborted = true;
    SharedServices().ShowMessageBox(Text(160030_text), Text(902049_text), MessageIcon::Exclamation);
}

}  // namespace lithmark
