// What listings and scripts are told of a field is what its dialog says of it.
#include <set>

#include "ChangedField.h"
#include "FormTest.h"
#include "core/FieldMeanings.h"
#include "core/Problems.h"
#include "files/ProblemData.h"

namespace lithmark::tests {
namespace {

// The unit of a stored value beside the unit of the box that shows it. None: a box without a unit, or with words of its
// own (the time unit of the project).
BaseUnit BaseOf(Unit unit) {
    switch (unit) {
        case Unit::Length:
            return BaseUnit::Metre;
        case Unit::Settlement:
            return BaseUnit::Centimetre;
        case Unit::Force:
            return BaseUnit::Kilonewton;
        case Unit::Pressure:
            return BaseUnit::Pressure;
        case Unit::UnitWeight:
            return BaseUnit::UnitWeight;
        case Unit::AreaPerTime:
            return BaseUnit::AreaPerTime;
        case Unit::LengthPerTime:
            return BaseUnit::LengthPerTime;
        case Unit::PerCent:
            return BaseUnit::PerCent;
        default:
            return BaseUnit::None;
    }
}

// Meanings that say more than the dialog's label: what the positions of a choice are, which direction, which load.
bool HasWordsOfItsOwn(const FieldMeaning& meaning) {
    return meaning.Text.Number >= 911200 && meaning.Text.Number < 911300;
}

class MeaningsOfForms : public FormTest {
  protected:
    // Each problem's dialog in a session of its problem.
    void ForEachProblem(const std::function<void(int, ProblemForm&)>& script) {
        OnEachProblem([&](ProblemForm& form) { script(Session.ProblemType, form); },
                      [&](int) { StartIn(Language::English); });
    }
};

TEST_F(MeaningsOfForms, EveryBoxHasAMeaningWithItsUnitAndItsWords) {
    int boxes = 0;
    ForEachProblem([&](int problem, ProblemForm& form) {
        for (const FieldRow& row : form.Fields()) {
            if (!row.Field.Exists()) continue;
            ++boxes;
            const std::string name = NameOf(row.Field);
            const FieldMeaning* meaning = FindMeaning(problem, name);
            ASSERT_NE(meaning, nullptr) << name;
            const bool ownUnit =
                row.In.In == Unit::None && !row.In.Says.Empty() && row.In.Says.Text() == BaseUnitText(meaning->Unit);
            EXPECT_TRUE(ownUnit || meaning->Unit == BaseOf(row.In.In)) << name << ": " << BaseUnitText(meaning->Unit);
            if (HasWordsOfItsOwn(*meaning)) continue;
            // "Layer thickness 2" is the meaning and the number of the element.
            std::string label = row.MessageName();
            if (label.ends_with(':')) label.pop_back();
            const std::string said = row.Label.Says.Text();
            EXPECT_TRUE(said == MeaningText(*meaning) || label == MeaningText(*meaning))
                << name << ": \"" << MeaningText(*meaning) << "\" and the dialog's \"" << said << "\"";
        }
    });
    EXPECT_GT(boxes, 80);
}

TEST_F(MeaningsOfForms, EveryChoiceHasAMeaning) {
    int choices = 0;
    ForEachProblem([&](int problem, ProblemForm& form) {
        for (const ChoiceRow& row : form.Choices()) {
            if (!row.Field.Exists()) continue;
            ++choices;
            const std::string name = NameOf(row.Field);
            EXPECT_NE(FindMeaning(problem, name), nullptr) << name;
        }
    });
    EXPECT_GT(choices, 15);
}

// A list's meaning is that of its elements.
TEST_F(MeaningsOfForms, EveryFieldOfADataFileHasAMeaning) {
    for (int problem = Problem::SoilStress; problem <= Problem::RaftConsolidation; ++problem)
        for (const std::string_view name : ProblemFieldNames(problem))
            EXPECT_TRUE(FindMeaning(problem, name) || FindMeaning(problem, std::string(name) + "(1)"))
                << "problem " << problem << ": " << name;
}

}  // namespace
}  // namespace lithmark::tests
