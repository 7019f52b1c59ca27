// The page without a project on the real window: cards, pins, examples, the room it takes; the status bar beside it.
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolButton>
#include <filesystem>

#include "ScreenRun.h"
#include "desktop/Icons.h"
#include "desktop/StartView.h"
#include "support/Matchers.h"
#include "support/Variable.h"

namespace lithmark::tests {
namespace {

class StartPageView : public ::testing::Test {
  protected:
    StartPageView() {
        for (const char* folder : {"settings", "home", "home/Documents", "data"})
            std::filesystem::create_directory(folder_ / folder);
        home_.Set(folder_ / "home");
        WriteBytes(folder_ / "settings/STEU", (folder_ / "data/") + "\r\n0\r\n");
        WriteBytes(Data("Crane.PO3"), "Version 9\r\n1\r\n0\r\n");
        WriteBytes(Data("Crane.AUF"), "O\r\nD\r\nP\r\n");
        WriteBytes(Data("Crane.SSD"), "0\r\n0\r\n2\r\n1000\r\n100\r\n5\r\n5\r\n.3\r\n5000\r\n1\r\n");
    }
    std::string Settings() const { return folder_ / "settings/"; }
    std::string Data(const std::string& name) const { return folder_ / ("data/" + name); }

    TestFolder folder_;
    Variable home_{"HOME"};
};

TEST_F(StartPageView, ACardBeginsAProjectOfItsProblem) {
    ScreenRun run(Settings());
    run.Start();
    run.In("frmProblemType", [](QWidget& form) {
        EXPECT_EQ(Child<QComboBox>(form, "cmbItem").currentIndex(), 6);
        ClickOn(form, "CmdCancel");
    });
    ClickOn(run.Window(), "card(9)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.Done(); }));
    EXPECT_FALSE(run.Frame().ProjectOpen());
}

TEST_F(StartPageView, AnExampleOpensAsACopyAndClosesBackToThePage) {
    ScreenRun run(Settings());
    run.Start();
    auto& page = Child<StartView>(run.Window(), "startPage");
    EXPECT_TRUE(QTest::qWaitFor([&] { return page.Painted(); }, 20000));
    ClickOn(run.Window(), "example_SquareRaft");
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.Frame().ProjectOpen(); }));
    EXPECT_EQ(Session.DataDir, folder_ / "home/Documents/Lithmark/");
    EXPECT_TRUE(Child<QWidget>(run.Window(), "projectPage").isVisible());
    run.Menu("mnuCloseProject");
    EXPECT_TRUE(page.isVisible());
    EXPECT_TRUE(Child<QPushButton>(run.Window(), "recent(1)").isVisible());
}

TEST_F(StartPageView, TheDrawingsLeaveTheSessionAsItIs) {
    ScreenRun run(Settings());
    run.Start();
    Session.P = 321;
    const void* const table = &Session.LoadTime;
    auto& page = Child<StartView>(run.Window(), "startPage");
    EXPECT_TRUE(QTest::qWaitFor([&] { return page.Painted(); }, 20000));
    EXPECT_EQ(Session.P, 321);
    EXPECT_EQ(Session.ProblemType, Problem::SoilStress);
    EXPECT_EQ(Session.WorkName, "Untitled");
    EXPECT_EQ(table, &Session.LoadTime);
    // They are drawings, not blanks: in the place of the picture there are lines.
    for (const char* name : {"card(1)", "card(5)", "card(9)", "example_SquareRaft"}) {
        const QImage button = Child<QPushButton>(run.Window(), name).grab().toImage();
        const QRgb ground = button.pixel(4, 4);
        int drawn = 0;
        for (int y = 8; y < 60; ++y)
            for (int x = 8; x < 88; ++x) drawn += button.pixel(x, y) != ground ? 1 : 0;
        EXPECT_GT(drawn, 150) << name;
    }
}

