#include <gtest/gtest.h>

#include <set>

#include "core/Catalogue.h"
#include "core/SessionFields.h"

namespace lithmark::tests {
namespace {

class SessionFieldsTest : public testing::Test {
  protected:
    void SetUp() override { ResetSession(); }
};

TEST_F(SessionFieldsTest, EveryNameStandsOnce) {
    std::set<std::string_view> names;
    for (const auto& field : SessionFields()) EXPECT_TRUE(names.insert(field.Name).second) << field.Name;
}

TEST_F(SessionFieldsTest, AValueIsStoredInTheFieldOfItsName) {
    EXPECT_EQ(SetSessionField("Es", "1.25E+04"), SetFieldOutcome::Done);
    EXPECT_EQ(static_cast<double>(Session.Es), 12500.0);
    EXPECT_EQ(SetSessionField("hLayer(2)", "3.5"), SetFieldOutcome::Done);
    EXPECT_EQ(SetSessionField("hLayer[1]", "2"), SetFieldOutcome::Done);
    EXPECT_EQ(static_cast<double>(Session.hLayer(2)), 3.5);
    EXPECT_EQ(SetSessionField("Pressure", "true"), SetFieldOutcome::Done);
    EXPECT_TRUE(Session.Pressure);
    EXPECT_EQ(SetSessionField("TimeUnit", "years"), SetFieldOutcome::Done);
    EXPECT_EQ(Session.TimeUnit, "years");
    EXPECT_EQ(SetSessionField("PrefND", "14"), SetFieldOutcome::Done);
    EXPECT_EQ(Session.PrefND, 14);
}

TEST_F(SessionFieldsTest, ABadNameOrValueChangesNothing) {
    EXPECT_EQ(SetSessionField("es", "1"), SetFieldOutcome::NoSuchField);
    EXPECT_EQ(SetSessionField("Es", "1,5"), SetFieldOutcome::BadValue);
    EXPECT_EQ(SetSessionField("Es", "1e39"), SetFieldOutcome::BadValue);
    EXPECT_EQ(SetSessionField("Es(1)", "1"), SetFieldOutcome::NoSuchElement);
    EXPECT_EQ(SetSessionField("hLayer", "1"), SetFieldOutcome::NoSuchElement);
    EXPECT_EQ(SetSessionField("hLayer(3)", "1"), SetFieldOutcome::NoSuchElement);
    EXPECT_EQ(SetSessionField("LoadType", "2.5"), SetFieldOutcome::BadValue);
    EXPECT_EQ(SetSessionField("LoadType", "40000"), SetFieldOutcome::BadValue);
    EXPECT_EQ(SetSessionField("Pressure", "maybe"), SetFieldOutcome::BadValue);
    EXPECT_EQ(SetSessionField("Proj", "two\nlines"), SetFieldOutcome::BadValue);
    EXPECT_EQ(static_cast<double>(Session.Es), 0.0);
}

TEST_F(SessionFieldsTest, ACountSizesItsTable) {
    Session.ProblemType = Problem::TimeDirect;
    SetProblemDefaults();
    EXPECT_EQ(SetSessionField("NLoad", "6"), SetFieldOutcome::Done);
    EXPECT_EQ(SetSessionField("LoadTime(6)", "15"), SetFieldOutcome::Done);
    EXPECT_EQ(Session.NLoad, 6);
    EXPECT_EQ(SessionFieldText(FindSessionField("LoadTime")->Ref), "(1, 2, 4, 7, 12, 15)");
    EXPECT_EQ(SessionFieldText(FindSessionField("LoadValue")->Ref), "(19, 42, 83, 94, 100, 0)");
    EXPECT_EQ(SetSessionField("NSts", "2"), SetFieldOutcome::Done);
    EXPECT_EQ(SessionFieldText(FindSessionField("StsTime")->Ref), "(1, 2)");
    EXPECT_EQ(SessionFieldText(FindSessionField("StsValue")->Ref), "(49, 74)");
    EXPECT_EQ(SetSessionField("NOed", "0"), SetFieldOutcome::BadValue);
    EXPECT_EQ(Session.NOed, 10);
    EXPECT_EQ(Session.OedTime.Upper(), 10);
}

// Every column of every table must follow its count: writing a data file takes a row of each.
TEST_F(SessionFieldsTest, EveryColumnFollowsItsCount) {
    for (const char* count : {"NLoad", "NSts", "NOed", "NScA", "NScB"})
        EXPECT_EQ(SetSessionField(count, "3"), SetFieldOutcome::Done);
    int columns = 0;
    for (const auto& field : SessionFields())
        if (SessionFieldText(field.Ref) == "(0, 0, 0)") ++columns;
    EXPECT_EQ(columns, 20);
}

TEST_F(SessionFieldsTest, TextsFollowTheWrittenNumberRule) {
    Session.CvTS = 0.0000015;
    Session.hLayer(1) = 4;
    Session.hLayer(2) = 0.5;
    EXPECT_EQ(SessionFieldText(FindSessionField("CvTS")->Ref), "1.5E-06");
    EXPECT_EQ(SessionFieldText(FindSessionField("hLayer")->Ref), "(4, .5)");
    EXPECT_EQ(SessionFieldText(FindSessionField("Ms")->Ref), "#FALSE#");
}

}  // namespace
}  // namespace lithmark::tests
