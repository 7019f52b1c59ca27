// The golden helper itself: it must tell a difference, and in a form that a person can read.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "support/Golden.h"
#include "support/Places.h"

namespace lithmark::tests {
namespace {

TEST(LineDifferences, AreEmptyForEqualTexts) {
    EXPECT_EQ(LineDifference("a\nb\n", "a\nb\n"), "");
    EXPECT_EQ(LineDifference("", ""), "");
}

TEST(LineDifferences, ShowAChangedLineWithTwoAroundIt) {
    EXPECT_EQ(LineDifference("1\n2\n3\n4\n5\n6\n7\n", "1\n2\n3\nX\n5\n6\n7\n"),
              "line 2:\n  2\n  3\n- 4\n+ X\n  5\n  6\n");
}

TEST(LineDifferences, ShowLinesThatCameAndWent) {
    EXPECT_EQ(LineDifference("a\nb\n", "a\nnew\nb\n"), "line 1:\n  a\n+ new\n  b\n");
    EXPECT_EQ(LineDifference("a\nold\nb\n", "a\nb\n"), "line 1:\n  a\n- old\n  b\n");
}

TEST(LineDifferences, StandApartWhenTheyAreFarApart) {
    EXPECT_EQ(LineDifference("a\n1\n2\n3\n4\n5\n6\nb\n", "A\n1\n2\n3\n4\n5\n6\nB\n"),
              "line 1:\n- a\n+ A\n  1\n  2\nline 6:\n  5\n  6\n- b\n+ B\n");
}

TEST(LineDifferences, ShowAMissingLineEnd) {
    EXPECT_EQ(LineDifference("a\n", "a"), "line 1:\n- a\n+ a\\no line end\n");
}

TEST(MissingReference, FailsTheTestAndWritesWhatCame) {
    const testing::AssertionResult result = MatchesGolden("none/such.txt", "what came\r\nlone\rCR\r\n");
    EXPECT_FALSE(result);
    EXPECT_NE(std::string(result.message()).find("+ what came"), std::string::npos);
    std::ifstream file(lithmark::tests::TestOutputDir() / "none/such.txt", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "what came\nlone\\rCR\n");
}

}  // namespace
}  // namespace lithmark::tests
