#include "study/SearchRange.h"

#include <algorithm>
#include <cmath>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "study/StudyFailure.h"

namespace lithmark {

SearchRange::SearchRange(const std::string& text) {
    const auto equals = text.find('=');
    if (equals == std::string::npos) FailRequest(908300_text, text);
    field_ = FindStudyField(text.substr(0, equals));
    const std::vector<std::string> ends = Split(text.substr(equals + 1), ':');
    const auto from = ends.size() == 2 && field_.Numeric() ? ParseNumber(ends[0]) : std::nullopt;
    const auto to = from ? ParseNumber(ends[1]) : std::nullopt;
    if (!to || !std::isfinite(Held(*from)) || !std::isfinite(Held(*to)) || !(Held(*from) < Held(*to)))
        FailRequest(908300_text, text);
    for (int i = 0; i < kPoints; ++i) {
        const double point = Held(*from + (*to - *from) * i / (kPoints - 1));
        if (points_.empty() || points_.back() < point) points_.push_back(point);
    }
}

double SearchRange::Held(double value) const {
    return field_.Kind == FieldKind::Whole ? std::round(value) : static_cast<double>(static_cast<float>(value));
}

double SearchRange::Small(double a, double b, double part) const {
    const double least = (points_.back() - points_.front()) / 1000;
    return part * std::max({std::abs(a), std::abs(b), least});
}

// A count goes ahead of the elements that it counts.
RowInput SearchRange::Set(RowInput row, double value) const {
    const auto place = field_.Kind == FieldKind::Whole ? row.begin() : row.end();
    row.insert(place, {field_.Name, ValueText(field_, value)});
    return row;
}

}  // namespace lithmark
