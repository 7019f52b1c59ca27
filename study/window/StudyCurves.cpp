#include "study/window/StudyCurves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

#include "base/NumberText.h"
#include "contour/AxisTicks.h"
#include "services/SharedServices.h"
#include "services/texts/LanguageTexts.h"
#include "study/Statistics.h"
#include "study/window/ShortNumber.h"

namespace lithmark {

namespace {

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();
constexpr std::array kShares = {0.05, 0.5, 0.95};

// The values of a field that a table has, ascending, and which one a line has.
class FieldValues {
  public:
    FieldValues(const FieldChoice* field, const StudyTable& table)
        : factor_(field == nullptr ? 1 : field->Factor),
          place_(field == nullptr ? -1 : table.PlaceOfField(field->Name)) {
        for (const StudyLine& line : table.Lines()) places_[Of(line)] = 0;
        std::size_t i = 0;
        for (auto& [value, place] : places_) place = i++;
    }
    std::vector<double> All() const {
        std::vector<double> values;
        for (const auto& [value, place] : places_) values.push_back(value);
        return values;
    }
    std::size_t PlaceOf(const StudyLine& line) const { return places_.at(Of(line)); }

  private:
    double Of(const StudyLine& line) const {
        if (place_ < 0) return 0;
        return ParseNumber(line.Values[static_cast<std::size_t>(place_)]).value_or(0) * factor_;
    }

    double factor_;
    int place_;
    std::map<double, std::size_t> places_;
};

double Quantile(std::vector<float> values, double share) {
    if (values.empty()) return kGap;
    std::ranges::sort(values);
    return SortedQuantile(values, share);
}

// "z = 2.5 m", of one of the values of a family.
std::string MemberName(const FieldChoice& field, const std::vector<double>& family, std::size_t member,
                       char decimalSign) {
    return field.Short() + " = " + WithUnit(NumberApart(family[member], family, decimalSign), field.Unit);
}

bool Beyond(double y, double limit) {
    return y > limit;
}

void AddCrossings(StudyCurves& curves) {
    if (!curves.Limit) return;
    const double limit = *curves.Limit;
    for (std::size_t c = 0; c < curves.Curves.size(); ++c) {
        const std::vector<double>& y = curves.Curves[c].Y;
        for (std::size_t i = 0; i + 1 < y.size(); ++i) {
            if (std::isnan(y[i]) || std::isnan(y[i + 1]) || Beyond(y[i], limit) == Beyond(y[i + 1], limit)) continue;
            const double part = (limit - y[i]) / (y[i + 1] - y[i]);
            curves.Crossings.push_back({c, i, curves.X[i] + part * (curves.X[i + 1] - curves.X[i])});
        }
    }
}

}  // namespace

float PlottedNumber(const StudyQuestion& asked, const StudyTable& table, const StudyLine& line) {
    const int place = table.PlaceOfTake(asked.Drawn().Take);
    return place < 0 || line.Aborted() ? kMissing : line.Numbers[static_cast<std::size_t>(place)];
}

StudyCurves CurvesOf(const StudyQuestion& asked, const StudyTable& table, const StudyTable* present) {
    StudyCurves curves;
    if (const auto limit = asked.LimitNumber()) curves.Limit = *limit * asked.Drawn().Factor;
    const FieldChoice *first = asked.FirstVaried(), *second = asked.SecondVaried();
    if (first == nullptr) return curves;
    const FieldValues across(first, table), family(second, table);
    curves.X = across.All();
    const std::vector<double>& members = curves.Family = family.All();
    const auto gaps = [&] { return std::vector<double>(curves.X.size(), kGap); };
    // By the member of the family and the place across.
    std::vector<std::vector<std::vector<float>>> samples(members.size());
    for (auto& of : samples) of.resize(curves.X.size());
    for (const StudyLine& line : table.Lines()) {
        const float number = PlottedNumber(asked, table, line);
        if (!IsMissing(number)) samples[family.PlaceOf(line)][across.PlaceOf(line)].push_back(number);
    }
    const auto nameOf = [&](std::size_t member) {
        if (second == nullptr) return asked.Drawn().Short();
        return MemberName(*second, members, member, LanguageDecimalSign());
    };
    for (std::size_t member = 0; member < members.size(); ++member) {
        const bool shares = asked.IsRandom() && second == nullptr;
        for (const double share :
             shares ? std::vector<double>(kShares.begin(), kShares.end()) : std::vector<double>{0.5}) {
            StudyCurve curve{shares ? Text(913313_text, {{"|1", PictureNumber(share * 100)}}) : nameOf(member), gaps()};
            for (std::size_t i = 0; i < curves.X.size(); ++i)
                curve.Y[i] = Quantile(samples[member][i], share) * asked.Drawn().Factor;
            curves.Curves.push_back(std::move(curve));
        }
    }
    AddCrossings(curves);
    if (present != nullptr && !present->Lines().empty()) {
        const float number = PlottedNumber(asked, *present, present->Lines().front());
        if (!IsMissing(number)) {
            curves.PresentX = first->Value;
            curves.PresentY = static_cast<double>(number) * asked.Drawn().Factor;
        }
    }
    return curves;
}

std::vector<std::size_t> CrossedRows(const StudyQuestion& asked, const StudyTable& table) {
    std::vector<std::size_t> rows;
    if (asked.IsRandom()) return rows;
    const FieldChoice *first = asked.FirstVaried(), *second = asked.SecondVaried();
    if (first == nullptr) return rows;
    const StudyCurves curves = CurvesOf(asked, table, nullptr);
    const FieldValues across(first, table), family(second, table);
    for (std::size_t row = 0; row < table.Lines().size(); ++row) {
        const std::size_t curve = family.PlaceOf(table.Lines()[row]), place = across.PlaceOf(table.Lines()[row]);
        const bool crossed = std::ranges::any_of(curves.Crossings, [&](const CurveCrossing& crossing) {
            return crossing.Curve == curve && (crossing.Before == place || crossing.Before + 1 == place);
        });
        if (crossed) rows.push_back(row);
    }
    return rows;
}

std::string CrossingText(const StudyQuestion& asked, const StudyCurves& curves) {
    const FieldChoice* first = asked.FirstVaried();
    if (!curves.Limit || first == nullptr || curves.Curves.empty()) return {};
    const ResultChoice& drawn = asked.Drawn();
    const std::string limit = WithUnit(drawn.Shown(*curves.Limit / drawn.Factor), drawn.Unit);
    const auto at = [&](const CurveCrossing& crossing) {
        const std::string value = WithUnit(ShortNumber(crossing.X, 4), first->Unit);
        const std::string where = first->Short() + " = " + value;
        if (curves.Curves.size() == 1) return Together(where);
        const FieldChoice* second = asked.SecondVaried();
        const std::string member =
            second == nullptr ? curves.Curves[crossing.Curve].Name
                              : MemberName(*second, curves.Family, crossing.Curve, SharedServices().DecimalSign);
        return Together(where + " (" + member + ")");
    };
    std::string places;
    if (asked.DrawsContour() && curves.Crossings.size() > 2) {
        places = at(curves.Crossings.front()) + " ... " + at(curves.Crossings.back());
    } else {
        for (const CurveCrossing& crossing : curves.Crossings)
            places += (places.empty() ? "" : Text(913314_text) + " ") + at(crossing);
    }
    const std::string what = Together(drawn.Short() + " = " + limit);
    if (places.empty()) return Text(913316_text, {{"|1", what}});
    return Text(913315_text, {{"|1", what}, {"|2", places}});
}

}  // namespace lithmark
