#include "ui/frmResultTools.h"

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "files/CommonStep.h"
#include "report/AfterReport.h"
#include "report/Notices.h"
#include "services/FileTools.h"
#include "services/SharedServices.h"
#include "ui/frmContour.h"
#include "ui/frmOptionDraw.h"
#include "ui/model/HelpText.h"

namespace lithmark {

namespace {

constexpr int kFontSize = 8;
// What the text area holds at most; the ways out know no such limit.
constexpr std::size_t kShownCharacters = 30000;
// The raft analysis program stands beside this one.
const std::string kRaftProgram = "verda.exe";

std::string ReportFont() {
    return Text(160017_text);
}

// The report as it goes to other programs' texts: what is no document has no notices.
std::string SentText() {
    return ReportWith({.Notices = false, .Tables = PartsChosen().Tables});
}

}  // namespace

frmResultTools::frmResultTools() : Form("frmResultTools") {
    cmdPrinter.OnClick = [this] { cmdPrinter_Click(); };
    CmdTextEditor.OnClick = [this] { CmdTextEditor_Click(); };
    CmdExcel.OnClick = [this] { CmdExcel_Click(); };
    cmdWord.OnClick = [this] { cmdWord_Click(); };
    cmdClipboard.OnClick = [this] { cmdClipboard_Click(); };
    cmdVERDA.OnClick = [this] { cmdVERDA_Click(); };
    cmdok.OnClick = [this] { cmdok_Click(); };
    cmdHelp.OnClick = [this] { cmdHelp_Click(); };
    chkTables.OnClick = [this] { chkTables_Click(); };
    chkNotices.OnClick = [this] { chkNotices_Click(); };
    chkFigures.OnClick = [this] { chkFigures_Click(); };
    lstNotices.OnClick = [this] { lstNotices_Click(); };
}

void frmResultTools::Load() {
    SharedServices().PrepareForm(*this);
    SetCaptions({{fraResult, 140096_text, Styles::Heading},
                 {cmdPrinter, 10_text, Styles::Button},
                 {CmdTextEditor, 70033_text, Styles::Button},
                 {CmdExcel, 40086_text, Styles::Button},
                 {cmdWord, 90096_text, Styles::Button},
                 {cmdClipboard, 70034_text, Styles::Button},
                 {cmdVERDA, 400198_text, Styles::Button},
                 {lblNotices, 907200_text, Styles::Heading},
                 {chkTables, 907261_text, Styles::Button},
                 {chkNotices, 907262_text, Styles::Button},
                 {chkFigures, 911300_text, Styles::Button},
                 {cmdok, 6_text, Styles::Button},
                 {cmdHelp, 8_text, Styles::Button}});
    const ProblemRow* problem = FindProblem(Session.ProblemType);
    if (problem != nullptr) Caption = Text(problem->Subject);
    CmdExcel.Enabled = problem != nullptr && problem->Curves != CurveFamily::None;
    cmdVERDA.Enabled = problem != nullptr && problem->HandsOver;
    chkFigures.Visible = CmdExcel.Enabled;
    txtResult.ReadOnly = true;
    txtResult.FontName = ReportFont();
    PartsChosen() = {};
    ShowParts();
    chkTables_Click();
    ShowNotices();
}

void frmResultTools::ShowNotices() {
    lstNotices.Items.clear();
    lstNotices.ListIndex = -1;
    for (const Notice& notice : Notices().All()) lstNotices.Items.push_back(NoticeText(notice));
    const bool told = !lstNotices.Items.empty();
    lblNotices.Visible = lstNotices.Visible = chkNotices.Visible = told;
    if (told)
        Caption = Text(907260_text, {{"|1", Caption}, {"|2", NumberToText(static_cast<int>(lstNotices.Items.size()))}});
}

void frmResultTools::ShowParts() {
    chkTables.Value = PartsChosen().Tables;
    chkNotices.Value = PartsChosen().Notices;
    chkFigures.Value = PartsChosen().Figures;
}

void frmResultTools::chkNotices_Click() {
    PartsChosen().Notices = chkNotices.Value;
}

void frmResultTools::chkFigures_Click() {
    PartsChosen().Figures = chkFigures.Value;
}

void frmResultTools::chkTables_Click() {
    PartsChosen().Tables = chkTables.Value;
    txtResult.Text = FirstCharacters(Session.ResultText, kShownCharacters);
    if (chkTables.Value) txtResult.Text += StepTablesText();
}

void frmResultTools::lstNotices_Click() {
    UnderCommonStep([this] {
        const auto index = static_cast<std::size_t>(lstNotices.ListIndex);
        if (index >= Notices().All().size()) return;
        SharedServices().ShowHelpTopic("notices#" + std::string(NoticeName(Notices().All()[index].Id)));
    });
}

void frmResultTools::ShowContours() {
    UnderCommonStep([] {
        Session.ContourResult = Session.CurveChoice;
        frmContour contours;
        CurrentHost().ShowForm(contours);
    });
}

void frmResultTools::cmdPrinter_Click() {
    UnderCommonStep([] {
        CurrentHost().PrintText(ReportWith(PartsChosen()), ReportFont(), kFontSize, LanguageTexts().RightToLeft());
    });
    ShowParts();
}

void frmResultTools::CmdTextEditor_Click() {
    UnderCommonStep([] { FileTools().ShowTextEditor(Session.ProgramDir, SentText()); });
}

void frmResultTools::CmdExcel_Click() {
    UnderCommonStep([] {
        if (ProblemInForce().Curves != CurveFamily::Isochrones) {
            frmOptionDraw choice;
            CurrentHost().ShowForm(choice);
            if (!Session.DialogOk) return;
        }
        ChartArguments chart = BuildChart();
        if (ProblemInForce().HasContours()) chart.ShowContours = ShowContours;
        CurrentHost().ShowChart(chart);
    });
}

void frmResultTools::cmdWord_Click() {
    UnderCommonStep([] {
        CurrentHost().OpenWordProcessor(ReportWith(PartsChosen()), ReportFont(), kFontSize,
                                        LanguageTexts().RightToLeft());
    });
    ShowParts();
}

void frmResultTools::cmdClipboard_Click() {
    UnderCommonStep([] { CurrentHost().SetClipboardText(SentText()); });
}

void frmResultTools::cmdVERDA_Click() {
    UnderCommonStep([] {
        SharedServices().SetFileName(Session.DataDir + Session.ProjectName + ".PO1");
        const std::string caseFile = SharedServices().GetFileName();
        std::vector<std::string> arguments;
        if (!SharedServices().FileMissing(caseFile, false)) arguments.push_back(caseFile);
        CurrentHost().StartProcess(SharedServices().ExecutableDir() + kRaftProgram, arguments);
    });
}

void frmResultTools::cmdHelp_Click() {
    ShowHelp(Caption, Text(906001_text));
}

void ShowResultTools() {
    frmResultTools viewer;
    CurrentHost().ShowForm(viewer);
}

}  // namespace lithmark