TEST_F(StartPageView, AStarPinsAProjectAndTheListStaysAtTheNextStart) {
    {
        ScreenRun run(Settings(), Data("Crane.PO3"));
        run.Start();
        run.Menu("mnuCloseProject");
        EXPECT_FALSE(Child<QToolButton>(run.Window(), "pin_recent(1)").isChecked());
        ClickOn(run.Window(), "pin_recent(1)");
        EXPECT_TRUE(QTest::qWaitFor([&] { return run.Window().findChild<QWidget*>("pinned(1)") != nullptr; }));
        EXPECT_EQ(run.Window().findChild<QWidget*>("recent(1)"), nullptr);  // it stands once
    }
    ScreenRun run(Settings());
    run.Start();
    EXPECT_TRUE(Child<QToolButton>(run.Window(), "pin_pinned(1)").isChecked());
    ClickOn(run.Window(), "pinned(1)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return run.Frame().ProjectOpen(); }));
    EXPECT_EQ(Session.ProjectName, "Crane");
}

// At every width: nothing at the side is hidden, and new and open stay while the rest scrolls.
TEST_F(StartPageView, TakesTheRoomThatThereIs) {
    ScreenRun run(Settings(), Data("Crane.PO3"));
    run.Start();
    run.Menu("mnuCloseProject");
    auto& page = Child<StartView>(run.Window(), "startPage");
    auto& scroll = *page.findChild<QScrollArea*>();
    for (const int width : {700, 1090, 1300, 1700}) {
        run.Window().resize(width, 545);
        QTest::qWait(20);
        EXPECT_EQ(run.Window().width(), width);
        for (const auto* button : scroll.viewport()->findChildren<QAbstractButton*>()) {
            const QPoint corner = button->mapTo(scroll.viewport(), QPoint());
            EXPECT_GE(corner.x(), 0) << width << " " << button->objectName().toStdString();
            EXPECT_LE(corner.x() + button->width(), scroll.viewport()->width())
                << width << " " << button->objectName().toStdString();
        }
        const QPoint card = Child<QWidget>(page, "card(1)").mapTo(&page, QPoint());
        const QPoint recent = Child<QWidget>(page, "recent(1)").mapTo(&page, QPoint());
        if (width <= 1090)
            EXPECT_GT(card.y(), recent.y()) << width;  // under each other
        else
            EXPECT_GT(card.x(), recent.x()) << width;  // beside each other
        scroll.verticalScrollBar()->setValue(scroll.verticalScrollBar()->maximum());
        for (const char* name : {"start_mnuNewProject", "start_mnuOpenProject"}) {
            const auto& button = Child<QWidget>(page, name);
            EXPECT_EQ(button.visibleRegion().boundingRect().size(), button.size()) << name;
        }
    }
}

TEST_F(StartPageView, TheStatusBarTellsProblemUnitsAndDecimalSign) {
    ScreenRun run(Settings(), Data("Crane.PO3"));
    run.Start();
    EXPECT_EQ(Child<QLabel>(run.Window(), "statusProblem").text(), "[1] Stresses in soil");
    EXPECT_EQ(Child<QLabel>(run.Window(), "statusSaved").text(), "Data saved");
    EXPECT_THAT(Child<QLabel>(run.Window(), "statusUnits").text().toStdString(), HasSubstr("m, cm, kN, MN"));
    EXPECT_THAT(Child<QLabel>(run.Window(), "statusDecimalSign").text().toStdString(), HasSubstr("."));
    run.Menu("mnuCloseProject");
    EXPECT_FALSE(Child<QLabel>(run.Window(), "statusProblem").isVisible());
}

// A tick, and not an icon that looks pressed.
TEST_F(StartPageView, AnEntryWithDataHasATickInItsMenu) {
    ScreenRun run(Settings(), Data("Crane.PO3"));
    run.Start();
    const QAction* problem = run.Window().MenuAction("mnuProblem(1)");
    EXPECT_TRUE(problem->isCheckable() && problem->isChecked());
    EXPECT_FALSE(problem->isIconVisibleInMenu());
    EXPECT_TRUE(run.Window().MenuAction("mnuUnits")->isIconVisibleInMenu());
}

TEST_F(StartPageView, EachProblemHasAnIconOfItsOwn) {
    for (int one = 1; one <= 11; ++one)
        for (int other = one + 1; other <= 11; ++other)
            EXPECT_NE(IconOfProblem(one).pixmap(16).toImage(), IconOfProblem(other).pixmap(16).toImage())
                << one << " " << other;
}

}  // namespace
}  // namespace lithmark::tests
