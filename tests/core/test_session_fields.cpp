#include <gtest/gtest.h>

#include <set>

#include "core/SessionFields.h"

using namespace lithmark;

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

TEST_F(SessionFieldsTest, TextsFollowTheWrittenNumberRule) {
    Session.CvTS = 0.0000015;
    Session.hLayer(1) = 4;
    Session.hLayer(2) = 0.5;
    EXPECT_EQ(SessionFieldText(FindSessionField("CvTS")->Ref), "1.5E-06");
    EXPECT_EQ(SessionFieldText(FindSessionField("hLayer")->Ref), "(4, .5)");
    EXPECT_EQ(SessionFieldText(FindSessionField("Ms")->Ref), "#FALSE#");
}

}  // namespace
