// The window of a study on its real widgets: what it shows is what the command gives that it shows, and looking changes
// nothing.
#include <gmock/gmock.h>

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>

#include "../ui/FormTest.h"
#include "ScreenRun.h"
#include "StudySubjects.h"
#include "base/Utf8.h"
#include "core/SessionFields.h"
#include "desktop/ChartPane.h"
#include "desktop/ChartView.h"
#include "desktop/FormView.h"
#include "desktop/study/FieldChartView.h"
#include "desktop/study/StudyWindow.h"
#include "study/window/CommandWords.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

constexpr int kCurveTab = 0, kTableTab = 1, kTornadoTab = 3;

class StudyWindowTest : public FormTest {
  protected:
    // A clay layer, saved, and a study of its thickness.
    StudyWindowTest() {
        form_ = LoadedDialog(Problem::Consolidation);
        form_->cmdSave_Click();
        WriteBytes(DataFile("P1.PO3"), "Version 9\r\n4\r\n0\r\n");
    }
    std::unique_ptr<StudyWindow> Open(const std::string& first = "h") {
        auto window = std::make_unique<StudyWindow>(SubjectOf(*form_, first), nullptr);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        return window;
    }
    // Until the rows are there; Run where they promise to take long.
    static void AwaitRows(StudyWindow& window) {
        const StudyWork& work = window.Work();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                if (work.Doing() != StudyWork::Job::None) return false;
                if (work.EndOfRows() == StudyWork::RowsEnd::Promised) ClickOn(window, "cmdRun");
                return work.EndOfRows() == StudyWork::RowsEnd::Done;
            },
            kWorkPatience))
            << work.Trouble();
    }
    static std::string Command(QWidget& window) { return Child<QLineEdit>(window, "txtCommand").text().toStdString(); }
    // What a shell makes of the command that the window shows.
    static std::string RunInShell(const std::string& command) {
        QProcess shell;
        shell.setWorkingDirectory(QString::fromStdString(SharedServices().ExecutableDir()));
        const std::string text = "./" + command + " --settings '" + Session.ProgramDir + "' --lang en";
        shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QString::fromStdString(text)});
        EXPECT_TRUE(shell.waitForFinished(kWorkPatience));
        return shell.readAllStandardOutput().toStdString();
    }
    // Without the last column, which names the study: the saved project is another one than its scratch copy only there
    // where units and formats are stored.
    static std::vector<std::string> WithoutStudy(const std::string& csv) {
        std::vector<std::string> lines;
        for (const std::string& line : Split(ReplaceAll(csv, "\r\n", "\n"), '\n'))
            lines.push_back(line.substr(0, line.rfind(',')));
        return lines;
    }
    static void Choose(QWidget& window, const char* name, int item) {
        auto& list = Child<QComboBox>(window, name);
        list.setCurrentIndex(item);
        emit list.activated(item);
    }

    std::unique_ptr<ProblemForm> form_;
    QtHost screen_;
};

TEST_F(StudyWindowTest, OpensOverHalfToOneAndAHalfOfThePresentValueAndRunsByItself) {
    const auto window = Open();
    const double h = Session.h;
    AwaitRows(*window);
    EXPECT_EQ(Child<QLineEdit>(*window, "txtFrom(1)").text().toDouble(), h / 2);
    EXPECT_EQ(Child<QLineEdit>(*window, "txtTo(1)").text().toDouble(), 1.5 * h);
    EXPECT_EQ(window->Work().Rows()->Lines().size(), 21U);
    EXPECT_EQ(Child<QLabel>(*window, "lblProgress").text().toStdString(), "21 of 21 rows");
    auto& curve = static_cast<ChartPane&>(Child<QWidget>(*window, "curve")).Plot();
    EXPECT_EQ(curve.Reading().Curves(), 2);  // and the present value
    EXPECT_EQ(curve.Reading().Rows(), 22);
    EXPECT_FALSE(curve.accessibleDescription().isEmpty());
}

