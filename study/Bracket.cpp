#include "study/Bracket.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lithmark {

Bracket::Bracket(const SearchRange& range, double part, Trial low, Trial high)
    : range_(&range),
      part_(part),
      low_(std::move(low)),
      high_(std::move(high)),
      firstWidth_(high_.Value - low_.Value),
      reach_(firstWidth_) {
    // The smallest width of the first one's halves that is not yet small: the middle is met when all are used up.
    const double small = range.Small(low_.Value, high_.Value, part);
    double halves = small;
    while (halves < firstWidth_) halves *= 2;
    reach_ = halves;
}

double Bracket::Wanted() const {
    const double width = high_.Value - low_.Value, middle = low_.Value + width / 2;
    const double chord = (high_.Excess * low_.Value - low_.Excess * high_.Value) / (high_.Excess - low_.Excess);
    if (!std::isfinite(chord)) return middle;
    const double toMiddle = chord < middle ? 1 : -1;
    // Half of what does not matter at least, so that the other end follows where the chord meets this one.
    const double small = range_->Small(low_.Value, high_.Value, part_);
    const double step = std::max(0.2 * width * width / firstWidth_, small / 2);
    const double towards = step <= std::abs(middle - chord) ? chord + toMiddle * step : middle;
    const double reach = std::max(0.0, reach_ - width / 2);
    return std::abs(towards - middle) <= reach ? towards : middle - toMiddle * reach;
}

std::optional<double> Bracket::Next() const {
    const double a = low_.Value, b = high_.Value;
    if (ended_) return std::nullopt;
    if (range_->Field().Kind != FieldKind::Whole && b - a <= range_->Small(a, b, part_)) return std::nullopt;
    for (const double value : {range_->Held(Wanted()), range_->Held(a + (b - a) / 2)})
        if (a < value && value < b) return value;
    return std::nullopt;
}

void Bracket::Put(Trial trial) {
    reach_ /= 2;
    (trial.Beyond() == low_.Beyond() ? low_ : high_) = std::move(trial);
}

}  // namespace lithmark
