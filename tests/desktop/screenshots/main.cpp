// All windows of the program in three languages as pictures, for people to look at:
//
//     QT_QPA_PLATFORM=offscreen screenshots OUTDIR [dark] [studies]
//
// studies: the start page and the windows of studies, points and comparisons alone.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <set>

#include "../../ui/AllForms.h"
#include "../StudySubjects.h"
#include "Comparison.h"
#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/Session.h"
#include "core/StartSession.h"
#include "desktop/Application.h"
#include "desktop/ChartView.h"
#include "desktop/FormView.h"
#include "desktop/MainWindow.h"
#include "desktop/ManualTopics.h"
#include "desktop/ManualWindow.h"
#include "desktop/Palettes.h"
#include "desktop/QtHost.h"
#include "desktop/SaveReport.h"
#include "desktop/SplashView.h"
#include "desktop/StartView.h"
#include "desktop/answer/AnswerView.h"
#include "desktop/study/PointsWindow.h"
#include "desktop/study/StudyWindow.h"
#include "kernels/RunKernel.h"
#include "render/QtText.h"
#include "report/Measured.h"
#include "report/Notices.h"
#include "services/SharedServices.h"
#include "services/storage/WrittenFile.h"
#include "services/texts/LanguageTexts.h"
#include "ui/frmAbout.h"
#include "ui/frmContour.h"
#include "ui/frmDataDir.h"
#include "ui/frmMethodtype.h"
#include "ui/frmNumberFormats.h"
#include "ui/frmOptionDraw.h"
#include "ui/frmPreferences.h"
#include "ui/frmProblemType.h"
#include "ui/frmProjectCheck.h"
#include "ui/frmResultTools.h"
#include "ui/frmSplash.h"
#include "ui/frmUnits.h"
#include "ui/frmstress.h"

namespace lithmark {
namespace {

class Gallery {
  public:
    Gallery(const QString& folder, const QString& language) : folder_(folder), language_(language) {}

    void Take(QWidget& window, const QString& name) {
        window.show();
        for (int i = 0; i < 5; ++i) QApplication::processEvents();
        const QString file = QDir(folder_).filePath(name + QLatin1Char('-') + language_ + QStringLiteral(".png"));
        if (!window.grab().save(file)) failed_ = true;
    }
    void Take(Form& form, const QString& name, const std::function<void()>& change = {}) {
        form.Reopen();
        form.Load();
        FormView view(form, nullptr);
        view.show();
        if (change) {
            change();
            FormView::RefreshAll();
        }
        AwaitAnswer(view);
        Take(view, name);
    }
    // A window that waits for its answer: the picture is taken as soon as it is there, and Escape answers it.
    void TakeModal(const QString& name, const std::function<void()>& show,
                   const std::function<void(QWidget&)>& change = {}) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal == nullptr) return;
            timer.stop();
            if (change) change(*modal);
            Take(*modal, name);
            modal->close();
        });
        timer.start(30);
        show();
    }
    bool Failed() const { return failed_; }

  private:
    // The answer beside a problem's fields comes from another process.
    void AwaitAnswer(FormView& view) {
        auto* answer = dynamic_cast<AnswerView*>(view.findChild<QWidget*>(QStringLiteral("answer")));
        if (answer == nullptr || !answer->isVisibleTo(&view)) return;
        constexpr int kPatience = 30000;
        failed_ =
            !QTest::qWaitFor([answer] { return !answer->Model().NextDue() && answer->Model().Settled(); }, kPatience) ||
            failed_;
    }

    const QString folder_, language_;
    bool failed_ = false;
};

void WriteExample(const std::string& folder) {
    WriteWholeFile(folder + "Crane.PO3", "Version 9\r\n1\r\n0\r\n");
    WriteWholeFile(folder + "Crane.AUF", "GT-2026-01\r\n2026-03-02\r\nCrane runway, axis B\r\n");
    WriteWholeFile(folder + "Crane.SSD", "1\r\n.5\r\n2\r\n850\r\n120\r\n4\r\n3\r\n.3\r\n12000\r\n2\r\n");
    WriteWholeFile(folder + "Empty.PO3", "Version 9\r\n9\r\n0\r\n");
}

// Of an option its place, of a check box the other one.
int PositionOf(const ChoiceRow& choice, const Control& control) {
    if (control.Kind == ControlKind::CheckBox) return control.Value ? 0 : 1;
    int position = 0;
    while (&choice.Of[static_cast<std::size_t>(position)] != &control) ++position;
    return position;
}

