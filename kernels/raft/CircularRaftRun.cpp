#include "kernels/raft/CircularRaftRun.h"

#include <algorithm>
#include <memory>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/PolarMesh.h"
#include "kernels/raft/CircularPunch.h"
#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/Conditioning.h"
#include "kernels/raft/PolarInfluence.h"
#include "kernels/raft/PolarStressSums.h"
#include "kernels/raft/PolarSymmetry.h"
#include "kernels/raft/PolarSystem.h"
#include "kernels/raft/RaftEquilibrium.h"
#include "kernels/raft/RaftProgress.h"
#include "kernels/raft/ThickClay.h"
#include "kernels/raft/ThinClay.h"

namespace lithmark {

namespace {

// The flexibility takes a larger share of the progress than the rectangle's.
constexpr double kCircleFlexibilityDone = 0.3;

class Run {
  public:
    explicit Run(RaftInput& input)
        : input_(input),
          mesh_(BuildPolarMesh(Session.PrefND, input.A)),
          case_(LoadCaseOf(input.Exz_x, 0)),
          load_(EccentricLoad(input.Q, input.Exz_x, 0)) {}

    RaftResult Calculate() {
        RaftResult result;
        result.Circular = true;
        result.Elements = PlotElements(mesh_);
        ShareMesh();
        if (input_.AnalysisType)
            AnalyticalSettlements();
        else if (Session.ProblemType == Problem::RaftDisplacement)
            SolveElasticLayer();
        else if (input_.SoilPropertyType == SoilDefinition::ByModulus)
            SolveElasticClay();
        else if (input_.SoilPropertyType == SoilDefinition::ByCompressionIndex)
            SolveCompressibleClay();
        CompareFlexible();
        ExtractMiddleLine(result);
        result.Input = input_;
        return result;
    }

  private:
    void ShareMesh() const {
        Session.NodeX = mesh_.NodeX;
        Session.NodeY = mesh_.NodeY;
        Session.NodeArea = mesh_.NodeArea;
        for (Array<Single>* values : {&Session.NodeForce, &Session.NodePressure, &Session.NodeSettlement})
            values->Redim(1, mesh_.NTotal);
        Session.RaftMidCount = mesh_.ND + 1;
        for (Array<Single>* values :
             {&Session.RaftMidX, &Session.RaftMidSettlement, &Session.RaftMidPressure, &Session.RaftMidFlexible})
            values->Redim(1, Session.RaftMidCount);
        Session.RaftMeanPressure = Quotient(input_.Q, Square(mesh_.R) * PI);
    }

    void AnalyticalSettlements() {
        input_.z = 0;
        const CircularPunchForces forces = PunchContactForces(mesh_, input_.Q, input_.Exz_x);
        Session.NodeForce = forces.NodeForce;
        if (Session.ProblemType == Problem::RaftDisplacement) {
            Session.NodeSettlement = PunchSettlements(mesh_, input_, forces.NodeForce, Session.Nue);
        } else if (input_.SoilPropertyType == SoilDefinition::ByModulus) {
            Session.NodeSettlement = PunchSettlements(mesh_, input_, forces.NodeForce, 0);
        } else if (input_.SoilPropertyType == SoilDefinition::ByCompressionIndex) {
            Session.NodeSettlement = PunchClaySettlements(mesh_, input_, forces);
            clay_ = AnalyticalClay(input_, mesh_.R);
        }
    }

    void SolveElasticLayer() {
        PolarFlexibility flexibility(mesh_);
        AddInfluence(flexibility, LayerInfluence(mesh_, Session.Nue, input_.Es, input_.h));
        Matrix<Single> stiffness = FoldFlexibility(flexibility, case_);
        Settle(SolveLinear(stiffness));
    }

    // Clay by Es, and the first step of thin clay: the plane is one of mean stresses in the layer.
    RaftPlane SolveMeanStress(Matrix<Single>& stiffness) const {
        PolarFlexibility flexibility(mesh_);
        AddInfluence(flexibility, MeanStressInfluence(mesh_, input_.z, input_.z + input_.h));
        stiffness = FoldFlexibility(flexibility, case_);
        return SolveLinear(stiffness);
    }

