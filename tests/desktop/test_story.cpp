// The way of a user from the start to the report and back to the saved project, on the real windows.
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "ScreenRun.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

// Boussinesq (1885) on the axis: 3 Q / (2 pi z^2) = 3 x 1000 / (2 pi x 4) = 119.37 kN/m2.
constexpr const char* kStressOnTheAxis = "= 119.4";

class StoryTest : public ::testing::Test {
  protected:
    StoryTest() {
        std::filesystem::create_directory(folder_ / "settings");
        std::filesystem::create_directory(folder_ / "data");
        // Plain files, so that the saved bytes can be looked at.
        WriteBytes(folder_ / "settings/STEU", folder_ / "data/" + "\r\n0\r\n");
    }
    std::string Settings() const { return folder_ / "settings/"; }
    std::string Data(const std::string& name) const { return folder_ / ("data/" + name); }

    TestFolder folder_;
};

void ChooseInFileDialog(QWidget& dialog, const std::string& path) {
    auto& name = Child<QLineEdit>(dialog, "fileNameEdit");
    name.setText(QString::fromStdString(path));
    QTest::keyClick(&name, Qt::Key_Return);
}

TEST_F(StoryTest, FromANewProjectToItsReportAndBack) {
    {
        ScreenRun run(Settings());
        run.Start();
        EXPECT_TRUE(run.Window().isVisible());
        EXPECT_TRUE(Child<QWidget>(run.Window(), "startPage").isVisible());

        run.In("frmProblemType", [](QWidget& form) {
            TypeInto(form, "txtAuftr", "GT-7");
            TypeInto(form, "txtDatum", "2026-03-02");
            TypeInto(form, "txtProj", "Crane runway");
            auto& list = Child<QComboBox>(form, "cmbItem");
            EXPECT_EQ(list.currentIndex(), 0);
            QTest::keyClick(&list, Qt::Key_Down);
            QTest::keyClick(&list, Qt::Key_Up);
            EXPECT_EQ(list.currentIndex(), 0);
            ClickOn(form, "cmdSave");
        });
        run.In("QFileDialog", [&](QWidget& dialog) { ChooseInFileDialog(dialog, Data("Crane")); });
        run.Menu("mnuNewProject");
        EXPECT_EQ(run.Window().windowTitle(), "Lithmark - [Crane]");
        EXPECT_EQ(ReadBytes(Data("Crane.PO3")), "Version 9\r\n1\r\n0\r\n");
        EXPECT_EQ(ReadBytes(Data("Crane.AUF")), "GT-7\r\n2026-03-02\r\nCrane runway\r\n");
        EXPECT_TRUE(Child<QWidget>(run.Window(), "projectPage").isVisible());
        EXPECT_EQ(Child<QLabel>(run.Window(), "projectOrder").text(), "GT-7");

        run.In("frmstress", [](QWidget& form) {
            ClickOn(form, "optLoadType(0)");
            EXPECT_TRUE(Child<QWidget>(form, "txt_Q").isVisible());
            EXPECT_FALSE(Child<QWidget>(form, "txt_A").isVisible());
            TypeInto(form, "txt_Q", "1000");
            TypeInto(form, "txt_x", "0");
            TypeInto(form, "txt_y", "0");
            TypeInto(form, "txt_z", "2");
            TypeInto(form, "txt_Nue", "0.3");
            EXPECT_TRUE(form.isWindowModified());
            ClickOn(form, "cmdSave");
            EXPECT_FALSE(form.isWindowModified());
            ClickOn(form, "cmdResult");
            ClickOn(form, "cmdok");
        });
        run.In("frmResultTools", [](QWidget& viewer) {
            const QString shown = Child<QPlainTextEdit>(viewer, "txtResult").toPlainText();
            EXPECT_THAT(shown.toStdString(), HasSubstr("Sigma_z"));
            EXPECT_THAT(shown.toStdString(), HasSubstr(kStressOnTheAxis));
            EXPECT_THAT(shown.toStdString(), HasSubstr("Crane runway"));
            ClickOn(viewer, "cmdClipboard");
            EXPECT_EQ(QApplication::clipboard()->text().toStdString(), Session.ResultText);
            ClickOn(viewer, "cmdok");
        });
        run.Menu("mnuProblem(1)");
        EXPECT_EQ(ReadBytes(Data("Crane.SSD")), "0\r\n0\r\n2\r\n1000\r\n100\r\n5\r\n5\r\n.3\r\n5000\r\n1\r\n");
        EXPECT_TRUE(run.Window().MenuAction("mnuProblem(1)")->isChecked());

        run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
        run.Menu("mnuFileExit");
        EXPECT_TRUE(run.Frame().Ended);
        EXPECT_FALSE(run.Window().isVisible());
    }
    // Another day: the project on the command line, its path in quotes.
    ScreenRun run(Settings(), "\"" + Data("Crane.PO3") + "\"");
    run.Start();
    EXPECT_EQ(run.Window().windowTitle(), "Lithmark - [Crane]");
    run.In("frmstress", [](QWidget& form) {
        EXPECT_TRUE(Child<QRadioButton>(form, "optLoadType(0)").isChecked());
        EXPECT_EQ(Child<QLineEdit>(form, "txt_z").text(), "2.00");
        ClickOn(form, "cmdResult");
        ClickOn(form, "cmdok");
    });
    run.In("frmResultTools", [](QWidget& viewer) {
        EXPECT_THAT(Child<QPlainTextEdit>(viewer, "txtResult").toPlainText().toStdString(),
                    HasSubstr(kStressOnTheAxis));
        QTest::keyClick(&viewer, Qt::Key_Escape);
    });
    run.Menu("mnuProblem(1)");
}

