#include "kernels/raft/RaftNotices.h"

#include <algorithm>
#include <cmath>

#include "core/Problems.h"
#include "core/Session.h"
#include "kernels/elastic/CircleIntegral.h"
#include "kernels/elastic/LayerFactors.h"
#include "kernels/elastic/RectangularLoad.h"
#include "kernels/raft/ClayLayer.h"
#include "kernels/raft/Conditioning.h"
#include "report/Measured.h"
#include "report/Notices.h"

namespace lithmark {

namespace {

constexpr double kImbalance = 0.005;         // of the load or its moment
constexpr double kSmallEccentricity = 0.01;  // of the side: below it a moment is held against that of this one
constexpr double kPressureShift = 0.002;     // of the mean pressure: what the last bit of a flexibility may do
constexpr double kTensionNoise = 1e-6;       // of the mean pressure
constexpr double kDeepestSides = 10;         // limiting depths beyond so many longer sides are told

class Measures {
  public:
    Measures(const RaftInput& enteredInput, const RaftResult& runResult)
        : entered_(enteredInput),
          input_(runResult.Input),
          circular_(runResult.Circular),
          numerical_(!runResult.Input.AnalysisType),
          byIndex_(Session.ProblemType != Problem::RaftDisplacement &&
                   input_.SoilPropertyType == SoilDefinition::ByCompressionIndex),
          // Of a problem's soil that is none of the two nothing is known.
          known_(Session.ProblemType == Problem::RaftDisplacement ||
                 input_.SoilPropertyType == SoilDefinition::ByModulus || byIndex_),
          mean_(Session.RaftMeanPressure),
          longerSide_(circular_ ? 2.0 * input_.A : std::max<double>(input_.A, input_.B)) {}

    void Raise() const {
        MeasureRun([this] { Condition(); });
        MeasureRun([this] { Equilibrium(); });
        MeasureRun([this] { Tension(); });
        if (!known_) return;
        if (numerical_) {
            MeasureRun([this] { ThinLayer(); });
        } else {
            MeasureRun([this] { LayerUnused(); });
            if (byIndex_) MeasureRun([this] { LimitingDepth(); });
            if (circular_ && !byIndex_) MeasureRun([this] { ClosedFormTilt(); });
        }
    }

  private:
    void Condition() const {
        double greatest = 0;
        for (const Single pressure : Session.NodePressure) greatest = std::max(greatest, std::abs(double(pressure)));
        const double condition = MeasuresOfRaft().Condition;
        const double shift = Quotient(condition * kLastBit * greatest, std::abs(mean_));
        if (shift <= kPressureShift) return;
        Notices().Raise(NoticeId::RaftIllConditioned, 907000_text, {MeasuredNumber(condition), MeasuredPercent(shift)});
    }

    void Equilibrium() const {
        const double halfA = circular_ ? 0 : input_.A / 2, halfB = circular_ ? 0 : input_.B / 2;
        double force = 0, momentX = 0, momentY = 0;
        for (int i = 1; i <= Session.NodeForce.Upper(); ++i) {
            force += Session.NodeForce(i);
            momentX += Session.NodeForce(i) * (Session.NodeX(i) - halfA);
            momentY += Session.NodeForce(i) * (Session.NodeY(i) - halfB);
        }
        const double Q = input_.Q;
        if (std::abs(force - Q) > kImbalance * std::abs(Q))
            Notices().Raise(NoticeId::RaftEquilibrium, 907001_text,
                            {MeasuredForce(force), MeasuredForce(Q), MeasuredPercent(Quotient(force - Q, Q))});
        const auto hold = [&](const char* axis, double moment, double eccentricity, double side) {
            const double arm = std::max(std::abs(eccentricity), kSmallEccentricity * side);
            if (std::abs(moment - Q * eccentricity) > kImbalance * arm * std::abs(Q))
                Notices().Raise(NoticeId::RaftEquilibrium, 907002_text,
                                {axis, MeasuredMoment(moment), MeasuredMoment(Q * eccentricity)});
        };
        hold("x", momentX, input_.Exz_x, circular_ ? 2.0 * input_.A : double(input_.A));
        hold("y", momentY, circular_ ? 0 : double(input_.Exz_y), circular_ ? 2.0 * input_.A : double(input_.B));
    }

    void Tension() const {
        double least = 0, area = 0, whole = 0;
        for (int i = 1; i <= Session.NodePressure.Upper(); ++i) {
            const double pressure = Session.NodePressure(i);
            least = std::min(least, pressure);
            if (pressure < 0) area += Session.NodeArea(i);
            whole += Session.NodeArea(i);
        }
        if (least >= -kTensionNoise * std::abs(mean_)) return;
        Notices().Raise(NoticeId::RaftTension, 907003_text,
                        {MeasuredPressure(least), MeasuredPercent(Quotient(area, whole)), MeasuredPressure(mean_)});
    }

