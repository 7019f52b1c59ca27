#include "ui/model/ProblemForm.h"

#include <utility>

#include "core/Catalogue.h"
#include "files/CommonStep.h"
#include "files/GloableVariable.h"
#include "files/ProblemData.h"
#include "kernels/RunKernel.h"
#include "report/StepTables.h"
#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "ui/model/HelpText.h"
#include "ui/model/ProjectFlags.h"
#include "ui/model/ResultViewer.h"
#include "ui/model/UnsavedInput.h"

namespace lithmark {

namespace {

// A run that failed and a file that is missing leave the hourglass; a form that waits for its user does not.
void EndHourglass() {
    SharedServices().SetPointer(PointerShape::Default);
}

// Runs a command of the form; what goes wrong in it is told and leaves no hourglass.
template <typename Command>
void Run(Command&& command) {
    if (!UnderCommonStep(std::forward<Command>(command))) EndHourglass();
}

// The radius of circular loads is the length that the dialogs take.
void TakeRadius(SessionRecord& record) {
    record.A0 = record.A;
}

}  // namespace

ProblemForm::ProblemForm(std::string name, std::string okButton)
    : FieldForm(std::move(name)), cmdok(*this, std::move(okButton)) {
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
    MarkSaved();
    OfferUnsavedInput();
}

void ProblemForm::OfferUnsavedInput() {
    const std::string folder = DraftFolder();
    const auto draft = ReadDraft(folder, Session.DataDir + Session.ProjectName, Name);
    if (!draft) return;
    if (!CurrentHost().AskYesNo(Caption, Text(906550_text, {{"|1", draft->When}}))) return DropUnsavedInput();
    TakeDraftData(*draft);
    ShowData();
    TakeDraftTexts(*this, *draft);
}

void ProblemForm::KeepInput() {
    const std::string folder = DraftFolder();
    if (folder.empty()) return;
    if (!Modified()) return DropUnsavedInput();
    try {
        WriteDraft(folder, DraftOf(*this));
    } catch (const Failure&) {
        // The user is typing: what the state folder cannot take is told by no message, saving tells its own.
    }
}

void ProblemForm::DropUnsavedInput() {
    RemoveDraft(DraftFolder(), Session.DataDir + Session.ProjectName, Name);
}

void ProblemForm::ShowInForce() {
    ShowData();
    ShowCaptions();
    ShowForProblem();
}

void ProblemForm::ShowData() {
    ShowFields();
    TakeRadius(Session);
    ShowChoices();
}

FormDraft ProblemForm::Draft() const {
    FormDraft draft{Session, Faults()};
    if (!draft.Valid()) return draft;
    StoreFields(draft.Record);
    TakeRadius(draft.Record);
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
    if (!Session.FileSaved) return;
    MarkSaved();
    DropUnsavedInput();
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

void ProblemForm::cmdOpen_Click() {
    Run([&] {
        std::string file;
        if (!FileDialogs().OpenFileDialog(file, Session.DataDir, Session.WorkDir, Session.WorkName,
                                          std::string("*.") + ProblemInForce().Extension, Caption))
            return;
        const ReadOutcome outcome = ReadProblemData();
        EndHourglass();
        // After a failure the boxes keep what the user typed.
        if (outcome == ReadOutcome::Read) ShowOpened();
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