TEST_F(StudyWindowTest, TheRowsAreWhatTheCommandGivesThatTheWindowShows) {
    const auto window = Open();
    TypeInto(*window, "txtTo(1)", "9");
    TypeInto(*window, "txtCount(1)", "8");
    Child<QCheckBox>(*window, "chkTake(2)").click();
    TypeInto(*window, "txtLimit", "5");
    AwaitRows(*window);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Work().Rows()->Wanted() == 8; }, kWorkPatience));
    AwaitRows(*window);
    EXPECT_THAT(Command(*window), StartsWith("lithmark-cli study " + DataFile("P1.PO3") + " --vary 'h="));
    EXPECT_THAT(Command(*window), HasSubstr("--take s --take Sigma_z --limit s=5"));
    EXPECT_EQ(WithoutStudy(window->Work().Rows()->Csv()), WithoutStudy(RunInShell(Command(*window))));
    const auto& table = Child<QTableWidget>(*window, "rows");
    EXPECT_EQ(table.rowCount(), 8);
    EXPECT_EQ(table.item(0, 1)->text().toDouble(), Child<QLineEdit>(*window, "txtFrom(1)").text().toDouble());
}

TEST_F(StudyWindowTest, LookingChangesNothing) {
    std::map<std::string, std::string> fields, files;
    const auto look = [&] {
        std::map<std::string, std::string> now;
        for (const SessionField& field : SessionFields()) now[std::string(field.Name)] = SessionFieldText(field.Ref);
        return now;
    };
    const auto read = [&] {
        std::map<std::string, std::string> now;
        for (const std::string& name : DataFiles()) now[name] = ReadBytes(DataFile(name));
        return now;
    };
    fields = look();
    files = read();
    const auto inputs = form_->Inputs();
    {
        const auto window = Open();
        AwaitRows(*window);
        TypeInto(*window, "txtFrom(1)", "1");
        Choose(*window, "cboField(2)", 1);
        EXPECT_TRUE(QTest::qWaitFor([&] { return window->Work().Question()->Varied(1) != nullptr; }, kWorkPatience));
        AwaitRows(*window);
    }
    EXPECT_EQ(look(), fields);
    EXPECT_EQ(read(), files);
    EXPECT_EQ(form_->Inputs(), inputs);
    EXPECT_FALSE(form_->Modified());
}

TEST_F(StudyWindowTest, ALimitIsFoundBetweenTwoRowsAndByTheSearch) {
    const auto window = Open();
    AwaitRows(*window);
    // Half way between the first and the last settlement.
    const auto& lines = window->Work().Rows()->Lines();
    const double limit =
        (static_cast<double>(lines.front().Numbers[0]) + static_cast<double>(lines.back().Numbers[0])) / 2;
    TypeInto(*window, "txtLimit", std::to_string(limit));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Work().Question()->LimitNumber().has_value(); }, kWorkPatience));
    AwaitRows(*window);
    const std::string answer = Child<QLabel>(*window, "lblAnswer").text().toStdString();
    EXPECT_THAT(answer, HasSubstr(" at h = "));
    const auto& table = Child<QTableWidget>(*window, "rows");
    int marked = 0;
    for (int row = 0; row < table.rowCount(); ++row)
        if (table.item(row, 0)->text().startsWith(QChar(0xD7))) {
            ++marked;
            EXPECT_THAT(table.item(row, 2)->data(Qt::AccessibleTextRole).toString().toStdString(),
                        EndsWith(", the limit is crossed here"));
        }
    EXPECT_EQ(marked, 2);
    ClickOn(*window, "cmdFind");
    EXPECT_THAT(Command(*window), HasSubstr(" --find h="));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->Work().Found().empty(); }, kWorkPatience))
        << window->Work().Trouble();
    // The command's own answer.
    const StudyAnswer told(RunInShell(Command(*window)));
    ASSERT_EQ(told.Rows.size(), 1U);
    const double at = std::stod(told.Cell(0, "h"));
    EXPECT_THAT(Child<QLabel>(*window, "lblAnswer").text().toStdString(), StartsWith("Found: s = "));
    const QString found = QString::fromStdString(window->Work().Found());
    EXPECT_NEAR(found.section(QStringLiteral("h = "), 1).section(QLatin1Char(' '), 0, 0).toDouble(), at, 1e-4 * at);
}

