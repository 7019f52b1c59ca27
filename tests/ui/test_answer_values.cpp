// What an answer says of numbers, and which commands it needs.
#include "FormTest.h"
#include "core/Catalogue.h"
#include "support/Matchers.h"
#include "ui/answer/AnswerRun.h"
#include "ui/answer/RaftPlane.h"
#include "ui/answer/RaftSize.h"
#include "ui/model/BoxMarks.h"

namespace lithmark::tests {
namespace {

class AnswerValuesTest : public FormTest {
  protected:
    static AnswerValue Value(const std::string& text, double number) { return {"s", "", text, "[cm]", number}; }
    static std::string Change(double from, double to) { return DifferenceText(Value("", to), Value("", from)); }
};

TEST_F(AnswerValuesTest, AValueOfOneDigitHasFourInReserve) {
    EXPECT_EQ(FineText(Value("0.01", 0.012345)), "0.01235");
    EXPECT_EQ(FineText(Value("0.00", 0.00123456)), "0.001235");
    EXPECT_EQ(FineText(Value("0.0000000", 3e-9)), "3e-09");
    EXPECT_EQ(FineText(Value("0.12", 0.12345)), "");
    EXPECT_EQ(FineText(Value("0.00", 0)), "");
    SharedServices().DecimalSign = ',';
    EXPECT_EQ(FineText(Value("0,01", 0.012345)), "0,01235");
}

TEST_F(AnswerValuesTest, TheChangeIsOfTheKeptValue) {
    EXPECT_EQ(Change(50, 52), "+4.0 %");
    EXPECT_EQ(Change(-50, -52), "-4.0 %");
    EXPECT_EQ(Change(-50, 50), "+200.0 %");
    EXPECT_EQ(Change(8.1, 8.1), "0.0 %");
    EXPECT_EQ(Change(0, 0), "0.0 %");
    EXPECT_EQ(Change(100, 100.001), "0.0 %");
    EXPECT_EQ(Change(0, 1), "-");
}

TEST_F(AnswerValuesTest, TextsThatAreNoNumberYet) {
    for (const char* text : {"", " ", "-", "+", ".", ",", "-.", "1e", "1e-", "2.5E+", "-1d-"})
        EXPECT_TRUE(IsUnfinished(text)) << text;
    for (const char* text : {"1", "1e5", "ab", "1a", "--1", "1.2.3", "-e", "x1e", "..."})
        EXPECT_FALSE(IsUnfinished(text)) << text;
}

// s = 2 + 0.003 x 100 + 0.004 y 100 [cm], x and y in m: the slope is 0.005.
TEST_F(AnswerValuesTest, TheTiltIsTheGreatestSlope) {
    std::vector<double> x, y, s;
    for (const double at : {0.0, 1.0, 3.0})
        for (const double across : {0.0, 2.0}) {
            x.push_back(at);
            y.push_back(across);
            s.push_back(2 + 0.3 * at + 0.4 * across);
        }
    ASSERT_TRUE(TiltOf(x, y, s));
    EXPECT_NEAR(*TiltOf(x, y, s), 0.005, 1e-12);
    EXPECT_EQ(TiltOf(x, y, std::vector<double>(x.size(), 2.0)), 0);
    EXPECT_EQ(TiltOf({0, 1, 2}, {0, 1, 2}, {1, 2, 3}), std::nullopt);  // one line
    EXPECT_EQ(TiltOf({}, {}, {}), std::nullopt);
}

TEST_F(AnswerValuesTest, ARaftHasTheNodesOfItsMesh) {
    Session.ProblemType = Problem::RaftDisplacement;
    SetProblemDefaults();
    Session.LoadType = LoadShape::Rectangle;
    Session.A = 10;
    Session.B = 4.3;  // 9 halves of a metre, made even
    EXPECT_EQ(SizeOf(Session).Nodes, 21 * 11);
    Session.LoadType = LoadShape::Circle;
    EXPECT_EQ(SizeOf(Session).Nodes, 145);
    Session.LoadType = LoadShape::Rectangle;
    Session.PrefDx = 0;
    EXPECT_EQ(SizeOf(Session).Nodes, 0);
    Session.ProblemType = Problem::SoilStress;
    EXPECT_EQ(SizeOf(Session).Nodes, 0);
}

TEST_F(AnswerValuesTest, TheReportComesFirst) {
    for (int problem = 1; problem <= 10; ++problem) {
        Session.ProblemType = problem;
        SetProblemDefaults();
        const auto commands = AnswerCommands(Session);
        ASSERT_FALSE(commands.empty());
        EXPECT_EQ(commands[0][0], "report") << problem;
        EXPECT_THAT(commands[0], Contains("--no-export")) << problem;
        EXPECT_EQ(commands.size(), problem <= 3 ? 2u : problem == 5 ? 3u : 1u) << problem;
    }
}

// A row without a value parts the line there, and the point itself is among the rows.
TEST_F(AnswerValuesTest, AGapIsNeverBridged) {
    Session.ProblemType = Problem::SoilStress;
    SetProblemDefaults();
    Session.z = 2;
    CommandOutput report{.Numbers = {{"Sigma_z", 30}}}, study;
    study.Rows = {{{"z", 1}, {"Sigma_z", 50}}, {{"z", 1.5}}, {{"z", 3}, {"Sigma_z", 20}}};
    const auto curves = AnswerCurves(Session, {report, study});
    ASSERT_THAT(curves, SizeIs(1));
    const AnswerCurve::Line& line = curves[0].Lines[0];
    EXPECT_THAT(line.Y, ElementsAre(1, 1.5, 2, 3));
    EXPECT_THAT(line.X, ElementsAre(50, ::testing::IsNan(), 30, 20));
    ASSERT_THAT(curves[0].Points, SizeIs(1));
    EXPECT_EQ(curves[0].Points[0].Y, 2);
}

}  // namespace
}  // namespace lithmark::tests
