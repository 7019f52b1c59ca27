#include "study/Sampler.h"

#include <Random123/philox.h>

#include <algorithm>
#include <bit>
#include <boost/random/sobol.hpp>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>
#include <utility>

#include "base/NumberText.h"
#include "base/Utf8.h"
#include "core/FieldNames.h"
#include "core/Session.h"
#include "study/StudyFailure.h"

namespace lithmark {

namespace {

// FNV-1a, 64 bits (Fowler, Noll, Vo).
std::uint64_t KeyOf(const std::string& name) {
    std::uint64_t key = 0xcbf29ce484222325U;
    for (const char c : name) key = (key ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    return key;
}

// 64 random bits of a seed, a counter and a field.
std::uint64_t RandomBits(std::uint64_t seed, std::uint64_t counter, std::uint64_t key) {
    const auto low = [](std::uint64_t value) { return static_cast<std::uint32_t>(value); };
    const auto high = [](std::uint64_t value) { return static_cast<std::uint32_t>(value >> 32); };
    const r123::Philox4x32::ctr_type place = {{low(counter), high(counter), low(key), high(key)}};
    const r123::Philox4x32::key_type seeds = {{low(seed), high(seed)}};
    const auto bits = r123::Philox4x32()(place, seeds);
    return std::uint64_t{bits[1]} << 32 | bits[0];
}

// The upper 52 bits as a number strictly between 0 and 1.
double UniformOfBits(std::uint64_t bits) {
    return (static_cast<double>(bits >> 12) + 0.5) * 0x1p-52;
}

// The shifts of the copies count from the end, where no sample is.
std::uint64_t ShiftCounter(std::uint64_t copy) {
    return ~copy;
}

[[noreturn]] void FailRandom(TextId text, const std::string& subject) {
    FailRequest(text, subject);
}

}  // namespace

// Points of Sobol's sequence with its point 0, as whole numbers of 2^-32.
class SobolPoints {
  public:
    explicit SobolPoints(std::size_t dimensions) : engine_(dimensions) {}

    std::vector<std::uint32_t> Point(std::uint32_t index) {
        std::vector<std::uint32_t> point(engine_.dimension());
        if (index == 0) return point;  // the engine begins behind it
        engine_.seed(index - 1);
        engine_.generate(point.begin(), point.end());
        return point;
    }

