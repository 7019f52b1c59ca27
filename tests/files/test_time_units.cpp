// Time units in data files: words of the language that a file was written under.
#include "ProjectTest.h"
#include "core/TimeUnits.h"
#include "support/Languages.h"

namespace lithmark::tests {
namespace {

class TimeUnitWords : public ProjectTest {};

constexpr TextId kUnits[] = {10001_text, 10002_text, 10003_text, 10004_text};

TEST_F(TimeUnitWords, OfAnyLanguageAreReadAsTheSameUnitOfTheOneInForce) {
    for (const int problem : {5, 6, 7, 8})
        for (const TextId unit : kUnits)
            for (const Language written : kLanguages) {
                StartIn(written);
                StartProblem(problem);
                Session.TimeUnit = Text(unit);
                WriteProblemData();
                for (const Language language : kLanguages) {
                    StartIn(language);
                    Session.ProblemType = problem;
                    ASSERT_EQ(ReadProblemData(), ReadOutcome::Read);
                    EXPECT_EQ(Session.TimeUnit, Text(unit));
                    EXPECT_GT(SecondsPerTimeUnit(Session.TimeUnit), 0);
                }
            }
}

TEST_F(TimeUnitWords, OfNoLanguageStay) {
    StartProblem(5);
    for (const char* word : {"fortnights", "", "Days", "days x"}) {
        Session.TimeUnit = word;
        WriteProblemData();
        Session.TimeUnit = "other";
        ASSERT_EQ(ReadProblemData(), ReadOutcome::Read);
        EXPECT_EQ(Session.TimeUnit, word);
    }
}

}  // namespace
}  // namespace lithmark::tests
