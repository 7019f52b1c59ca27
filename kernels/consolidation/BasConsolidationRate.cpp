#include "kernels/consolidation/BasConsolidationRate.h"

#include <cmath>

#include "core/Problems.h"
#include "core/Session.h"
#include "core/TimeUnits.h"
#include "kernels/consolidation/ConsolidationNotices.h"
#include "kernels/consolidation/ConsolidationRateRun.h"
#include "kernels/consolidation/ConsolidationTables.h"
#include "kernels/consolidation/InitialPressure.h"
#include "kernels/consolidation/PorePressureMarch.h"
#include "report/KernelRun.h"
#include "report/StepTables.h"
#include "services/SharedServices.h"

namespace lithmark {

namespace {

// What a node is: inside a layer, or one of its ends. A drained and an impermeable end have the numbers of the drainage
// condition.
constexpr int kInside = 0;
constexpr int kDrained = Drainage::BottomDrained;
constexpr int kImpermeable = Drainage::BottomImpermeable;
constexpr int kInterface = 3;

constexpr int kMostSteps = 32000;

struct LayerGrid {
    Integer n;     // intervals
    Single dz;     // interval, m
    Single Depth;  // of the layer's top, m
    Integer Top, Bottom;

    int Kind(int j) const { return j == 0 ? Top : j == n ? Bottom : Integer(kInside); }
    // The first node of a lower layer is the interface node of the one above.
    bool Repeats(int j) const { return j == 0 && Top == kInterface; }
};

struct Grid {
    Array<LayerGrid> Layers;
    Integer Last = 0;  // node

    const LayerGrid& operator()(int i) const { return Layers(i); }

    // Calls `visit` once for each node from the top down, with its layer i and its place j in it.
    template <typename Visit>
    void ForEachNode(const Visit& visit) const {
        for (int i = 1; i <= Layers.Upper(); ++i)
            for (int j = 0; j <= Layers(i).n; ++j)
                if (!Layers(i).Repeats(j)) visit(i, j);
    }
};

// Intervals of about 1 m, an even number of them and at least 4 in a layer.
Grid BuildGrid(const ConsolidationRateInput& in) {
    const int layers = in.NumLayers;
    Grid grid{{1, layers}};
    for (int i = 1; i <= layers; ++i) {
        LayerGrid& layer = grid.Layers(i);
        layer.Depth = i == 1 ? in.z : Single(grid(i - 1).Depth + in.hLayer(i - 1));
        layer.Top = i == 1 ? kDrained : kInterface;
        layer.Bottom = i == layers ? in.DrainageCondition : Integer(kInterface);
        Integer n = Integer::Rounded(std::ceil(in.hLayer(i) / 1.0));
        if (n < 4) n = 4;
        if (n % 2 != 0) n += 1;
        layer.n = n;
        layer.dz = in.hLayer(i) / n;
        grid.Last += n;
    }
    return grid;
}

double LargestCv(const ConsolidationRateInput& in) {
    Single CvMax = in.CvLayer(1);
    for (int i = 2; i <= in.NumLayers; ++i)
        if (in.CvLayer(i) > CvMax) CvMax = in.CvLayer(i);
    return CvMax;
}

// Initial pressures into Session.IsoU0, and each node's row and starting value.
class NodePass {
  public:
    NodePass(const ConsolidationRateInput& input, const Grid& gridOfRun, Single secondsPerUnit, Single timeStep)
        : in(input), grid(gridOfRun), c(secondsPerUnit), dt(timeStep) {}

    void Run() {
        Rows.Redim(0, grid.Last);
        Old.Redim(0, grid.Last);
        InitialPressure pressure(in);
        // Deliberate: a circular load starts each layer at its second node, which moves rows and pressures up by one
        // index, and goes down twice per node.
        const bool circular = !in.Pressure && in.LoadType == LoadShape::Circle;
        int m = 0;
        for (int i = 1; i <= in.NumLayers; ++i) {
            Single d = grid(i).Depth;
            for (int j = circular ? 1 : 0; j <= grid(i).n; ++j) {
                Session.IsoU0(m) = pressure.At(d);
                if (circular) d += Session.PrefDz;
                if (!grid(i).Repeats(j)) {
                    ChooseRow(i, j, m);
                    ++m;
                }
                d += grid(i).dz;
            }
        }
    }

