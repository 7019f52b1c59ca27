#include "ui/answer/RaftSize.h"

#include <cmath>

#include "base/Failure.h"
#include "core/Problems.h"

namespace lithmark {

namespace {

// An even number of intervals near the wished size, as the mesh has it.
long Intervals(Single side, Single size) {
    const double count = std::round(Quotient(side, size));
    if (!(count > 0)) Fail(FailureKind::InvalidArgument);
    return std::lround(count) + std::lround(count) % 2;
}

constexpr double kSecondsPerNode = 1e-5;   // of a rectangle
constexpr double kCircleOfASecond = 5500;  // nodes

}  // namespace

RaftSize SizeOf(const SessionRecord& draft) {
    if (!IsRaft(draft.ProblemType)) return {};
    try {
        if (draft.LoadType == LoadShape::Circle) {
            const double divisions = static_cast<int>(draft.PrefND), nodes = divisions * divisions + 1;
            return {std::lround(nodes), std::pow(nodes / kCircleOfASecond, 3)};
        }
        constexpr double kTooMany = 1e9;
        const double columns = static_cast<double>(Intervals(draft.A, draft.PrefDx)) + 1;
        const double nodes = columns * (static_cast<double>(Intervals(draft.B, draft.PrefDy)) + 1);
        return nodes < kTooMany ? RaftSize{std::lround(nodes), nodes * kSecondsPerNode} : RaftSize{};
    } catch (const Failure&) {
        return {};
    }
}

}  // namespace lithmark
