// EveryWindow: what holds for all windows of the program, in three languages.
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "../ui/AllForms.h"
#include "../ui/FormTest.h"
#include "StudySubjects.h"
#include "contour/CurveSets.h"
#include "core/Catalogue.h"
#include "core/CurveRequest.h"
#include "desktop/ChartWindow.h"
#include "desktop/Dialogs.h"
#include "desktop/FormView.h"
#include "desktop/MainWindow.h"
#include "desktop/ManualTopics.h"
#include "desktop/ManualWindow.h"
#include "desktop/QtHost.h"
#include "desktop/TableEditorDialog.h"
#include "desktop/compare/CompareWindow.h"
#include "desktop/study/PointsFill.h"
#include "desktop/study/PointsWindow.h"
#include "desktop/study/StudyWindow.h"
#include "kernels/RunKernel.h"
#include "report/Notices.h"
#include "support/Languages.h"
#include "ui/frame/MDITools.h"
#include "ui/frmContour.h"

namespace lithmark::tests {

class EveryWindow : public FormTest {
  protected:
    using Look = std::function<void(QWidget& window, const std::string& name)>;

    // Every form, shown for its problem.
    void ForAllForms(const std::function<void(Form&, FormView&, const std::string&)>& look) {
        for (const Language language : kLanguages)
            for (const FormRow& row : AllForms()) {
                StartIn(language);
                Session.ProblemType = row.ProblemType;
                const std::unique_ptr<Form> form = row.Make();
                form->Reopen();
                form->Load();
                FormView view(*form, nullptr);
                view.show();
                QCoreApplication::processEvents();
                look(*form, view, form->Name + " of problem " + std::to_string(row.ProblemType) + In(language));
            }
    }

    // The forms, the desktop's own windows, and the frame with both of its pages.
    void ForAllWindows(const Look& look) {
        Notices().Raise(NoticeId::RaftTension, 907003_text, {"-121 kN/m²", "12.5 %", "314 kN/m²"});
        Notices().Raise(NoticeId::ShearInLine, 907030_text, {"Tau_xz", "8 kN/m²", "-3 kN/m²"});
        ForAllForms([&](Form&, FormView& view, const std::string& name) { look(view, name); });
        Notices().Clear();
        for (const Language language : kLanguages) {
            StartIn(language);
            LookAtOwnWindows(look, In(language));
            LookAtCurves(look, In(language));
            LookAtFrame(look, language);
        }
    }

  private:
    static std::string In(Language language) { return ", language " + std::to_string(static_cast<int>(language)); }

