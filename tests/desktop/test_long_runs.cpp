// A long raft run from its dialog: it tells how far it is, the windows are painted meanwhile, and Cancel is heard at
// once and leaves the former results.
#include <gmock/gmock.h>

#include <QPlainTextEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <ctime>

#include "ScreenRun.h"
#include "support/Slowness.h"

namespace lithmark::tests {
namespace {

// Counts the paintings of a window.
class Paintings : public QObject {
  public:
    explicit Paintings(QWidget& window) : window_(window) { window.installEventFilter(this); }
    int Count = 0;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &window_ && event->type() == QEvent::Paint) ++Count;
        return false;
    }

  private:
    QWidget& window_;
};

constexpr std::size_t kLooks = 8;

class LongRuns : public ::testing::Test {
  protected:
    LongRuns() {
        std::filesystem::create_directory(folder_ / "data");
        WriteBytes(folder_ / "STEU", folder_ / "data/" + "\r\n0\r\n");
        WriteBytes(folder_ / "data/Long.PO3", "Version 9\r\n9\r\n0\r\n");
        WriteBytes(folder_ / "data/Long.AUF", "GT-7\r\n2026-03-02\r\nLong\r\n");
    }
    TestFolder folder_;
};

// A circle of the most divisions, whose whole matrix is inverted: the longest way there is.
TEST_F(LongRuns, TellHowFarTheyAreAndEndAtOnce) {
    ScreenRun run(folder_.Dir(), folder_ / "data/Long.PO3");
    run.In("frmProjectCheck", [](QWidget& form) { ClickOn(form, "cmdok"); });
    run.Start();
    ASSERT_TRUE(run.Frame().ProjectOpen());
    std::string first, after;
    std::vector<int> told;
    int paintings = 0;
    std::clock_t cancelled = 0, heard = 0;  // processor time: a busy machine does not count
    run.In("frmRigidDisplacement", [&](QWidget& dialog) {
        ClickOn(dialog, "optAnalysisType(1)");
        ClickOn(dialog, "optLoadType(2)");
        // A small raft first: its results are those that must stay.
        run.In("frmResultTools", [&](QWidget& viewer) {
            first = Session.ResultText;
            QTest::keyClick(&viewer, Qt::Key_Escape);
        });
        QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
        BackTo(dialog);
        Session.PrefND = 180;
        Paintings watch(dialog);
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
            if (progress == nullptr || cancelled > 0) return;
            told.push_back(progress->findChild<QProgressBar*>()->value());
            dialog.update();
            // The run has gone on meanwhile, however slow the machine is.
            if (told.size() < kLooks || told.back() == told.front()) return;
            cancelled = std::clock();
            QTest::mouseClick(progress->findChild<QPushButton*>(), Qt::LeftButton);
        });
        user.start(30);
        run.In("messageBox", [&](QWidget& box) {
            heard = std::clock();
            box.close();
        });
        QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
        paintings = watch.Count;
        after = Session.ResultText;
        EXPECT_TRUE(Session.CalcAborted);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    run.Menu("mnuProblem(7)");
    EXPECT_NE(first, "");
    EXPECT_EQ(after, first);
    EXPECT_GT(paintings, 0);
    ASSERT_GT(heard, cancelled);
    // 0.2 s, and what a window takes to come.
    EXPECT_LT(heard - cancelled, Slowness() * CLOCKS_PER_SEC * 2 / 5);
    ASSERT_GE(told.size(), kLooks);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end())) << ::testing::PrintToString(told);
    EXPECT_LT(told.front(), told.back()) << ::testing::PrintToString(told);
}

}  // namespace
}  // namespace lithmark::tests