TEST_F(StoryTest, WhatWasTypedAndNotSavedOutlivesTheWindow) {
    WriteBytes(Data("Old.PO3"), "Version 9\r\n1\r\n0\r\n");
    WriteBytes(Data("Old.AUF"), "O\r\nD\r\nP\r\n");
    const std::string saved = "0\r\n0\r\n2\r\n1000\r\n100\r\n5\r\n5\r\n.3\r\n5000\r\n1\r\n";
    WriteBytes(Data("Old.SSD"), saved);
    const std::string drafts = Settings() + "state/drafts";
    const auto kept = [&] { return std::filesystem::exists(drafts) && !std::filesystem::is_empty(drafts); };
    const auto day = [&](bool offered, const std::function<void(QWidget&)>& doIt) {
        ScreenRun run(Settings(), Data("Old.PO3"));
        run.Start();
        if (offered) run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
        run.In("frmstress", doIt);
        run.Menu("mnuProblem(1)");
    };
    day(false, [&](QWidget& form) {
        EXPECT_FALSE(kept());
        TypeInto(form, "txt_z", "4.5");
        EXPECT_TRUE(QTest::qWaitFor(kept, 30000));  // the program may end from here on in any way
        TypeInto(form, "txt_z", "4.75");
        ClickOn(form, "cmdok");  // before a second has gone by, too
    });
    EXPECT_EQ(ReadBytes(Data("Old.SSD")), saved);
    day(true, [&](QWidget& form) {
        EXPECT_EQ(Child<QLineEdit>(form, "txt_z").text(), "4.75");
        EXPECT_TRUE(form.isWindowModified());
        ClickOn(form, "cmdSave");
        ClickOn(form, "cmdok");
    });
    EXPECT_FALSE(kept());
    EXPECT_THAT(ReadBytes(Data("Old.SSD")), HasSubstr("\r\n4.75\r\n"));
    day(false, [](QWidget& form) { ClickOn(form, "cmdok"); });
}

