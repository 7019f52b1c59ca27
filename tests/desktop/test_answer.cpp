// The answer beside the fields, on the real windows and by the real command line: what it shows, and that looking
// changes nothing.
#include <QAbstractItemView>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <filesystem>
#include <set>
#include <sstream>

#include "../ui/AllForms.h"
#include "../ui/FormTest.h"
#include "ScreenRun.h"
#include "core/Catalogue.h"
#include "core/SessionFields.h"
#include "desktop/FormView.h"
#include "desktop/answer/AnswerList.h"
#include "desktop/answer/AnswerView.h"
#include "desktop/answer/SidePanes.h"
#include "files/ProblemData.h"
#include "files/SettingsFiles.h"
#include "kernels/RunKernel.h"
#include "render/drawings/Inks.h"
#include "report/Notices.h"
#include "support/Matchers.h"
#include "support/Places.h"
#include "ui/model/PictureForm.h"

namespace lithmark::tests {
namespace {

namespace fs = std::filesystem;

constexpr Language kAll[] = {Language::German, Language::English, Language::Arabic};
struct Example {
    const char* Name;
    int Problem;
};
constexpr Example kExamples[] = {
    {"RectangularFooting", 1}, {"BridgePier", 2}, {"CircularTank", 3}, {"ClayUnderFooting", 4}, {"TwoClayLayers", 5},
    {"OfficeBuilding", 6},     {"GrainStore", 7}, {"WaterTower", 8},   {"EccentricRaft", 9},    {"RaftOnClayEs", 10}};

// Every field of the record by its text, and the report.
std::string WholeRecord() {
    std::string text = Session.ResultText + Session.WorkDir + Session.WorkName;
    for (const SessionField& field : SessionFields()) text += SessionFieldText(field.Ref) + "\n";
    return text + (Session.DataValid ? "valid" : "") + (Session.FileSaved ? "saved" : "");
}

// Names and bytes of everything below a folder.
std::map<std::string, std::string> BytesBelow(const std::string& folder) {
    std::map<std::string, std::string> bytes;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) bytes[entry.path().string()] = ReadBytes(entry.path().string());
    return bytes;
}

int ScratchFolders() {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(fs::temp_directory_path()))
        count += entry.path().filename().string().starts_with("lithmark-draft-");
    return count;
}

// The value that a report prints in its parameter lines for a symbol; empty where it prints none.
std::string PrintedFor(const std::string& report, const std::string& symbol) {
    std::istringstream lines(report);
    std::string value;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t equals = line.rfind(" = ");
        if (equals == std::string::npos) continue;
        std::istringstream words(line.substr(0, equals));
        const std::vector<std::string> all{std::istream_iterator<std::string>(words), {}};
        if (all.size() < 2 || all[all.size() - 2] != symbol) continue;
        std::istringstream(line.substr(equals + 3)) >> value;
    }
    return value;
}

bool HasWord(const std::string& report, const std::string& word) {
    std::istringstream words(report);
    return std::find(std::istream_iterator<std::string>(words), {}, word) != std::istream_iterator<std::string>();
}

class AnswerTest : public FormTest {
  protected:
    // A project like the example, and its settings, open in a language.
    void Open(const Example& example, Language language) {
        StartIn(language);
        const fs::path from = SourceDir() / "examples" / example.Name;
        for (const auto& entry : fs::directory_iterator(from))
            if (entry.is_regular_file())
                fs::copy_file(entry.path(), DataFile(entry.path().filename()), fs::copy_options::overwrite_existing);
        for (const char* file : {"Units", "NOFORMAT", "Preferen.tol"}) {
            fs::remove(SettingsFile(file));
            if (fs::exists(from / "settings" / file)) fs::copy_file(from / "settings" / file, SettingsFile(file));
        }
        LoadUnits();
        LoadNumberFormats();
        LoadPreferences();
        Session.ProjectName = example.Name;
        Session.ProblemType = example.Problem;
        SetProblemSaved(ProblemInForce().MenuEntry, true);
    }
    // The dialog of the problem in force on its window, with its answer there.
    void OnWindow(const std::function<void(PictureForm&, FormView&, AnswerView&)>& script) {
        for (const FormRow& row : AllForms()) {
            if (row.ProblemType != Session.ProblemType) continue;
            const auto form = row.Make();
            auto* dialog = dynamic_cast<PictureForm*>(form.get());
            if (dialog == nullptr) continue;
            form->Reopen();
            form->Load();
            FormView view(*form, nullptr);
            view.show();
            view.activateWindow();
            auto& answer = *dynamic_cast<AnswerView*>(view.findChild<QWidget*>(QStringLiteral("answer")));
            Await(answer);
            script(*dialog, view, answer);
            form->Unload();
            return;
        }
        FAIL() << "no dialog";
    }
    static void Await(AnswerView& answer, AnswerState state = AnswerState::Now) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer.Model().State() == state; }, kWorkPatience))
            << static_cast<int>(answer.Model().State()) << answer.Model().Reason();
    }
    static QLineEdit& Box(FormView& view, const char* name) {
        return *view.findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    static void Keys(FormView& view, const char* name, const char* text) {
        QLineEdit& box = Box(view, name);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QString::fromLatin1(text));
    }
};

