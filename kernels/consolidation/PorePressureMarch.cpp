#include "kernels/consolidation/PorePressureMarch.h"

#include <algorithm>

#include "services/SharedServices.h"

namespace lithmark {

namespace {

using Storage = Single::Storage;

// Steps between two looks at the values. A value that is not finite never becomes finite again, since each row holds
// its own node with a finite weight, so a late look finds the same failure as a check of each assignment.
constexpr int kStepsPerLook = 256;

void CheckFinite(std::span<const Storage> values) {
    for (const Storage value : values)
        if (!(value - value == 0)) Fail(FailureKind::Overflow);
}

bool IsPlain(const FivePointRow& row) {
    return row.Cm2 == 0 && row.Cp2 == 0;
}

bool SameWeights(const FivePointRow& a, const FivePointRow& b) {
    return a.Cm1 == b.Cm1 && a.C0 == b.C0 && a.Cp1 == b.Cp1;
}

}  // namespace

PorePressureMarch::PorePressureMarch(const Array<FivePointRow>& rows, const Array<Single>& initial) {
    const std::span<const FivePointRow> all = rows.Items();
    const std::size_t count = all.size();
    for (std::size_t m = 0; m < count; ++m) {
        const FivePointRow& row = all[m];
        const bool inside = m > 0 && m + 1 < count;
        if (!inside || !IsPlain(row))
            others_.push_back({m, row});
        else if (!plain_.empty() && plain_.back().Last + 1 == m && SameWeights(row, all[m - 1]))
            plain_.back().Last = m;
        else
            plain_.push_back({m, m, row.Cm1, row.C0, row.Cp1});
    }
    cur_.reserve(count);
    for (const Single& value : initial.Items()) cur_.push_back(value.Stored());
    next_.resize(count);
    Product(cur_, next_);
    cur_.swap(next_);
    CheckFinite(cur_);
}

// Terms of zero weight are left out where a whole run has them: they change no digit of a finite sum.
void PorePressureMarch::Product(const Values_& old, Values_& out) const {
    for (const PlainRun& run : plain_) {
        const double Cm1 = run.Cm1, C0 = run.C0, Cp1 = run.Cp1;
        const Storage* const u = old.data();
        Storage* const v = out.data();
        for (std::size_t m = run.First; m <= run.Last; ++m) {
            Storage sum = static_cast<Storage>(Cm1 * u[m - 1]);
            sum = static_cast<Storage>(sum + C0 * u[m]);
            v[m] = static_cast<Storage>(sum + Cp1 * u[m + 1]);
        }
    }
    const std::size_t count = old.size();
    for (const auto& [m, row] : others_) {
        Storage sum = 0;
        if (m > 1) sum = static_cast<Storage>(sum + row.Cm2 * old[m - 2]);
        if (m > 0) sum = static_cast<Storage>(sum + row.Cm1 * old[m - 1]);
        sum = static_cast<Storage>(sum + row.C0 * old[m]);
        if (m + 1 < count) sum = static_cast<Storage>(sum + row.Cp1 * old[m + 1]);
        if (m + 2 < count) sum = static_cast<Storage>(sum + row.Cp2 * old[m + 2]);
        out[m] = sum;
    }
}

void PorePressureMarch::Advance(int steps) {
    for (int done = 0; done < steps;) {
        const int block = std::min(kStepsPerLook, steps - done);
        for (int k = 0; k < block; ++k) {
            Product(cur_, next_);
            cur_.swap(next_);
        }
        CheckFinite(cur_);
        // Where the last step changed no digit, none of the steps to come will.
        done = cur_ == next_ ? steps : done + block;
        SharedServices().ReportProgress(static_cast<double>(done) / steps);
    }
}

std::span<const Single::Storage> PorePressureMarch::OneStepOn() {
    Product(cur_, next_);
    CheckFinite(next_);
    return next_;
}

}  // namespace lithmark
