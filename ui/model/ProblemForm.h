// ProblemForm: what the dialogs of all problems share. Such a dialog loads the problem's defaults and then its data
// file if the project has one, stores what its controls hold, writes and reads data files, and runs the problem's
// kernel.
//
// A form of a problem gives its tables of fields, choices and captions, and its help; see docs/forms.md.
#pragma once

#include "ui/model/KeptForm.h"

namespace lithmark {

// The record as a form would store it, or the boxes that keep it from that; the record says nothing then.
struct FormDraft {
    SessionRecord Record;
    std::vector<BoxFault> Faults;
    bool Valid() const noexcept { return Faults.empty(); }
};

class ProblemForm : public KeptForm {
  public:
    Button cmdok, cmdHelp{*this, "cmdHelp"};
    Button cmdSave{*this, "cmdSave"}, cmdSaveAs{*this, "cmdSaveAs"}, cmdOpen{*this, "cmdOpen"};
    Button cmdResult{*this, "cmdResult"};

    void Load() override;
    // The controls as Session stands, without defaults or a file: for a form that is drawn and not shown. Its choices
    // may store what they show in Session.
    void ShowInForce();

    // What StoreData would leave in Session now. Changes nothing and shows nothing.
    FormDraft Draft() const;

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
    // Session takes the draft, and DataValid is set, unless a field is not valid; the first such field is told then,
    // and nothing is stored. The caller has cleared DataValid.
    void StoreData();
    void SaveData();
    StoredDraft KeptInput() const override;
    void TakeKeptInput(const StoredDraft& draft) override;

    // Options, check boxes and lists from Session, and what is shown and enabled by them: the rows, and what a form has
    // beyond them.
    virtual void ShowChoices() { ShowChoiceRows(); }
    // Options, check boxes and lists to a record that has taken the fields already.
    virtual void StoreChoices(SessionRecord& record) const { StoreChoiceRows(record); }
    // What a form does to its boxes before they are stored by a command; a draft does without.
    virtual void BeforeStore() {}
    // What depends on the problem alone; runs last in Load.
    virtual void ShowForProblem() {}
    // After a file chosen by the user was read into Session.
    virtual void ShowOpened() { ShowData(); }
    // The lines of the help box, parted by CR.
    virtual std::string Help() const = 0;
};

}  // namespace lithmark
