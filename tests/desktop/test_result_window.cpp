// What the result window has around the report: find, save as a document, a word that something was copied.
#include <QComboBox>
#include <QFileDialog>
#include <QPlainTextEdit>

#include "ScreenRun.h"
#include "report/Notices.h"
#include "report/StepTables.h"
#include "support/Matchers.h"
#include "ui/frmResultTools.h"

namespace lithmark::tests {
namespace {

class ResultWindow : public ::testing::Test {
  protected:
    ResultWindow() : run_(folder_.Dir()) {
        run_.Start();
        Session.ProblemType = Problem::RaftDisplacement;
        Session.WorkDir = folder_.Dir();
        Session.WorkName = "Silo";
        Session.ResultText = "Sigma_z = 1\r\nTau = 2\r\nSigma_z = 3\r\n";
        Notices().Clear();
        Steps().Clear();
    }
    ~ResultWindow() override {
        Notices().Clear();
        Steps().Clear();
    }
    void Show(const std::function<void(QWidget&)>& step) {
        run_.In("frmResultTools", [&](QWidget& viewer) {
            step(viewer);
            ClickOn(viewer, "cmdok");
        });
        frmResultTools form;
        CurrentHost().ShowForm(form);
    }
    // Saves under a name by the entry of the list of kinds.
    void Save(QWidget& viewer, const std::string& name, int kind) {
        run_.In("QFileDialog", [&, name, kind](QWidget& window) {
            auto& dialog = dynamic_cast<QFileDialog&>(window);
            dialog.selectNameFilter(dialog.nameFilters().at(kind));
            emit dialog.filterSelected(dialog.selectedNameFilter());
            auto& box = Child<QLineEdit>(window, "fileNameEdit");
            EXPECT_EQ(box.text().section(QLatin1Char('.'), 0, 0), "Silo");
            box.setText(QString::fromStdString(folder_ / name));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        BackTo(viewer);
        ClickOn(viewer, "cmdSaveAs");
    }

    TestFolder folder_;
    ScreenRun run_;
};

TEST_F(ResultWindow, FindTellsWhichOfHowManyPlacesIsShown) {
    Show([](QWidget& viewer) {
        auto& box = Child<QLineEdit>(viewer, "txtFind");
        auto& place = Child<QLabel>(viewer, "lblFound");
        auto& report = Child<QPlainTextEdit>(viewer, "txtResult");
        QTest::keyClick(&report, Qt::Key_F, Qt::ControlModifier);
        EXPECT_EQ(QApplication::focusWidget(), &box);
        QTest::keyClicks(&box, "Sigma");
        // Found letter by letter.
        EXPECT_EQ(place.text(), "1 of 2");
        EXPECT_EQ(report.textCursor().selectedText(), "Sigma");
        EXPECT_EQ(report.textCursor().blockNumber(), 0);
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(place.text(), "2 of 2");
        EXPECT_EQ(report.textCursor().blockNumber(), 2);
        QTest::keyClick(&report, Qt::Key_F3);
        EXPECT_EQ(place.text(), "1 of 2");
        QTest::keyClick(&report, Qt::Key_F3, Qt::ShiftModifier);
        EXPECT_EQ(place.text(), "2 of 2");
        ClickOn(viewer, "cmdFindFormer");
        EXPECT_EQ(place.text(), "1 of 2");
        box.selectAll();
        QTest::keyClicks(&box, "Gamma");
        EXPECT_EQ(place.text(), "not found");
        box.clear();
        EXPECT_EQ(place.text(), "");
    });
}

TEST_F(ResultWindow, TheReportIsSavedAsTheChosenKindOfDocument) {
    Notices().Raise(NoticeId::RaftTension, 907003_text, {"-121 kN/m²", "12.5 %", "314 kN/m²"});
    Show([&](QWidget& viewer) {
        Save(viewer, "one", 0);
        Save(viewer, "two", 1);
        Save(viewer, "three", 2);
        Save(viewer, "four", 3);
        Save(viewer, "five.html", 0);  // the ending that was typed goes before the kind
    });
    EXPECT_THAT(ReadBytes(folder_ / "one.pdf"), StartsWith("%PDF-"));
    EXPECT_THAT(ReadBytes(folder_ / "two.rtf"), StartsWith("{\\rtf"));
    EXPECT_THAT(ReadBytes(folder_ / "three.html"), HasSubstr("</html>"));
    EXPECT_EQ(ReadBytes(folder_ / "five.html"), ReadBytes(folder_ / "three.html"));
    const std::string text = ReadBytes(folder_ / "four.txt");
    EXPECT_THAT(text, StartsWith(Session.ResultText));
    EXPECT_THAT(text, HasSubstr("-121 kN/m²")) << "the box of notices is ticked";
}

TEST_F(ResultWindow, TheTablesForACheckByHandAreSavedAloneWhereTheyAreShown) {
    StepTable& table = Steps().Add("Sublayers");
    table.AddColumn(std::string("Sublayer"), "i");
    table.AddColumn(std::string("Settlement"), "ds", "[cm]");
    table.Rows = {{1.0, 3.5}, {2.0, 0.25}};
    table.AddSums({1});
    Show([&](QWidget& viewer) {
        Save(viewer, "zero.csv", 3);  // not ticked: a name of the user's own for the text
        ClickOn(viewer, "chkTables");
        Save(viewer, "one", 4);
        Save(viewer, "two", 5);
    });
    EXPECT_EQ(ReadBytes(folder_ / "zero.csv"), Session.ResultText);
    EXPECT_THAT(ReadBytes(folder_ / "one.xlsx"), StartsWith("PK"));
    EXPECT_EQ(ReadBytes(folder_ / "two.csv"),
              "Sublayers\r\nSublayer i,Settlement ds [cm]\r\n1,3.5\r\n2,0.25\r\nSum,3.75\r\n");
}

TEST_F(ResultWindow, AWordTellsThatTheReportWasCopiedAndGoes) {
    Show([](QWidget& viewer) {
        ClickOn(viewer, "cmdClipboard");
        auto& toast = Child<QLabel>(viewer, "toast");
        EXPECT_TRUE(toast.isVisible());
        EXPECT_EQ(toast.text(), "Copied");
        EXPECT_TRUE(viewer.rect().contains(toast.geometry()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return viewer.findChild<QLabel*>("toast") == nullptr; }, 4000));
    });
}

}  // namespace
}  // namespace lithmark::tests
