// Golden texts: whole reports and files, kept under tests/goldens as UTF-8 with LF line ends, so that a person can
// judge them. They pin what the program writes; that the numbers in them are right is proved elsewhere.
//
//     EXPECT_TRUE(MatchesGolden("stress/point_stress_en.txt", Session.ResultText));
//
// When a golden differs, what came and a readable difference are written below the build folder, and the difference is
// printed. tests/renew-goldens renews all of them and shows each difference first. Tests that use goldens have "Golden"
// in the name of their suite.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace lithmark::tests {

// `actual` with its line ends CR LF or LF, not mixed; a lone CR is shown as "\r".
testing::AssertionResult MatchesGolden(const std::string& name, const std::string& actual);

// The lines in which two texts differ, each with two lines around it: "-" expected, "+" actual. Empty when they do not.
std::string LineDifference(const std::string& expected, const std::string& actual);

}  // namespace lithmark::tests
