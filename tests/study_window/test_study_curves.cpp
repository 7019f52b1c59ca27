// The rows of a study as curves, crossings, frequencies and cells.
#include "StudyWindowCase.h"
#include "core/Units.h"
#include "report/Notices.h"
#include "study/StudyFailure.h"
#include "study/window/NoticeWords.h"
#include "study/window/ShortNumber.h"
#include "study/window/StudyAnswerTexts.h"
#include "study/window/StudyCharts.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

class StudyCurvesTest : public StudyWindowCase {
  protected:
    // The settlement of a clay layer over its thickness: 2, 3, 4, 5 m.
    StudyQuestion Thickness() {
        Dialog(Problem::Consolidation);
        StudyQuestion question = Question("h");
        question.Vary[0].From = "2";
        question.Vary[0].To = "5";
        question.Vary[0].Count = "4";
        return question;
    }
};

TEST_F(StudyCurvesTest, RowsComeInPiecesCutAnywhere) {
    const StudyQuestion question = Thickness();
    StudyTable whole(question.Rows()), pieces(question.Rows());
    const std::string csv =
        "Row,h,s,Status,Notices,Study\r\n1,2,3,ok,,0123abcd\r\n2,3,,\"No, it \"\"failed\"\"\",,0123abcd\r\n";
    whole.Append(csv);
    for (const char c : csv + "3,4,5.5,ok,,0123") pieces.Append(std::string(1, c));
    EXPECT_EQ(whole.Csv(), csv);
    EXPECT_EQ(pieces.Csv(), csv);  // a last row without its end is none
    ASSERT_THAT(pieces.Lines(), SizeIs(2));
    EXPECT_EQ(pieces.Lines()[0].Numbers[0], 3.0F);
    EXPECT_TRUE(pieces.Lines()[1].Aborted());
    EXPECT_EQ(pieces.Lines()[1].Status, "No, it \"failed\"");
    EXPECT_EQ(pieces.Aborted(), 1);
    EXPECT_EQ(pieces.Wanted(), 4U);
    EXPECT_THAT(pieces.Cells(), SizeIs(3));
}

TEST_F(StudyCurvesTest, AnotherTableIsRefused) {
    StudyTable table(Thickness().Rows());
    EXPECT_THROW(table.Append("Row,z,s,Status,Notices,Study\r\n"), StudyFailure);
}

TEST_F(StudyCurvesTest, ARowThatAbortedIsAGapAndNoLineAcross) {
    const StudyQuestion question = Thickness();
    const StudyTable table = TableOf(question, {"1,2,3", "2,3,!", "3,4,5", "4,5,6"});
    const StudyCurves curves = CurvesOf(question, table, nullptr);
    EXPECT_THAT(curves.X, ElementsAre(2, 3, 4, 5));
    ASSERT_THAT(curves.Curves, SizeIs(1));
    EXPECT_THAT(curves.Curves[0].Y, ElementsAre(3, ::testing::IsNan(), 5, 6));
    const ChartArguments chart = CurveChart(question, curves);
    EXPECT_EQ(chart.Cells(2, 1), "3");
    EXPECT_EQ(chart.Cells(2, 2), "");
}

TEST_F(StudyCurvesTest, ALimitIsCrossedBetweenTwoNeighboursAndBothAreMarked) {
    StudyQuestion question = Thickness();
    question.Limit = "4.5";
    const StudyTable table = TableOf(question, {"1,2,3", "2,3,4", "3,4,6", "4,5,4"});
    const StudyCurves curves = CurvesOf(question, table, nullptr);
    ASSERT_THAT(curves.Crossings, SizeIs(2));
    EXPECT_DOUBLE_EQ(curves.Crossings[0].X, 3.25);  // 3 + (4.5 - 4)/(6 - 4)
    EXPECT_DOUBLE_EQ(curves.Crossings[1].X, 4.75);  // 4 + (6 - 4.5)/(6 - 4)
    EXPECT_THAT(CrossedRows(question, table), ElementsAre(1, 2, 3));
    EXPECT_EQ(CrossingText(question, curves), "s = 4.50 cm at h = 3.25 m; h = 4.75 m");
    const ShownRows rows = RowsOf(question, table, 100);
    EXPECT_THAT(rows.Heads, ElementsAre("No.", "h [m]", "s [cm]", "Status", "Notices"));
    EXPECT_THAT(rows.Rows[1].Cells, ElementsAre("2", "3", "4.00", "ok", ""));
    EXPECT_FALSE(rows.Rows[0].Crossed);
    EXPECT_TRUE(rows.Rows[1].Crossed && rows.Rows[2].Crossed && rows.Rows[3].Crossed);
}

