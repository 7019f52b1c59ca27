// What is said at once to people who hear the program: a wrong entry as it is left, a cell that cannot be taken, a word
// that comes and goes.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QFocusEvent>
#include <QTableWidget>

#include "EveryWindow.h"
#include "ScreenRun.h"
#include "core/Catalogue.h"
#include "desktop/Toast.h"
#include "desktop/answer/AnswerView.h"
#include "support/Matchers.h"
#include "ui/ProblemForms.h"
#include "ui/frmNumberFormats.h"
#include "ui/frmPreferences.h"
#include "ui/frmResultTools.h"

namespace lithmark::tests {
namespace {

struct Alert {
    std::string Object, Name, Description;
    QAccessible::Role Role;
};

std::vector<Alert>& Heard() {
    static std::vector<Alert> alerts;
    return alerts;
}

// In the place of a screen reader: keeps the alerts.
void Hear(QAccessibleEvent* event) {
    if (event->type() != QAccessible::Alert) return;
    const QAccessibleInterface* said = event->accessibleInterface();
    ASSERT_NE(said, nullptr);
    Heard().push_back({event->object()->objectName().toStdString(), said->text(QAccessible::Name).toStdString(),
                       said->text(QAccessible::Description).toStdString(), said->role()});
}

class AlertTest : public EveryWindow {
  protected:
    AlertTest() : before_(QAccessible::installUpdateHandler(Hear)) {
        Wake(true);
        Heard().clear();
    }
    ~AlertTest() override {
        Wake(false);
        QAccessible::installUpdateHandler(before_);
    }
    static void Await(QWidget& window) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        Heard().clear();
    }
    static std::vector<Alert> Taken() { return std::exchange(Heard(), {}); }

  private:
    // Nothing is told as long as nobody is there to hear it.
    static void Wake(bool awake) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(awake);
        ASSERT_EQ(QAccessible::isActive(), awake);
    }
    const QAccessible::UpdateHandler before_;
};

TEST_F(AlertTest, AWrongBoxIsToldOnceAsItIsLeft) {
    for (const Language language : kLanguages) {
        StartIn(language);
        Session.ProblemType = Problem::SoilStrain;
        frmstress form;
        form.Load();
        FormView view(form, nullptr);
        Await(view);
        TypeInto(view, "txt_Nue", "0.6");
        EXPECT_THAT(Taken(), IsEmpty()) << "while one types";
        QTest::keyClick(&Child<QLineEdit>(view, "txt_Nue"), Qt::Key_Tab);
        const std::vector<Alert> told = Taken();
        ASSERT_THAT(told, SizeIs(1));
        EXPECT_EQ(told[0].Role, QAccessible::AlertMessage);
        EXPECT_EQ(told[0].Object, "reason");
        EXPECT_EQ(told[0].Name, view.ShownMark(form.txt_Nue));
        EXPECT_THAT(told[0].Name, HasSubstr("0.5"));
        TypeInto(view, "txt_Nue", "0.3");
        QTest::keyClick(&Child<QLineEdit>(view, "txt_Nue"), Qt::Key_Tab);
        EXPECT_THAT(Taken(), IsEmpty());
    }
}

// An entry that is no number yet is told when it is left, and not to somebody who looks at another window.
TEST_F(AlertTest, AnUnfinishedBoxIsToldAsItIsLeftForAnotherBox) {
    Session.ProblemType = Problem::SoilStress;
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    Await(view);
    TypeInto(view, "txt_z", "-");
    auto& box = Child<QLineEdit>(view, "txt_z");
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent left(QEvent::FocusOut, reason);
        QApplication::sendEvent(&box, &left);
    }
    EXPECT_THAT(Taken(), IsEmpty());
    QTest::keyClick(&box, Qt::Key_Tab);
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Name, view.ShownMark(form.txt_z));
    EXPECT_NE(told[0].Name, "");
}

