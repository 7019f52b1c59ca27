// The names and symbols of fields, and the nearest known word.
#include <gtest/gtest.h>

#include "core/FieldNames.h"
#include "core/Session.h"
#include "core/SessionFields.h"

namespace lithmark::tests {
namespace {

TEST(FieldNames, NamesAndSymbolsNameAField) {
    EXPECT_EQ(FieldNameOf(1, "A"), "A");
    EXPECT_EQ(FieldNameOf(1, "a"), "A");
    EXPECT_EQ(FieldNameOf(1, "Nue_s"), "Nue");
    EXPECT_EQ(FieldNameOf(4, "Gamma*z"), "Po");
    EXPECT_EQ(FieldNameOf(5, "Tc"), "T");
    EXPECT_EQ(FieldNameOf(5, "h2"), "hLayer(2)");
    EXPECT_EQ(FieldNameOf(5, "hLayer[2]"), "hLayer(2)");
    EXPECT_EQ(FieldNameOf(5, "hLayer(02)"), "hLayer(2)");
    EXPECT_EQ(FieldNameOf(6, "LoadTime(00)"), "LoadTime(0)");
    EXPECT_EQ(FieldNameOf(5, "hLayer()"), "hLayer()") << "no element, told as none where it is looked for";
    EXPECT_EQ(FieldNameOf(9, "e"), "Exz_x");
    EXPECT_EQ(FieldNameOf(9, "LoadValue"), "LoadValue");
    // A symbol belongs to its problem.
    EXPECT_EQ(FieldNameOf(1, "Tc"), std::nullopt);
    EXPECT_EQ(FieldNameOf(1, ""), std::nullopt);
    EXPECT_EQ(FieldNameOf(11, "a"), std::nullopt);
}

// Problem 8 prints EsTS as Es, which is the name of a field.
TEST(FieldNames, TheNameGoesBeforeTheSymbol) {
    EXPECT_EQ(FieldNameOf(8, "Es"), "Es");
    EXPECT_EQ(SymbolOfField(8, "EsTS"), "Es");
}

TEST(FieldNames, EverySymbolStandsForAFieldThatIs) {
    for (int problem = 1; problem <= 10; ++problem) {
        std::size_t symbols = 0;
        for (const std::string_view word : FieldWords(problem)) {
            const auto name = FieldNameOf(problem, word);
            ASSERT_TRUE(name) << problem << " " << word;
            const std::string field = name->substr(0, name->find('('));
            EXPECT_TRUE(FindSessionField(field)) << *name;
            symbols += FindSessionField(word) ? 0 : 1;
        }
        EXPECT_GT(symbols, 0u) << "problem " << problem << " prints symbols of its own";
    }
}

TEST(FieldNames, TheNearestWordTakesTheFewestChanges) {
    const std::vector<std::string_view> known = {"Sigma_x", "Sigma_z", "s", "w", "Nue"};
    EXPECT_EQ(NearestWord("Sigmaz", known), "Sigma_z");
    EXPECT_EQ(NearestWord("nue", known), "Nue");
    EXPECT_EQ(NearestWord("S", known), "s");
    EXPECT_EQ(NearestWord("anything", {}), "");
}

TEST(SessionValues, AValueIsToldWithItsKind) {
    ResetSession();
    Session.Es = 5000.5;
    Session.LoadType = 3;
    Session.hLayer(2) = 4;
    Session.TimeUnit = "days";
    Session.Ms = true;
    const auto es = SessionValue("Es");
    ASSERT_TRUE(es);
    EXPECT_EQ(es->Kind, FieldKind::Number);
    EXPECT_EQ(es->Number, 5000.5);
    EXPECT_EQ(SessionValue("LoadType")->Kind, FieldKind::Whole);
    EXPECT_EQ(SessionValue("LoadType")->Number, 3);
    EXPECT_EQ(SessionValue("hLayer(2)")->Number, 4);
    EXPECT_EQ(SessionValue("TimeUnit")->Kind, FieldKind::Text);
    EXPECT_EQ(SessionValue("TimeUnit")->Text, "days");
    EXPECT_EQ(SessionValue("Ms")->Kind, FieldKind::Flag);
    for (const char* none : {"Young", "hLayer", "hLayer(3)", "Es(1)", ""}) EXPECT_FALSE(SessionValue(none)) << none;
}

}  // namespace
}  // namespace lithmark::tests
