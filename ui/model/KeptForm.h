// KeptForm: a form whose unsaved input outlives its window and the program: it is kept in the user's state folder and
// offered when the form is shown again. Saving it, or declining it, removes it.
#pragma once

#include "ui/model/FieldForm.h"
#include "ui/model/UnsavedInput.h"

namespace lithmark {

class KeptForm : public FieldForm {
  public:
    // The controls differ from what the form loaded or last saved. Closing asks nothing and stores nothing, so the
    // window's title has to tell.
    bool Modified() const override { return Inputs() != savedInputs_; }
    void KeepInput() override;

  protected:
    explicit KeptForm(std::string name) : FieldForm(std::move(name)) {}

    // At the end of Load: the controls stand for what is saved, and input that was not is offered. It belongs to
    // `owner`: the path of a project without its ending, or nothing for a form of the whole program.
    void OfferUnsavedInput(std::string owner);
    // After a save: what the controls hold is saved.
    void InputIsSaved();

    // What is kept, and how it is taken back. Without more it is the controls' texts.
    virtual StoredDraft KeptInput() const { return DraftOf(*this); }
    virtual void TakeKeptInput(const StoredDraft& draft) { TakeDraftTexts(*this, draft); }

  private:
    void DropUnsavedInput() const;

    std::string owner_;
    std::vector<std::string> savedInputs_;
};

}  // namespace lithmark
