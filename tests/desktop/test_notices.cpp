// Notices on the screen: a click on one opens the manual at its section.
#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextBrowser>

#include "ScreenRun.h"
#include "desktop/LinkList.h"
#include "desktop/ManualTopics.h"
#include "report/Notices.h"
#include "support/Places.h"
#include "ui/frmResultTools.h"

namespace lithmark::tests {
namespace {

class NoticesOnScreen : public testing::Test {
  protected:
    NoticesOnScreen() {
        Notices().Clear();
        Notices().Raise(NoticeId::RaftTension, 907003_text, {"-121 kN/m²", "12.5 %", "314 kN/m²"});
        Notices().Raise(NoticeId::ShearInLine, 907030_text, {"Tau_xz", "8 kN/m²", "-3 kN/m²"});
    }
    ~NoticesOnScreen() override { Notices().Clear(); }
    TestFolder settings_;
};

// The heading that the page shows: the line of its cursor, where that is in sight.
std::string SectionOf(QWidget& manual) {
    const auto& page = Child<QTextBrowser>(manual, "manualPage");
    if (!page.viewport()->rect().contains(page.cursorRect().center())) return "out of sight";
    return page.textCursor().block().text().toStdString();
}

TEST_F(NoticesOnScreen, AClickOpensTheManualAtTheSection) {
    ScreenRun run(settings_.Dir());
    run.Start();
    Session.ProblemType = Problem::RaftDisplacement;
    Session.ResultText = "Report\r\n";
    std::string first, second;
    run.In("frmResultTools", [&](QWidget& viewer) {
        EXPECT_TRUE(viewer.windowTitle().contains(QStringLiteral("Notices: 2")));
        auto& list = Child<LinkList>(viewer, "lstNotices");
        ASSERT_EQ(list.count(), 2);
        ASSERT_TRUE(list.isVisible());
        run.In("manualWindow", [&](QWidget& manual) {
            first = SectionOf(manual);
            ClickOn(manual, "cmdok");
        });
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
        run.In("manualWindow", [&](QWidget& manual) {
            second = SectionOf(manual);
            ClickOn(manual, "cmdok");
        });
        BackTo(viewer);
        list.setCurrentRow(1);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Return);
        ClickOn(viewer, "cmdok");
    });
    frmResultTools viewer;
    CurrentHost().ShowForm(viewer);
    EXPECT_EQ(first, "raft-tension");
    EXPECT_EQ(second, "shear-in-line");
}

}  // namespace
}  // namespace lithmark::tests
