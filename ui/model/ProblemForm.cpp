#include "ui/model/ProblemForm.h"

#include <utility>

#include "core/Catalogue.h"
#include "files/CommonStep.h"
#include "files/GloableVariable.h"
#include "files/ProblemData.h"
#include "kernels/RunKernel.h"
#include "kernels/RunProject.h"
#include "report/StepTables.h"
#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"
#include "ui/model/Hourglass.h"
#include "ui/model/ProjectFlags.h"
#include "ui/model/ResultViewer.h"

namespace lithmark {

namespace {

// Runs a command of the form; what goes wrong in it is told and leaves no hourglass.
template <typename Command>
void Run(Command&& command) {
    if (!UnderCommonStep(std::forward<Command>(command))) EndHourglass();
}

}  // namespace

ProblemForm::ProblemForm(std::string name, std::string okButton)
    : KeptForm(std::move(name)), cmdok(*this, std::move(okButton)) {
    cmdok.OnClick = [this] { cmdok_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    cmdSaveAs.OnClick = [this] { cmdSaveAs_Click(); };
    cmdOpen.OnClick = [this] { cmdOpen_Click(); };
    cmdResult.OnClick = [this] { cmdResult_Click(); };
}

void ProblemForm::Load() {
    SharedServices().PrepareForm(*this);
    SetProblemDefaults();
    Session.WorkDir = Session.DataDir;
    Session.WorkName = Session.ProjectName;
    if (ProblemSaved(ProblemInForce().MenuEntry)) {
        ReadProblemData();
        EndHourglass();
    }
    ShowData();
    Caption = Text(ProblemInForce().MenuText);
    ShowCaptions();
    SetCaptions({{cmdok, 6_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button},
                 {cmdSave, 111_text, Styles::Button},
                 {cmdSaveAs, 9_text, Styles::DialogButton},
                 {cmdOpen, 10016_text, Styles::DialogButton},
                 {cmdResult, 140096_text, Styles::Button}});
    ShowForProblem();
    OfferUnsavedInput(Session.DataDir + Session.ProjectName);
}

StoredDraft ProblemForm::KeptInput() const {
    StoredDraft draft = DraftOf(*this);
    AddData(draft);
    return draft;
}

void ProblemForm::TakeKeptInput(const StoredDraft& draft) {
    TakeDraftData(draft);
    ShowData();
    TakeDraftTexts(*this, draft);
}

void ProblemForm::ShowInForce() {
    ShowData();
    ShowCaptions();
    ShowForProblem();
}

void ProblemForm::ShowData() {
    ShowFields();
    SetDerivedFields(Session);
    ShowChoices();
}

FormDraft ProblemForm::Draft() const {
    FormDraft draft{Session, Faults()};
    if (!draft.Valid()) return draft;
    StoreFields(draft.Record);
    SetDerivedFields(draft.Record);
    StoreChoices(draft.Record);
    draft.Record.DataValid = true;
    return draft;
}

void ProblemForm::StoreData() {
    BeforeStore();
    FormDraft draft = Draft();
    if (!draft.Valid()) return Refuse(draft.Faults);
    Session = std::move(draft.Record);
    MarkStored();
}

void ProblemForm::SaveData() {
    Session.DataValid = false;
    StoreData();
    if (!Session.DataValid) return;
    WriteProblemData();
    EndHourglass();
    if (Session.FileSaved) InputIsSaved();
}

void ProblemForm::cmdHelp_Click() {
    ShowHelp(Caption, Help());
}

void ProblemForm::cmdSave_Click() {
    Run([&] {
        Session.WorkDir = Session.DataDir;
        Session.WorkName = Session.ProjectName;
        SaveData();
        // FileSaved alone may stand from an earlier save.
        if (Session.DataValid && Session.FileSaved) SetProblemSaved(ProblemInForce().MenuEntry, true);
    });
}

void ProblemForm::cmdSaveAs_Click() {
    Run([&] {
        std::string file;
        if (FileDialogs().SaveFileDialog(file, Session.DataDir, Session.WorkDir, Session.WorkName,
                                         ProblemInForce().Extension, Caption))
            SaveData();
    });
}

// A file that cannot be read whole changes nothing, neither what the user typed nor the tables behind it.
void ProblemForm::cmdOpen_Click() {
    Run([&] {
        const SessionRecord before = Session;
        std::string file;
        if (!FileDialogs().OpenFileDialog(file, Session.DataDir, Session.WorkDir, Session.WorkName,
                                          std::string("*.") + ProblemInForce().Extension, Caption))
            return;
        const ReadOutcome outcome = ReadProblemData();
        EndHourglass();
        if (outcome == ReadOutcome::Read)
            ShowOpened();
        else
            Session = before;
    });
}

void ProblemForm::cmdResult_Click() {
    Run([&] {
        Session.DataValid = false;
        StoreData();
        if (!Session.DataValid) return;
        KeepInput();
        Session.CalcAborted = false;
        Steps().SwitchOn(true);  // the viewer can show them
        if (!RunProblemKernel()) {
            SharedServices().ShowMessageBox(Text(160030_text), Text(902049_text), MessageIcon::Exclamation);
            return;
        }
        EndHourglass();
        if (Session.CalcAborted) return;
        ShowResultViewer();
    });
}

}  // namespace lithmark
