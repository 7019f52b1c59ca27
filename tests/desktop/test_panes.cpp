// F6 goes from one part of a window to the next and back to where the focus was in it.
#include <gmock/gmock.h>

#include <QPlainTextEdit>
#include <QTableWidget>

#include "../ui/FormTest.h"
#include "ScreenRun.h"
#include "desktop/FormView.h"
#include "desktop/TableEditorDialog.h"
#include "ui/frmResultTools.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

class PaneTest : public FormTest {
  protected:
    static std::string After(Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        return QApplication::focusWidget()->objectName().toStdString();
    }
    static void Open(QWidget& window) {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
};

TEST_F(PaneTest, OfADialogAreItsFieldsItsAnswerAndItsButtons) {
    Session.ProblemType = Problem::SoilStress;
    frmstress form;
    form.Load();
    FormView view(form, nullptr);
    Open(view);
    Child<QWidget>(view, "txt_A").setFocus();
    EXPECT_EQ(After(), "answerStudy");
    EXPECT_EQ(After(), "cmdSave");
    Child<QWidget>(view, "cmdHelp").setFocus();
    EXPECT_EQ(After(), "txt_A") << "where the focus was";
    EXPECT_EQ(Child<QLineEdit>(view, "txt_A").selectedText(), Child<QLineEdit>(view, "txt_A").text());
    EXPECT_EQ(After(Qt::ShiftModifier), "cmdHelp");
    // A box that is gone does not get the focus back.
    EXPECT_EQ(After(), "txt_A");
    EXPECT_EQ(After(), "answerStudy");
    EXPECT_EQ(After(), "cmdHelp");
    form.SelectOption(form.optLoadType[0]);
    form.optLoadType_Click();
    view.Refresh();
    EXPECT_EQ(After(), "optLoadType(0)");
}

TEST_F(PaneTest, OfTheResultsAreTheReportAndTheWaysOut) {
    Session.ProblemType = Problem::SoilStress;
    Session.ResultText = "Sigma_z = 1\r\n";
    frmResultTools form;
    form.Load();
    FormView view(form, nullptr);
    Open(view);
    Child<QWidget>(view, "txtResult").setFocus();
    EXPECT_EQ(After(Qt::ShiftModifier), "txtFind");
    EXPECT_EQ(After(), "txtResult");
    std::string seen;
    for (int i = 0; i < 4; ++i) seen += After() + " ";
    EXPECT_THAT(seen, ::testing::HasSubstr("cmdPrinter"));
    EXPECT_THAT(seen, ::testing::HasSubstr("txtResult"));
}

TEST_F(PaneTest, OfATableAreItsRowsAndItsButtons) {
    TableEdit table;
    table.Columns = {{"t\n[1]\n[-]"}, {"p\n[2]\n[%]"}};
    table.Rows = {{"1", "2"}};
    TableEditorDialog editor(table, nullptr);
    Open(editor);
    Child<QWidget>(editor, "grid").setFocus();
    EXPECT_EQ(After(), "cmdAddRow");
    EXPECT_EQ(After(), "grid");
}

}  // namespace
}  // namespace lithmark::tests