    // A window that waits for its answer is looked at as soon as it is there, and closed.
    static void WhileShown(const Look& look, const std::string& name, const std::function<void()>& show) {
        bool seen = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal == nullptr) return;
            timer.stop();
            seen = true;
            look(*modal, name);
            modal->close();
        });
        timer.start(10);
        show();
        EXPECT_TRUE(seen) << name;
    }

    void LookAtOwnWindows(const Look& look, const std::string& in) {
        QtHost screen;
        WhileShown(look, "message" + in, [&] { screen.ShowMessage("", Text(902049_text), MessageIcon::Exclamation); });
        WhileShown(look, "question" + in, [&] { screen.AskYesNo("", Text(901005_text)); });
        WhileShown(look, "help" + in, [&] { screen.ShowHelpText(Text(160030_text), Text(906001_text)); });
        WhileShown(look, "company lines" + in, [&] { screen.EditCompanyLines({"Baugrund Nord", "Hamburg"}); });
        WhileShown(look, "language" + in, [&] { screen.ChooseLanguage(Language::English); });
        WhileShown(look, "files" + in, [&] { screen.ShowFileList(DataDir(), "PO3"); });
        WhileShown(look, "report" + in, [&] { screen.ShowTextEditor("Report\r\n"); });
        TableEdit table;
        table.Title = Text(400125_text);
        table.Columns = {{"t\n[1]\n[-]", TableEdit::Kind::Whole}, {"p\n[2]\n[%]", TableEdit::Kind::Real, 100, 0}};
        table.Rows = {{"1", "19"}, {"2", "42"}, {"4", "x"}};
        TableEditorDialog editor(table, nullptr);
        LookAt(editor, look, "table" + in);
        ManualWindow manual(nullptr, PageOfTopic("problem-5"));
        LookAt(manual, look, "manual" + in);
        const auto stress = LoadedDialog(Problem::SoilStrain);
        StudyWindow study(SubjectOf(*stress, "z"), nullptr);
        LookAt(study, look, "study" + in);
        PointsWindow points(SubjectOf(*stress, "z"), nullptr);
        LookAt(points, look, "points" + in);
        PointsTable many = points.Points();
        for (const auto& [kind, name] : {std::pair(PointsFill::Kind::Grid, "grid of points"),
                                         {PointsFill::Kind::Line, "line of points"},
                                         {PointsFill::Kind::Depths, "depths of points"}}) {
            PointsFill fill(many, kind, nullptr);
            LookAt(fill, look, name + in);
        }
        LookAtComparison(look, in);
    }

    // Two projects, one of which has no results, so that there is much to say.
    void LookAtComparison(const Look& look, const std::string& in) {
        const std::string folder = DataFile("compared/");
        std::filesystem::create_directory(folder);
        for (const auto& [name, poisson] : {std::pair("Crane", ".3"), std::pair("CraneWithALongName", ".7")}) {
            WriteBytes(folder + name + ".PO3", Lines({"Version 9", "1", "0"}));
            WriteBytes(folder + name + ".SSD", Lines({"1", "2", "3", "900", "10", "6", "7", poisson, "5000", "2"}));
        }
        const PairReading reading = ReadPair(folder + "Crane.PO3", folder + "CraneWithALongName.PO3");
        ASSERT_TRUE(reading.Pair) << reading.Fault;
        CompareWindow window(*reading.Pair, nullptr);
        LookAt(window, look, "comparison" + in);
        std::filesystem::remove_all(folder);
    }

    // Curves and contours of the default projects.
    void LookAtCurves(const Look& look, const std::string& in) {
        const auto run = [](int problem) {
            Session.ProblemType = problem;
            SetProblemDefaults();
            Session.AnalysisType = Analysis::Numerical;
            EXPECT_TRUE(RunProblemKernel());
        };
        const auto chart = [&](CurveSet set, const char* name) {
            RequestCurve({set});
            ChartArguments curves = BuildChart();
            if (ProblemInForce().HasContours()) curves.ShowContours = [] {};
            ChartWindow window(curves, nullptr);
            LookAt(window, look, name + in);
        };
        run(Problem::TimeTheory);
        chart(CurveSet::Corrected, "curves of a building");
        run(Problem::ConsolidationRate);
        chart(CurveSet::Load, "pore pressures");
        Session.WorkDir = DataDir();
        Session.WorkName = Session.ProjectName;
        run(Problem::RaftDisplacement);
        chart(CurveSet::RaftSettlement, "curves of a raft");
        RequestContours(CurveSet::ContactPressure);
        frmContour form;
        form.Load();
        FormView contours(form, nullptr);
        contours.show();
        form.Activate();
        contours.Refresh();
        LookAt(contours, look, "contours" + in);
        form.SelectOption(form.optView[1]);
        form.chkSection.Value = true;
        form.optView_Click();
        contours.Refresh();
        LookAt(contours, look, "field with a section" + in);
        Notices().Clear();
        for (const std::string& file : DataFiles()) std::filesystem::remove(DataFile(file));
    }
    static void LookAt(QWidget& window, const Look& look, const std::string& name) {
        window.show();
        QCoreApplication::processEvents();
        look(window, name);
    }

    void LookAtFrame(const Look& look, Language language) {
        WriteBytes(DataFile("Crane.PO3"), "Version 9\r\n1\r\n0\r\n");
        WriteBytes(DataFile("Crane.AUF"), "GT-2026-01\r\n2026-03-02\r\nCrane runway, axis B\r\n");
        WriteBytes(DataFile("Crane.SSD"), "1\r\n.5\r\n2\r\n850\r\n120\r\n4\r\n3\r\n.3\r\n12000\r\n2\r\n");
        MDITools frame;
        MainWindow window(frame);
        frame.SetClock([now = 0LL]() mutable { return now += 1000; });
        frame.SetWindow(&window);
        frame.Start("", language);
        LookAt(window, look, "start page" + In(language));
        frame.OpenFromCommandLine(DataFile("Crane.PO3"));
        LookAt(window, look, "project page" + In(language));
        frame.SetWindow(nullptr);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        ProjectStore().LeaveProject();
        for (const char* ending : {"PO3", "AUF", "SSD"})
            std::filesystem::remove(DataFile(std::string("Crane.") + ending));
    }
};

}  // namespace lithmark::tests