    Array<FivePointRow> Rows;
    Array<Single> Old;

    // The step number of each layer.
    Array<Single> Lambdas() const {
        Array<Single> lambdas(1, in.NumLayers);
        for (int i = 1; i <= in.NumLayers; ++i) lambdas(i) = Lambda(i);
        return lambdas;
    }

  private:
    Single Lambda(int i) const { return Quotient(c * in.CvLayer(i) * dt, Square(grid(i).dz)); }

    void ChooseRow(int i, int j, int m) {
        const Single u0 = Session.IsoU0(m);
        const int kind = grid(i).Kind(j);
        if (kind == kInside) {
            Rows(m) = InteriorRow(Lambda(i));
            Old(m) = u0;
        } else if (kind == kDrained) {
            Old(m) = u0 / 2;
        } else if (kind == kImpermeable) {
            const Single lambda = Lambda(i);
            Rows(m) = {0, 2 * lambda, 1 - 2 * lambda, 0, 0};
            Old(m) = u0;
        } else if (kind == kInterface) {
            Rows(m) = InterfaceRow(i);
            Old(m) = u0;
        }
    }

    static FivePointRow InteriorRow(Single lambda) { return {0, lambda, 1 - 2 * lambda, lambda, 0}; }

    // Between the layers i and i + 1: the pressure that makes the flow continuous, u = (u(-1) + r u(+1))/(1 + r), with
    // the values that the neighbours' own rows give them in the same step. r is the ratio of k/dz below to k/dz above.
    FivePointRow InterfaceRow(int i) const {
        const Single dz1 = grid(i).dz, dz2 = grid(i + 1).dz;
        const Single lambda1 = Lambda(i), lambda2 = Lambda(i + 1);
        if (in.KLayer(i) == in.KLayer(i + 1) && dz1 == dz2 && in.CvLayer(i) == in.CvLayer(i + 1))
            return InteriorRow(lambda1);
        const Single r = Quotient(Quotient(in.KLayer(i + 1), in.KLayer(i)) * dz1, dz2);
        return {Quotient(lambda1, 1 + r), Quotient(1 - 2 * lambda1, 1 + r), Quotient(lambda2 * r + lambda1, 1 + r),
                Quotient((1 - 2 * lambda2) * r, 1 + r), Quotient(lambda2 * r, 1 + r)};
    }