    void SolveElasticClay() {
        Matrix<Single> stiffness;
        RaftPlane plane = SolveMeanStress(stiffness);
        const double compression = Quotient(input_.h, input_.Es);
        plane.c0 *= compression;
        plane.cx *= compression;
        Settle(plane);
    }

    void SolveCompressibleClay() {
        clay_ = NumericalClay(input_, mesh_.R);
        if (clay_.Thick)
            SolveThickClay();
        else
            SolveThinClay();
    }

    void SolveThinClay() {
        Matrix<Single> K;
        const Single D0 = SolveMeanStress(K).c0;
        const int m = FoldedSize(mesh_, case_);
        const Single S0 = clay_.S0;
        const RaftEquilibrium equilibrium = Equilibrium(K);
        const UnitMoments moments = SumUnitMoments(case_, m, K, mesh_.NodeX, mesh_.NodeY, FoldedWeights(mesh_, case_));
        const ThinClayTilt tilt =
            SearchThinClayTilt(equilibrium, moments, mesh_.NodeX, mesh_.NodeY, load_, S0, D0, Session.PrefTol);
        Array<Single> D(1, m);
        for (int i = 1; i <= m; ++i) D(i) = ThinClayIncrease(S0, D0, tilt, mesh_.NodeX(i), mesh_.NodeY(i));
        for (int r = 1; r <= m; ++r) {
            Single force;
            for (int c = 1; c <= m; ++c) force += D(c) * K(r, c);
            Session.NodeForce(r) = force;
        }
        Spread(Session.NodeForce);
        Settle(ThinClayPlane(input_, clay_, D0, tilt));
    }

    void SolveThickClay() {
        const int m = FoldedSize(mesh_, case_);
        std::vector<StressInterval> layers;
        std::vector<MeanStressInfluence> influence;
        for (int k = 1; k <= clay_.M; ++k) {
            const Single z1 = SublayerTop(input_, clay_, k), z2 = z1 + clay_.DepthStep;
            layers.push_back({z1, z2});
            influence.emplace_back(mesh_, z1, z2);
        }
        Matrix<Single> F;
        {
            PolarFlexibility flexibility(mesh_);
            for (int k = 1; k <= clay_.M; ++k) {
                const double factor = Quotient(clay_.LayerFactor, clay_.SubStress(k));
                flexibility.Add(factor, influence[static_cast<std::size_t>(k - 1)], [&](double part) {
                    SharedServices().ReportProgress(kCircleFlexibilityDone * (k - 1 + part) / clay_.M);
                });
            }
            F = FoldFlexibility(flexibility, case_);
        }
        Matrix<Single> K;
        InvertFlexibility(m, F, K, ProgressBetween(kCircleFlexibilityDone, kInverseDone));
        const RaftEquilibrium equilibrium = Equilibrium(K);

        ThickClaySystem system;
        system.n = m;
        UseMatrices(system, F, K);
        system.Equilibrium = &equilibrium;
        system.Load = load_;
        system.u = &mesh_.NodeX;
        system.v = &mesh_.NodeY;
        system.Spread = [this](Array<Single>& values) { Spread(values); };
        PolarStressSums stress(mesh_, layers, m);
        PolarStressSums::Terms terms;
        terms.Own = [&](int k, int t) {
            return influence[static_cast<std::size_t>(k)].UnitForce(t, t) * Session.NodeForce(t);
        };
        terms.Plain = [&](int k, int t) {
            return SumOfUnitForces(influence[static_cast<std::size_t>(k)], t, Session.NodeForce);
        };
        system.TrueSettlement = [&](Array<Single>& settlement, const auto& progress) {
            stress.Sum(Session.NodeForce, terms, stress.UsefulThreads(), progress);
            for (int r = 1; r <= m; ++r) {
                Single s;
                for (int k = 1; k <= clay_.M; ++k) {
                    const double D = std::max<double>(stress.At(k - 1, r), 0);
                    s += clay_.LayerFactor * LogStressRatio(clay_.SubStress(k), D);
                }
                settlement(r) = s;
            }
        };
        IterateThickClay(system);
    }

    void AddInfluence(PolarFlexibility& flexibility, const PolarInfluence& influence) const {
        flexibility.Add(1, influence, ProgressBetween(0, kCircleFlexibilityDone));
    }

