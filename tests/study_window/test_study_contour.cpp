// The result over two fields as a field of values.
#include "StudyWindowCase.h"
#include "study/window/StudyContour.h"
#include "study/window/StudyMemory.h"

namespace lithmark::tests {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// The settlement of a clay layer over its thickness h, 2 to 6 m, and its depth z, 1 to 9 m.
class StudyContourTest : public StudyWindowCase {
  protected:
    StudyQuestion Plane() {
        Dialog(Problem::Consolidation);
        StudyQuestion question = Question("h");
        question.Vary[0].Steps = question.Vary[1].Steps = StepKind::List;
        question.Vary[0].List = "2; 3; 6";
        question.ChooseVaried(1, Place(question.Fields(), "z"));
        question.Vary[1].List = "1; 4; 9";
        question.DrawContour(true);
        return question;
    }
    // s = 2 h + z/2: in triangles exact at every place.
    static double PlaneAt(double h, double z) { return 2 * h + z / 2; }
    static StudyTable PlaneTable(const StudyQuestion& question, int aborted = 0) {
        std::vector<std::string> lines;
        for (const int h : {2, 3, 6})
            for (const int z : {1, 4, 9}) {
                const int row = static_cast<int>(lines.size()) + 1;
                const std::string number = row == aborted ? "!" : std::to_string(PlaneAt(h, z));
                lines.push_back(std::to_string(row) + "," + std::to_string(h) + "," + std::to_string(z) + "," + number);
            }
        return TableOf(question, lines);
    }
};

TEST_F(StudyContourTest, ValuesLieOnTheirPlaceOfAPlane) {
    const StudyQuestion question = Plane();
    const auto chart = ContourOf(question, CurvesOf(question, PlaneTable(question), nullptr));
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->Left, 2);
    EXPECT_EQ(chart->Right, 6);
    EXPECT_EQ(chart->Bottom, 1);
    EXPECT_EQ(chart->Top, 9);
    for (const FieldPoint& at : {FieldPoint{2, 1}, {6, 9}, {2.5, 1}, {4.3, 5.7}, {3, 4}, {5.999, 1.001}}) {
        const auto value = chart->Field.ValueAt(at);
        ASSERT_TRUE(value) << at.X << " " << at.Y;
        EXPECT_NEAR(*value, PlaneAt(at.X, at.Y), 1e-6) << at.X << " " << at.Y;
    }
    EXPECT_FALSE(chart->Field.ValueAt({1.9, 5}));
    EXPECT_FALSE(chart->Field.ValueAt({4, 9.1}));
    EXPECT_NEAR(chart->Field.Least(), PlaneAt(2, 1), 1e-6);
    EXPECT_NEAR(chart->Field.Greatest(), PlaneAt(6, 9), 1e-6);
    EXPECT_EQ(UnderContour(question, *chart, {4, 5}), "h = 4 m, z = 5 m: s = 10.5 cm");
    EXPECT_EQ(UnderContour(question, *chart, {40, 5}), "h = 40 m, z = 5 m");
    EXPECT_EQ(ContourWords(question, *chart), "s from 4.5 to 16.5 cm; h from 2 to 6 m; z from 1 to 9 m");
}

TEST_F(StudyContourTest, TheLimitIsALineOfItsOwnThatLiesOnItsValue) {
    StudyQuestion question = Plane();
    question.Limit = "10";
    const auto chart = ContourOf(question, CurvesOf(question, PlaneTable(question), nullptr));
    ASSERT_TRUE(chart);
    ASSERT_TRUE(chart->Limit);
    EXPECT_EQ(chart->LimitName, "limit 10 cm");
    const auto lines = chart->Field.LineAt(*chart->Limit);
    ASSERT_FALSE(lines.empty());
    double highest = 0, lowest = 10;
    for (const FieldLine& line : lines)
        for (const FieldPoint& end : {line.From, line.To}) {
            EXPECT_NEAR(PlaneAt(end.X, end.Y), 10, 1e-6);
            highest = std::max(highest, end.Y);
            lowest = std::min(lowest, end.Y);
        }
    // From h = 4.75 m at z = 1 m to h = 2.75 m at z = 9 m, all through the field.
    EXPECT_NEAR(lowest, 1, 1e-6);
    EXPECT_NEAR(highest, 9, 1e-6);
}

TEST_F(StudyContourTest, APictureHasTheDecimalSignOfTheLanguage) {
    StartIn(Language::German);
    SharedServices().DecimalSign = '.';
    StudyQuestion question = Plane();
    question.Limit = "10.5";
    const auto chart = ContourOf(question, CurvesOf(question, PlaneTable(question), nullptr));
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->LimitName, "Grenze 10,5 cm");
    EXPECT_EQ(UnderContour(question, *chart, {4.5, 5}), "h = 4,5 m, z = 5 m: s = 11,5 cm");
    EXPECT_EQ(ContourWords(question, *chart), "s von 4,5 bis 16,5 cm; h von 2 bis 6 m; z von 1 bis 9 m");
}