// What stands in no report is named here.
TEST_F(AnswerTest, IsWhatTheReportPrints) {
    for (const Language language : kAll)
        for (const Example& example : kExamples) {
            SCOPED_TRACE(std::string(example.Name) + " in language " + std::to_string(static_cast<int>(language)));
            Open(example, language);
            OnWindow([&](PictureForm& form, FormView&, AnswerView& answer) {
                const FormDraft draft = form.Draft();
                ASSERT_TRUE(draft.Valid());
                Session = draft.Record;
                RunProblemKernel();
                ASSERT_FALSE(Session.CalcAborted);
                ASSERT_NE(answer.Model().Shown(), nullptr);
                const Answer& shown = *answer.Model().Shown();
                EXPECT_FALSE(shown.Values.empty());
                for (const AnswerValue& value : shown.Values) {
                    const bool ofTable = value.Symbol.starts_with("min_") || value.Symbol.starts_with("max_");
                    const bool raft = IsRaft(example.Problem);
                    if (value.Symbol == "Alpha" || value.Symbol == "qm" ||
                        (example.Problem == 4 && value.Symbol == "Sigma_z"))
                        continue;
                    if (value.Symbol == "Zse" || (raft && ofTable))
                        EXPECT_TRUE(HasWord(Session.ResultText, value.Text)) << value.Symbol << " = " << value.Text;
                    else
                        EXPECT_EQ(value.Text, PrintedFor(Session.ResultText, value.Symbol)) << value.Symbol;
                }
                ASSERT_EQ(shown.Notices.size(), Notices().All().size());
                for (std::size_t i = 0; i < shown.Notices.size(); ++i)
                    EXPECT_EQ(shown.Notices[i].Text, NoticeText(Notices().All()[i]));
            });
        }
}

// The values that the tables and lists of results hold: each problem's curves end where its results say.
TEST_F(AnswerTest, CurvesGoThroughTheResults) {
    for (const Example& example : kExamples) {
        SCOPED_TRACE(example.Name);
        Open(example, Language::English);
        OnWindow([&](PictureForm& form, FormView&, AnswerView& answer) {
            ASSERT_NE(answer.Model().Shown(), nullptr);
            const Answer& shown = *answer.Model().Shown();
            Session = form.Draft().Record;
            RunProblemKernel();
            const auto curves = shown.Curves;
            ASSERT_EQ(curves.size(), example.Problem == 4 || IsRaft(example.Problem) ? 2u : 1u);
            for (const AnswerCurve& curve : curves) {
                ASSERT_FALSE(curve.Lines.empty());
                for (const AnswerCurve::Line& line : curve.Lines) {
                    EXPECT_GE(line.X.size(), 5u);
                    EXPECT_EQ(line.X.size(), line.Y.size());
                }
            }
            const AnswerCurve::Line& line = curves[0].Lines.back();
            if (IsSoilStress(example.Problem)) {
                // A depth of the study, worked out by the kernel itself.
                const AnswerCurve::Line& study = curves[0].Lines[0];
                Session.z = study.Y[4] / Session.Len1Factor;
                RunProblemKernel();
                const double value = example.Problem == 1   ? Session.Sigma_z * FactorOf(Unit::Pressure)
                                     : example.Problem == 2 ? static_cast<double>(Session.Varepsilon_z)
                                                            : static_cast<double>(Session.w);
                EXPECT_NEAR(study.X[4], value, 1e-5 * std::abs(value));
            } else if (example.Problem == 4) {
                double sum = 0;
                for (const double share : curves[1].Lines[0].X) sum += share;
                EXPECT_NEAR(sum, 100, 1e-3);
                EXPECT_NEAR(curves[0].Lines[0].X.back(), Session.Sigma_z, 1e-4);
            } else if (example.Problem == 5) {
                ASSERT_EQ(curves[0].Lines.size(), 4u);
                EXPECT_NEAR(line.X[5], Session.IsoUf(5), 1e-4);
                EXPECT_NEAR(curves[0].Lines[0].X[5], Session.IsoU0(5), 1e-4);
                // Pressures fall with time.
                EXPECT_GT(curves[0].Lines[1].X[3], curves[0].Lines[2].X[3]);
                EXPECT_GT(curves[0].Lines[2].X[3], line.X[3]);
            } else if (IsTimeSettlement(example.Problem)) {
                EXPECT_NEAR(curves[0].Lines[0].Y.back(), Session.SettlementSum(Session.TimePeriod + 1), 1e-4);
                EXPECT_EQ(curves[0].Points.size(), Session.Ms ? 1u : 0u);
            } else {
                EXPECT_NEAR(curves[0].Lines[0].Y[2], Session.RaftMidPressure(3), 1e-3);
                EXPECT_NEAR(line.Y[2], Session.RaftMeanPressure, 1e-3);
                EXPECT_NEAR(curves[1].Lines[1].Y[2], Session.RaftMidFlexible(3), 1e-4);
            }
        });
    }
}

