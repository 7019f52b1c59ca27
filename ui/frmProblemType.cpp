#include "ui/frmProblemType.h"

#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/ProjectFiles.h"
#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "ui/model/CommonStep.h"
#include "ui/model/HelpText.h"
#include "ui/model/ProjectFlags.h"

namespace lithmark {

namespace {

constexpr Style kButton{1}, kDialogButton{3}, kHeading{4};

// The rows of the list are the problem menu's entries from 1 on; an entry whose problem is not calculated has no row.
int ListRowOf(const ProblemRow& problem) {
    return problem.MenuEntry - 1;
}

const ProblemRow* ProblemOfRow(int row) {
    return row < 0 ? nullptr : FirstProblemOf(row + 1);
}

}  // namespace

frmProblemType::frmProblemType(std::function<void()> saved)
    : FieldForm("frmProblemType"), tellSaved_(std::move(saved)) {
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
    SetCaptionRows({{Frame3D1, 160_text, kHeading},
                    {frmSelectOption, 300003_text, kHeading},
                    {cmdSave, 111_text, kButton},
                    {cmdSaveAs, 9_text, kDialogButton},
                    {cmdOpen, 10016_text, kDialogButton},
                    {CmdCancel, 7_text, kButton},
                    {cmdHelp, 8_text, kButton}});
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

        before_ = {Session.ProblemType, Session.Auftr, Session.Datum, Session.Proj};
        saved_ = false;
        Session.DialogOk = false;
        Session.ProblemType = Problem::SoilStress;
        Session.Auftr.clear();
        Session.Datum = TextTools().LongDateOfToday();
        Session.Proj.clear();
        Session.WorkDir = Session.DataDir;
        Session.WorkName = Session.ProjectName;
        if (ProblemSaved(0)) ReadProjectData();
        ShowProjectFields();
    });
}

void frmProblemType::Unloading() {
    if (saved_) return;
    Session.DialogOk = false;
    Session.ProblemType = before_.ProblemType;
    Session.Auftr = before_.Auftr;
    Session.Datum = before_.Datum;
    Session.Proj = before_.Proj;
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
            cmdSaveAs_Click();
            if (!Session.FileSaved) return;
            Session.DataDir = Session.WorkDir;
            Session.ProjectName = Session.WorkName;
        } else {
            Session.WorkDir = Session.DataDir;
            Session.WorkName = Session.ProjectName;
            WriteProjectData();
        }
        if (!Session.FileSaved) return;
        saved_ = true;
        if (tellSaved_) tellSaved_();
        SetProblemSaved(0, true);
        Unload();
    });
}

void frmProblemType::cmdSaveAs_Click() {
    UnderCommonStep([&] {
        if (!FileDialogs().SaveFileDialog(Session.ProjectFile, Session.DataDir, Session.WorkDir, Session.WorkName,
                                          "PO3"))
            return;
        StoreProjectFields();
        WriteProjectData();
    });
}

void frmProblemType::cmdOpen_Click() {
    UnderCommonStep([&] {
        if (!FileDialogs().OpenFileDialog(Session.ProjectFile, Session.DataDir, Session.WorkDir, Session.WorkName,
                                          "*.PO3"))
            return;
        ReadProjectData();
        ShowProjectFields();
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