    // The settlement [cm] of a flexible raft on the layer entered, x [m] beside its centre, in closed form.
    double OnLayer(double x) const {
        const double R = entered_.A;
        const SubRectangles corners = SplitRectangle(x, 0, entered_.A, entered_.B);
        const auto sumOf = [&corners](auto factor) {
            double sum = 0, sign = 1;
            for (const SubRectangle& corner : corners) {
                sum += sign * factor(corner.X, corner.Y);
                sign = -sign;
            }
            return sum;
        };
        if (Session.ProblemType == Problem::RaftDisplacement) {
            const Single h = entered_.h, nu = Session.Nue;
            const double factor = circular_
                                      ? CircleIntegral(R, x, [&](double rho) { return DiscSettlement(rho, h, nu); })
                                      : sumOf([&](Single X, Single Y) { return RectCornerLayer(X, Y, h, nu); });
            return Quotient(mean_ * factor, entered_.Es) * 100;
        }
        const Single step = circular_ ? entered_.A : Single(std::hypot(entered_.A, entered_.B) / 2);
        const auto meanStress = [&](Single z1, Single z2) -> Single {
            return mean_ * (circular_ ? CircleIntegral(R, x, [&](double rho) { return DiscMeanStress(rho, z1, z2); })
                                      : sumOf([&](Single X, Single Y) { return MeanCornerFactor(X, Y, z1, z2); }));
        };
        return FlexibleClaySettlement(entered_, byIndex_ ? NumericalClay(entered_, step) : ClayLayer{}, meanStress);
    }

    // The same at the centre on the half-space that an analytical run takes for a soil with a modulus.
    double OnHalfSpace() const {
        const double nu = Session.ProblemType == Problem::RaftDisplacement ? double(Session.Nue) : 0;
        const double factor =
            circular_ ? 2 * (1 - Square(nu)) * entered_.A : 4 * RectCornerHalfSpace(entered_.A / 2, entered_.B / 2, nu);
        return Quotient(mean_ * factor, entered_.Es) * 100;
    }

    void LayerUnused() const {
        if (byIndex_ && (entered_.h != 0 || entered_.z != 0))
            Notices().Raise(NoticeId::RaftLayerUnused, 907005_text,
                            {MeasuredLength(entered_.z), MeasuredLength(entered_.h), MeasuredLength(input_.h)});
        else if (entered_.h != 0)
            Notices().Raise(
                NoticeId::RaftLayerUnused, 907004_text,
                {MeasuredLength(entered_.h), MeasuredSettlement(OnHalfSpace()), MeasuredSettlement(OnLayer(0))});
        if (!circular_ && (entered_.Exz_x != 0 || entered_.Exz_y != 0))
            Notices().Raise(NoticeId::RaftLayerUnused, 907006_text,
                            {MeasuredLength(entered_.Exz_x), MeasuredLength(entered_.Exz_y)});
    }

    void LimitingDepth() const {
        if (input_.h <= kDeepestSides * longerSide_) return;
        Notices().Raise(
            NoticeId::RaftLimitingDepth, 907007_text,
            {MeasuredLength(input_.h), MeasuredNumber(Quotient(input_.h, longerSide_)), MeasuredLength(longerSide_)});
    }

    void ThinLayer() const {
        const double element =
            circular_ ? Quotient(longerSide_, Session.PrefND) : std::max<double>(Session.PrefDx, Session.PrefDy);
        if (entered_.h >= element) return;
        // Half-way between centre and edge, on the middle row.
        const int at = (Session.RaftMidCount + 1) / 2 + Session.RaftMidCount / 4;
        const double x = Session.RaftMidX(at) - (circular_ ? 0 : entered_.A / 2);
        Notices().Raise(NoticeId::RaftThinLayer, 907009_text,
                        {MeasuredLength(entered_.h), MeasuredLength(element),
                         MeasuredSettlement(Session.RaftMidFlexible(at)), MeasuredSettlement(OnLayer(x))});
    }

    // Theory has the edge settle by s0 (1 + 3 e/(2 R)), the closed form by s0 (1 + 3 e/R).
    void ClosedFormTilt() const {
        if (!input_.SettlementAt || input_.Exz_x == 0) return;
        const double s0 = Session.NodeSettlement(1), tilt = Quotient(3 * input_.Exz_x, input_.A);
        Notices().Raise(NoticeId::RaftClosedFormTilt, 907010_text,
                        {MeasuredSettlement(s0 * (1 + tilt)), MeasuredSettlement(s0 * (1 + tilt / 2))});
    }

    const RaftInput& entered_;
    const RaftInput& input_;
    const bool circular_, numerical_, byIndex_, known_;
    const double mean_, longerSide_;
};

}  // namespace

void RaiseRaftNotices(const RaftInput& entered, const RaftResult& result) {
    Measures(entered, result).Raise();
}

}  // namespace lithmark
