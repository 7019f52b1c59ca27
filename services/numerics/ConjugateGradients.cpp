#include "services/numerics/ConjugateGradients.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace lithmark {

namespace {

using Vectors = std::vector<std::vector<double>>;

// A system that is not solved yet.
struct Active {
    std::size_t Place;  // among the right sides
    double Goal;        // length of the residual that ends it
    double Slope;       // residual times preconditioned residual
};

double Length(const std::vector<double>& a) {
    return std::sqrt(ScalarProduct(a, a));
}

// a += factor b
void AddTimes(std::vector<double>& a, double factor, const std::vector<double>& b) {
    for (std::size_t i = 0; i < a.size(); ++i) a[i] += factor * b[i];
}

// The residual that is carried along from pass to pass drifts from the true one by rounding; so much is borne.
constexpr double kMostDrift = 100;

}  // namespace

double ScalarProduct(const std::vector<double>& a, const std::vector<double>& b) {
    constexpr std::size_t lanes = 8;
    double sum[lanes] = {};
    std::size_t i = 0;
    for (; i + lanes <= a.size(); i += lanes)
        for (std::size_t k = 0; k < lanes; ++k) sum[k] += a[i + k] * b[i + k];
    for (std::size_t k = 0; i + k < a.size(); ++k) sum[k] += a[i + k] * b[i + k];
    return ((sum[0] + sum[1]) + (sum[2] + sum[3])) + ((sum[4] + sum[5]) + (sum[6] + sum[7]));
}

IterationEnd ConjugateGradients::Solve(const Vectors& right, Vectors& x) const {
    x.clear();
    std::vector<Active> systems;
    // One for each active system, in their order: what they carry along, and room for a product.
    Vectors residual, direction, image;
    for (std::size_t i = 0; i < right.size(); ++i) {
        x.emplace_back(right[i].size());
        const double length = Length(right[i]);
        if (length == 0) continue;
        systems.push_back({i, Tolerance * length, 0});
        residual.push_back(right[i]);
        direction.emplace_back(right[i].size());
        image.emplace_back(right[i].size());
    }
    double done = 0;
    for (int pass = 0; !systems.empty(); ++pass) {
        if (pass == MostPasses) return IterationEnd::NotSolved;
        Preconditioner(residual, image);
        for (std::size_t i = 0; i < systems.size(); ++i) {
            const double slope = ScalarProduct(residual[i], image[i]);
            if (!(slope > 0)) return IterationEnd::NegativeCurvature;
            const double beta = pass == 0 ? 0 : slope / systems[i].Slope;
            systems[i].Slope = slope;
            for (std::size_t k = 0; k < image[i].size(); ++k) direction[i][k] = image[i][k] + beta * direction[i][k];
        }
        Matrix(direction, image);
        double farthest = 0;  // logarithm of the greatest residual to its goal
        for (std::size_t i = systems.size(); i-- > 0;) {
            const double curvature = ScalarProduct(direction[i], image[i]);
            if (!(curvature > 0)) return IterationEnd::NegativeCurvature;
            const double step = systems[i].Slope / curvature;
            AddTimes(x[systems[i].Place], step, direction[i]);
            AddTimes(residual[i], -step, image[i]);
            const double length = Length(residual[i]);
            farthest = std::max(farthest, std::log(length / systems[i].Goal));
            if (length > systems[i].Goal) continue;
            const auto at = static_cast<std::ptrdiff_t>(i);
            systems.erase(systems.begin() + at);
            residual.erase(residual.begin() + at);
            direction.erase(direction.begin() + at);
            image.pop_back();
        }
        done = std::max(done, 1 + farthest / std::log(Tolerance));
        if (Progress) Progress(done);
    }
    return IsSolved(right, x) ? IterationEnd::Solved : IterationEnd::NotSolved;
}

bool ConjugateGradients::IsSolved(const Vectors& right, const Vectors& x) const {
    Vectors image = right;
    Matrix(x, image);
    for (std::size_t i = 0; i < right.size(); ++i) {
        AddTimes(image[i], -1, right[i]);
        if (!(Length(image[i]) <= kMostDrift * Tolerance * Length(right[i]))) return false;
    }
    return true;
}

}  // namespace lithmark