TEST_F(AnswerTest, AKeyGivesANewAnswerAndChangesNothing) {
    for (const Example& example : kExamples) {
        SCOPED_TRACE(example.Name);
        Open(example, Language::English);
        OnWindow([&](PictureForm& form, FormView& view, AnswerView& answer) {
            const std::string record = WholeRecord();
            const auto files = BytesBelow(DataDir()), settings = BytesBelow(Session.ProgramDir);
            // The degree of consolidation does not depend on the load.
            const char* box = form.Find("txt_T")                                  ? "txt_T"
                              : form.Find("txt_Sc")                               ? "txt_Sc"
                              : form.Find("txt_P") && form.Find("txt_P")->Visible ? "txt_P"
                                                                                  : "txt_Q";
            const std::string before = answer.Model().Shown()->Values[0].Text;
            Keys(view, box, "77");
            EXPECT_TRUE(QTest::qWaitFor(
                [&] {
                    return answer.Model().State() == AnswerState::Now &&
                           answer.Model().Shown()->Values[0].Text != before;
                },
                kWorkPatience));
            EXPECT_EQ(WholeRecord(), record);
            EXPECT_EQ(BytesBelow(DataDir()), files);
            auto after = BytesBelow(Session.ProgramDir);
            // What was typed is kept in the state folder, by the dialog and not by its answer.
            std::erase_if(after, [](const auto& file) { return file.first.find("/state/") != std::string::npos; });
            EXPECT_EQ(after, settings);
            EXPECT_EQ(ScratchFolders(), 0);
            QTest::keyClick(&view, Qt::Key_Escape);
        });
        fs::remove_all(SharedServices().StateDir());
    }
}

TEST_F(AnswerTest, AWrongBoxLeadsToItself) {
    Open(kExamples[0], Language::English);
    OnWindow([&](PictureForm& form, FormView& view, AnswerView& answer) {
        Keys(view, "txt_Nue", "0.6");
        Await(answer, AnswerState::Stopped);
        auto& reason = *view.findChild<QLabel*>(QStringLiteral("reason"));
        EXPECT_THAT(reason.toolTip().toStdString(), HasSubstr("0.5"));
        // The values that still stand say that they are of the former input; the reason has the line that said so.
        auto& head = *answer.findChild<QWidget*>(QStringLiteral("answerHead"));
        auto& curves = *answer.findChild<QWidget*>(QStringLiteral("answerCurves"));
        EXPECT_EQ(head.accessibleName().toStdString(), "for the former input");
        EXPECT_THAT(curves.accessibleDescription().toStdString(), EndsWith("; for the former input"));
        auto& notices = *answer.findChild<QWidget*>(QStringLiteral("answerNotices"));
        EXPECT_THAT(notices.accessibleDescription().toStdString(), EndsWith("for the former input"));
        EXPECT_EQ(notices.palette().color(QPalette::ButtonText), ColourOf(Ink::Quiet, Theme::Light));
        view.FocusOn(form.cmdResult);
        auto& link = *answer.findChild<QLabel*>(QStringLiteral("answerState"));
        emit link.linkActivated(QStringLiteral("box"));
        EXPECT_EQ(view.focusWidget(), &Box(view, "txt_Nue"));
        Keys(view, "txt_Nue", "0.2");
        Await(answer);
        EXPECT_EQ(reason.toolTip(), QString());
        EXPECT_EQ(head.accessibleName(), QString());
        EXPECT_THAT(curves.accessibleDescription().toStdString(), Not(HasSubstr("former")));
        EXPECT_EQ(notices.palette().color(QPalette::ButtonText), ColourOf(Ink::Link, Theme::Light));
    });
}

