#include "ui/frmProblemType.h"

#include <utility>

#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "files/ProjectFiles.h"
#include "services/FileDialogs.h"
#include "services/ProjectStore.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "ui/model/HelpText.h"
#include "ui/model/ProjectFlags.h"
#include "ui/model/ProjectHeading.h"

namespace lithmark {

namespace {

// The rows of the list are the problem menu's entries from 1 on; an entry whose problem is not calculated has no row.
int ListRowOf(const ProblemRow& problem) {
    return problem.MenuEntry - 1;
}

const ProblemRow* ProblemOfRow(int row) {
    return row < 0 ? nullptr : FirstProblemOf(row + 1);
}

}  // namespace

frmProblemType::frmProblemType(std::function<void()> saved, int proposed)
    : KeptForm("frmProblemType"), tellSaved_(std::move(saved)), proposed_(proposed) {
    DTPicker1.OnChange = [this] { DTPicker1_Change(); };
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    cmdSaveAs.OnClick = [this] { cmdSaveAs_Click(); };
    cmdOpen.OnClick = [this] { cmdOpen_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
    SetFields(
        {FieldRow({lblAuftrag, 11_text}, {}, txtAuftr, {}, {}, {}, {GoTo(txtDatum)}),
         FieldRow({lblDatum, 12_text}, {}, txtDatum, {}, {}, {}, {GoTo(txtProj)}, CheckedWhen::Always, {}, &DTPicker1),
         FieldRow({lblProjekt, 95_text}, {}, txtProj, {}, {}, {}, {Press(cmdSave)}),
         FieldRow({lblItem, 140242_text}, {}, cmbItem)});
    SetCaptionRows({{Frame3D1, 160_text, Styles::Heading},
                    {frmSelectOption, 300003_text, Styles::Heading},
                    {cmdSave, 111_text, Styles::Button},
                    {cmdSaveAs, 9_text, Styles::DialogButton},
                    {cmdOpen, 10016_text, Styles::DialogButton},
                    {CmdCancel, 7_text, Styles::Button},
                    {cmdHelp, 8_text, Styles::Button}});
}

frmProblemType::ProjectData frmProblemType::DataOfSession() {
    return {Session.ProblemType, Session.Auftr, Session.Datum, Session.Proj};
}

void frmProblemType::GiveToSession(const ProjectData& data) {
    Session.ProblemType = data.ProblemType;
    Session.Auftr = data.Auftr;
    Session.Datum = data.Datum;
    Session.Proj = data.Proj;
}

void frmProblemType::Load() {
    UnderCommonStep([&] {
        SharedServices().PrepareForm(*this);
        Caption = Text(400009_text);
        ShowCaptions();
        cmbItem.Items.clear();
        for (int row = 0; const ProblemRow* problem = ProblemOfRow(row); ++row)
            if (problem->Calculated) cmbItem.Items.push_back(std::to_string(row + 1) + "- " + Text(problem->MenuText));
        DTPicker1.Text = TextTools().LongDateOfToday();

        before_ = DataOfSession();
        saved_ = false;
        Session.DialogOk = false;
        const bool projectOpen = !Session.ProjectName.empty();
        // The number of an open project stays, whatever its files have lost.
        if (!projectOpen) Session.ProblemType = proposed_;
        ClearHeading();
        Session.WorkDir = Session.DataDir;
        Session.WorkName = Session.ProjectName;
        if (ProblemSaved(kProjectEntry))
            ReadProjectData();
        else if (projectOpen)
            ReadProjectFile();
        ShowProjectFields();
        OfferUnsavedInput(Session.DataDir + Session.ProjectName);
    });
}

void frmProblemType::Unloading() {
    if (saved_) return;
    Session.DialogOk = false;
    GiveToSession(before_);
}

// The texts come first: a problem that the list does not have fails, and must not take the heading data with it.
void frmProblemType::ShowProjectFields() {
    txtAuftr.Text = Session.Auftr;
    txtDatum.Text = Session.Datum;
    txtProj.Text = Session.Proj;
    if (const auto day = TextTools().ReadDate(Session.Datum)) DTPicker1.Text = TextTools().LongDate(*day);
    cmbItem.ListIndex = -1;
    cmbItem.Text.clear();
    if (const ProblemRow* problem = FindProblem(Session.ProblemType)) SelectRow(cmbItem, ListRowOf(*problem));
}

void frmProblemType::StoreProjectFields() {
    Session.Auftr = txtAuftr.Text;
    Session.Datum = txtDatum.Text;
    Session.Proj = txtProj.Text;
    const ProblemRow* chosen = ProblemOfRow(cmbItem.ListIndex);
    if (chosen == nullptr) return;
    // The row of several problems leaves the one that is in force.
    const ProblemRow* current = FindProblem(Session.ProblemType);
    if (current == nullptr || current->MenuEntry != chosen->MenuEntry) Session.ProblemType = chosen->ProblemType;
}

void frmProblemType::DTPicker1_Change() {
    if (const auto day = TextTools().ReadDate(DTPicker1.Text)) txtDatum.Text = TextTools().LongDate(*day);
}

void frmProblemType::cmdSave_Click() {
    UnderCommonStep([&] {
        Session.DialogOk = true;
        Session.FileSaved = false;  // may stand from an earlier save
        StoreProjectFields();
        if (Session.ProjectName.empty()) {
            const std::string file = SaveUnderNewName();
            if (!Session.FileSaved || !ProjectStore().TakeProject(Session.WorkDir + Session.WorkName)) return;
            Session.ProjectFile = file;
            Session.DataDir = Session.WorkDir;
            Session.ProjectName = Session.WorkName;
        } else {
            Session.WorkDir = Session.DataDir;
            Session.WorkName = Session.ProjectName;
            WriteProjectData();
        }
        if (!Session.FileSaved) return;
        saved_ = true;
        InputIsSaved();
        if (tellSaved_) tellSaved_();
        Unload();
    });
}

void frmProblemType::cmdSaveAs_Click() {
    UnderCommonStep([&] { SaveUnderNewName(); });
}

// The file that the user chose; Session.FileSaved tells whether it was written.
std::string frmProblemType::SaveUnderNewName() {
    std::string file;
    if (FileDialogs().SaveFileDialog(file, Session.DataDir, Session.WorkDir, Session.WorkName, "PO3")) {
        StoreProjectFields();
        WriteProjectData();
    }
    return file;
}

// A project that cannot be read whole changes nothing here.
void frmProblemType::cmdOpen_Click() {
    UnderCommonStep([&] {
        std::string file, dir, name;
        if (!FileDialogs().OpenFileDialog(file, Session.DataDir, dir, name, "*.PO3")) return;
        if (!ProjectStore().UnpackProject(dir + name, ".po3")) return;
        const ProjectData before = DataOfSession();
        const std::string workDir = std::exchange(Session.WorkDir, dir);
        const std::string workName = std::exchange(Session.WorkName, name);
        ClearHeading();
        if (ReadProjectData() == ReadOutcome::Read) return ShowProjectFields();
        GiveToSession(before);
        Session.WorkDir = workDir;
        Session.WorkName = workName;
    });
}

void frmProblemType::CmdCancel_Click() {
    Session.DialogOk = false;
    Unload();
}

void frmProblemType::cmdHelp_Click() {
    ShowHelp(Caption, Text(906004_text));
}

}  // namespace lithmark