TEST_F(StudyCurvesTest, NoCrossingIsToldAcrossAGap) {
    StudyQuestion question = Thickness();
    question.Limit = "4.5";
    const StudyTable table = TableOf(question, {"1,2,3", "2,3,!", "3,4,6", "4,5,7"});
    const StudyCurves curves = CurvesOf(question, table, nullptr);
    EXPECT_THAT(curves.Crossings, IsEmpty());
    EXPECT_THAT(CrossingText(question, curves), HasSubstr("is not reached"));
}

TEST_F(StudyCurvesTest, TheChartHasTheLimitThePresentValueAndTheCrossingsAsCurvesOfTheirOwn) {
    StudyQuestion question = Thickness();
    question.Limit = "4.5";
    const StudyTable table = TableOf(question, {"1,2,3", "2,3,4", "3,4,6", "4,5,7"});
    StudyTable present(question.Present());
    const FieldChoice& h = *question.Varied(0);
    present.Append("Row,h,s,Status,Notices,Study\r\n1,2.5,3.4,ok,,0123abcd\r\n");
    const StudyCurves curves = CurvesOf(question, table, &present);
    EXPECT_EQ(curves.PresentX, h.Value);
    EXPECT_FLOAT_EQ(static_cast<float>(curves.PresentY.value()), 3.4F);
    const ChartArguments chart = CurveChart(question, curves);
    ASSERT_EQ(chart.Curves, 4);
    EXPECT_EQ(chart.Legends(1), "s");
    EXPECT_EQ(chart.Legends(2), "limit 4.5 cm");
    EXPECT_EQ(chart.Legends(3), "present value");
    EXPECT_EQ(chart.Legends(4), "limit reached");
    ASSERT_EQ(chart.LastRow, 6);
    EXPECT_EQ(chart.Cells(5, 4), "3.4");
    EXPECT_EQ(chart.Cells(6, 1), "3.25");
    EXPECT_EQ(chart.Cells(6, 5), "4.5");
    EXPECT_EQ(chart.XTitle, h.Label + " h [m]");
}

TEST_F(StudyCurvesTest, ASecondFieldGivesAFamily) {
    StudyQuestion question = Thickness();
    question.Vary[0].Count = "2";
    question.ChooseVaried(1, Place(question.Fields(), "z"));
    question.Vary[1].Steps = StepKind::List;
    question.Vary[1].List = "4; 8";
    const StudyTable table = TableOf(question, {"1,2,4,3", "2,2,8,1.5", "3,5,4,6", "4,5,8,3"});
    const StudyCurves curves = CurvesOf(question, table, nullptr);
    ASSERT_THAT(curves.Curves, SizeIs(2));
    EXPECT_THAT(curves.Curves[0].Name, HasSubstr("z = 4 m"));
    EXPECT_THAT(curves.Curves[0].Y, ElementsAre(3, 6));
    EXPECT_THAT(curves.Curves[1].Y, ElementsAre(1.5, 3));
}

TEST_F(StudyCurvesTest, NumbersOfAFamilyHaveTheDigitsThatTellThemApart) {
    const auto apart = [](const std::vector<double>& all) {
        std::vector<std::string> texts;
        for (const double value : all) texts.push_back(NumberApart(value, all, '.'));
        return texts;
    };
    // Thirds of ten: each is off by less than a twentieth of their distance.
    EXPECT_THAT(apart({20.0 / 3, 25.0 / 3, 10, 35.0 / 3}), ElementsAre("6.7", "8.3", "10", "11.7"));
    EXPECT_THAT(apart({1.25, 1.5, 1.75}), ElementsAre("1.25", "1.5", "1.75"));
    EXPECT_THAT(apart({4000, 16000.0 / 3}), ElementsAre("4000", "5333"));
    EXPECT_THAT(apart({-0.5, 0.001, 0.01, 0.1}), ElementsAre("-0.5", "0.001", "0.01", "0.1"));
    EXPECT_THAT(apart({2.3456789}), ElementsAre("2.3457"));
    EXPECT_THAT(apart({3, 3}), ElementsAre("3", "3"));
    EXPECT_EQ(NumberApart(1.5, {1.5, 2}, ','), "1,5");
}