// A second layer too thin for the first: the kernel has much to say, and nothing below it moves.
TEST_F(AnswerTest, ALongReasonIsReadInFull) {
    StartIn(Language::German);
    Session.ProblemType = Problem::ConsolidationRate;
    OnWindow([&](PictureForm& form, FormView& view, AnswerView& answer) {
        auto& state = *answer.findChild<QLabel*>(QStringLiteral("answerState"));
        auto& curves = *answer.findChild<QWidget*>(QStringLiteral("answerCurves"));
        const auto inFull = [&] { return state.height() >= state.heightForWidth(state.width()); };
        EXPECT_TRUE(inFull());
        view.findChild<QAbstractButton*>(QStringLiteral("chkLayers"))->click();
        Await(answer);
        QCoreApplication::processEvents();
        const QRect before = curves.geometry();
        Keys(view, "txt_h2", "2");
        Await(answer, AnswerState::Failed);
        QCoreApplication::processEvents();
        EXPECT_GT(state.heightForWidth(state.width()), 2 * state.fontMetrics().lineSpacing()) << "it is long";
        EXPECT_TRUE(inFull());
        EXPECT_EQ(curves.geometry(), before);
        Keys(view, "txt_h2", form.Find("txt_h1")->Text.c_str());
        Await(answer);
        QCoreApplication::processEvents();
        EXPECT_TRUE(answer.findChild<QWidget*>(QStringLiteral("answerValues"))->isVisible());
        EXPECT_EQ(curves.geometry(), before);
    });
}

TEST_F(AnswerTest, AnUnfinishedNumberIsNotMarkedBeforeItIsLeft) {
    Open(kExamples[0], Language::English);
    OnWindow([&](PictureForm& form, FormView& view, AnswerView&) {
        Keys(view, "txt_z", "-");
        EXPECT_EQ(view.ShownMark(*form.Find("txt_z")), "");
        QTest::keyClick(&Box(view, "txt_z"), Qt::Key_Tab);
        EXPECT_NE(view.ShownMark(*form.Find("txt_z")), "");
        Keys(view, "txt_Nue", "0.6");
        EXPECT_NE(view.ShownMark(*form.Find("txt_Nue")), "");
        Keys(view, "txt_Nue", "-");
        EXPECT_EQ(view.ShownMark(*form.Find("txt_Nue")), "");
        EXPECT_TRUE(QTest::qWaitFor([&] { return !view.ShownMark(*form.Find("txt_Nue")).empty(); }, kWorkPatience));
    });
}

TEST_F(AnswerTest, IsHiddenByAKeyAndRemembered) {
    Open(kExamples[0], Language::English);
    OnWindow([&](PictureForm& form, FormView& view, AnswerView& answer) {
        EXPECT_TRUE(answer.isVisible());
        QTest::keyClick(&view, Qt::Key_F8);
        EXPECT_FALSE(answer.isVisible());
        EXPECT_FALSE(form.AnswerShown());
        auto& back = *view.findChild<QToolButton*>(QStringLiteral("answerBack"));
        EXPECT_TRUE(back.isVisible());
    });
    Open(kExamples[0], Language::English);
    for (const FormRow& row : AllForms()) {
        if (row.ProblemType != Problem::SoilStress || !dynamic_cast<PictureForm*>(row.Make().get())) continue;
        const auto form = row.Make();
        form->Reopen();
        form->Load();
        FormView view(*form, nullptr);
        view.show();
        QCoreApplication::processEvents();
        auto& answer = *dynamic_cast<AnswerView*>(view.findChild<QWidget*>(QStringLiteral("answer")));
        EXPECT_FALSE(answer.isVisible());
        QTest::qWait(50);
        EXPECT_EQ(answer.Model().State(), AnswerState::None);
        QTest::keyClick(&view, Qt::Key_F8);
        EXPECT_TRUE(answer.isVisible());
        Await(answer);
    }
}

