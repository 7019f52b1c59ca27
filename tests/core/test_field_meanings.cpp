// What the fields of a problem mean.
#include <gtest/gtest.h>

#include "core/FieldMeanings.h"
#include "core/Problems.h"
#include "core/Session.h"
#include "core/SessionFields.h"
#include "services/texts/LanguageTexts.h"

namespace lithmark::tests {
namespace {

TEST(FieldMeanings, EveryRowNamesAFieldOrAnElement) {
    ResetSession();
    for (int problem = Problem::SoilStress; problem <= Problem::RaftConsolidation; ++problem) {
        EXPECT_FALSE(MeaningsOf(problem).empty()) << problem;
        for (const FieldMeaning& row : MeaningsOf(problem)) {
            const bool element = row.Name.ends_with(')');
            EXPECT_TRUE(element ? SessionValue(row.Name).has_value() : FindSessionField(row.Name) != nullptr)
                << row.Name;
        }
    }
    EXPECT_TRUE(MeaningsOf(Problem::LayerTable).empty());
    EXPECT_EQ(FindMeaning(Problem::SoilStress, "h"), nullptr);
}

TEST(FieldMeanings, TheWordsAreThoseOfTheFormWithoutItsMarks) {
    LanguageTexts().SetCurrent(Language::English);
    EXPECT_EQ(MeaningText(*FindMeaning(1, "x")), "x-coordinate");
    EXPECT_EQ(MeaningText(*FindMeaning(6, "TimeUnit")), "Time unit");
    EXPECT_EQ(MeaningText(*FindMeaning(9, "Exz_y")), "Eccentricity in y-direction");
}

TEST(FieldMeanings, UnitsAreThoseOfStoredValues) {
    ResetSession();
    Session.TimeUnit = "weeks";
    Session.OedUnit = "[mm]";
    EXPECT_EQ(BaseUnitText(FindMeaning(1, "A")->Unit), "m");
    EXPECT_EQ(BaseUnitText(FindMeaning(6, "Sc")->Unit), "cm");
    EXPECT_EQ(BaseUnitText(FindMeaning(5, "T")->Unit), "weeks");
    EXPECT_EQ(BaseUnitText(FindMeaning(7, "OedSettlement")->Unit), "mm");
    EXPECT_EQ(BaseUnitText(FindMeaning(5, "KLayer(2)")->Unit), "m/s");
    EXPECT_EQ(BaseUnitText(FindMeaning(1, "Nue")->Unit), "");
}

}  // namespace
}  // namespace lithmark::tests
