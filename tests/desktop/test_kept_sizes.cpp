// Windows open in the size in which they were left.
#include "EveryWindow.h"
#include "ScreenRun.h"
#include "desktop/ScreenRoom.h"
#include "support/Matchers.h"

namespace lithmark::tests {
namespace {

class KeptSizes : public FormTest {
  protected:
    using Make = std::function<std::unique_ptr<QWidget>()>;

    static QSize Opened(const Make& make, QSize left = {}) {
        const auto window = make();
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        const QSize opened = window->size();
        if (left.isValid()) {
            window->resize(left);
            QCoreApplication::processEvents();
        }
        window->hide();
        return opened;
    }
    // Left smaller, it opens smaller, and the next one as well.
    void OpensAsItWasLeft(const Make& make) {
        const QSize usual = Opened(make), left(usual.width() - 24, usual.height() - 16);
        EXPECT_EQ(Opened(make, left), usual) << "nothing is kept of a window that nobody resized";
        EXPECT_EQ(Opened(make), left);
        EXPECT_EQ(Opened(make), left);
    }
};

TEST_F(KeptSizes, Studies) {
    const auto form = LoadedDialog(Problem::Consolidation);
    OpensAsItWasLeft([&] { return std::make_unique<StudyWindow>(SubjectOf(*form, "h"), nullptr); });
}

TEST_F(KeptSizes, Points) {
    const auto form = LoadedDialog(Problem::SoilStress);
    OpensAsItWasLeft([&] { return std::make_unique<PointsWindow>(SubjectOf(*form, "z"), nullptr); });
}

TEST_F(KeptSizes, Comparisons) {
    for (const char* name : {"One", "Other"}) {
        WriteBytes(DataFile(std::string(name) + ".PO3"), Lines({"Version 9", "1", "0"}));
        WriteBytes(DataFile(std::string(name) + ".SSD"),
                   Lines({"1", "2", "3", "900", "10", "6", "7", ".3", "5000", "2"}));
    }
    const PairReading reading = ReadPair(DataFile("One.PO3"), DataFile("Other.PO3"));
    ASSERT_TRUE(reading.Pair) << reading.Fault;
    OpensAsItWasLeft([&] { return std::make_unique<CompareWindow>(*reading.Pair, nullptr); });
}

TEST_F(KeptSizes, CurvesAndTables) {
    Session.ProblemType = Problem::TimeTheory;
    SetProblemDefaults();
    EXPECT_TRUE(RunProblemKernel());
    RequestCurve({CurveSet::Corrected});
    const ChartArguments chart = BuildChart();
    OpensAsItWasLeft([&] { return std::make_unique<ChartWindow>(chart, nullptr); });
    TableEdit table;
    table.Columns = {{"t\n[1]\n[-]"}, {"p\n[2]\n[%]"}};
    table.Rows = {{"1", "2"}};
    OpensAsItWasLeft([&] { return std::make_unique<TableEditorDialog>(table, nullptr); });
    OpensAsItWasLeft([&] { return std::make_unique<ManualWindow>(nullptr, PageOfTopic("problem-5")); });
}

// Each dialog for itself, and no other window takes its size.
TEST_F(KeptSizes, Dialogs) {
    const auto stress = LoadedDialog(Problem::SoilStress);
    const auto rate = LoadedDialog(Problem::ConsolidationRate);
    const Make makeStress = [&] { return std::make_unique<FormView>(*stress, nullptr); };
    const Make makeRate = [&] { return std::make_unique<FormView>(*rate, nullptr); };
    const QSize usual = Opened(makeStress), other = Opened(makeRate);
    EXPECT_EQ(Opened(makeStress, usual + QSize(80, 60)), usual);
    EXPECT_EQ(Opened(makeStress), usual + QSize(80, 60));
    EXPECT_EQ(Opened(makeRate), other);
}

// A window that grew or shrank with what it shows has not been resized by the user.
TEST_F(KeptSizes, ADialogThatHidItsDrawingOpensAsItAlwaysDid) {
    const auto stress = LoadedDialog(Problem::SoilStress);
    const Make make = [&] { return std::make_unique<FormView>(*stress, nullptr); };
    const QSize usual = Opened(make);
    {
        FormView view(*stress, nullptr);
        view.show();
        ClickOn(view, "CmdMoreLess");
        EXPECT_LT(view.width(), usual.width());
        view.hide();
    }
    EXPECT_THAT(ReadBytes(SettingsFile("settings.json")), Not(HasSubstr("\"Windows\"")));
    stress->Find("CmdMoreLess")->OnClick();
    EXPECT_EQ(Opened(make), usual);
}

TEST_F(KeptSizes, WhatWasLeftOnALargerScreenFitsThisOne) {
    const auto form = LoadedDialog(Problem::Consolidation);
    ListTools().SaveFormPosition("studyWindow", {0, 0, 9000, 8000, false}, kApplicationTitle, "Windows");
    StudyWindow window(SubjectOf(*form, "h"), nullptr);
    window.show();
    EXPECT_LE(window.width(), ScreenRoom(window).width());
    EXPECT_LE(window.height(), ScreenRoom(window).height());
}

// A window that is only looked at writes nothing.
TEST_F(KeptSizes, NothingIsStoredByLooking) {
    const std::string before = ReadBytes(SettingsFile("settings.json"));
    const auto form = LoadedDialog(Problem::SoilStress);
    Opened([&] { return std::make_unique<PointsWindow>(SubjectOf(*form, "z"), nullptr); });
    EXPECT_EQ(ReadBytes(SettingsFile("settings.json")), before);
}

}  // namespace
}  // namespace lithmark::tests
