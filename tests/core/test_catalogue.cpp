// The problem catalogue and the defaults of the eleven problems.
#include <gmock/gmock.h>

#include "core/Catalogue.h"
#include "support/DistinctFields.h"
#include "support/Files.h"
#include "support/TestSession.h"

namespace lithmark::tests {
namespace {

TEST(ProblemCatalogue, HasElevenRowsInOrderWithTheirMenuEntryTextAndExtension) {
    const struct {
        int ProblemType, MenuEntry, MenuText;
        std::string Extension;
    } expected[] = {{1, 1, 140185, "SSD"}, {2, 2, 300100, "SSD"},  {3, 3, 300001, "SSD"}, {4, 4, 140186, "CON"},
                    {5, 5, 140187, "RAT"}, {6, 6, 140188, "TST"},  {7, 6, 140188, "TST"}, {8, 6, 140188, "TST"},
                    {9, 7, 140189, "RDE"}, {10, 8, 140190, "RCO"}, {11, 9, 400190, "SC1"}};
    ASSERT_EQ(ProblemCatalogue().size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        SCOPED_TRACE(expected[i].ProblemType);
        const ProblemRow& row = ProblemCatalogue()[i];
        EXPECT_EQ(row.ProblemType, expected[i].ProblemType);
        EXPECT_EQ(row.MenuEntry, expected[i].MenuEntry);
        EXPECT_EQ(row.MenuText.Number, expected[i].MenuText);
        EXPECT_EQ(row.Extension, expected[i].Extension);
        EXPECT_EQ(FindProblem(row.ProblemType), &row);
    }
}

// The captions of the results, and what can be done with them.
TEST(ProblemCatalogue, TellsWhatBecomesOfTheResults) {
    const struct {
        int ProblemType, Subject;
        bool Curves, Contours, HandsOver, Calculated;
    } expected[] = {
        {1, 140185, false, false, false, true}, {2, 300100, false, false, false, true},
        {3, 300001, false, false, false, true}, {4, 140186, false, false, false, true},
        {5, 140187, true, false, false, true},  {6, 300047, true, false, false, true},
        {7, 300048, true, false, false, true},  {8, 300033, true, false, false, true},
        {9, 140189, true, true, true, true},    {10, 140190, true, true, true, true},
        {11, 400190, true, false, true, false},
    };
    for (const auto& row : expected) {
        SCOPED_TRACE(row.ProblemType);
        const ProblemRow& problem = *FindProblem(row.ProblemType);
        EXPECT_EQ(problem.Subject.Number, row.Subject);
        EXPECT_EQ(problem.Curves != CurveFamily::None, row.Curves);
        EXPECT_EQ(problem.HasContours(), row.Contours);
        EXPECT_EQ(problem.HandsOver, row.HandsOver);
        EXPECT_EQ(problem.Calculated, row.Calculated);
    }
}

TEST(ProblemCatalogue, AnEntryLeadsToItsFirstProblem) {
    const int expected[] = {1, 2, 3, 4, 5, 6, 9, 10, 11};
    for (int entry = 1; entry <= kLastProblemEntry; ++entry)
        EXPECT_EQ(FirstProblemOf(entry)->ProblemType, expected[entry - 1]) << entry;
    for (const int entry : {-1, kProjectEntry, kLastProblemEntry + 1}) EXPECT_EQ(FirstProblemOf(entry), nullptr);
}

TEST(ProblemCatalogue, TheProblemInForceHasARowOrFails) {
    FreshSession();
    Session.ProblemType = Problem::TimeOedometer;
    EXPECT_EQ(ProblemInForce().ProblemType, Problem::TimeOedometer);
    Session.ProblemType = 12;
    EXPECT_EQ(KindOf([] { ProblemInForce(); }), FailureKind::SubscriptRange);
}

TEST(ProblemCatalogue, FamiliesOfProblems) {
    for (int problem = 0; problem <= 12; ++problem) {
        EXPECT_EQ(IsSoilStress(problem), problem >= 1 && problem <= 3) << problem;
        EXPECT_EQ(IsTimeSettlement(problem), problem >= 6 && problem <= 8) << problem;
        EXPECT_EQ(IsRaft(problem), problem == 9 || problem == 10) << problem;
    }
}

TEST(ProblemCatalogue, OtherNumbersHaveNoRow) {
    for (const int number : {-1, 0, 12, 32767}) EXPECT_EQ(FindProblem(number), nullptr) << number;
}

const FieldTexts kStress = {{"x", "1"}, {"y", "1"}, {"z", "0"},     {"Q", "7854"},  {"P", "100"},
                            {"A", "5"}, {"B", "5"}, {"Nue", ".25"}, {"Es", "5000"}, {"LoadType", "2"}};
const FieldTexts kConsolidation = {
    {"x", "0"},    {"y", "0"},      {"z", "1"},        {"Q", "7854"},     {"P", "150"},
    {"A", "2"},    {"B", "2"},      {"Es", "5000"},    {"Cc", ".16"},     {"h", "5"},
    {"eo", ".85"}, {"Po", "51.82"}, {"Gamma", "8.69"}, {"LoadType", "2"}, {"SoilPropertyType", "2"}};
const FieldTexts kRate = {{"A", "2"},
                          {"B", "2"},
                          {"x", "0"},
                          {"y", "0"},
                          {"z", "1"},
                          {"Q", "7854"},
                          {"P", "150"},
                          {"LoadType", "2"},
                          {"hLayer", "(4, 5)"},
                          {"CvLayer", "(1.5E-06, 1.5E-06)"},
                          {"KLayer", "(1, 1)"},
                          {"T", "5"},
                          {"U", "100"},
                          {"NumLayers", "1"},
                          {"DrainageCondition", "1"},
                          {"Pressure", "#TRUE#"},
                          {"TimeUnit", "years"}};
const FieldTexts kTimeSettlement = {
    {"DrainageFaces", "2"},
    {"CvChoice", "1"},
    {"CvTS", "1.5E-06"},
    {"kf", "4E-05"},
    {"EsTS", "24000"},
    {"Ws", "80000"},
    {"qv", "36"},
    {"qe", "130"},
    {"h", "8"},
    {"Hm", ".019"},
    {"Sc", "12.1"},
    {"Pt", "6350"},
    {"TimePeriod", "18"},
    {"StartDate", "1 April 2026"},
    {"TimeUnit", "days"},
    {"Ms", "#TRUE#"},
    {"Sm", "4.61"},
    {"DesignCode", "4"},
    {"NLoad", "5"},
    {"LoadTime", "(1, 2, 4, 7, 12)"},
    {"LoadValue", "(19, 42, 83, 94, 100)"},
    {"NSts", "5"},
    {"StsTime", "(1, 2, 3, 4, 5)"},
    {"StsValue", "(49, 74, 89, 97, 100)"},
    {"NOed", "10"},
    {"OedTime", "(.25, 1, 2.25, 4, 9, 16, 25, 36, 49, 1440)"},
    {"OedSettlement", "(.14, .282, .424, .564, .839, 1.019, 1.148, 1.231, 1.257, 1.309)"},
    {"OedUnit", "[mm]"}};
const FieldTexts kDisplacement = {{"z", "1"},
                                  {"A", "5"},
                                  {"B", "5"},
                                  {"h", "5"},
                                  {"Q", "7854"},
                                  {"Nue", ".25"},
                                  {"Es", "5000"},
                                  {"Cc", ".16"},
                                  {"eo", ".85"},
                                  {"Po", "51.82"},
                                  {"LoadType", "2"},
                                  {"SoilPropertyType", "2"},
                                  {"Exz_x", "0"},
                                  {"Exz_y", "0"},
                                  {"Gamma", "8.69"},
                                  {"AnalysisType", "#TRUE#"},
                                  {"SettlementAt", "#TRUE#"}};
const FieldTexts kRaftConsolidation = {{"Q", "7854"},
                                       {"A", "5"},
                                       {"B", "5"},
                                       {"h", "5"},
                                       {"Es", "5000"},
                                       {"LoadType", "2"},
                                       {"Exz_x", "0"},
                                       {"Exz_y", "0"},
                                       {"AnalysisType", "#TRUE#"},
                                       {"SettlementAt", "#TRUE#"},
                                       {"SoilPropertyType", "1"}};
const FieldTexts kLayerTable = {{"ScLoad", "25"},  {"NScA", "1"},       {"ScA1", "(1000)"},   {"ScA2", "(2)"},
                                {"ScA3", "(2)"},   {"ScA4", "(.5)"},    {"ScA5", "(1.5)"},    {"ScA6", "(1)"},
                                {"ScA7", "(1)"},   {"ScA8", "(0)"},     {"ScA9", "(0)"},      {"NScB", "1"},
                                {"ScB1", "(50)"},  {"ScB2", "(50000)"}, {"ScB3", "(150000)"}, {"ScB4", "(.5)"},
                                {"ScB5", "(18)"},  {"ScValue1", ".5"},  {"ScValue2", ".2"},   {"ScFlag", "#TRUE#"},
                                {"ScValue3", "1"}, {"ScValue4", "2"}};

const FieldTexts& ExpectedDefaults(int problem) {
    switch (problem) {
        case 1:
        case 2:
        case 3:
            return kStress;
        case 4:
            return kConsolidation;
        case 5:
            return kRate;
        case 6:
        case 7:
        case 8:
            return kTimeSettlement;
        case 9:
            return kDisplacement;
        case 10:
            return kRaftConsolidation;
        default:
            return kLayerTable;
    }
}

// What Session holds beside the fields of the data files, told by its values.
std::string OtherState() {
    auto& s = Session;
    std::string state;
    for (const std::string* text :
         {&s.ProgramDir,    &s.DataDir,     &s.ProjectName,  &s.ProjectFile,     &s.WorkDir,
          &s.WorkName,      &s.FirmaLine1,  &s.FirmaLine2,   &s.MeasuredUnit,    &s.Len1Label,
          &s.Len2Label,     &s.Force1Label, &s.Force2Label,  &s.TempLabel,       &s.ResultText,
          &s.SymbolSuffix,  &s.TableTitle,  &s.CurveChoice,  &s.CurveLoadUnit,   &s.CurveSettlementUnit,
          &s.ContourResult, &s.FmtForce,    &s.FmtForceFine, &s.FmtDialogModulus})
        state += *text + ";";
    for (const bool flag : {s.DialogOk, s.DataValid, s.FileSaved, s.CalcAborted}) state += flag ? '1' : '0';
    for (const double value :
         {double{s.A0}, s.Len1Factor, s.Len2Factor, s.Force1Factor, s.Force2Factor, double(s.CompressFlag),
          double{s.Sigma_x}, double{s.Varepsilon_x}, double{s.u}, double{s.s}, double{s.Uc}, double{s.ConsolidationEnd},
          double{s.MeasureFactor}, double{s.RaftMeanPressure}, double{s.LoadCurve(70)}, double(s.NodeX.Upper())})
        state += std::to_string(value) + ";";
    return state;
}

class Defaults : public testing::TestWithParam<int> {
  protected:
    void SetUp() override { FreshSession(); }
};

TEST_P(Defaults, AreExactlyTheFieldsOfTheProblemAndNoOthers) {
    // Two fillings, so that a flag which keeps its value is told from one that is set to what it was.
    for (const int variant : {0, 1}) {
        Session.ProblemType = GetParam();
        FillFields(variant);
        Session.Datum = "1 April 2026";
        Session.A0 = 17;
        Session.CalcAborted = variant == 1;
        Session.ResultText = "report";
        Session.MeasuredUnit = "";
        FieldTexts expected = TakeFields();
        const std::string others = OtherState();
        for (const auto& [name, text] : ExpectedDefaults(GetParam())) {
            ASSERT_TRUE(expected.contains(name)) << name;
            expected[name] = text;
        }
        SetProblemDefaults();
        const FieldTexts actual = TakeFields();
        for (const auto& [name, text] : expected) EXPECT_EQ(actual.at(name), text) << name;
        EXPECT_EQ(OtherState(), others);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryProblem, Defaults, testing::Range(1, 12));

TEST(ProblemDefaults, OfAProblemOutsideTheCatalogueChangeNothing) {
    FreshSession();
    for (const int problem : {-1, 0, 12}) {
        Session.ProblemType = problem;
        FillFields(0);
        const FieldTexts before = TakeFields();
        SetProblemDefaults();
        EXPECT_EQ(TakeFields(), before) << problem;
    }
}

TEST(ProblemDefaults, AreTheNearestSingles) {
    FreshSession();
    Session.ProblemType = Problem::Consolidation;
    SetProblemDefaults();
    EXPECT_EQ(static_cast<double>(Session.Cc), 0.1599999964237213);
}

TEST(ProblemDefaults, OfARaftOnClayLeaveWhatItCalculatesWithAtZeroOnAFreshSession) {
    FreshSession();
    Session.ProblemType = Problem::RaftConsolidation;
    SetProblemDefaults();
    for (const Single& value : {Session.z, Session.eo, Session.Po, Session.Cc, Session.Gamma}) EXPECT_EQ(value, 0.0);
}

TEST(ProblemDefaults, TheTimeOfTheMeasurementIsTheThirdTimeOfTheLoadTable) {
    FreshSession();
    Session.ProblemType = Problem::TimeOedometer;
    SetProblemDefaults();
    EXPECT_EQ(Session.DesignCode, Session.LoadTime(3));
    EXPECT_EQ(Session.DesignCode, 4);
}

TEST(ProblemDefaults, WordsAreThoseOfTheLanguageInForce) {
    FreshSession(Language::German);
    Session.ProblemType = Problem::ConsolidationRate;
    SetProblemDefaults();
    EXPECT_EQ(Session.TimeUnit, "Jahre");
    Session.ProblemType = Problem::TimeDirect;
    SetProblemDefaults();
    EXPECT_EQ(Session.TimeUnit, "Tage");
    FreshSession();
}

}  // namespace
}  // namespace lithmark::tests
