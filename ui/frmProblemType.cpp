#include "ui/frmProblemType.h"

#include <algorithm>

#include "core/Session.h"
#include "files/ProjectFiles.h"
#include "services/FileDialogs.h"
#include "services/SharedServices.h"
#include "services/TextTools.h"
#include "ui/frame/MDITools.h"
#include "ui/model/CommonStep.h"
#include "ui/model/HelpText.h"
#include "ui/model/ProjectFlags.h"

namespace lithmark {

namespace {

constexpr Style kButton{1}, kDialogButton{3}, kHeading{4};

constexpr TextId kItems[] = {140185_text, 300100_text, 300001_text, 140186_text,
                             140187_text, 140188_text, 140189_text, 140190_text};
// The problem of each row; the last one has none in the list. Row 5 stands for the three time-settlement problems.
constexpr int kProblemOfRow[] = {1, 2, 3, 4, 5, 6, 9, 10, 11};
constexpr int kTimeSettlementRow = 5;

bool IsTimeSettlement(int problemType) {
    return problemType >= 6 && problemType <= 8;
}

// -1 for a number that is no problem.
int RowOf(int problemType) {
    if (IsTimeSettlement(problemType)) return kTimeSettlementRow;
    const auto row = std::find(std::begin(kProblemOfRow), std::end(kProblemOfRow), problemType);
    return row == std::end(kProblemOfRow) ? -1 : static_cast<int>(row - std::begin(kProblemOfRow));
}

}  // namespace

frmProblemType::frmProblemType(MDITools& frame) : FieldForm("frmProblemType"), frame_(frame) {
    DTPicker1.OnChange = [this] { DTPicker1_Change(); };
    cmdSave.OnClick = [this] { cmdSave_Click(); };
    cmdSaveAs.OnClick = [this] { cmdSaveAs_Click(); };
    cmdOpen.OnClick = [this] { cmdOpen_Click(); };
    CmdCancel.OnClick = [this] { CmdCancel_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
    SetEnterRows({
        {&txtAuftr, {GoTo(txtDatum)}},
        {&txtDatum, {GoTo(txtProj)}},
        {&txtProj, {Press(cmdSave)}},
    });
}

void frmProblemType::Load() {
    UnderCommonStep([&] {
        SharedServices().PrepareForm(*this);
        ShowCaptions();
        cmbItem.Items.clear();
        for (const TextId item : kItems)
            cmbItem.Items.push_back(std::to_string(cmbItem.Items.size() + 1) + "- " + Text(item));
        DTPicker1.Text = TextTools().LongDateOfToday();

        before_ = {Session.ProblemType, Session.Auftr, Session.Datum, Session.Proj};
        saved_ = false;
        Session.DialogOk = false;
        Session.ProblemType = 1;
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

void frmProblemType::ShowCaptions() {
    Caption = Text(400009_text);
    SetCaptions({{Frame3D1, 160_text, kHeading},
                 {lblAuftrag, 11_text},
                 {lblDatum, 12_text},
                 {lblProjekt, 95_text},
                 {frmSelectOption, 300003_text, kHeading},
                 {lblItem, 140242_text},
                 {cmdSave, 111_text, kButton},
                 {cmdSaveAs, 9_text, kDialogButton},
                 {cmdOpen, 10016_text, kDialogButton},
                 {CmdCancel, 7_text, kButton},
                 {cmdHelp, 8_text, kButton}});
}

// The texts come first: a problem that the list does not have fails, and must not take the heading data with it.
void frmProblemType::ShowProjectFields() {
    txtAuftr.Text = Session.Auftr;
    txtDatum.Text = Session.Datum;
    txtProj.Text = Session.Proj;
    if (const auto day = TextTools().ReadDate(Session.Datum)) DTPicker1.Text = TextTools().LongDate(*day);
    cmbItem.ListIndex = -1;
    cmbItem.Text.clear();
    if (const int row = RowOf(Session.ProblemType); row >= 0) SelectRow(cmbItem, row);
}

void frmProblemType::StoreProjectFields() {
    Session.Auftr = txtAuftr.Text;
    Session.Datum = txtDatum.Text;
    Session.Proj = txtProj.Text;
    const int row = cmbItem.ListIndex;
    if (row < 0 || row >= static_cast<int>(std::size(kProblemOfRow))) return;
    if (row == kTimeSettlementRow && IsTimeSettlement(Session.ProblemType)) return;
    Session.ProblemType = kProblemOfRow[row];
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
        frame_.SetProblemMenu();
        frame_.ShowTitle(Session.WorkName);
        SetProblemSaved(0, true);
        frame_.Menu["mnuSaveProjectAs"].Enabled = true;
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
    ShowHelp(Caption,
             {{"Im Menü wird der Problemtyp festgelegt. Es gibt",
               "11 verschiedene Berechnungen. Hier wählen Sie eine Berechnung",
               "für die Untersuchung der Interaktion Boden/ Bauwerk insgesamt", "zu untersuchen."},
              {"In the menu, the problem type is defined. There are 11 different",
               "calculation problems are available for studying",
               "soil-structure interaction. Choose one of the calculation", "problems."},
              {"في هذه القائمة يتم تحديد نوع المسألة.", "يتاح 11 من المسائل الحسابية المختلفة لدراسة",
               "رد الفعل التبادلي بين التربة و المنشأ.", "اختار واحدة من هذه المسائل."}},
             LastHelpLine::EndsInReturn);
}

}  // namespace lithmark
