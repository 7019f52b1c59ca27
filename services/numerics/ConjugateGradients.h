// The conjugate gradient method with a preconditioner, for systems with several right sides (Hestenes and Stiefel,
// 1952).
//
// The matrix is symmetric and positive definite, and so is the preconditioner; both are given by what they make of
// vectors. The right sides are worked side by side, each by itself, so that the caller may share work between them.
// Sums run in 64 bits in an order that depends on their length alone.
#pragma once

#include <functional>
#include <span>
#include <vector>

namespace lithmark {

// Gives y(i) for each x(i); the lists are equally long, and the vectors of y have their length.
using LinearOperator = std::function<void(std::span<const std::vector<double>> x, std::span<std::vector<double>> y)>;

enum class IterationEnd {
    Solved,
    NegativeCurvature,  // a direction along which matrix or preconditioner is not positive
    NotSolved           // the passes are used up, or the residual is not what the passes made of it
};

struct ConjugateGradients {
    LinearOperator Matrix, Preconditioner;
    double Tolerance = 1e-12;  // of the residual's length to that of the right side
    int MostPasses = 500;
    // Is told after each pass how far it is, 0 to 1 and never less than before; what it throws leaves.
    std::function<void(double)> Progress;

    // Solves for each right side; x is of use only when Solved is returned.
    IterationEnd Solve(const std::vector<std::vector<double>>& right, std::vector<std::vector<double>>& x) const;

  private:
    bool IsSolved(const std::vector<std::vector<double>>& right, const std::vector<std::vector<double>>& x) const;
};

// The scalar product: eight partial sums (elements 1, 9, ..; 2, 10, ..; and so on).
double ScalarProduct(const std::vector<double>& a, const std::vector<double>& b);

}  // namespace lithmark
