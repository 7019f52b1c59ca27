// What the window of a study asks: the fields that it offers, the values that it proposes, the command that it builds.
#include "StudyWindowCase.h"
#include "core/Units.h"
#include "study/window/CommandWords.h"
#include "study/window/StudyMemory.h"
#include "ui/frmstress.h"

namespace lithmark::tests {
namespace {

std::vector<std::string> Names(const std::vector<FieldChoice>& fields) {
    std::vector<std::string> names;
    for (const FieldChoice& field : fields) names.push_back(field.Name);
    return names;
}

class StudyQuestionTest : public StudyWindowCase {
  protected:
    // A rectangle of 4 m x 3 m.
    frmstress& Rectangle(int problem = Problem::SoilStress) {
        auto& form = dynamic_cast<frmstress&>(Dialog(problem));
        form.SelectOption(form.optLoadType[1]);
        form.optLoadType_Click();
        form.txt_A.Text = "4";
        form.txt_B.Text = "3";
        form.txt_P.Text = "120";
        form.txt_z.Text = "2";
        form.txt_x.Text = "0";
        return form;
    }
};

TEST_F(StudyQuestionTest, OnlyFieldsWhoseBoxesAreReachedAreOffered) {
    frmstress& form = Rectangle();
    EXPECT_THAT(Names(FieldChoicesOf(form, form.Draft().Record)), ElementsAre("x", "y", "z", "P", "A", "B", "Nue"));
    form.SelectOption(form.optLoadType[0]);
    form.optLoadType_Click();
    EXPECT_THAT(Names(FieldChoicesOf(form, form.Draft().Record)), ElementsAre("x", "y", "z", "Q", "Nue"));
}

TEST_F(StudyQuestionTest, AFieldHasTheSymbolWordsUnitValueAndLimitsOfItsLine) {
    const frmstress& form = Rectangle(Problem::SoilStrain);
    const auto fields = FieldChoicesOf(form, form.Draft().Record);
    const FieldChoice& a = fields[static_cast<std::size_t>(Place(fields, "A"))];
    EXPECT_EQ(a.Symbol, "a");
    EXPECT_EQ(a.Label, "Radius/ Length");
    EXPECT_EQ(a.Unit, "m");
    EXPECT_EQ(a.Value, 4);
    EXPECT_EQ(a.Least, 0);
    const FieldChoice& nue = fields[static_cast<std::size_t>(Place(fields, "Nue"))];
    EXPECT_EQ(nue.Unit, "");
    EXPECT_EQ(nue.Greatest, 0.5);
}

TEST_F(StudyQuestionTest, ElementsOfAFieldAreNamedAsTheCommandLineDoes) {
    ProblemForm& form = Dialog(Problem::ConsolidationRate);
    const auto names = Names(FieldChoicesOf(form, form.Draft().Record));
    EXPECT_THAT(names, ::testing::IsSupersetOf({"hLayer(1)", "CvLayer(1)", "KLayer(1)", "T"}));
    // A second layer is not there unless it is ticked.
    EXPECT_THAT(names, Not(Contains("hLayer(2)")));
}

TEST_F(StudyQuestionTest, ARangeIsHalfToOneAndAHalfOfTheValueInsideTheLimits) {
    const auto range = [](double value, double least = -kNoLimit, double greatest = kNoLimit, bool whole = false) {
        FieldChoice field;
        field.Value = value;
        field.Least = least;
        field.Greatest = greatest;
        field.Whole = whole;
        const FieldRange of = ProposedRange(field);
        return std::pair(of.From, of.To);
    };
    EXPECT_EQ(range(4), std::pair(2.0, 6.0));
    EXPECT_EQ(range(-4), std::pair(-6.0, -2.0));
    EXPECT_EQ(range(0.4, 0, 0.5), std::pair(0.2, 0.5));
    EXPECT_EQ(range(0), std::pair(0.0, 1.0));
    EXPECT_EQ(range(0, 0, 0.5), std::pair(0.0, 0.5));
    EXPECT_EQ(range(5, 1, 70, true), std::pair(2.0, 8.0));
}

TEST_F(StudyQuestionTest, TheWindowOpensWithTwentyOneEvenValues) {
    Rectangle();
    const StudyQuestion question = Question("A");
    EXPECT_THAT(question.Faults(), IsEmpty());
    EXPECT_THAT(OptionsOf(question.Rows()), ElementsAre("--vary", "A=2:6:*21", "--take", "Sigma_z"));
}

TEST_F(StudyQuestionTest, TypedValuesGoIntoTheCommandInBaseUnits) {
    SetDefaultUnits();
    UnitSettings units = UnitsInForce();
    units.Len1Label = "[mm]";
    units.Len1Factor = 1000;
    SetUnits(units);
    Rectangle().txt_A.Text = "4000";
    StudyQuestion question = Question("A");
    EXPECT_EQ(question.Vary[0].From, "2000");
    question.Vary[0].To = "6500";
    EXPECT_THAT(question.Rows().Vary, ElementsAre("A=2:6.5:*21"));
    SetDefaultUnits();
}

TEST_F(StudyQuestionTest, LogarithmicStepsListsAndASecondField) {
    Rectangle();
    StudyQuestion question = Question("A");
    question.Vary[0].Steps = StepKind::Factors;
    question.Vary[0].Count = "5";
    question.ChooseVaried(1, Place(question.Fields(), "B"));
    EXPECT_THAT(question.Rows().Vary, ElementsAre("A=2:6:^5", "B=1.5:4.5:*7"));
    question.Vary[1].Steps = StepKind::List;
    question.Vary[1].List = "1; 2,5 4";
    EXPECT_THAT(question.Faults(), IsEmpty());
    EXPECT_THAT(question.Rows().Vary, ElementsAre("A=2:6:^5", "B=1,2.5,4"));
}

TEST_F(StudyQuestionTest, CountsAreWholeNumbersEachOnce) {
    auto& form = Dialog(Problem::TimeDirect);
    const auto fields = FieldChoicesOf(form, form.Draft().Record);
    StudyQuestion question = Question("TimePeriod");
    question.Vary[0].From = "4";
    question.Vary[0].To = "8";
    question.Vary[0].Count = "9";
    EXPECT_THAT(question.Rows().Vary, ElementsAre("TimePeriod=4,5,6,7,8"));
}

TEST_F(StudyQuestionTest, RandomFieldsWithTheirDistributions) {
    Rectangle();
    StudyQuestion question = Question("A");
    question.ChooseRandom(0, Place(question.Fields(), "P"));
    EXPECT_EQ(question.Random[0].Kind, DistributionKind::LogNormal);
    question.ChooseRandom(1, Place(question.Fields(), "z"));
    question.Random[1].Kind = DistributionKind::Triangular;
    question.ProposeTexts(1);
    question.ChooseRandom(2, Place(question.Fields(), "Nue"));
    question.Random[2].Kind = DistributionKind::Uniform;
    question.Random[2].Texts = {"0.2", "0.4", ""};
    question.Samples = "500";
    EXPECT_THAT(question.Faults(), IsEmpty());
    const StudyRequest rows = question.Rows();
    EXPECT_THAT(rows.Random, ElementsAre("P=lognormal:120:10%", "z=triangular:1:2:3", "Nue=uniform:0.2:0.4"));
    EXPECT_THAT(OptionsOf(rows), ::testing::IsSupersetOf({"--samples", "500"}));
}

TEST_F(StudyQuestionTest, ALimitIsHeldInTheResultsBaseUnitAndSearchedAlongTheFirstField) {
    SetDefaultUnits();
    UnitSettings units = UnitsInForce();
    units.Len2Label = "[mm]";
    units.Len2Factor = 10;
    SetUnits(units);
    Dialog(Problem::Consolidation);
    StudyQuestion question = Question("h");
    question.Limit = "50";
    EXPECT_EQ(question.Drawn().Take, "s");
    EXPECT_THAT(OptionsOf(question.Rows()), ::testing::IsSupersetOf({"--limit", "s=5"}));
    const std::string from = question.Rows().Vary.front();
    EXPECT_EQ(from.substr(0, from.rfind(':')), question.FindRange());
    EXPECT_THAT(question.Find().Vary, IsEmpty());
    EXPECT_THAT(question.Find().Limit, ElementsAre("s=5"));
    SetDefaultUnits();
}

TEST_F(StudyQuestionTest, WhatCannotBeTakenNamesItsBoxAndItsReason) {
    Rectangle();
    StudyQuestion question = Question("Nue");
    question.Vary[0].To = "0.6";
    auto faults = question.Faults();
    ASSERT_THAT(faults, SizeIs(1));
    EXPECT_EQ(faults[0].Box, "txtTo(1)");
    EXPECT_THAT(faults[0].Reason, HasSubstr("Poisson's ratio"));
    question.Vary[0].To = "x";
    EXPECT_EQ(question.Faults()[0].Box, "txtTo(1)");
    question.Vary[0].To = "0.4";
    question.Vary[0].Count = "1";
    EXPECT_EQ(question.Faults()[0].Box, "txtCount(1)");
    question.Vary[0].Count = "5";
    question.ChooseVaried(1, question.Vary[0].Field);
    EXPECT_EQ(question.Faults()[0].Box, "cboField(2)");
    question.ChooseVaried(1, kNoField);
    question.Limit = "abc";
    EXPECT_EQ(question.Faults()[0].Box, "txtLimit");
    question.Limit = "";
    EXPECT_THAT(question.Faults(), IsEmpty());
    EXPECT_EQ(question.FindFaults()[0].Box, "txtLimit");
    question.ChooseVaried(0, kNoField);
    EXPECT_EQ(question.Faults()[0].Box, "cboField(1)");
}

TEST_F(StudyQuestionTest, ATornadoMovesAllFieldsInsideTheirLimits) {
    Rectangle().txt_Nue.Text = "0.48";
    StudyQuestion question = Question("A");
    question.TornadoSwing = "25";
    // x is 0 and cannot go up and down by a part of it; Poisson's ratio ends at its limit.
    EXPECT_THAT(question.Tornado().Vary,
                ::testing::IsSupersetOf({"A=3,5", "B=2.25,3.75", "P=90,150", "z=1.5,2.5", "Nue=0.36,0.5"}));
    for (const std::string& vary : question.Tornado().Vary) EXPECT_FALSE(vary.starts_with("x=")) << vary;
    EXPECT_THAT(question.Tornado().Take, ElementsAre("Sigma_z"));
    question.TornadoOfAll = false;
    EXPECT_THAT(question.Tornado().Vary, ElementsAre("A=2:6:*21"));
}

TEST_F(StudyQuestionTest, EveryProblemOffersFieldsAndResultsThatItsStudyKnows) {
    for (int problem = 1; problem <= 10; ++problem) {
        ProblemForm& form = Dialog(problem);
        const FormDraft draft = form.Draft();
        ASSERT_TRUE(draft.Valid()) << problem << ": " << draft.Faults.front().Reason;
        const auto fields = FieldChoicesOf(form, draft.Record);
        ASSERT_FALSE(fields.empty()) << problem;
        StudyQuestion question(fields, ResultChoicesOf(draft.Record), 0);
        question.Taken.assign(question.Taken.size(), true);
        for (int field = 0; field < static_cast<int>(fields.size()); ++field) {
            question.ChooseVaried(0, field);
            EXPECT_THAT(question.Faults(), IsEmpty()) << problem << " " << fields[static_cast<std::size_t>(field)].Name;
            const StudyTable table(question.Rows());
            EXPECT_EQ(table.Head().Takes.size(), question.Results().size()) << problem;
            EXPECT_GE(table.Wanted(), 2U) << problem;
        }
    }
}

TEST_F(StudyQuestionTest, TheNextStudyBeginsAsTheLastOneWasAskedWithRangesOfItsOwn) {
    Rectangle();
    StudyQuestion last = Question("A");
    last.Vary[0].Steps = StepKind::Factors;
    last.Vary[0].Count = "9";
    last.Vary[0].From = "3";
    last.ChooseVaried(1, Place(last.Fields(), "B"));
    last.Vary[1].Count = "4";
    last.Result = PlaceOfResult(last, "Sigma_x");
    last.Taken = std::vector<bool>(last.Taken.size(), false);
    last.Taken[static_cast<std::size_t>(PlaceOfResult(last, "q"))] = true;
    StudyQuestion next = Question("z");
    Recall(next, MemoryOf(last));
    EXPECT_THAT(OptionsOf(next.Rows()),
                ElementsAre("--vary", "z=1:3:^9", "--vary", "B=1.5:4.5:*4", "--take", "Sigma_x", "--take", "q"));
    // A second field that is the first one now, and words that mean nothing, are left.
    StudyQuestion other = Question("B");
    Recall(other, MemoryOf(last) + "|take=nothing|what|=|first=even");
    EXPECT_THAT(other.Rows().Vary, ElementsAre("B=1.5:4.5:^9"));
    EXPECT_THAT(other.Faults(), IsEmpty());
}

TEST(CommandTextTest, WordsThatAShellWouldChangeStandInQuotes) {
    EXPECT_EQ(CommandText({"study", "/data/My crane.PO3", "--vary", "A=2:6:*21", "--vary", "hLayer(1)=2:4:^3", "--take",
                           "s", "--limit", "s=5"}),
              "lithmark-cli study '/data/My crane.PO3' --vary 'A=2:6:*21' --vary 'hLayer(1)=2:4:^3' --take s "
              "--limit s=5");
    EXPECT_EQ(CommandText({"it's"}), "lithmark-cli 'it'\\''s'");
    EXPECT_EQ(CommandText({""}), "lithmark-cli ''");
}

}  // namespace
}  // namespace lithmark::tests
