// The frame's window: menu, bars, their layout, and its direction.
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTimer>
#include <QToolBar>

#include "ScreenRun.h"
#include "desktop/SplashView.h"
#include "desktop/TableEditorDialog.h"
#include "support/Matchers.h"
#include "ui/frmSplash.h"
#include "ui/model/UnsavedTable.h"

namespace lithmark::tests {
namespace {

class FrameViewTest : public ::testing::Test {
  protected:
    FrameViewTest() { std::filesystem::create_directory(folder_ / "settings"); }
    std::string Settings() const { return folder_ / "settings/"; }
    TestFolder folder_;
};

TEST_F(FrameViewTest, EveryEntryOfTheModelHasItsAction) {
    ScreenRun run(Settings());
    run.Start();
    std::vector<std::string> failing;
    for (const MenuItem& item : run.Frame().Menu.Items()) {
        if (!run.Frame().Menu.Children(item.Key).empty()) continue;
        const QAction* action = run.Window().MenuAction(item.Key);
        if (action == nullptr || action->isVisible() != item.Visible || action->isSeparator() != item.Separator() ||
            (!item.Separator() && item.Visible &&
             action->isEnabled() != (item.Enabled && run.Frame().Menu[item.Parent].Enabled)) ||
            action->shortcut().toString().toStdString() != item.Shortcut)
            failing.push_back(item.Key);
    }
    EXPECT_THAT(failing, IsEmpty());
    EXPECT_EQ(run.Window().menuBar()->actions().size(), 5);
}

TEST_F(FrameViewTest, ABarIsHiddenByItsEntryAndStaysHiddenAtTheNextStart) {
    {
        ScreenRun run(Settings());
        run.Start();
        EXPECT_TRUE(Child<QToolBar>(run.Window(), "bar_mnuHelp").isVisible());
        run.Menu("MnuVeiwToolBar(3)");
        EXPECT_FALSE(Child<QToolBar>(run.Window(), "bar_mnuHelp").isVisible());
        run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
        run.Menu("mnuFileExit");
    }
    ScreenRun run(Settings());
    run.Start();
    EXPECT_FALSE(Child<QToolBar>(run.Window(), "bar_mnuHelp").isVisible());
    EXPECT_FALSE(run.Window().MenuAction("MnuVeiwToolBar(3)")->isChecked());
    EXPECT_TRUE(Child<QToolBar>(run.Window(), "bar_mnuFile").isVisible());
}

TEST_F(FrameViewTest, BarsStayWhereTheyWereDockedUntilTheyAreReset) {
    {
        ScreenRun run(Settings());
        run.Start();
        auto& bar = Child<QToolBar>(run.Window(), "bar_mnuMainData");
        run.Window().addToolBar(Qt::LeftToolBarArea, &bar);
        run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
        run.Menu("mnuFileExit");
    }
    ScreenRun run(Settings());
    run.Start();
    auto& bar = Child<QToolBar>(run.Window(), "bar_mnuMainData");
    EXPECT_EQ(run.Window().toolBarArea(&bar), Qt::LeftToolBarArea);
    run.Menu("mnuResetToolbar");
    EXPECT_EQ(run.Window().toolBarArea(&bar), Qt::TopToolBarArea);
    EXPECT_TRUE(bar.isVisible());
}

TEST_F(FrameViewTest, ADamagedLayoutOfTheBarsGivesTheUsualOne) {
    ScreenRun run(Settings());
    run.Start();
    run.Window().SetDockLayout("no layout");
    for (const char* name : {"bar_mnuFile", "bar_mnuMainProblem", "bar_mnuMainData", "bar_mnuHelp"})
        EXPECT_EQ(run.Window().toolBarArea(&Child<QToolBar>(run.Window(), name)), Qt::TopToolBarArea) << name;
}

TEST_F(FrameViewTest, TheWindowComesBackWhereItWas) {
    {
        ScreenRun run(Settings());
        run.Start();
        run.Window().setGeometry(40, 50, 760, 620);
        run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
        run.Menu("mnuFileExit");
    }
    ScreenRun run(Settings());
    run.Start();
    EXPECT_EQ(run.Window().size(), QSize(760, 620));
}

TEST_F(FrameViewTest, APlaceOutsideAllScreensIsNotTaken) {
    ScreenRun run(Settings());
    run.Start();
    run.Window().SetPosition({100000, 100000, 700, 500, false});
    EXPECT_LT(run.Window().geometry().left(), 50000);
}

TEST_F(FrameViewTest, ArabicRunsFromRightToLeft) {
    ScreenRun run(Settings(), {}, Language::Arabic);
    run.Start();
    EXPECT_EQ(run.Window().layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
    // The menu bar begins at the right.
    const QList<QAction*> heads = run.Window().menuBar()->actions();
    EXPECT_GT(run.Window().menuBar()->actionGeometry(heads.front()).left(),
              run.Window().menuBar()->actionGeometry(heads.back()).left());
}

TEST_F(FrameViewTest, TheStatusBarTellsWhatIsBeingDone) {
    ScreenRun run(Settings());
    run.Start();
    CurrentHost().ShowFileStatus(FileStatus::Reading);
    EXPECT_EQ(Child<QLabel>(run.Window(), "notice").text(), "Reading ...");
    CurrentHost().ShowFileStatus(FileStatus::None);
    EXPECT_EQ(Child<QLabel>(run.Window(), "notice").text(), "");
}

TEST_F(FrameViewTest, TheTableEditorTakesWhatIsTypedAndRefusesWhatIsNoNumber) {
    ScreenRun run(Settings());
    run.Start();
    TableEdit table;
    table.Title = "Table";
    table.Columns = {{"n", TableEdit::Kind::Whole, 10, 1}, {"p", TableEdit::Kind::Real, 100, 0}};
    table.Rows = {{"1", "19"}, {"2", "42"}};
    run.In("tableEditor", [&](QWidget& editor) {
        auto& grid = Child<QTableWidget>(editor, "grid");
        grid.setCurrentCell(1, 0);
        ClickOn(editor, "cmdAddRow");
        ASSERT_EQ(grid.rowCount(), 3);
        grid.item(2, 0)->setText("3.5");
        grid.item(2, 1)->setText("70");
        EXPECT_FALSE(Child<QPushButton>(editor, "cmdok").isEnabled());
        EXPECT_THAT(
            Child<QLabel>(editor, "lblNote").text().toStdString(),
            ::testing::StartsWith("Row 3, n - n: Please enter a number from 1 to 10. The number must be whole."));
        EXPECT_FALSE(grid.item(2, 0)->toolTip().isEmpty());
        grid.item(2, 0)->setText("3");
        grid.setCurrentCell(0, 0);
        ClickOn(editor, "cmdDeleteRow");
        ClickOn(editor, "cmdok");
    });
    EXPECT_TRUE(CurrentHost().EditTable(table));
    const std::vector<std::vector<std::string>> expected = {{"2", "42"}, {"3", "70"}};
    EXPECT_EQ(table.Rows, expected);

    run.In("tableEditor", [](QWidget& editor) { ClickOn(editor, "CmdCancel"); });
    EXPECT_FALSE(CurrentHost().EditTable(table));
    EXPECT_EQ(table.Rows, expected);
}

// A column is typed number by number, as in a spreadsheet.
TEST_F(FrameViewTest, EnterGoesToTheCellBelow) {
    TableEdit table;
    table.Columns = {{"n", TableEdit::Kind::Whole, 10, 1}, {"p", TableEdit::Kind::Real, 100, 0}};
    table.Rows = {{"1", "19"}, {"2", "42"}, {"3", "70"}};
    TableEditorDialog editor(table, nullptr);
    editor.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
    auto& grid = Child<QTableWidget>(editor, "grid");
    grid.setCurrentCell(0, 1);
    grid.setFocus();
    for (const char* number : {"20", "43", "71"}) {
        QTest::keyClick(&grid, static_cast<char>(number[0]));
        auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(box, nullptr) << number;
        QTest::keyClick(box, static_cast<char>(number[1]));
        QTest::keyClick(box, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    std::string column;
    for (int row = 0; row < 3; ++row) column += grid.item(row, 1)->text().toStdString() + " ";
    EXPECT_EQ(column, "20 43 71 ");
    EXPECT_EQ(grid.currentRow(), 2);
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(Child<QPushButton>(editor, "cmdUp").toolTip().toStdString(), "Alt+Up");
    EXPECT_EQ(Child<QPushButton>(editor, "cmdAddRow").toolTip().toStdString(), "Ctrl++");
}

TEST_F(FrameViewTest, WhatWasTypedIntoTheTableEditorOutlivesItsWindow) {
    ScreenRun run(Settings());
    run.Start();
    TableEdit table;
    table.Title = "Table";
    table.Columns = {{"n", TableEdit::Kind::Whole, 10, 1}, {"p", TableEdit::Kind::Real, 100, 0}};
    table.Rows = {{"1", "19"}, {"2", "42"}};
    run.In("tableEditor", [](QWidget& editor) {
        Child<QTableWidget>(editor, "grid").item(1, 1)->setText("<b>43</b>");
        EXPECT_EQ(Child<QLabel>(editor, "lblNote").textFormat(), Qt::PlainText);
        QTest::keyClick(&editor, Qt::Key_Escape);
    });
    EXPECT_FALSE(CurrentHost().EditTable(table));
    TableEdit again = table;
    run.In("questionBox", [](QWidget& box) { ClickOn(box, "cmdYes"); });
    OfferUnsavedRows(again);
    EXPECT_EQ(again.Rows.at(1).at(1), "<b>43</b>");
    run.In("tableEditor", [](QWidget& editor) {
        Child<QTableWidget>(editor, "grid").item(1, 1)->setText("43");
        ClickOn(editor, "cmdok");
    });
    EXPECT_TRUE(CurrentHost().EditTable(again));
    DropUnsavedRows(again);
    OfferUnsavedRows(table);  // asks nothing more
    EXPECT_EQ(table.Rows.at(1).at(1), "42");
}

TEST_F(FrameViewTest, TheSplashGoesByAKeyOrAClick) {
    frmSplash form([] { return 0LL; });
    for (const bool byKey : {true, false}) {
        form.Reopen();
        SplashView splash(form);
        splash.show();
        if (byKey)
            QTest::keyClick(&splash, Qt::Key_Space);
        else
            QTest::mouseClick(&splash, Qt::LeftButton);
        EXPECT_TRUE(form.Unloaded());
        EXPECT_FALSE(splash.isVisible());
    }
}

TEST_F(FrameViewTest, AClickEndsTheWaitOfTheSplash) {
    ScreenRun run(Settings());
    run.Start();
    frmSplash form([] { return 0LL; });  // the three seconds never pass
    form.Load();
    SplashView splash(form);
    splash.show();
    QTimer::singleShot(0, &splash, [&splash] { QTest::mouseClick(&splash, Qt::LeftButton); });
    form.Tag = "Start Prog";
    form.Unload();
    EXPECT_FALSE(splash.isVisible());
}

TEST_F(FrameViewTest, TheRightButtonBringsTheMenuOfTheMoment) {
    ScreenRun run(Settings());
    run.Start();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(300, 300), QPoint(300, 300));
    QApplication::sendEvent(&run.Window(), &event);
    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(popup, nullptr);
    EXPECT_TRUE(popup->actions().contains(run.Window().MenuAction("mnuOpenProject")));
    popup->close();
}

}  // namespace
}  // namespace lithmark::tests