  private:
    boost::random::sobol_engine<std::uint32_t, 32> engine_;
};

Sampler::Sampler(const StudyRequest& request) : seed_(request.Seed), count_(request.Samples) {
    for (const std::string& text : request.Random) {
        const auto equals = text.find('=');
        if (equals == std::string::npos) FailRandom(908012_text, text);
        const StudyField field = FindStudyField(text.substr(0, equals));
        if (field.Kind != FieldKind::Number) FailRandom(908013_text, text);
        fields_.push_back(field);
        distributions_.push_back(Distribution::Parse(text.substr(equals + 1)));
        keys_.push_back(KeyOf(field.Name));
    }
    // What a field gets does not depend on the order in which fields are named.
    std::vector<std::size_t> sorted(fields_.size());
    std::iota(sorted.begin(), sorted.end(), std::size_t{0});
    std::ranges::sort(sorted, {}, [&](std::size_t i) { return fields_[i].Name; });
    dimension_.resize(fields_.size());
    for (std::size_t place = 0; place < sorted.size(); ++place) dimension_[sorted[place]] = place;
    mixture_.resize(fields_.size());
    ReadCorrelations(request.Correlate);

    constexpr std::uint64_t kMostInCopy = std::uint64_t{1} << 31;
    if (count_ == 0) FailRandom(908014_text, "0");
    if (!request.Sobol) return;
    const std::uint64_t copy = std::bit_ceil((count_ + kCopies - 1) / kCopies);
    if (copy > kMostInCopy) FailRandom(908014_text, std::to_string(count_));
    count_ = copy * kCopies;
    sobol_ = std::make_unique<SobolPoints>(fields_.size());
}

Sampler::~Sampler() = default;
Sampler::Sampler(Sampler&&) noexcept = default;

std::size_t Sampler::IndexOf(const std::string& word, const std::string& text) const {
    const auto name = FieldNameOf(Session.ProblemType, Trim(word));
    const auto found = std::ranges::find(fields_, name.value_or(""), &StudyField::Name);
    if (found == fields_.end()) FailRandom(908015_text, text);
    return static_cast<std::size_t>(found - fields_.begin());
}

// The normal values of correlated fields are sums of independent ones, with the factors of Cholesky's lower triangle:
// the first field of the sorted names keeps its own.
void Sampler::ReadCorrelations(const std::vector<std::string>& texts) {
    if (texts.empty()) return;
    const std::size_t n = fields_.size();
    std::map<std::pair<std::size_t, std::size_t>, double> pairs;  // by places among the sorted names
    std::vector<std::vector<double>> matrix(n, std::vector<double>(n, 0));
    std::vector<std::size_t> fieldAt(n);
    for (std::size_t i = 0; i < n; ++i) {
        matrix[i][i] = 1;
        fieldAt[dimension_[i]] = i;
    }
    for (const std::string& text : texts) {
        const auto equals = text.rfind('='), comma = text.find(',');
        if (equals == std::string::npos || comma > equals) FailRandom(908015_text, text);
        const std::size_t a = dimension_[IndexOf(text.substr(0, comma), text)];
        const std::size_t b = dimension_[IndexOf(text.substr(comma + 1, equals - comma - 1), text)];
        const auto value = ParseNumber(text.substr(equals + 1));
        if (a == b || !value || !(std::abs(*value) <= 1)) FailRandom(908015_text, text);
        if (!pairs.emplace(std::minmax(a, b), *value).second) FailRandom(908034_text, text);
        matrix[a][b] = matrix[b][a] = *value;
    }
    for (const auto& [pair, value] : pairs) {
        const auto name = [&](std::size_t place) { return fields_[fieldAt[place]].Name; };
        if (value != 0) correlations_.push_back(name(pair.first) + "," + name(pair.second) + "=" + JsonNumber(value));
    }
    constexpr double kLeastPivot = 1e-12;
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j <= i; ++j) {
            double sum = matrix[i][j];
            for (std::size_t k = 0; k < j; ++k) sum -= matrix[i][k] * matrix[j][k];
            if (i != j) {
                matrix[i][j] = sum / matrix[j][j];
            } else {
                if (sum < kLeastPivot) FailRandom(908016_text, texts.back());
                matrix[i][i] = std::sqrt(sum);
            }
        }
        std::vector<Share> shares;
        for (std::size_t j = 0; j <= i; ++j)
            if (matrix[i][j] != 0) shares.push_back({fieldAt[j], matrix[i][j]});
        if (shares.size() > 1) mixture_[fieldAt[i]] = std::move(shares);
    }
}

std::vector<std::string> Sampler::Plain() const {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < fields_.size(); ++i) texts.push_back(fields_[i].Name + "=" + distributions_[i].Plain());
    texts.insert(texts.end(), correlations_.begin(), correlations_.end());
    texts.insert(texts.end(), {std::to_string(count_), std::to_string(seed_), Sobol() ? "sobol" : "random"});
    return texts;
}

double Sampler::UniformOf(std::uint64_t sample, std::size_t field) const {
    return UniformOfBits(RandomBits(seed_, sample, keys_[field]));
}

std::vector<double> Sampler::Values(std::uint64_t sample) const {
    std::vector<NormalPoint> points;
    if (sobol_) {
        const std::uint64_t copy = sample / CopySize();
        const auto bits = sobol_->Point(static_cast<std::uint32_t>(sample % CopySize()));
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            const std::uint64_t shift = RandomBits(seed_, ShiftCounter(copy), keys_[i]);
            points.push_back(NormalPoint::At(UniformOfBits(std::uint64_t{bits[dimension_[i]]} << 32 ^ shift)));
        }
    } else {
        for (std::size_t i = 0; i < fields_.size(); ++i) points.push_back(NormalPoint::At(UniformOf(sample, i)));
    }
    std::vector<double> values;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (mixture_[i].empty()) {
            values.push_back(distributions_[i].Value(points[i]));
            continue;
        }
        double z = 0;
        for (const Share& share : mixture_[i]) z += share.Weight * points[share.Field].Z;
        values.push_back(distributions_[i].Value(NormalPoint::OfValue(z)));
    }
    return values;
}

}  // namespace lithmark