TEST_F(StudyWindowTest, WhatCannotBeTakenIsMarkedAndTold) {
    const auto window = Open();
    AwaitRows(*window);
    TypeInto(*window, "txtCount(1)", "0");
    EXPECT_FALSE(Child<QLineEdit>(*window, "txtCount(1)").toolTip().isEmpty());
    EXPECT_EQ(Child<QLabel>(*window, "lblAnswer").text(), Child<QLineEdit>(*window, "txtCount(1)").toolTip());
    EXPECT_THAT(Child<QLabel>(*window, "lblProgress").text().toStdString(), HasSubstr("for the former input"));
    EXPECT_FALSE(Child<QPushButton>(*window, "cmdRun").isEnabled());
    EXPECT_EQ(Command(*window), "");
    TypeInto(*window, "txtCount(1)", "5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Work().Rows()->Wanted() == 5; }, kWorkPatience));
    AwaitRows(*window);
    EXPECT_EQ(Child<QLabel>(*window, "lblProgress").text().toStdString(), "5 of 5 rows");
}

TEST_F(StudyWindowTest, ANumberThatIsBeingTypedIsNoErrorUntilItIsLeft) {
    const auto window = Open();
    AwaitRows(*window);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    auto& box = Child<QLineEdit>(*window, "txtTo(1)");
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Minus);
    EXPECT_TRUE(box.toolTip().isEmpty());
    EXPECT_FALSE(Child<QPushButton>(*window, "cmdRun").isEnabled());
    Child<QLineEdit>(*window, "txtFrom(1)").setFocus();
    EXPECT_FALSE(box.toolTip().isEmpty());
    EXPECT_EQ(box.accessibleDescription().toStdString(), "h, m, 0.25 or more; error: " + box.toolTip().toStdString());
}

TEST_F(StudyWindowTest, BoxesSayTheirUnitAndTheirRange) {
    const auto window = Open();
    AwaitRows(*window);
    const auto said = [&](const char* box) {
        return Child<QLineEdit>(*window, box).accessibleDescription().toStdString();
    };
    EXPECT_EQ(said("txtFrom(1)"), "h, m, 0.25 or more");
    EXPECT_EQ(said("txtCount(1)"), "no unit, 2 to 10000");
    EXPECT_EQ(said("txtLimit"), "s, cm");
    EXPECT_EQ(said("txtSwing"), "%, 0 to 99");
    EXPECT_EQ(said("txtSamples"), "no unit, 2 to 1000000");
    Choose(*window, "cboField(2)", 1);
    EXPECT_EQ(said("txtCount(2)"), "no unit, 2 to 12");
    ClickOn(*window, "optDraw(2)");
    EXPECT_EQ(said("txtCount(2)"), "no unit, 2 to 60");
    EXPECT_THAT(Child<QCheckBox>(*window, "chkTake(1)").accessibleName().toStdString(), StartsWith("s, "));
}

TEST_F(StudyWindowTest, KeysStepANumber) {
    const auto window = Open();
    AwaitRows(*window);
    auto& count = Child<QLineEdit>(*window, "txtCount(1)");
    count.setFocus();
    count.end(false);
    QTest::keyClick(&count, Qt::Key_Up);
    EXPECT_EQ(count.text().toStdString(), "22");
    QTest::keyClick(&count, Qt::Key_PageDown);
    EXPECT_EQ(count.text().toStdString(), "12");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Work().Rows()->Wanted() == 12; }, kWorkPatience));
    AwaitRows(*window);
    EXPECT_THAT(Command(*window), HasSubstr(":*12"));
    // The command is read and not stepped.
    auto& command = Child<QLineEdit>(*window, "txtCommand");
    const QString before = command.text();
    QTest::keyClick(&command, Qt::Key_Up);
    EXPECT_EQ(command.text(), before);
}