TEST_F(AnswerTest, AKeptAnswerStandsBesideTheNewOne) {
    Open(kExamples[0], Language::English);
    OnWindow([&](PictureForm&, FormView& view, AnswerView& answer) {
        auto& keep = *answer.findChild<QPushButton*>(QStringLiteral("answerKeep"));
        auto& list = *dynamic_cast<AnswerList*>(answer.findChild<QWidget*>(QStringLiteral("answerValues")));
        EXPECT_EQ(list.Columns().Kept, 0);
        QTest::mouseClick(&keep, Qt::LeftButton);
        Keys(view, "txt_P", "440");
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return list.item(0)->data(Qt::AccessibleTextRole).toString().contains(QLatin1String("253.5")); },
            kWorkPatience));
        EXPECT_GT(list.Columns().Kept, 0);
        EXPECT_EQ(list.item(0)->data(Qt::AccessibleTextRole).toString().toStdString(),
                  "σ z, 253.5 kN/m², kept 126.7, +100.0 %");
        QTest::mouseClick(&keep, Qt::LeftButton);
        EXPECT_EQ(list.Columns().Kept, 0);
    });
}

TEST_F(AnswerTest, IsAListInWords) {
    for (const Language language : kAll) {
        Open(kExamples[0], language);
        OnWindow([&](PictureForm&, FormView&, AnswerView& answer) {
            auto& list = *answer.findChild<QListWidget*>(QStringLiteral("answerValues"));
            QAccessibleInterface* words = QAccessible::queryAccessibleInterface(&list);
            ASSERT_NE(words, nullptr);
            EXPECT_EQ(words->role(), QAccessible::List);
            EXPECT_NE(words->text(QAccessible::Name), QString());
            ASSERT_EQ(words->childCount(), 6);
            EXPECT_THAT(words->child(0)->text(QAccessible::Name).toStdString(), ::testing::StartsWith("σ z, 126"));
            auto& curves = *answer.findChild<QWidget*>(QStringLiteral("answerCurves"));
            EXPECT_THAT(curves.accessibleDescription().toStdString(), HasSubstr("σ z"));
            EXPECT_EQ(QAccessible::queryAccessibleInterface(&curves)->role(), QAccessible::Graphic);
            for (const char* name : {"answerHide", "answerKeep", "answerNotices"}) {
                auto& button = *answer.findChild<QAbstractButton*>(QString::fromLatin1(name));
                QAccessibleInterface* said = QAccessible::queryAccessibleInterface(&button);
                EXPECT_NE(said->text(QAccessible::Name), QString()) << name;
            }
            EXPECT_EQ(list.focusPolicy() & Qt::TabFocus, Qt::TabFocus);
        });
    }
}

TEST_F(AnswerTest, DrawingAndAnswerStandWhereThereIsRoom) {
    Open(kExamples[0], Language::English);
    OnWindow([&](PictureForm& form, FormView& view, AnswerView& answer) {
        auto& panes = *dynamic_cast<SidePanes*>(answer.parentWidget());
        QWidget& drawing = *view.WidgetOf(form.PctInvertedT);
        panes.setParent(nullptr);
        panes.setMinimumSize(0, 0);
        panes.show();
        panes.resize(800, 400);
        QCoreApplication::processEvents();
        EXPECT_EQ(panes.Stand(), SidePanes::Way::Beside);
        EXPECT_TRUE(drawing.isVisible() && answer.isVisible());
        EXPECT_GE(drawing.width(), 300);
        EXPECT_GE(answer.width(), 300);
        panes.resize(400, 700);
        QCoreApplication::processEvents();
        EXPECT_EQ(panes.Stand(), SidePanes::Way::Below);
        EXPECT_LT(drawing.mapTo(&panes, QPoint()).y(), answer.y());
        panes.resize(400, 459);
        QCoreApplication::processEvents();
        EXPECT_EQ(panes.Stand(), SidePanes::Way::Tabs);
        EXPECT_TRUE(drawing.isVisible());
        EXPECT_FALSE(answer.isVisible());
        panes.findChild<QTabBar*>()->setCurrentIndex(1);
        EXPECT_FALSE(drawing.isVisible());
        EXPECT_TRUE(answer.isVisible());
        panes.setParent(&view);
    });
}

}  // namespace
}  // namespace lithmark::tests