// The dialogs of all problems, and the first of each kind with each of its choices made otherwise.
void TakeProblemDialogs(Gallery& gallery) {
    std::set<std::string> taken;
    for (const tests::FormRow& row : tests::AllForms()) {
        const std::unique_ptr<Form> form = row.Make();
        auto* dialog = dynamic_cast<PictureForm*>(form.get());
        if (dialog == nullptr) continue;
        Session.ProblemType = row.ProblemType;
        gallery.Take(*dialog, QStringLiteral("%1-%2").arg(Q(dialog->Name)).arg(row.ProblemType));
        if (!taken.insert(dialog->Name).second) continue;
        for (const ChoiceRow& choice : dialog->Choices())
            for (const Control* control : choice.Of) {
                if (control->Kind == ControlKind::ComboBox) continue;
                const QString name = Q(dialog->Name + "-" + control->Name);
                gallery.Take(*dialog,
                             QString(name).replace(QLatin1Char('('), QLatin1Char('-')).remove(QLatin1Char(')')), [&] {
                                 choice.SetPosition(PositionOf(choice, *control));
                                 if (choice.OnClick) choice.OnClick();
                             });
            }
    }
}

// A chart in the work: both marks, a place that is read, downward where that is offered.
void MarkAndTurn(QWidget& window) {
    auto* plot = dynamic_cast<ChartView*>(window.findChild<QWidget*>(QStringLiteral("plot")));
    if (plot == nullptr) return;
    if (auto* turn = window.findChild<QAbstractButton*>(QStringLiteral("chkDownward"))) turn->click();
    plot->Walk(1);
    plot->Walk(1);
    plot->Mark(true);
    for (int i = 0; i < 5; ++i) plot->Walk(1);
    plot->Mark(false);
}

// The preview with the figures, where the curves stand.
void ShowCurves(QWidget& preview) {
    if (auto* figures = preview.findChild<QAbstractButton*>(QStringLiteral("chkFigures"))) figures->click();
    if (auto* pages = preview.findChild<QPrintPreviewWidget*>()) pages->setCurrentPage(pages->pageCount() - 1);
}

// Dialogs with values of their own, for what the drawings make of them.
void TakeUnusualValues(Gallery& gallery) {
    struct Values {
        int Problem;
        const char* Name;
        std::vector<std::pair<const char*, const char*>> Texts;  // of a box, or a click
    };
    const Values all[] = {
        {3, "unusual-stress", {{"txt_A", "2"}, {"txt_B", "30"}, {"txt_x", "-3"}, {"txt_y", "7"}, {"txt_z", "6"}}},
        {4, "unusual-consolidation", {{"txt_x", "2.5"}, {"txt_y", "-1"}, {"txt_z", "3"}, {"txt_h", "8"}}},
        {5,
         "unusual-rate",
         {{"chkPressure", ""}, {"chkLayers", ""}, {"txt_h2", "2"}, {"txt_x", "1"}, {"txt_y", "0.5"}}},
        {9, "unusual-raft", {{"optAnalysisType(1)", ""}, {"txt_A", "12"}, {"txt_B", "6"}, {"txt_h", "8"}}},
        {10,
         "unusual-circle",
         {{"optAnalysisType(1)", ""}, {"optLoadType(2)", ""}, {"txt_z", "2"}, {"txt_Exz_x", "1.2"}}},
    };
    for (const Values& values : all) {
        Session.ProblemType = values.Problem;
        for (const tests::FormRow& row : tests::AllForms()) {
            if (row.ProblemType != values.Problem) continue;
            const std::unique_ptr<Form> form = row.Make();
            if (dynamic_cast<PictureForm*>(form.get()) == nullptr) continue;
            gallery.Take(*form, QString::fromLatin1(values.Name), [&] {
                for (const auto& [name, text] : values.Texts) {
                    Control& control = *form->Find(name);
                    if (control.Kind == ControlKind::Option) form->SelectOption(control);
                    if (control.Kind == ControlKind::CheckBox) control.Value = !control.Value;
                    if (control.Kind == ControlKind::TextBox) control.Text = text;
                    if (control.OnClick) control.OnClick();
                    if (control.OnChange) control.OnChange();
                }
            });
        }
    }
}