// What was marked and zoomed in a chart is there again behind another tab.
TEST_F(StudyWindowTest, AChartOfTheSameRowsStaysAsItWasLeft) {
    const auto window = Open();
    AwaitRows(*window);
    auto& plot = static_cast<ChartPane&>(Child<QWidget>(*window, "curve")).Plot();
    plot.setFocus();
    QTest::keyClick(&plot, Qt::Key_Right);
    QTest::keyClick(&plot, Qt::Key_A);
    QTest::keyClick(&plot, Qt::Key_Plus);
    const auto range = plot.xAxis->range();
    ASSERT_TRUE(plot.A());
    auto& tabs = Child<QTabWidget>(*window, "tabs");
    constexpr int kRested = 400;  // ms, more than the window waits before it works
    for (const int tab : {kTableTab, kCurveTab}) {
        tabs.setCurrentIndex(tab);
        QTest::qWait(kRested);
        AwaitRows(*window);
    }
    EXPECT_TRUE(plot.A());
    EXPECT_EQ(plot.xAxis->range(), range);
    // Other rows are another chart.
    TypeInto(*window, "txtCount(1)", "5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return plot.Reading().Rows() <= 6; }, kWorkPatience));
    EXPECT_FALSE(plot.A());
}

TEST_F(StudyWindowTest, RowsAreCopiedAndLeftByTheTabKey) {
    const auto window = Open();
    AwaitRows(*window);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    Child<QTabWidget>(*window, "tabs").setCurrentIndex(kTableTab);
    auto& rows = Child<QTableWidget>(*window, "rows");
    rows.setFocus();
    rows.setRangeSelected({1, 1, 2, 2}, true);
    QTest::keyClick(&rows, Qt::Key_C, Qt::ControlModifier);
    const auto cell = [&](int row, int column) { return rows.item(row, column)->text(); };
    EXPECT_EQ(QApplication::clipboard()->text(),
              QStringLiteral("h [m]\ts [cm]\n%1\t%2\n%3\t%4\n").arg(cell(1, 1), cell(1, 2), cell(2, 1), cell(2, 2)));
    EXPECT_EQ(Child<QLabel>(*window, "toast").text().toStdString(), "Copied");
    QTest::keyClick(&rows, Qt::Key_Tab);
    EXPECT_FALSE(rows.hasFocus());
}

TEST_F(StudyWindowTest, AKeySavesWhatIsSeen) {
    const auto window = Open();
    AwaitRows(*window);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    std::string pressed;
    for (const char* name : {"cmdSheet", "cmdChart"}) {
        auto& button = Child<QPushButton>(*window, name);
        QObject::disconnect(&button, &QPushButton::clicked, nullptr, nullptr);
        QObject::connect(&button, &QPushButton::clicked, [&pressed, name] { pressed += name; });
    }
    for (const int tab : {kTableTab, kCurveTab}) {
        Child<QTabWidget>(*window, "tabs").setCurrentIndex(tab);
        QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(pressed, "cmdSheetcmdChart");
}

TEST_F(StudyWindowTest, BarsOfFormerBoxesSaySo) {
    const auto window = Open();
    AwaitRows(*window);
    Child<QTabWidget>(*window, "tabs").setCurrentIndex(kTornadoTab);
    const auto done = [&] { return !window->Work().Bars().empty() && window->Work().Doing() == StudyWork::Job::None; };
    ASSERT_TRUE(QTest::qWaitFor(done, kWorkPatience));
    const auto& state = Child<QLabel>(*window, "lblProgress");
    EXPECT_THAT(state.text().toStdString(), Not(HasSubstr("former")));
    TypeInto(*window, "txtSwing", "120");
    EXPECT_THAT(state.text().toStdString(), StartsWith("! for the former input"));
    EXPECT_TRUE(Child<QWidget>(*window, "tornado").isVisible());
    TypeInto(*window, "txtSwing", "20");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return done() && !state.text().contains(QLatin1String("former")); }, kWorkPatience));
}

TEST_F(StudyWindowTest, RandomSamplesGiveAHistogram) {
    const auto window = Open();
    AwaitRows(*window);
    auto& tabs = Child<QTabWidget>(*window, "tabs");
    EXPECT_FALSE(tabs.isTabEnabled(2));
    Choose(*window, "cboField(1)", 0);
    const auto& random = Child<QComboBox>(*window, "cboRandom(1)");
    Choose(*window, "cboRandom(1)", random.findText(QStringLiteral("h  "), Qt::MatchStartsWith));
    TypeInto(*window, "txtSamples", "200");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Work().Rows()->Wanted() == 200; }, kWorkPatience));
    AwaitRows(*window);
    EXPECT_TRUE(tabs.isTabEnabled(2));
    EXPECT_FALSE(tabs.isTabEnabled(0));
    EXPECT_THAT(Child<QLabel>(*window, "lblAnswer").text().toStdString(), StartsWith("200 samples: s on average "));
    EXPECT_THAT(Command(*window), HasSubstr("--random h=lognormal:"));
    EXPECT_EQ(WithoutStudy(window->Work().Rows()->Csv()), WithoutStudy(RunInShell(Command(*window))));
}