    RaftEquilibrium Equilibrium(const Matrix<Single>& stiffness) const {
        return {case_, FoldedSize(mesh_, case_), stiffness, mesh_.NodeX, mesh_.NodeY, FoldedWeights(mesh_, case_)};
    }

    // Turns a folded flexibility into its inverse, in place, and solves for a linear soil. Leaves Session.NodeForce.
    RaftPlane SolveLinear(Matrix<Single>& matrix) const {
        InvertFlexibility(FoldedSize(mesh_, case_), matrix, matrix,
                          ProgressBetween(kCircleFlexibilityDone, kInverseDone));
        const RaftEquilibrium equilibrium = Equilibrium(matrix);
        const RaftPlane plane = equilibrium.Solve(load_, {});
        equilibrium.NodeForces(plane, Session.NodeForce);
        Spread(Session.NodeForce);
        return plane;
    }

    // Spreads node values of the folded system over the whole raft.
    void Spread(Array<Single>& values) const {
        CopyBySymmetry(mesh_.NHalf, mesh_.NQuarter, mesh_.NTotal, mesh_.NRing, input_.Exz_x, values);
    }

    void Settle(const RaftPlane& plane) const {
        PlaneSettlements(plane, mesh_.NodeX, mesh_.NodeY, Session.NodeSettlement);
    }

    // The settlements of a perfectly flexible raft along the diameter.
    void CompareFlexible() const {
        const Single p = Session.RaftMeanPressure;
        const bool elasticLayer = Session.ProblemType == Problem::RaftDisplacement;
        std::unique_ptr<PolarInfluence> elastic;
        if (elasticLayer && !input_.AnalysisType)
            elastic = std::make_unique<LayerInfluence>(mesh_, Session.Nue, input_.Es, input_.h);
        else if (elasticLayer || (input_.AnalysisType && input_.SoilPropertyType == SoilDefinition::ByModulus))
            elastic = std::make_unique<HalfSpaceInfluence>(mesh_, elasticLayer ? Session.Nue : Single(0), input_.Es);

        for (int t = 1; t <= mesh_.NRing; ++t) {
            if (elastic)
                Session.RaftMidFlexible(t) = SumOfPressure(*elastic, t, p) * 100;
            else
                Session.RaftMidFlexible(t) = FlexibleClaySettlement(input_, clay_, [this, t, p](Single z1, Single z2) {
                    return SumOfPressure(MeanStressInfluence(mesh_, z1, z2), t, p);
                });
            SharedServices().ReportProgress(kSettled + (1 - kSettled) * t / mesh_.NRing);
        }
        MirrorProfile(Session.RaftMidCount, mesh_.NRing, Session.RaftMidFlexible);
    }

    // The diameter on the x axis: the nodes of the ray at 180 degrees inward, then the centre and the first ray
    // outward. Both rays are number 1.
    void ExtractMiddleLine(RaftResult& result) const {
        for (int i = 1; i <= mesh_.NTotal; ++i)
            Session.NodePressure(i) = Quotient(Session.NodeForce(i), mesh_.NodeArea(i));
        result.MidForce.Redim(1, Session.RaftMidCount);
        const auto take = [&](int q, int node, double x) {
            result.MidForce(q) = Session.NodeForce(node);
            Session.RaftMidSettlement(q) = Session.NodeSettlement(node);
            Session.RaftMidPressure(q) = Session.NodePressure(node);
            Session.RaftMidX(q) = x;
        };
        const int nd = mesh_.ND;
        int q = 0;
        for (int i = mesh_.NTotal; i >= 1; --i) {
            if (mesh_.NodeRay(i) != 1) continue;
            ++q;
            if (q > nd / 2.0) break;
            take(q, i, -mesh_.NodeRadius(i));
        }
        q = Integer::Rounded(nd / 2.0);
        for (int i = 1; i <= mesh_.NTotal; ++i) {
            if (mesh_.NodeRay(i) != 1) continue;
            ++q;
            if (q > nd + 1) break;
            take(q, i, mesh_.NodeRadius(i));
        }
    }

    RaftInput& input_;
    const PolarMesh mesh_;
    const LoadCase case_;
    const RaftLoad load_;
    ClayLayer clay_;
};

}  // namespace

RaftResult CalculateCircularRaft(RaftInput& input) {
    return Run(input).Calculate();
}

}  // namespace lithmark