TEST_F(StoryTest, ANameWithoutItsEndingIsAskedAboutBeforeTheOldFileIsReplaced) {
    WriteBytes(Data("Crane.PO3"), "Version 9\r\n1\r\n0\r\n");
    ScreenRun run(Settings());
    run.Start();
    run.In("QFileDialog", [&](QWidget& dialog) { ChooseInFileDialog(dialog, Data("Crane")); });
    // Qt's own question, which has no name.
    run.In("", [](QWidget& box) {
        auto* question = qobject_cast<QMessageBox*>(&box);
        ASSERT_NE(question, nullptr);
        EXPECT_THAT(question->text().toStdString(), HasSubstr("Crane.PO3"));
        question->button(QMessageBox::No)->click();
    });
    run.In("QFileDialog", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(CurrentHost().ChooseFileToSave("Save", Data(""), "", "PO3"), std::nullopt);
}

TEST_F(StoryTest, TheWindowIsThereWithinASecond) {
    QElapsedTimer clock;
    clock.start();
    ScreenRun run(Settings());
    run.Start();
    EXPECT_TRUE(run.Window().isVisible());
    EXPECT_LT(clock.elapsed(), 1000);
    RecordProperty("milliseconds", std::to_string(clock.elapsed()));
}

TEST_F(StoryTest, TheStartPageOpensARecentProject) {
    WriteBytes(Data("Old.PO3"), "Version 9\r\n1\r\n0\r\n");
    WriteBytes(Data("Old.AUF"), "O\r\nD\r\nP\r\n");
    WriteBytes(Data("Old.SSD"), "0\r\n0\r\n2\r\n1000\r\n100\r\n5\r\n5\r\n.3\r\n5000\r\n1\r\n");
    {
        ScreenRun run(Settings(), Data("Old.PO3"));
        run.Start();
        ASSERT_TRUE(run.Frame().ProjectOpen());
        run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
        run.Menu("mnuFileExit");
    }
    ScreenRun run(Settings());
    run.Start();
    EXPECT_FALSE(run.Frame().ProjectOpen());
    ClickOn(run.Window(), "recent(1)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.Frame().ProjectOpen(); }));
    EXPECT_TRUE(Child<QWidget>(run.Window(), "projectPage").isVisible());
    EXPECT_EQ(Session.ProjectName, "Old");
}

TEST_F(StoryTest, APathThatDoesNotExistLeavesTheProgramWithoutAProject) {
    ScreenRun run(Settings(), Data("Nowhere.PO3"));
    run.Start();
    EXPECT_FALSE(run.Frame().ProjectOpen());
    EXPECT_TRUE(Child<QWidget>(run.Window(), "startPage").isVisible());
    EXPECT_EQ(run.Window().windowTitle(), "Lithmark - [Untitled]");
}

TEST_F(StoryTest, ClosingTheWindowAsksAndNoKeepsIt) {
    ScreenRun run(Settings());
    run.Start();
    run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdNo"); });
    EXPECT_FALSE(run.Window().close());
    EXPECT_FALSE(run.Frame().Ended);
    EXPECT_TRUE(run.Window().isVisible());
    run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
    EXPECT_TRUE(run.Window().close());
    EXPECT_TRUE(run.Frame().Ended);
}

TEST_F(StoryTest, AMissingFileIsAskedAboutAndTheProjectIsOpenedAllTheSame) {
    WriteBytes(Data("Bare.PO3"), "Version 9\r\n1\r\n0\r\n");
    ScreenRun run(Settings(), Data("Bare.PO3"));
    run.In("frmProjectCheck", [](QWidget& form) {
        EXPECT_THAT(Child<QPlainTextEdit>(form, "txtProjectCheck").toPlainText().toStdString(), Not(HasSubstr("?")));
        EXPECT_FALSE(Child<QPlainTextEdit>(form, "txtProjectCheck").toPlainText().trimmed().isEmpty());
        ClickOn(form, "cmdok");
    });
    run.Start();
    EXPECT_TRUE(run.Frame().ProjectOpen());
    EXPECT_EQ(Child<QLabel>(run.Window(), "projectState").text(),
              "The data of this calculation have not been entered yet.");
}

}  // namespace
}  // namespace lithmark::tests
