#include <gtest/gtest.h>

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>

#include "services/numerics/ConjugateGradients.h"

namespace lithmark::tests {
namespace {

using Vectors = std::vector<std::vector<double>>;

Eigen::MatrixXd Scattered(int rows, int columns, unsigned seed) {
    std::mt19937 random(seed);
    Eigen::MatrixXd m(rows, columns);
    for (int j = 0; j < columns; ++j)
        for (int i = 0; i < rows; ++i) m(i, j) = random() / 2147483648.0 - 1;
    return m;
}

LinearOperator Times(const Eigen::MatrixXd& m) {
    return [&m](std::span<const std::vector<double>> x, std::span<std::vector<double>> y) {
        for (std::size_t i = 0; i < x.size(); ++i)
            Eigen::VectorXd::Map(y[i].data(), m.rows()) =
                m * Eigen::VectorXd::Map(x[i].data(), static_cast<Eigen::Index>(x[i].size()));
    };
}

// A well-conditioned positive definite matrix, and three right sides.
class Systems : public testing::Test {
  protected:
    static constexpr int kSize = 60;
    Systems() {
        const Eigen::MatrixXd s = Scattered(kSize, kSize, 1);
        matrix_ = s * s.transpose() + 10 * Eigen::MatrixXd::Identity(kSize, kSize);
        diagonal_ = matrix_.diagonal().cwiseInverse().asDiagonal();
        const Eigen::MatrixXd b = Scattered(kSize, 3, 2);
        for (int k = 0; k < 3; ++k) right_.emplace_back(b.col(k).data(), b.col(k).data() + kSize);
        method_.Matrix = Times(matrix_);
        method_.Preconditioner = Times(diagonal_);
    }
    Eigen::MatrixXd matrix_, diagonal_;
    Vectors right_, x_;
    ConjugateGradients method_;
};

TEST_F(Systems, AreSolvedAsByCholesky) {
    ASSERT_EQ(method_.Solve(right_, x_), IterationEnd::Solved);
    const Eigen::LLT<Eigen::MatrixXd> cholesky(matrix_);
    for (std::size_t k = 0; k < 3; ++k) {
        const Eigen::VectorXd expected = cholesky.solve(Eigen::VectorXd::Map(right_[k].data(), kSize));
        const double error = (Eigen::VectorXd::Map(x_[k].data(), kSize) - expected).norm();
        EXPECT_LT(error, 1e-11 * expected.norm());
    }
}

// Each right side is worked by itself: together with others it gives what it gives alone.
TEST_F(Systems, DoNotTouchOneAnother) {
    ASSERT_EQ(method_.Solve(right_, x_), IterationEnd::Solved);
    for (std::size_t k = 0; k < 3; ++k) {
        Vectors alone;
        ASSERT_EQ(method_.Solve({right_[k]}, alone), IterationEnd::Solved);
        EXPECT_EQ(alone.front(), x_[k]);
    }
}

TEST_F(Systems, OfNothingHaveNoSolutionButZero) {
    right_[1].assign(kSize, 0);
    ASSERT_EQ(method_.Solve(right_, x_), IterationEnd::Solved);
    EXPECT_EQ(x_[1], std::vector<double>(kSize, 0));
    ASSERT_EQ(method_.Solve({}, x_), IterationEnd::Solved);
    EXPECT_TRUE(x_.empty());
}

TEST_F(Systems, WithANegativeDirectionAreToldSo) {
    const Eigen::MatrixXd s = Scattered(kSize, kSize, 3);
    matrix_ = s + s.transpose();  // as many directions of one sign as of the other
    EXPECT_EQ(method_.Solve(right_, x_), IterationEnd::NegativeCurvature);
    matrix_ = Eigen::MatrixXd::Identity(kSize, kSize);
    diagonal_ = -matrix_;
    EXPECT_EQ(method_.Solve(right_, x_), IterationEnd::NegativeCurvature);
    diagonal_ = std::nan("") * matrix_;
    EXPECT_EQ(method_.Solve(right_, x_), IterationEnd::NegativeCurvature);
}

TEST_F(Systems, ThatTakeTooManyPassesAreNotSolved) {
    method_.MostPasses = 2;
    EXPECT_EQ(method_.Solve(right_, x_), IterationEnd::NotSolved);
}

// A matrix that is not symmetric can bring the residual that is carried along to nothing, but not the true one.
TEST_F(Systems, WhoseResidualIsNotTrueAreNotSolved) {
    int calls = 0;
    method_.Matrix = [&, times = Times(matrix_)](auto x, auto y) {
        times(x, y);
        if (++calls == 1) y[0][0] += 1e-3;
    };
    EXPECT_EQ(method_.Solve(right_, x_), IterationEnd::NotSolved);
}

TEST_F(Systems, TellHowFarTheyAre) {
    std::vector<double> told;
    method_.Progress = [&](double part) { told.push_back(part); };
    ASSERT_EQ(method_.Solve(right_, x_), IterationEnd::Solved);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_GE(told.front(), 0);
    EXPECT_EQ(told.back(), 1);
    method_.Progress = [](double) { throw std::runtime_error("the user ends it"); };
    EXPECT_THROW(method_.Solve(right_, x_), std::runtime_error);
}

TEST(ScalarProduct, AddsEightPartialSums) {
    std::vector<double> a(19), ones(19, 1);
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = static_cast<double>(i);
    EXPECT_EQ(ScalarProduct(a, ones), 171);
    EXPECT_EQ(ScalarProduct({}, {}), 0);
    // 1 vanishes beside 1e16 in one sum, and stands in a sum of its own.
    EXPECT_EQ(ScalarProduct({1e16, 1, -1e16}, {1, 1, 1}), 0);
    EXPECT_EQ(ScalarProduct({1e16, 0, 1, 0, 0, 0, 0, 0, -1e16}, std::vector<double>(9, 1)), 1);
}

}  // namespace
}  // namespace lithmark::tests
