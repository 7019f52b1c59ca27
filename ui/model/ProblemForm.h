// ProblemForm: what the dialogs of all problems share. Such a dialog loads the problem's defaults and then its data
// file if the project has one, stores what its controls hold, writes and reads data files, and runs the kernel.
//
// A form of a problem gives its fields, its captions, its choices, its kernel and its help; see docs/forms.md.
#pragma once

#include "ui/model/FieldForm.h"
#include "ui/model/HelpText.h"

namespace lithmark {

class ProblemForm : public FieldForm {
  public:
    Button cmdok, cmdHelp{*this, "cmdHelp"};
    Button cmdSave{*this, "cmdSave"}, cmdSaveAs{*this, "cmdSaveAs"}, cmdOpen{*this, "cmdOpen"};
    Button cmdResult{*this, "cmdResult"};

    void Load() override;

    // The controls differ from what the form loaded or last saved. Closing asks nothing and stores nothing, so the
    // window's title has to tell. Data opened from another file are not the project's until they are saved.
    bool Modified() const { return Inputs() != savedInputs_; }

    void cmdok_Click() { Unload(); }
    void cmdHelp_Click();
    void cmdSave_Click();
    void cmdSaveAs_Click();
    void cmdOpen_Click();
    void cmdResult_Click();

  protected:
    explicit ProblemForm(std::string name, std::string okButton = "cmdok");

    // Session into the controls: the fields, then ShowChoices.
    void ShowData();
    // Session takes the controls, and DataValid is set, unless a field is not valid; then nothing is stored. The caller
    // has cleared DataValid. Throws Failure, with nothing stored, when a value does not fit its field.
    void StoreData();
    void SaveData();
    void MarkSaved() { savedInputs_ = Inputs(); }

    // The form's caption and those of its own controls in the language in force.
    virtual void ShowCaptions() = 0;
    // Options, check boxes and lists from Session, and what is shown and enabled by them.
    virtual void ShowChoices() = 0;
    // Options, check boxes and lists to Session. The fields are stored already.
    virtual void StoreChoices() = 0;
    // What depends on the problem alone; runs last in Load.
    virtual void ShowForProblem() {}
    // After a file chosen by the user was read into Session.
    virtual void ShowOpened() { ShowData(); }
    // The kernel on the fields of Session.
    virtual void Compute() = 0;
    virtual HelpLines Help() const = 0;

  private:
    std::vector<std::string> savedInputs_;
};

}  // namespace lithmark
