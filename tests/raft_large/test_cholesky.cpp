// The operator's forces against a Cholesky decomposition of the whole matrix in 64 bits.
#include <Eigen/Cholesky>
#include <cmath>

#include "kernels/raft/OperatorSoil.h"
#include "raft_large/LargeRaft.h"

namespace lithmark::tests {
namespace {

Eigen::MatrixXd WholeMatrix(const RectangularMesh& mesh, const NodeInfluence& influence) {
    const int n = mesh.Nodes();
    const auto distance = [](Single p, Single q) -> Single {
        return static_cast<double>(std::abs(std::lround(p * 1000) - std::lround(q * 1000))) / 1000;
    };
    Eigen::MatrixXd flexibility(n, n);
    for (int c = 1; c <= n; ++c)
        for (int r = c; r <= n; ++r)
            flexibility(r - 1, c - 1) = r == c ? influence.Own(r)
                                               : influence.Point(distance(mesh.NodeX(r), mesh.NodeX(c)),
                                                                 distance(mesh.NodeY(r), mesh.NodeY(c)));
    return flexibility;
}

class AgainstCholesky : public LargeRaft {
  protected:
    void Compare(double a, double b, int nx, int ny, bool even) {
        Mesh(a, b, nx, ny);
        const OffsetGrid grid(mesh_);
        EXPECT_EQ(grid.X().Even(), even);
        const NodeInfluence influence = LayerInfluence();
        const OperatorSoil soil(mesh_, grid, influence);
        const int n = mesh_.Nodes();
        const std::vector<double> ones(static_cast<std::size_t>(n), 1), u = Wide(mesh_.u), v = Wide(mesh_.v);
        const std::vector<std::vector<double>> forces = soil.Solve({ones, v, u}, [](double) {});

        Eigen::MatrixXd flexibility = WholeMatrix(mesh_, influence);
        const Eigen::LLT<Eigen::Ref<Eigen::MatrixXd>, Eigen::Lower> cholesky(flexibility);
        ASSERT_EQ(cholesky.info(), Eigen::Success);
        double greatest = 0;
        std::size_t k = 0;
        for (const auto& plane : {ones, v, u}) {
            const Eigen::VectorXd expected = cholesky.solve(Eigen::VectorXd::Map(plane.data(), n));
            const auto found = Eigen::VectorXd::Map(forces[k++].data(), n);
            greatest = std::max(greatest, (found - expected).cwiseAbs().maxCoeff() / expected.cwiseAbs().mean());
        }
        EXPECT_LT(greatest, 1e-10);
        RecordProperty(std::to_string(n) + "_nodes", std::to_string(greatest * 1e12) + "e-12");
        std::printf("%d nodes: greatest difference of a force %.1e of the mean\n", n, greatest);
    }
};

TEST_F(AgainstCholesky, ForcesAreThoseOfAnEvenGrid) {
    Compare(7.5, 6, 60, 40, true);
}
TEST_F(AgainstCholesky, ForcesAreThoseOfARoundedGrid) {
    Compare(7.4, 4.7, 60, 40, false);
}
// Half a minute and 350 MB.
TEST_F(AgainstCholesky, DISABLED_ForcesAreThoseOf6561Nodes) {
    Compare(10, 10, 80, 80, true);
}

}  // namespace
}  // namespace lithmark::tests