// Every dialog of a problem: each box that a text can spoil tells it.
TEST_F(AlertTest, EveryBoxOfEveryProblemTells) {
    int boxes = 0;
    for (const ProblemRow& row : ProblemCatalogue()) {
        if (!HasProblemForm(row.ProblemType)) continue;
        StartIn(Language::English);
        Session.ProblemType = row.ProblemType;
        const std::unique_ptr<ProblemForm> form = MakeProblemForm(row.ProblemType);
        form->Reopen();
        form->Load();
        FormView view(*form, nullptr);
        Await(view);
        for (Control* control : form->Controls()) {
            auto* box = qobject_cast<QLineEdit*>(view.WidgetOf(*control));
            if (box == nullptr || !box->isVisible() || !box->isEnabled()) continue;
            const std::string former = control->Text;
            TypeInto(view, control->Name.c_str(), "ab");
            const std::string mark = view.ShownMark(*control);
            Heard().clear();
            QTest::keyClick(box, Qt::Key_Tab);
            std::vector<std::string> names;
            for (const Alert& alert : Taken()) names.push_back(alert.Name);
            if (mark.empty())
                EXPECT_THAT(names, IsEmpty()) << form->Name << ": " << control->Name;
            else
                EXPECT_THAT(names, ElementsAre(mark)) << form->Name << ": " << control->Name;
            boxes += mark.empty() ? 0 : 1;
            TypeInto(view, control->Name.c_str(), former);
        }
    }
    EXPECT_GT(boxes, 60);
}

// In a dialog without a line for reasons the box speaks itself, and its description has the reason.
TEST_F(AlertTest, ABoxSpeaksItselfWhereNothingElseDoes) {
    frmPreferences preferences;
    preferences.Load();
    FormView view(preferences, nullptr);
    Await(view);
    TypeInto(view, "txtDx", "-3");
    QTest::keyClick(&Child<QLineEdit>(view, "txtDx"), Qt::Key_Tab);
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Object, "txtDx");
    EXPECT_THAT(told[0].Description, HasSubstr("error: "));
}

TEST_F(AlertTest, APatternThatIsNoneIsTold) {
    frmNumberFormats formats;
    formats.Load();
    FormView view(formats, nullptr);
    Await(view);
    TypeInto(view, "txtFormat(5)", "1.00");
    EXPECT_THAT(Taken(), IsEmpty());
    QTest::keyClick(&Child<QLineEdit>(view, "txtFormat(5)"), Qt::Key_Tab);
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Object, "lblFault");
    EXPECT_EQ(told[0].Role, QAccessible::AlertMessage);
    EXPECT_EQ(told[0].Name, formats.MarkOf(formats.txtFormat[5]));
    EXPECT_THAT(Child<QLineEdit>(view, "txtFormat(5)").accessibleDescription().toStdString(),
                EndsWith("; error: " + told[0].Name));
    TypeInto(view, "txtFormat(5)", "0.00");
    EXPECT_EQ(Child<QLineEdit>(view, "txtFormat(5)").accessibleDescription().toStdString(), "5.00 m");
}

TEST_F(AlertTest, ACellThatCannotBeTakenIsTold) {
    TableEdit table;
    table.Columns = {{"Time\nN\n[days]", TableEdit::Kind::Whole, 32000, 1}, {"Load\nP\n[kN]"}};
    table.Rows = {{"1", "19"}, {"x", "42"}};
    TableEditorDialog editor(table, nullptr);
    Await(editor);
    auto& grid = Child<QTableWidget>(editor, "grid");
    grid.item(1, 0)->setText("2");
    EXPECT_THAT(Taken(), IsEmpty());
    grid.item(0, 0)->setText("1.5");
    std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Role, QAccessible::AlertMessage);
    EXPECT_THAT(told[0].Name, StartsWith("Row 1, Time - "));
    grid.item(1, 1)->setText("43");
    EXPECT_THAT(Taken(), IsEmpty()) << "nothing new is wrong";
    grid.item(0, 0)->setText("1");
    EXPECT_THAT(Taken(), IsEmpty());
}

TEST_F(AlertTest, AWordThatComesAndGoesIsTold) {
    QWidget window;
    Await(window);
    ShowToast(window, QStringLiteral("Copied"));
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Role, QAccessible::AlertMessage);
    EXPECT_EQ(told[0].Name, "Copied");
}

// "2 of 3", by the keys that go on.
TEST_F(AlertTest, ThePlaceThatIsFoundIsTold) {
    Session.ProblemType = Problem::SoilStress;
    Session.ResultText = "Sigma_z = 1\r\nSigma_x = 2\r\nSigma_y = 3\r\n";
    frmResultTools form;
    form.Load();
    FormView view(form, nullptr);
    Await(view);
    TypeInto(view, "txtFind", "Sigma");
    EXPECT_THAT(Taken(), IsEmpty()) << "while one types";
    QTest::keyClick(&view, Qt::Key_F3);
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Object, "lblFound");
    EXPECT_EQ(told[0].Role, QAccessible::AlertMessage);
    EXPECT_EQ(told[0].Name, "2 of 3");
    Session.ResultText.clear();
}