// As charts do; sentences, tables and boxes have the user's.
TEST_F(StudyCurvesTest, WhatIsDrawnHasTheDecimalSignOfTheLanguage) {
    StartIn(Language::German);
    SharedServices().DecimalSign = '.';
    StudyQuestion question = Thickness();
    question.Vary[0].Count = "2";
    question.Limit = "2.5";
    question.ChooseVaried(1, Place(question.Fields(), "z"));
    question.Vary[1].Steps = StepKind::List;
    question.Vary[1].List = "1.5; 8";
    const StudyTable table = TableOf(question, {"1,2,1.5,2", "2,2,8,1.5", "3,5,1.5,3.5", "4,5,8,2"});
    const StudyCurves curves = CurvesOf(question, table, nullptr);
    const ChartArguments chart = CurveChart(question, curves);
    EXPECT_EQ(chart.Legends(1), "z = 1,5 m");
    EXPECT_EQ(chart.Legends(3), "Grenze 2,5 cm");
    EXPECT_EQ(CrossingText(question, curves), "s = 2.50 cm bei h = 3 m (z = 1.5 m)");
    const auto bars = TornadoBarsOf(question, StudyAnswer("Result,Field,low,high,at_low,at_high,swing\r\n"
                                                          "s,h,3.6,4.4,2,3,1\r\n"));
    ASSERT_THAT(bars, SizeIs(1));
    EXPECT_EQ(bars[0].Name, "h  3,6 ... 4,4 m");
}

TEST_F(StudyCurvesTest, SymbolsInPrintAreOfTheWindowsAlone) {
    Dialog(Problem::SoilStress);
    const StudyQuestion asked = Question("z");
    std::vector<FieldChoice> fields = asked.Fields();
    std::vector<ResultChoice> results = asked.Results();
    results[0].InPrint = "σ_z";
    for (FieldChoice& field : fields)
        if (field.Name == "Nue") field.InPrint = "ν_s";
    StudyQuestion shown(fields, results, Place(fields, "Nue"));
    const auto chart = [](const StudyQuestion& question) {
        return CurveChart(question, CurvesOf(question, StudyTable(question.Rows()), nullptr));
    };
    EXPECT_THAT(chart(shown).XTitle, HasSubstr(" ν_s "));
    EXPECT_THAT(chart(shown).YTitle, HasSubstr(" σ_z "));
    const ChartArguments plain = chart(shown.InPlainSymbols());
    EXPECT_THAT(plain.XTitle, HasSubstr(" Nue_s "));
    EXPECT_THAT(plain.YTitle, HasSubstr(" Sigma_z "));
    EXPECT_EQ(plain.Header(0, 1), plain.XTitle);
}

TEST_F(StudyCurvesTest, NoticesOfARowAreToldInWords) {
    const StudyQuestion question = Thickness();
    StudyTable table(question.Rows());
    table.Append("Row,h,s,Status,Notices,Study\r\n1,2,3,ok,raft-thin-layer circle-mean-stress,0123abcd\r\n");
    const ShownRows rows = RowsOf(question, table, 10);
    ASSERT_THAT(rows.Rows, SizeIs(1));
    EXPECT_EQ(rows.Rows[0].Cells.back(), "a layer thinner than an element; the mean stress off a circle's axis");
    EXPECT_EQ(rows.Rows[0].Notices, "raft-thin-layer circle-mean-stress");
    EXPECT_EQ(NoticeWords("of-a-later-version"), "of-a-later-version");
    EXPECT_EQ(NoticeWords(""), "");
}

// The table at the head of the manual's page has the same words in each language.
TEST_F(StudyCurvesTest, EveryNoticeIsCalledAsInTheManual) {
    const std::string page = ReadBytes((SourceDir() / "docs/manual/source/notices.md").string());
    for (const auto& [language, code] :
         {std::pair(Language::German, "de"), {Language::English, "en"}, {Language::Arabic, "ar"}}) {
        LanguageTexts().SetCurrent(language);
        for (int i = 0; i < kNoticeIds; ++i) {
            const std::string id(NoticeName(static_cast<NoticeId>(i)));
            const std::string row = std::string("\n") + code + "|| [" + id + "](#" + id + ") | ";
            const std::size_t at = page.find(row);
            ASSERT_NE(at, std::string::npos) << row;
            const std::string line = page.substr(at + 1, page.find('\n', at + 1) - at - 1);
            EXPECT_THAT(line, ::testing::EndsWith(" | " + NoticeWords(id) + " |"));
        }
    }
    LanguageTexts().SetCurrent(Language::English);
}