// In a line from right to left a number stays before its unit.
TEST_F(StudyContourTest, AnArabicLineKeepsANumberWithItsUnit) {
    StartIn(Language::Arabic);
    StudyQuestion question = Plane();
    question.Limit = "10";
    const StudyCurves curves = CurvesOf(question, PlaneTable(question), nullptr);
    const auto chart = ContourOf(question, curves);
    ASSERT_TRUE(chart);
    EXPECT_THAT(chart->LimitName, HasSubstr("\u206810 cm\u2069"));
    EXPECT_THAT(CrossingText(question, curves), HasSubstr("\u2068h = 4.75 m (z = 1 m)\u2069"));
}

TEST_F(StudyContourTest, CellsOfARowThatAbortedAreAGap) {
    const StudyQuestion question = Plane();
    // h = 2 m, z = 1 m, a corner of the first cell alone.
    const auto corner = ContourOf(question, CurvesOf(question, PlaneTable(question, 1), nullptr));
    ASSERT_TRUE(corner);
    EXPECT_FALSE(corner->Field.ValueAt({2.5, 2}));
    EXPECT_TRUE(corner->Field.ValueAt({3.5, 2}));
    EXPECT_TRUE(corner->Field.ValueAt({2.5, 5}));
    EXPECT_EQ(UnderContour(question, *corner, {2.5, 2}), "h = 2.5 m, z = 2 m");
    // h = 3 m, z = 4 m, where all four meet.
    EXPECT_FALSE(ContourOf(question, CurvesOf(question, PlaneTable(question, 5), nullptr)));
}

TEST_F(StudyContourTest, ThePresentValueStandsInsideAlone) {
    StudyQuestion question = Plane();
    StudyTable present(question.Present());
    present.Append("Row,h,s,Status,Notices,Study\r\n1,2.5,3.4,ok,,0123abcd\r\n");
    const double h = question.Varied(0)->Value, z = question.Varied(1)->Value;
    const std::string around = std::to_string(h - 1) + "; " + std::to_string(h) + "; " + std::to_string(h + 1);
    question.Vary[0].List = around;
    const auto table = [&](double from) {
        std::vector<std::string> lines;
        for (int i = 0; i < 9; ++i)
            lines.push_back(std::to_string(i + 1) + "," + std::to_string(h - 1 + i / 3) + "," +
                            std::to_string(from + i % 3) + "," + std::to_string(i));
        return TableOf(question, lines);
    };
    question.Vary[1].List = std::to_string(z - 1) + "; " + std::to_string(z) + "; " + std::to_string(z + 1);
    const auto inside = ContourOf(question, CurvesOf(question, table(z - 1), &present));
    ASSERT_TRUE(inside && inside->Present);
    EXPECT_EQ(*inside->Present, (FieldPoint{h, z}));
    EXPECT_EQ(inside->PresentName, "present value: 3.4 cm");
    question.Vary[1].List = std::to_string(z + 1) + "; " + std::to_string(z + 2) + "; " + std::to_string(z + 3);
    const auto beside = ContourOf(question, CurvesOf(question, table(z + 1), &present));
    ASSERT_TRUE(beside);
    EXPECT_FALSE(beside->Present);
}

TEST_F(StudyContourTest, AContourHasMoreValuesOfItsSecondFieldThanAFamily) {
    Dialog(Problem::Consolidation);
    StudyQuestion question = Question("h");
    question.ChooseVaried(1, Place(question.Fields(), "z"));
    EXPECT_EQ(question.Vary[1].Count, "7");
    question.DrawContour(true);
    EXPECT_EQ(question.Vary[1].Count, "15");
    question.Vary[1].Count = "40";
    EXPECT_THAT(question.Faults(), IsEmpty());
    question.Vary[1].Count = "61";
    EXPECT_THAT(question.Faults(), SizeIs(1));
    // What the user has typed stays, as far as a family may have it.
    question.Vary[1].Count = "12";
    question.DrawContour(false);
    EXPECT_EQ(question.Vary[1].Count, "12");
    question.DrawContour(true);
    question.Vary[1].Count = "15";
    question.DrawContour(false);
    EXPECT_EQ(question.Vary[1].Count, "7");
}

TEST_F(StudyContourTest, TheNextStudyDrawsAsTheLastOneDid) {
    const std::string memory = MemoryOf(Plane());
    EXPECT_THAT(memory, HasSubstr("|draw=s"));
    StudyQuestion next = Question("h");
    Recall(next, memory);
    EXPECT_TRUE(next.DrawsContour());
    next.DrawContour(false);
    StudyQuestion further = Question("h");
    Recall(further, MemoryOf(next));
    EXPECT_FALSE(further.DrawsContour());
}

TEST_F(StudyContourTest, OfManyCrossingsTheOutermostAreTold) {
    StudyQuestion question = Plane();
    question.Limit = "10";
    const StudyCurves curves = CurvesOf(question, PlaneTable(question), nullptr);
    // At z = 1: 2 h = 9.5; at z = 9: 2 h = 5.5.
    const std::string text = CrossingText(question, curves);
    EXPECT_THAT(text, HasSubstr("h = 4.75 m (z = 1 m)"));
    EXPECT_THAT(text, HasSubstr("h = 2.75 m (z = 9 m)"));
    EXPECT_THAT(text, ::testing::Not(HasSubstr("z = 4 m")));
}

}  // namespace
}  // namespace lithmark::tests
