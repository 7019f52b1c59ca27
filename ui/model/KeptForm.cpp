#include "ui/model/KeptForm.h"

#include <utility>

#include "services/SharedServices.h"

namespace lithmark {

void KeptForm::OfferUnsavedInput(std::string owner) {
    owner_ = std::move(owner);
    savedInputs_ = Inputs();
    const auto draft = ReadDraft(DraftFolder(), owner_, Name);
    if (!draft || !CanTake(*this, *draft)) return;
    if (CurrentHost().AskYesNo(Caption, Text(906550_text, {{"|1", draft->When}})))
        TakeKeptInput(*draft);
    else
        DropUnsavedInput();
}

void KeptForm::KeepInput() {
    const std::string folder = DraftFolder();
    if (folder.empty()) return;
    if (!Modified()) return DropUnsavedInput();
    StoredDraft draft = KeptInput();
    draft.Project = owner_;
    try {
        WriteDraft(folder, draft);
    } catch (const Failure&) {
        // The user is typing: what the state folder cannot take is told by no message, saving tells its own.
    }
}

void KeptForm::InputIsSaved() {
    savedInputs_ = Inputs();
    DropUnsavedInput();
}

void KeptForm::DropUnsavedInput() const {
    RemoveDraft(DraftFolder(), owner_, Name);
}

}  // namespace lithmark
