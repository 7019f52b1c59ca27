// The result viewer: what it shows, which ways out it offers for a problem, and what goes out.
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "FormTest.h"
#include "base/Utf8.h"
#include "report/AfterReport.h"
#include "report/Notices.h"
#include "report/StepTables.h"
#include "support/Matchers.h"
#include "ui/frmOptionDraw.h"
#include "ui/frmResultTools.h"

namespace lithmark::tests {
namespace {

const std::string kReport = "Stresses\r\n----\r\n";

class Viewer : public FormTest {
  protected:
    Viewer() { Session.ResultText = kReport; }
    void OnViewer(int problem, std::function<void(frmResultTools&)> script) {
        Session.ProblemType = problem;
        OnShown<frmResultTools>(std::move(script));
    }
    // Two nodes of a consolidation run: depth in m, pressures in kN/m2.
    void TakeIsochrones() {
        Session.IsoLast = 1;
        for (auto* values : {&Session.IsoZ, &Session.IsoU0, &Session.IsoUf}) values->Redim(0, 1);
        Session.IsoZ(1) = 4;
        Session.IsoU0(0) = 100;
        Session.IsoU0(1) = 100;
        Session.IsoUf(1) = 37.25;
    }
    // A raft's middle row of two nodes.
    void TakeRaft() {
        Session.LoadType = 2;
        Session.A = 6;
        Session.RaftMidCount = 2;
        for (auto* values :
             {&Session.RaftMidX, &Session.RaftMidSettlement, &Session.RaftMidPressure, &Session.RaftMidFlexible})
            values->Redim(1, 2);
        Session.RaftMidX(2) = 6;
        Session.RaftMidPressure(1) = 80;
        Session.RaftMidPressure(2) = 120;
        Session.RaftMeanPressure = 100;
        Session.RaftMidSettlement(1) = 2;
        Session.RaftMidSettlement(2) = 4;
    }
};

// --- opening ---

struct ViewerCase {
    int Problem;
    const char* Caption;
    bool Curves, HandOver;
};

class ViewerOfProblem : public Viewer, public ::testing::WithParamInterface<ViewerCase> {};

TEST_P(ViewerOfProblem, CaptionAndButtonsFollowTheProblem) {
    const ViewerCase& expected = GetParam();
    LanguageTexts().SetCurrent(Language::Ids);
    OnViewer(expected.Problem, [&](frmResultTools& viewer) {
        EXPECT_EQ(viewer.Caption, expected.Caption);
        EXPECT_EQ(viewer.CmdExcel.Enabled, expected.Curves);
        EXPECT_EQ(viewer.cmdVERDA.Enabled, expected.HandOver);
        for (const Button* button : {&viewer.cmdPrinter, &viewer.CmdTextEditor, &viewer.cmdWord, &viewer.cmdClipboard,
                                     &viewer.cmdok, &viewer.cmdHelp})
            EXPECT_TRUE(button->Enabled) << button->Name;
    });
}

INSTANTIATE_TEST_SUITE_P(
    Problems, ViewerOfProblem,
    ::testing::Values(ViewerCase{1, "T<140185>", false, false}, ViewerCase{2, "T<300100>", false, false},
                      ViewerCase{3, "T<300001>", false, false}, ViewerCase{4, "T<140186>", false, false},
                      ViewerCase{5, "T<140187>", true, false}, ViewerCase{6, "T<300047>", true, false},
                      ViewerCase{7, "T<300048>", true, false}, ViewerCase{8, "T<300033>", true, false},
                      ViewerCase{9, "T<140189>", true, true}, ViewerCase{10, "T<140190>", true, true},
                      ViewerCase{11, "T<400190>", true, true}));

TEST_F(Viewer, ButtonsOfAFormerProblemDoNotStay) {
    frmResultTools viewer;
    for (const int problem : {9, 1}) {
        Session.ProblemType = problem;
        host.OnForm([&](Form&) { EXPECT_EQ(viewer.cmdVERDA.Enabled, problem == 9); });
        CurrentHost().ShowForm(viewer);
    }
}

TEST_F(Viewer, TheReportIsShownReadOnlyInTheFontOfTheLanguage) {
    OnViewer(1, [](frmResultTools& viewer) {
        EXPECT_EQ(viewer.txtResult.Text, kReport);
        EXPECT_TRUE(viewer.txtResult.ReadOnly);
        EXPECT_EQ(viewer.txtResult.FontName, "DejaVu Sans Mono");
        EXPECT_EQ(viewer.fraResult.Caption, "Results:");
        EXPECT_EQ(viewer.cmdPrinter.Caption, "Send to &printer");
    });
}

TEST_F(Viewer, ALongReportIsCutForTheEyeOnly) {
    std::string report;
    for (int i = 0; i < 30001; ++i) report += "ä";
    Session.ResultText = report;
    OnViewer(1, [&](frmResultTools& viewer) {
        EXPECT_EQ(CharacterCount(viewer.txtResult.Text), 30000u);
        EXPECT_EQ(viewer.txtResult.Text, report.substr(0, 60000));
        Click(viewer, "cmdClipboard");
        Click(viewer, "CmdTextEditor");
        Click(viewer, "cmdPrinter");
        Click(viewer, "cmdWord");
    });
    EXPECT_THAT(host.ClipboardTexts, ElementsAre(report));
    EXPECT_THAT(host.EditorTexts, ElementsAre(report));
    EXPECT_EQ(host.Printed.at(0).Text, report);
    EXPECT_EQ(host.WordTexts.at(0).Text, report);
    EXPECT_EQ(Session.ResultText, report);
}

TEST_F(Viewer, AReportOf30000CharactersIsShownWhole) {
    Session.ResultText = std::string(30000, 'x');
    OnViewer(1, [](frmResultTools& viewer) { EXPECT_EQ(viewer.txtResult.Text, Session.ResultText); });
}

// --- notices and tables ---

class ViewerOfNotices : public Viewer {
  protected:
    ViewerOfNotices() {
        Notices().Clear();
        Notices().Raise(NoticeId::RaftTension, 907003_text, {"-121 kN/m²", "12.5 %", "314 kN/m²"});
        Notices().Raise(NoticeId::IterationEnd, 907011_text, {"12"});
    }
    ~ViewerOfNotices() override {
        Notices().Clear();
        Steps().Clear();
    }
};

TEST_F(ViewerOfNotices, TheyStandUnderTheReportAndTheTitleCountsThem) {
    OnViewer(9, [](frmResultTools& viewer) {
        EXPECT_EQ(viewer.Caption, "Settlements under a rigid raft - Notices: 2");
        EXPECT_EQ(viewer.lblNotices.Caption, "Notices:");
        EXPECT_EQ(viewer.lstNotices.Items.size(), 2u);
        EXPECT_EQ(viewer.lstNotices.Items[1],
                  "The iteration ended after 12 passes, before the settlements stood still.");
        EXPECT_TRUE(viewer.lstNotices.Visible);
        EXPECT_EQ(viewer.txtResult.Text, kReport);
    });
}

TEST_F(ViewerOfNotices, EachLeadsToItsSectionOfTheManual) {
    OnViewer(9, [](frmResultTools& viewer) {
        for (const int row : {1, 0}) {
            viewer.lstNotices.ListIndex = row;
            viewer.lstNotices_Click();
        }
        viewer.lstNotices.ListIndex = -1;  // none is selected
        viewer.lstNotices_Click();
    });
    EXPECT_THAT(host.HelpTopics, ElementsAre("notices#iteration-end", "notices#raft-tension"));
}

TEST_F(ViewerOfNotices, StandInDocumentsUnlessTheyAreLeftOut) {
    OnViewer(9, [&](frmResultTools& viewer) {
        Click(viewer, "cmdPrinter");
        Click(viewer, "cmdClipboard");
        viewer.chkNotices.Value = false;
        viewer.chkNotices_Click();
        Click(viewer, "cmdWord");
    });
    EXPECT_EQ(host.Printed.at(0).Text, kReport + NoticeBox());
    EXPECT_EQ(host.WordTexts.at(0).Text, kReport);
    EXPECT_THAT(host.ClipboardTexts, ElementsAre(kReport));
}

// Whoever prints looks at PartsChosen; a preview may choose anew, and the viewer shows it then.
TEST_F(Viewer, TheFiguresOfDocumentsAreChosenForProblemsThatHaveSome) {
    OnViewer(1, [](frmResultTools& viewer) { EXPECT_FALSE(viewer.chkFigures.Visible); });
    OnViewer(5, [](frmResultTools& viewer) {
        EXPECT_TRUE(viewer.chkFigures.Visible);
        EXPECT_FALSE(viewer.chkFigures.Value || PartsChosen().Figures);
        viewer.chkFigures.Value = true;
        viewer.chkFigures_Click();
        EXPECT_TRUE(PartsChosen().Figures);
        PartsChosen() = {.Notices = false};
        Click(viewer, "cmdPrinter");
        EXPECT_FALSE(viewer.chkFigures.Value || viewer.chkNotices.Value);
    });
    OnViewer(5, [](frmResultTools& viewer) {
        EXPECT_TRUE(viewer.chkNotices.Value && PartsChosen().Notices) << "a new viewer begins anew";
    });
}

TEST_F(Viewer, WithoutANoticeNothingOfThemIsShown) {
    Notices().Clear();
    OnViewer(9, [](frmResultTools& viewer) {
        EXPECT_EQ(viewer.Caption, "Settlements under a rigid raft");
        EXPECT_FALSE(viewer.lblNotices.Visible || viewer.lstNotices.Visible || viewer.chkNotices.Visible);
    });
}

TEST_F(Viewer, TheTablesAreSwitchedOnBehindTheReportAndGoOutWithIt) {
    Steps().Add("Sublayers").AddColumn(std::string("No."), "i");
    OnViewer(4, [&](frmResultTools& viewer) {
        EXPECT_FALSE(viewer.chkTables.Value);
        EXPECT_EQ(viewer.txtResult.Text, kReport);
        viewer.chkTables.Value = true;
        viewer.chkTables_Click();
        EXPECT_EQ(viewer.txtResult.Text, kReport + StepTablesText());
        Click(viewer, "cmdClipboard");
        Click(viewer, "cmdPrinter");
        viewer.chkTables.Value = false;
        viewer.chkTables_Click();
        EXPECT_EQ(viewer.txtResult.Text, kReport);
    });
    EXPECT_THAT(host.ClipboardTexts, ElementsAre(kReport + StepTablesText()));
    EXPECT_EQ(host.Printed.at(0).Text, kReport + StepTablesText());
    Steps().Clear();
}

TEST_F(Viewer, OkClosesIt) {
    OnViewer(1, [](frmResultTools& viewer) {
        Click(viewer, "cmdok");
        EXPECT_TRUE(viewer.Unloaded());
    });
}

// --- sending ---

TEST_F(Viewer, PrinterAndWordProcessorGetFontSizeAndDirection) {
    for (const Language language : {Language::English, Language::Arabic}) {
        LanguageTexts().SetCurrent(language);
        OnViewer(4, [](frmResultTools& viewer) {
            Click(viewer, "cmdPrinter");
            Click(viewer, "cmdWord");
        });
        for (const auto* sent : {&host.Printed, &host.WordTexts}) {
            EXPECT_EQ(sent->back().Text, kReport);
            EXPECT_EQ(sent->back().FontName, "DejaVu Sans Mono");
            EXPECT_EQ(sent->back().FontSize, 8);
            EXPECT_EQ(sent->back().RightToLeft, language == Language::Arabic);
        }
    }
}

// A host without printer, word processor, clipboard, text viewer and charts.
struct BareHost : ScriptedHost {
    void PrintText(const std::string& text, const std::string& font, int size, bool rightToLeft) override {
        Host::PrintText(text, font, size, rightToLeft);
    }
    void OpenWordProcessor(const std::string& text, const std::string& font, int size, bool rightToLeft) override {
        Host::OpenWordProcessor(text, font, size, rightToLeft);
    }
    void SetClipboardText(const std::string& text) override { Host::SetClipboardText(text); }
    void ShowTextEditor(const std::string& text) override { Host::ShowTextEditor(text); }
    void StartProcess(const std::string& program, const std::vector<std::string>& arguments) override {
        Host::StartProcess(program, arguments);
    }
    void ShowChart(const ChartArguments& chart) override { Host::ShowChart(chart); }
};

TEST_F(Viewer, AWayOutThatFailsIsToldAndTheViewerStays) {
    BareHost bare;
    TakeIsochrones();
    Session.ProblemType = Problem::ConsolidationRate;
    frmResultTools viewer;
    viewer.Load();
    int told = 0;
    for (const char* button : {"cmdWord", "cmdPrinter", "cmdClipboard", "CmdTextEditor", "CmdExcel"}) {
        Click(viewer, button);
        EXPECT_EQ(static_cast<int>(bare.Messages.size()), ++told) << button;
        EXPECT_FALSE(viewer.Unloaded());
    }
    Session.ProblemType = Problem::RaftDisplacement;
    viewer.Load();
    Click(viewer, "cmdVERDA");
    EXPECT_EQ(static_cast<int>(bare.Messages.size()), ++told);
}

// Failures of the machine and of its libraries are told like the program's own.
TEST_F(Viewer, AWayOutThatBreaksDownIsToldToo) {
    struct BreakingHost : ScriptedHost {
        void PrintText(const std::string&, const std::string&, int, bool) override { throw std::bad_alloc(); }
        void StartProcess(const std::string&, const std::vector<std::string>&) override {
            throw std::runtime_error("no process");
        }
    } breaking;
    Session.ProblemType = Problem::RaftDisplacement;
    frmResultTools viewer;
    viewer.Load();
    EXPECT_NO_THROW(Click(viewer, "cmdPrinter"));
    EXPECT_EQ(breaking.LastMessage().Text, Text(900017_text));
    EXPECT_NO_THROW(Click(viewer, "cmdVERDA"));
    EXPECT_EQ(breaking.LastMessage().Text, Text(900020_text));  // a library's words are no user's
    EXPECT_FALSE(viewer.Unloaded());
}

// --- hand-over to the raft program ---

using Started = std::vector<std::pair<std::string, std::vector<std::string>>>;

std::string RaftProgram() {
    return SharedServices().ExecutableDir() + "verda.exe";
}

TEST_F(Viewer, TheRaftProgramIsLookedForBesideTheExecutable) {
    OnViewer(9, [](frmResultTools& viewer) { Click(viewer, "cmdVERDA"); });
    EXPECT_EQ(host.Processes, (Started{{RaftProgram(), {}}}));
    EXPECT_TRUE(std::filesystem::equivalent(SharedServices().ExecutableDir(),
                                            std::filesystem::read_symlink("/proc/self/exe").parent_path()));
}

// A name is one argument, whatever a command line would make of it.
TEST_F(Viewer, TheRaftExportIsHandedOverAsOneArgument) {
    Session.ProjectName = "Halle \"7\"; rm -rf $HOME & more";
    const std::string file = DataFile(Session.ProjectName + ".PO1");
    WriteBytes(file, "");
    OnViewer(10, [](frmResultTools& viewer) { Click(viewer, "cmdVERDA"); });
    EXPECT_EQ(host.Processes, (Started{{RaftProgram(), {file}}}));
}

TEST_F(Viewer, TheRaftExportOfAnotherProjectIsNotHandedOver) {
    WriteBytes(DataFile("P2.PO1"), "");
    OnViewer(9, [](frmResultTools& viewer) { Click(viewer, "cmdVERDA"); });
    EXPECT_EQ(host.Processes, (Started{{RaftProgram(), {}}}));
}

// --- curves ---

TEST_F(Viewer, ProblemFiveHasOneSetOfCurvesAndAsksNothing) {
    TakeIsochrones();
    OnViewer(5, [](frmResultTools& viewer) { Click(viewer, "CmdExcel"); });
    ASSERT_EQ(host.Charts.size(), 1u);
    const ChartArguments& chart = host.Charts[0];
    EXPECT_EQ(chart.Curves, 2);
    EXPECT_EQ(chart.LastRow, 2);
    EXPECT_EQ(chart.Cells(2, 1), "4.00");
    EXPECT_EQ(chart.Cells(2, 3), "37.3");  // 37.25 half away from zero
    EXPECT_EQ(chart.XStart, 0);
    EXPECT_EQ(chart.XEnd, 4);
    EXPECT_THAT(host.FormsShown, ElementsAre("frmResultTools"));
}

TEST_F(Viewer, OtherProblemsAskWhichCurve) {
    TakeRaft();
    OnViewer(9, [this](frmResultTools& viewer) {
        host.OnForm<frmOptionDraw>([](frmOptionDraw& choice) { Click(choice, "cmdok"); });
        Click(viewer, "CmdExcel");
    });
    ASSERT_EQ(host.Charts.size(), 1u);
    EXPECT_EQ(host.Charts[0].ChartTitle, Text(300077_text));  // contact pressures
    EXPECT_EQ(host.Charts[0].Cells(2, 3), "120.0");
    EXPECT_EQ(host.Charts[0].XEnd, 6);
}

TEST_F(Viewer, ACancelledChoiceShowsNoCurve) {
    Session.DialogOk = true;  // from another dialog
    OnViewer(9, [this](frmResultTools& viewer) {
        host.OnForm<frmOptionDraw>([](frmOptionDraw& choice) { Click(choice, "CmdCancel"); });
        Click(viewer, "CmdExcel");
    });
    EXPECT_THAT(host.Charts, IsEmpty());
    EXPECT_THAT(host.Messages, IsEmpty());
}

// Per cent of a final settlement of 0.
TEST_F(Viewer, CurvesThatCannotBeBuiltAreToldOnce) {
    Session.Sc = 0;
    Session.TimePeriod = 5;
    OnViewer(8, [this](frmResultTools& viewer) {
        host.OnForm<frmOptionDraw>([](frmOptionDraw& choice) {
            Click(choice, "optDraw(2)");
            Click(choice, "optSettlementUnit(0)");
            Click(choice, "cmdok");
        });
        Click(viewer, "CmdExcel");
    });
    EXPECT_EQ(host.Messages.size(), 1u);
    EXPECT_THAT(host.Charts, IsEmpty());
}

// --- help ---

TEST_F(Viewer, HelpTellsTheWaysOutInThreeLanguages) {
    const auto helpOf = [this](Language language) {
        LanguageTexts().SetCurrent(language);
        OnViewer(2, [](frmResultTools& viewer) { Click(viewer, "cmdHelp"); });
        EXPECT_EQ(host.HelpTexts.back().Title, Text(300100_text));
        return host.HelpTexts.back().Text;
    };
    // The English "and" in the German text stays.
    EXPECT_EQ(helpOf(Language::German),
              "Mit dem Menü können die Daten und Ergebnisse aufgelistet\r"
              "werden, an den Drucker, Excel, Word and Zwischenablage\r"
              "ausgegeben werden oder in VERDA-Text angezeigt werden.\r"
              "Setzungen und Sohldrücke der Platte können als\rIsolinien gezeichnet werden.");
    EXPECT_EQ(helpOf(Language::English),
              "In the menu, data and results can be listed or sent\rto printer, Excel, Word, Clipboard and\r"
              "VERDA-Text. Settlements and contact pressures\rof rafts can be displayed as contour lines.");
    const std::string arabic = helpOf(Language::Arabic);
    EXPECT_EQ(std::count(arabic.begin(), arabic.end(), '\r'), 2);  // three lines
    EXPECT_THAT(arabic, HasSubstr("الطابعة"));                     // the printer
}

}  // namespace
}  // namespace lithmark::tests