TEST_F(StudyCurvesTest, RandomRowsGiveWhatSharesOfTheSamplesDoNotExceed) {
    StudyQuestion question = Thickness();
    question.Vary[0].Count = "2";
    question.ChooseRandom(0, Place(question.Fields(), "z"));
    question.Samples = "3";
    const StudyTable table = TableOf(question, {"1,2,1,1", "2,2,2,2", "3,2,3,3", "4,5,1,10", "5,5,2,20", "6,5,3,30"});
    const StudyCurves curves = CurvesOf(question, table, nullptr);
    ASSERT_THAT(curves.Curves, SizeIs(3));
    EXPECT_THAT(curves.Curves[1].Y, ElementsAre(2, 20));
    EXPECT_NEAR(curves.Curves[0].Y[1], 11, 1e-12);  // 5 % of the way through two gaps of 10
    EXPECT_NEAR(curves.Curves[2].Y[0], 2.9, 1e-6);
}

TEST_F(StudyCurvesTest, FrequenciesCountEverySampleOnceInBinsWithRoundEdges) {
    StudyQuestion question = Thickness();
    question.ChooseVaried(0, kNoField);
    question.ChooseRandom(0, Place(question.Fields(), "z"));
    question.Samples = "10";
    question.Limit = "7.5";
    std::vector<std::string> lines;
    for (int i = 1; i <= 10; ++i) lines.push_back(std::to_string(i) + ",2," + std::to_string(i));
    const StudyTable table = TableOf(question, lines);
    const Histogram histogram = HistogramOf(question, table);
    EXPECT_EQ(histogram.Samples, 10U);
    EXPECT_EQ(histogram.Width, 5);  // 9 in at least 4 bins, rounded up to 5
    EXPECT_THAT(histogram.Counts, ElementsAre(4U, 5U, 1U));
    const std::string text = HistogramText(question, table);
    EXPECT_THAT(text, HasSubstr("10 samples: s on average 5.5 cm"));
    EXPECT_THAT(text, HasSubstr("Beyond 7.5 cm: 30 % (95 %: "));  // 8, 9 and 10
    const ChartArguments chart = HistogramChart(question, histogram);
    EXPECT_EQ(chart.Curves, 2);
    EXPECT_EQ(chart.Cells(2, 2), "40");
}

TEST_F(StudyCurvesTest, TheAnswerOfASearchIsToldInTheUnitsOfTheWindow) {
    StudyQuestion question = Thickness();
    question.Limit = "5";
    EXPECT_EQ(FoundText(question, StudyAnswer("Row,h,s,Beyond,Status,Notices\r\n1,3.42,5,above,ok,\r\n")),
              "s = 5.00 cm at h = 3.42 m");
    EXPECT_EQ(FoundText(question, StudyAnswer("Row,h,s,Beyond,Status,Notices\r\n1,none,,,ok,\r\n")),
              "s = 5.00 cm is not reached in this range.");
}

TEST_F(StudyCurvesTest, TheBarsOfATornadoAreInTheUnitsOfTheWindow) {
    SetDefaultUnits();
    UnitSettings units = UnitsInForce();
    units.Len2Label = "[mm]";
    units.Len2Factor = 10;
    SetUnits(units);
    const StudyQuestion question = Thickness();
    const auto bars = TornadoBarsOf(question, StudyAnswer("Result,Field,low,high,at_low,at_high,swing\r\n"
                                                          "s,h,3.6,4.4,2,3,1\r\ns,Es,4000,5000,,3,\r\n"));
    ASSERT_THAT(bars, SizeIs(1));
    EXPECT_EQ(bars[0].Name, "h  3.6 ... 4.4 m");
    EXPECT_EQ(bars[0].AtLow, 20);
    EXPECT_EQ(bars[0].AtHigh, 30);
    SetDefaultUnits();
}

}  // namespace
}  // namespace lithmark::tests
