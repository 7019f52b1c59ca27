#include <gtest/gtest.h>

#include "base/Array.h"
#include "base/Single.h"

namespace lithmark::tests {
namespace {

TEST(Array, TwoNumbersInBracesAreBoundsAndNotValues) {
    const Array<Single> curve{0, 70};
    EXPECT_EQ(curve.Lower(), 0);
    EXPECT_EQ(curve.Upper(), 70);
    EXPECT_EQ(curve(70), 0.0);
    const Array<Single> none{0, -1};
    EXPECT_TRUE(none.Empty());
}

TEST(Array, OfHoldsItsValuesFromIndexOneOn) {
    const auto values = Array<int>::Of({7, 8});
    EXPECT_EQ(values.Lower(), 1);
    EXPECT_EQ(values.Upper(), 2);
    EXPECT_EQ(values(2), 8);
    EXPECT_THROW(values(0), Failure);
    EXPECT_THROW(values(3), Failure);
}

}  // namespace
}  // namespace lithmark::tests