TEST_F(StudyWindowTest, ATornadoOfAllQuantitiesIsThatOfTheCommand) {
    const auto window = Open();
    AwaitRows(*window);
    Child<QTabWidget>(*window, "tabs").setCurrentIndex(3);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->Work().Bars().empty(); }, kWorkPatience))
        << window->Work().Trouble();
    EXPECT_THAT(Command(*window), HasSubstr("--tornado"));
    const StudyAnswer told(RunInShell(Command(*window)));
    ASSERT_EQ(told.Rows.size(), window->Work().Bars().size());
    for (std::size_t i = 0; i < told.Rows.size(); ++i)
        EXPECT_EQ(window->Work().Bars()[i].AtLow, std::stod(told.Cell(i, "at_low"))) << i;
    ASSERT_TRUE(window->Work().TornadoMiddle());
    EXPECT_FALSE(Child<QWidget>(*window, "tornado").accessibleDescription().isEmpty());
}

TEST_F(StudyWindowTest, CancelKeepsTheRowsSoFarAndSaysHowManyAreMissing) {
    const auto window = Open();
    AwaitRows(*window);
    TypeInto(*window, "txtCount(1)", "10000");
    Choose(*window, "cboField(2)", 1);
    ClickOn(*window, "cmdRun");
    const StudyWork& work = window->Work();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !work.Rows()->Lines().empty() && work.Rows()->Wanted() == 70000; },
                                kWorkPatience));
    ClickOn(*window, "cmdCancel");
    ASSERT_TRUE(QTest::qWaitFor([&] { return work.Doing() == StudyWork::Job::None; }, kWorkPatience));
    if (work.EndOfRows() == StudyWork::RowsEnd::Done) GTEST_SKIP() << "faster than the click";
    EXPECT_EQ(work.EndOfRows(), StudyWork::RowsEnd::Cancelled);
    const std::size_t rows = work.Rows()->Lines().size();
    EXPECT_EQ(Child<QLabel>(*window, "lblProgress").text().toStdString(),
              std::to_string(rows) + " of 70000 rows, " + std::to_string(70000 - rows) + " missing");
}

TEST_F(StudyWindowTest, TwoQuantitiesAreDrawnAsContourLines) {
    const auto window = Open();
    AwaitRows(*window);
    const auto& second = Child<QComboBox>(*window, "cboField(2)");
    Choose(*window, "cboField(2)", second.findText(QStringLiteral("z  "), Qt::MatchStartsWith));
    ClickOn(*window, "optDraw(2)");
    EXPECT_EQ(Child<QLineEdit>(*window, "txtCount(2)").text().toStdString(), "15");
    TypeInto(*window, "txtCount(1)", "6");
    TypeInto(*window, "txtCount(2)", "5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Work().Rows()->Wanted() == 30; }, kWorkPatience));
    AwaitRows(*window);
    auto& view = dynamic_cast<FieldChartView&>(Child<QWidget>(*window, "contour"));
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(Child<QTabWidget>(*window, "tabs").tabText(0).toStdString(), "Contour lines");
    ASSERT_TRUE(view.Chart());
    const StudyTable& rows = *window->Work().Rows();
    const int h = rows.PlaceOfField("h"), z = rows.PlaceOfField("z");
    for (const StudyLine& line : rows.Lines()) {
        const FieldPoint at{std::stod(line.Values[static_cast<std::size_t>(h)]),
                            std::stod(line.Values[static_cast<std::size_t>(z)])};
        const auto value = view.Chart()->Field.ValueAt(at);
        ASSERT_TRUE(value) << at.X << " " << at.Y;
        EXPECT_NEAR(*value, static_cast<double>(line.Numbers[0]), 1e-5 * *value);
    }
    auto& plot = Child<QWidget>(view, "fieldChart");
    EXPECT_THAT(plot.accessibleDescription().toStdString(), HasSubstr("; h from "));
    // By the keys: first the present value, then a step to the right.
    const auto& under = Child<QLabel>(view, "lblUnder");
    QTest::keyClick(&plot, Qt::Key_Right);
    EXPECT_THAT(under.text().toStdString(), StartsWith("h = "));
    const QString first = under.text();
    QTest::keyClick(&plot, Qt::Key_Right);
    EXPECT_NE(under.text(), first);
    EXPECT_THAT(under.text().toStdString(), HasSubstr(" m: s = "));
    // As curves again, and the same rows.
    ClickOn(*window, "optDraw(1)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Child<QWidget>(*window, "curve").isVisible(); }, kWorkPatience));
}

TEST_F(StudyWindowTest, TheCommandIsCopied) {
    const auto window = Open();
    AwaitRows(*window);
    ClickOn(*window, "cmdCopy");
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), Command(*window));
}