    const ConsolidationRateInput& in;
    const Grid& grid;
    Single c, dt;
};

// Pressures at the time T into Session.IsoUf: whole steps, then a linear interpolation within the last one. Deliberate:
// a time of exactly 0 or 1 steps leaves zeros.
void MarchToTime(PorePressureMarch& march, Single steps) {
    const Integer N = Integer::Rounded(std::floor(steps));
    march.Advance(N - 1);
    if (steps == N) {
        if (N < 2) return;
        int m = 0;
        for (const Single::Storage value : march.Values()) Session.IsoUf(m++) = value;
        return;
    }
    const std::span<const Single::Storage> further = march.OneStepOn();
    const std::span<const Single::Storage> cur = march.Values();
    for (int m = 0; m <= Session.IsoLast; ++m) {
        const auto at = static_cast<std::size_t>(m);
        const double reached = cur[at];
        Session.IsoUf(m) = (further[at] - reached) * (steps - N) + reached;
    }
}

// The length of soil that each node stands for, m, and its depth in the soil. The interface node of two layers counts
// once.
struct NodeShares {
    Array<double> Weight;
    Array<Single> Depth;
};

NodeShares ShareSoil(const Grid& grid) {
    NodeShares nodes{{0, grid.Last}, {0, grid.Last}};
    int m = 0;
    grid.ForEachNode([&](int i, int j) {
        const LayerGrid& layer = grid(i);
        const int kind = layer.Kind(j);
        if (kind == kInside)
            nodes.Weight(m) = layer.dz;
        else if (kind == kInterface)
            nodes.Weight(m) = (layer.dz + grid(i + 1).dz) / 2;
        else if (kind == kDrained || kind == kImpermeable)
            nodes.Weight(m) = layer.dz / 2;
        nodes.Depth(m) = layer.Depth + j * layer.dz;
        ++m;
    });
    return nodes;
}

// Uc = (1 - sum of uf/sum of u0) 100, both by the trapezoidal rule over the nodes.
void AverageDegree(const NodeShares& nodes) {
    Single S0 = 0, Sf = 0;
    for (int m = 0; m <= Session.IsoLast; ++m) {
        S0 += Session.IsoU0(m) * nodes.Weight(m);
        Sf += Session.IsoUf(m) * nodes.Weight(m);
    }
    Session.Uc = (1 - Quotient(Sf, S0)) * 100;
}

// Deliberate: the first layer counts one interval more than it has, so the nodes of layer 2 are printed dz(1) - dz(2)
// deeper than they lie. The entry IsoLast + 1 is never shown.
void NodeDepths(const Grid& grid) {
    Session.IsoZ(0) = grid(1).Depth;
    int m = 1;
    grid.ForEachNode([&](int i, int) {
        Session.IsoZ(m) = Session.IsoZ(m - 1) + grid(i).dz;
        ++m;
    });
}

void TellTooManySteps(const std::string& timeUnit) {
    SharedServices().SetPointer(PointerShape::Default);
    SharedServices().ShowMessageBox(Text(140187_text), Text(400123_text, {{"|1", timeUnit}}), MessageIcon::Exclamation);
}

void Run(const ConsolidationRateInput& in) {
    Session.A0 = in.A;
    const Single c = SecondsPerTimeUnit(in.TimeUnit);
    const Grid grid = BuildGrid(in);
    const double CvMax = LargestCv(in);
    Session.PrefDz = grid(1).dz;
    if (c == 0) FailTimeUnit(in.TimeUnit);
    const Single dt = Quotient(Square(Session.PrefDz) * 0.16666666666666666, CvMax * c);
    const Single steps = Quotient(in.T, dt);

    SharedServices().SetPointer(PointerShape::Hourglass);
    Session.IsoLast = grid.Last;
    Session.IsoU0.Redim(0, grid.Last);
    Session.IsoUf.Redim(0, grid.Last);
    Session.IsoZ.Redim(0, grid.Last + 1);
    NodePass nodes(in, grid, c, dt);
    nodes.Run();
    RaiseStepNotices(nodes.Lambdas());
    PorePressureMarch march(nodes.Rows, nodes.Old);
    if (steps > kMostSteps) {
        TellTooManySteps(in.TimeUnit);
        Session.CalcAborted = true;
        return;
    }
    MarchToTime(march, steps);
    const NodeShares shares = ShareSoil(grid);
    AverageDegree(shares);
    NodeDepths(grid);
    SharedServices().SetPointer(PointerShape::Default);
    WriteConsolidationRateReport(in, c);
    RaiseMarchNotices(in, steps, shares.Depth, shares.Weight);
    if (!Steps().On()) return;
    const int layers = grid.Layers.Upper();
    Array<Integer> n(1, layers);
    Array<Single> dz(1, layers);
    for (int i = 1; i <= layers; ++i) {
        n(i) = grid(i).n;
        dz(i) = grid(i).dz;
    }
    AddMarchTables(in, {n, dz, nodes.Lambdas(), c, dt, steps, shares.Depth, shares.Weight, nodes.Rows});
}

}  // namespace

void ComputeConsolidationRate(Single x, Single y, Single z, Single Q, Single P, Single A, Single B, Integer LoadType,
                              Single U, Single T, Integer NumLayers, const Array<Single>& hLayer,
                              const Array<Single>& CvLayer, const Array<Single>& KLayer, Integer DrainageCondition,
                              bool Pressure, const std::string& TimeUnit) {
    const ConsolidationRateInput in{
        x, y, z, Q, P, A, B, LoadType, U, T, NumLayers, hLayer, CvLayer, KLayer, DrainageCondition, Pressure, TimeUnit};
    RunKernel([&] { Run(in); }, [&] { return CauseInConsolidationRate(in); });
}

}  // namespace lithmark