// In the windows of studies too: not while one types, once as the box is left.
TEST_F(AlertTest, ABoxOfAStudyIsToldAsItIsLeft) {
    const auto form = LoadedDialog(Problem::SoilStress);
    StudyWindow study(SubjectOf(*form, "z"), nullptr);
    Await(study);
    TypeInto(study, "txtCount(1)", "0");
    EXPECT_THAT(Taken(), IsEmpty()) << "while one types";
    QTest::keyClick(&Child<QLineEdit>(study, "txtCount(1)"), Qt::Key_Tab);
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Object, "lblAnswer");
    EXPECT_EQ(told[0].Name, Child<QLineEdit>(study, "txtCount(1)").toolTip().toStdString());
    TypeInto(study, "txtCount(1)", "5");
    QTest::keyClick(&Child<QLineEdit>(study, "txtCount(1)"), Qt::Key_Tab);
    EXPECT_THAT(Taken(), IsEmpty());
}

TEST_F(AlertTest, APointThatCannotBeTakenIsTold) {
    const auto form = LoadedDialog(Problem::SoilStress);
    PointsWindow points(SubjectOf(*form, "z"), nullptr);
    Await(points);
    auto& grid = Child<QTableWidget>(points, "grid");
    grid.item(0, 0)->setText("1.5");
    EXPECT_THAT(Taken(), IsEmpty());
    grid.item(0, 2)->setText("ab");
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Object, "lblNote");
    EXPECT_THAT(told[0].Name, StartsWith("Row 1, z: "));

    PointsTable table = points.Points();
    PointsFill fill(table, PointsFill::Kind::Grid, nullptr);
    Await(fill);
    TypeInto(fill, "txtFrom(3)", "-");
    auto& box = Child<QLineEdit>(fill, "txtFrom(3)");
    EXPECT_TRUE(box.toolTip().isEmpty()) << "not ended";
    TypeInto(fill, "txtFrom(3)", "-1");
    EXPECT_FALSE(box.toolTip().isEmpty());
    EXPECT_THAT(Taken(), IsEmpty()) << "while one types";
    QTest::keyClick(&box, Qt::Key_Tab);
    const std::vector<Alert> said = Taken();
    ASSERT_THAT(said, SizeIs(1));
    EXPECT_EQ(said[0].Name, box.toolTip().toStdString());
    EXPECT_THAT(box.accessibleDescription().toStdString(), StartsWith("z, m, 0 or more; error: "));
}

// The answer that was asked for is told, and no other one.
TEST_F(AlertTest, TheAnswerThatWasAskedForIsTold) {
    Session.ProblemType = Problem::SoilStress;
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    Await(view);
    auto& answer = dynamic_cast<AnswerView&>(Child<QWidget>(view, "answer"));
    constexpr int kAnswerThere = 60000;  // ms
    const auto there = [&] { return answer.Model().State() == AnswerState::Now && answer.Model().Settled(); };
    ASSERT_TRUE(QTest::qWaitFor(there, kAnswerThere));
    EXPECT_THAT(Taken(), IsEmpty());
    QTest::keyClick(&view, Qt::Key_F5);
    ASSERT_TRUE(QTest::qWaitFor([] { return !Heard().empty(); }, kAnswerThere));
    const std::vector<Alert> told = Taken();
    ASSERT_THAT(told, SizeIs(1));
    EXPECT_EQ(told[0].Object, "answerMark");
    EXPECT_EQ(told[0].Role, QAccessible::AlertMessage);
    EXPECT_THAT(told[0].Name, StartsWith("σ z, "));
    // It is not read as the present answer later on.
    TypeInto(view, "txt_P", "130");
    ASSERT_TRUE(QTest::qWaitFor(there, kAnswerThere));
    EXPECT_THAT(Taken(), IsEmpty());
    EXPECT_EQ(Child<QLabel>(answer, "answerMark").accessibleName(), QString());
}

// A screen reader that hears every key of a box would be told of each of its neighbours too.
TEST_F(AlertTest, AKeyTellsNoNamesAnew) {
    Session.ProblemType = Problem::SoilStress;
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    Await(view);
    static int changes;
    changes = 0;
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (event->type() == QAccessible::NameChanged && qobject_cast<QLineEdit*>(event->object()) != nullptr)
            ++changes;
        if (event->type() == QAccessible::DescriptionChanged &&
            event->object()->objectName() != QLatin1String("txt_P") &&
            qobject_cast<QLineEdit*>(event->object()) != nullptr)
            ++changes;
    });
    TypeInto(view, "txt_P", "130");
    QAccessible::installUpdateHandler(Hear);
    EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace lithmark::tests
