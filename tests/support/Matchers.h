// The matchers that tests name without their namespace.
#pragma once

#include <gmock/gmock.h>

namespace lithmark::tests {

using testing::AllOf;
using testing::Contains;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pointwise;
using testing::SizeIs;
using testing::StartsWith;

}  // namespace lithmark::tests