void Wait(const std::function<bool()>& until) {
    QElapsedTimer since;
    since.start();
    constexpr qint64 kPatience = 20000;
    while (!until() && since.elapsed() < kPatience) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

// The windows of studies and points, their rows worked.
void TakeStudies(Gallery& gallery) {
    const auto type = [](QWidget& window, const char* name, const QString& text) {
        auto* box = window.findChild<QLineEdit*>(QLatin1String(name));
        box->setText(text);
        emit box->textEdited(text);
    };
    const auto choose = [](QWidget& window, const char* name, int item) {
        auto* list = window.findChild<QComboBox*>(QLatin1String(name));
        list->setCurrentIndex(item);
        emit list->activated(item);
    };
    const auto form = tests::LoadedDialog(Problem::Consolidation);
    StudyWindow study(tests::SubjectOf(*form, "h"), nullptr);
    study.show();
    const auto rows = [&](std::size_t count) {
        Wait([&] {
            return study.Work().Doing() == StudyWork::Job::None && study.Work().Rows() != nullptr &&
                   study.Work().Rows()->Lines().size() == count;
        });
    };
    rows(21);
    type(study, "txtLimit", QStringLiteral("6.5"));
    Wait([&] { return study.Work().Question()->LimitNumber().has_value(); });
    rows(21);
    gallery.Take(study, QStringLiteral("study"));
    auto* tabs = study.findChild<QTabWidget*>(QStringLiteral("tabs"));
    tabs->setCurrentIndex(1);
    gallery.Take(study, QStringLiteral("study-table"));
    tabs->setCurrentIndex(3);
    Wait([&] { return !study.Work().Bars().empty(); });
    gallery.Take(study, QStringLiteral("study-tornado"));
    tabs->setCurrentIndex(0);
    choose(study, "cboField(2)", 1);
    rows(147);
    gallery.Take(study, QStringLiteral("study-family"));
    study.findChild<QAbstractButton*>(QStringLiteral("optDraw(2)"))->click();
    rows(315);
    gallery.Take(study, QStringLiteral("study-contour"));
    choose(study, "cboField(1)", 0);
    choose(study, "cboField(2)", 0);
    choose(study, "cboRandom(1)", 4);
    rows(1000);
    tabs->setCurrentIndex(2);
    gallery.Take(study, QStringLiteral("study-histogram"));

    const auto stress = tests::LoadedDialog(Problem::SoilStress);
    PointsWindow points(tests::SubjectOf(*stress, "z"), nullptr);
    points.show();
    QApplication::clipboard()->setText(QStringLiteral("0\t0\t0.5\n0\t0\t1\n0\tab\t1.5\n0\t0\t2\n0\t0\t4\n"));
    points.findChild<QAbstractButton*>(QStringLiteral("cmdPaste"))->click();
    Wait([&] { return points.Table() != nullptr && !points.Working() && points.Table()->Lines().size() == 4; });
    gallery.Take(points, QStringLiteral("points"));
    points.findChild<QTabWidget*>(QStringLiteral("tabs"))->setCurrentIndex(1);
    gallery.Take(points, QStringLiteral("points-chart"));
    gallery.TakeModal(QStringLiteral("points-grid"),
                      [&] { points.findChild<QAbstractButton*>(QStringLiteral("cmdGrid"))->click(); });
}

bool TakeAll(const QString& folder, Language language, const QString& code, bool studies) {
    const QTemporaryDir place;
    const std::string settings = place.path().toStdString() + "/";
    SharedServices().UseSettingsDirectory(settings);
    WriteExample(settings);
    Gallery gallery(folder, code);
    QtHost host;
    SetCurrentHost(&host);
    MDITools frame;
    MainWindow window(frame);
    frame.SetClock([now = 0LL]() mutable { return now += 1000; });
    frame.SetWindow(&window);
    host.SetFrame(&window);
    frame.Start("", language);
    window.resize(1280, 800);
    auto* start = dynamic_cast<StartView*>(window.findChild<QWidget*>(QStringLiteral("startPage")));
    if (start == nullptr) return false;
    while (!start->Painted()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    gallery.Take(window, QStringLiteral("start"));
    frame.OpenFromCommandLine(settings + "Crane.PO3");
    gallery.Take(window, QStringLiteral("project"));
    window.hide();
    frame.mnuCloseProject_Click();
    frame.PinProject(settings + "Empty.PO3", true);
    gallery.Take(window, QStringLiteral("start-recent"));
    window.resize(1090, 545);
    gallery.Take(window, QStringLiteral("start-small"));
    window.resize(1280, 800);
    frame.OpenFromCommandLine(settings + "Crane.PO3");
    window.hide();
    const auto end = [&] {
        frame.SetWindow(nullptr);
        SetCurrentHost(nullptr);
        SharedServices().UseSettingsDirectory("");
        ResetSession();
        return !gallery.Failed();
    };
    const auto compare = [&] {
        return TakeComparison(settings,
                              [&gallery](QWidget& comparison, const QString& name) { gallery.Take(comparison, name); });
    };
    if (studies) {
        TakeStudies(gallery);
        return compare() && end();
    }

    frmSplash splash([] { return 0LL; });
    splash.Load();
    SplashView splashView(splash);
    gallery.Take(splashView, QStringLiteral("splash"));
    splashView.hide();

    TakeProblemDialogs(gallery);
    TakeUnusualValues(gallery);
    frmstress stress;
    Session.ProblemType = Problem::SoilStress;
    stress.Reopen();
    stress.Load();
    stress.cmdSave_Click();
    RunProblemKernel();
    frmResultTools results;
    gallery.Take(results, QStringLiteral("frmResultTools"));

    frmProblemType problemType;
    gallery.Take(problemType, QStringLiteral("frmProblemType"));
    frmProjectCheck check(MDITools::Title("Crane"), Text(140185_text) + "\r\n");
    gallery.Take(check, QStringLiteral("frmProjectCheck"));
    frmDataDir dataDir;
    gallery.Take(dataDir, QStringLiteral("frmDataDir"));
    frmUnits units;
    gallery.Take(units, QStringLiteral("frmUnits"));
    frmNumberFormats formats;
    gallery.Take(formats, QStringLiteral("frmNumberFormats"));
    gallery.Take(formats, QStringLiteral("frmNumberFormats-fault"), [&] {
        formats.txtFormat[5].Text = "1.00";
        formats.txtFormat[5].OnChange();
    });
    frmPreferences preferences;
    gallery.Take(preferences, QStringLiteral("frmPreferences-0"));
    gallery.Take(preferences, QStringLiteral("frmPreferences-1"), [&] { SelectRow(preferences.sstMainData, 1); });
    frmAbout about;
    gallery.Take(about, QStringLiteral("frmAbout"));
    frmOptionDraw draw;
    Session.ProblemType = Problem::RaftDisplacement;
    gallery.Take(draw, QStringLiteral("frmOptionDraw-raft"));
    Session.ProblemType = Problem::TimeTheory;
    gallery.Take(draw, QStringLiteral("frmOptionDraw"));
    frmMethodtype method;
    gallery.Take(method, QStringLiteral("frmMethodtype"));
    Session.ProblemType = Problem::SoilStress;

    gallery.TakeModal(QStringLiteral("message"), [&] {
        stress.Reopen();
        stress.Load();
        stress.txt_Nue.Text = "0.6";
        stress.cmdResult_Click();
    });
    gallery.TakeModal(QStringLiteral("question"), [&] { SharedServices().ConfirmQuit(); });
    gallery.TakeModal(QStringLiteral("help"), [&] { stress.cmdHelp_Click(); });
    gallery.TakeModal(QStringLiteral("language"), [&] { host.ChooseLanguage(language); });
    gallery.TakeModal(QStringLiteral("company"), [&] { host.EditCompanyLines({"Baugrund Nord", "Hamburg"}); });
    gallery.TakeModal(QStringLiteral("files"), [&] { host.ShowFileList(settings, "PO3"); });
    gallery.TakeModal(QStringLiteral("editor"), [&] { host.ShowTextEditor(Session.ResultText); });
    Session.ProblemType = Problem::TimeTheory;
    SetProblemDefaults();
    RunProblemKernel();
    Session.CurveLoadUnit = Session.Force1Label;
    Session.CurveSettlementUnit = Session.Len2Label;
    for (const char* curve : {"Tab1", "Tab2", "Tab3", "Tab4"}) {
        Session.CurveChoice = curve;
        gallery.TakeModal(
            QStringLiteral("chart-") + QLatin1String(curve), [&] { host.ShowChart(BuildChart()); }, MarkAndTurn);
    }
    Session.ProblemType = Problem::ConsolidationRate;
    SetProblemDefaults();
    RunProblemKernel();
    gallery.TakeModal(QStringLiteral("chart-depth"), [&] { host.ShowChart(BuildChart()); });
    gallery.TakeModal(
        QStringLiteral("chart-depth-down"), [&] { host.ShowChart(BuildChart()); }, MarkAndTurn);
    Session.ProblemType = Problem::RaftDisplacement;
    SetProblemDefaults();
    Session.AnalysisType = Analysis::Numerical;
    RunProblemKernel();
    Notices().Raise(NoticeId::RaftTension, 907003_text,
                    {MeasuredPressure(-121), MeasuredPercent(0.125), MeasuredPressure(314)});
    gallery.Take(results, QStringLiteral("frmResultTools-raft"));
    gallery.TakeModal(QStringLiteral("save-report"), [] { SaveReport(nullptr); });
    gallery.TakeModal(QStringLiteral("preview"), [&] { results.cmdPrinter_Click(); });
    gallery.TakeModal(
        QStringLiteral("preview-figures"), [&] { results.cmdPrinter_Click(); }, ShowCurves);
    Notices().Clear();
    ManualWindow manual(nullptr, PageOfTopic("notices#raft-tension"));
    gallery.Take(manual, QStringLiteral("manual"));
    for (const char* curve : {"Tab5", "Tab6"}) {
        Session.CurveChoice = curve;
        gallery.TakeModal(QStringLiteral("chart-") + QLatin1String(curve), [&] {
            ChartArguments chart = BuildChart();
            chart.ShowContours = [] {};
            host.ShowChart(chart);
        });
    }
    Session.CurveChoice = Session.ContourResult = "Tab6";
    frmContour contour;
    gallery.Take(contour, QStringLiteral("frmContour-settlement"), [&] { contour.Activate(); });
    Session.CurveChoice = Session.ContourResult = "Tab5";
    gallery.Take(contour, QStringLiteral("frmContour"), [&] { contour.Activate(); });
    gallery.Take(contour, QStringLiteral("frmContour-field"), [&] {
        contour.Activate();
        contour.SelectOption(contour.optView[1]);
        contour.optView_Click();
    });
    gallery.Take(contour, QStringLiteral("frmContour-section"), [&] {
        contour.Activate();
        contour.SelectOption(contour.optView[1]);
        contour.chkSection.Value = true;
        contour.optView_Click();
    });
    TableEdit table;
    table.Title = Text(140187_text);
    table.Columns = {{"t\n[1]\n[-]", TableEdit::Kind::Whole}, {"p\n[2]\n[%]", TableEdit::Kind::Real, 100, 0}};
    table.Rows = {{"1", "19"}, {"2", "42"}, {"4.5", "83"}};
    gallery.TakeModal(QStringLiteral("table"), [&] { host.EditTable(table); });
    Session.ProblemType = Problem::TimeOedometer;
    frmTimeSettlement2 oedometer;
    oedometer.Reopen();
    oedometer.Load();
    gallery.TakeModal(QStringLiteral("table-loads"), [&] { oedometer.cmdTimeLoad_Click(); });
    gallery.TakeModal(QStringLiteral("table-oedometer"), [&] { oedometer.CmdOdomterSettlement_Click(); });
    TakeStudies(gallery);
    return compare() && end();
}

}  // namespace
}  // namespace lithmark

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QStringList words;
    for (int i = 2; i < argc; ++i) words.append(QString::fromLocal8Bit(argv[i]));
    const bool dark = words.removeOne(QStringLiteral("dark")), studies = words.removeOne(QStringLiteral("studies"));
    if (argc < 2 || !words.isEmpty() || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        QTextStream(stderr) << "screenshots OUTDIR [dark] [studies]\n";
        return 2;
    }
    lithmark::PrepareApplication(application);
    if (dark) QApplication::setPalette(lithmark::PaletteOf(lithmark::Theme::Dark));
    lithmark::SharedServices().DecimalSign = '.';
    const QString folder = QString::fromLocal8Bit(argv[1]);
    using lithmark::Language;
    bool good = true;
    for (const auto& [language, code] :
         {std::pair(Language::German, "de"), std::pair(Language::English, "en"), std::pair(Language::Arabic, "ar")})
        good = lithmark::TakeAll(folder, language, QString::fromLatin1(code), studies) && good;
    return good ? 0 : 1;
}