TEST_F(StudyWindowTest, AModifiedDialogSaysThatTheCommandWorksOnWhatIsSaved) {
    EXPECT_THAT(Child<QLabel>(*Open(), "lblInput").text().toStdString(), HasSubstr("as it is saved"));
    form_->Find("txt_h")->Text = "7";
    const auto window = Open();
    EXPECT_THAT(Child<QLabel>(*window, "lblInput").text().toStdString(), StartsWith("! "));
    EXPECT_EQ(Child<QLineEdit>(*window, "txtFrom(1)").text().toStdString(), "3.5");
    AwaitRows(*window);
    EXPECT_NE(WithoutStudy(window->Work().Present()->Csv())[1], "");
}

// The way from the dialog, with real clicks.
TEST_F(StudyWindowTest, TheDialogsButtonOpensTheStudyOfTheBoxThatHadTheFocus) {
    SetCurrentHost(&screen_);
    FormView view(*form_, nullptr);
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    // One of two buttons: in the head of the answer, and in its absence among those of the dialog.
    auto& head = Child<QPushButton>(view, "answerStudy");
    const auto& below = Child<QPushButton>(view, "cmdStudy");
    EXPECT_TRUE(head.isVisible() && !below.isVisible());
    QTest::keyClick(&view, Qt::Key_F8);
    EXPECT_TRUE(!head.isVisible() && below.isVisible());
    QTest::keyClick(&view, Qt::Key_F8);
    EXPECT_TRUE(head.isVisible() && !below.isVisible());
    form_->Focus = form_->Find("txt_h");
    std::string first;
    QTimer::singleShot(0, &view, [&] {
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }, kWorkPatience));
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        EXPECT_EQ(modal->objectName().toStdString(), "studyWindow");
        first = Child<QComboBox>(*modal, "cboField(1)").currentText().toStdString();
        ClickOn(*modal, "cmdok");
    });
    ClickOn(view, "answerStudy");
    EXPECT_THAT(first, StartsWith("h  "));
    // A box that is wrong is told, and there is no study.
    form_->Find("txt_h")->Text = "x";
    view.Refresh();
    std::string told;
    QTimer::singleShot(0, &view, [&] {
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }, kWorkPatience));
        told = QApplication::activeModalWidget()->objectName().toStdString();
        QApplication::activeModalWidget()->close();
    });
    ClickOn(view, "answerStudy");
    EXPECT_EQ(told, "messageBox");
    SetCurrentHost(&host);
}

TEST_F(StudyWindowTest, EveryProblemHasItsStudyAndStressesTheirPoints) {
    for (int problem = 1; problem <= 10; ++problem) {
        const auto form = LoadedDialog(problem);
        FormView view(*form, nullptr);
        EXPECT_NE(view.findChild<QPushButton*>(QStringLiteral("cmdStudy")), nullptr) << problem;
        EXPECT_EQ(view.findChild<QPushButton*>(QStringLiteral("cmdPoints")) != nullptr, problem <= 3) << problem;
    }
}

}  // namespace
}  // namespace lithmark::tests
