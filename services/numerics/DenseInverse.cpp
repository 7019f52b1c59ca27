#include "services/numerics/DenseInverse.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <vector>

#include "base/Failure.h"
#include "services/numerics/SharedBlocks.h"

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define LITHMARK_X86_LEVELS 1
#endif

namespace lithmark::detail {

namespace {

using Real = Single::Storage;

constexpr int kRowBlock = 96;     // rows of one work item of a product; a multiple of every tile height
constexpr int kOuterBlock = 96;   // columns eliminated together
constexpr int kInnerBlock = 16;   // columns of a block eliminated together
constexpr int kStripBytes = 192;  // a strip of the flat block: whole vectors at every level
constexpr int kTallest = 8;       // rows of the tallest tile

constexpr int kStrip = kStripBytes / static_cast<int>(sizeof(Real));

// One block step adds left (rows by depth) times right (depth by cols) to target. `right` lies in strips of kStrip
// columns: strip after strip, in it row after row, the last strip filled up with zeros.
struct Product {
    int Rows, Cols, Depth;
    const Real* Left;  // row after row, with room to read kTallest rows more
    const Real* Right;
    Real* Target;
    std::size_t TargetStride;
};

template <int Bytes>
struct Lanes {
    typedef Real Vector __attribute__((vector_size(Bytes), aligned(alignof(Real)), may_alias));
    static constexpr int Count = Bytes / static_cast<int>(sizeof(Real));
};

// The product's tile of Height rows and Columns columns from (row, col): the sums over the depth stay in registers, and
// are then added to the target, at its border only as far as the target goes.
template <int Bytes, int Height, int Columns>
[[gnu::always_inline]] inline void Tile(const Product& p, int row, int col, const Real* right) {
    using Vector = typename Lanes<Bytes>::Vector;
    constexpr int lanes = Lanes<Bytes>::Count;
    constexpr int vectors = Columns / lanes;
    const Real* left = p.Left + static_cast<std::size_t>(row) * p.Depth;
    Vector sum[Height][vectors] = {};
    for (int k = 0; k < p.Depth; ++k, right += kStrip) {
        Vector b[vectors];
#pragma GCC unroll 16
        for (std::ptrdiff_t v = 0; v < vectors; ++v) b[v] = *reinterpret_cast<const Vector*>(right + v * lanes);
#pragma GCC unroll 16
        for (int i = 0; i < Height; ++i) {
            const Real a = left[static_cast<std::size_t>(i) * p.Depth + k];
#pragma GCC unroll 16
            for (std::ptrdiff_t v = 0; v < vectors; ++v) sum[i][v] += a * b[v];
        }
    }
    Real* target = p.Target + static_cast<std::ptrdiff_t>(row) * p.TargetStride + col;
    if (row + Height <= p.Rows && col + Columns <= p.Cols) {
#pragma GCC unroll 16
        for (std::ptrdiff_t i = 0; i < Height; ++i)
#pragma GCC unroll 16
            for (std::ptrdiff_t v = 0; v < vectors; ++v)
                *reinterpret_cast<Vector*>(target + i * p.TargetStride + v * lanes) += sum[i][v];
    } else {
        Real part[Height][Columns];
        std::memcpy(part, sum, sizeof part);
        for (int i = 0; i < std::min(Height, p.Rows - row); ++i)
            for (int j = 0; j < std::min(Columns, p.Cols - col); ++j) target[i * p.TargetStride + j] += part[i][j];
    }
}

template <int Bytes, int Height, int Columns>
[[gnu::always_inline]] inline void MultiplyRows(const Product& p, int firstRow, int lastRow) {
    static_assert(Height <= kTallest && kRowBlock % Height == 0 && kStrip % Columns == 0);
    for (int strip = 0; strip < p.Cols; strip += kStrip) {
        const Real* right = p.Right + static_cast<std::size_t>(strip) * p.Depth;
        const int columns = std::min(kStrip, p.Cols - strip);
        for (int i = firstRow; i < lastRow; i += Height)
            for (int c = 0; c < columns; c += Columns) Tile<Bytes, Height, Columns>(p, i, strip + c, right + c);
    }
}

void MultiplyBaseline(const Product& p, int firstRow, int lastRow) {
    MultiplyRows<16, 6, 32 / sizeof(Real)>(p, firstRow, lastRow);
}
#ifdef LITHMARK_X86_LEVELS
[[gnu::target("avx2")]] void MultiplyAvx2(const Product& p, int firstRow, int lastRow) {
    MultiplyRows<32, 6, 64 / sizeof(Real)>(p, firstRow, lastRow);
}
[[gnu::target("avx512f")]] void MultiplyAvx512(const Product& p, int firstRow, int lastRow) {
    MultiplyRows<64, 8, 192 / sizeof(Real)>(p, firstRow, lastRow);
}
#endif

void MultiplyBlock(SimdLevel level, const Product& p, int firstRow, int lastRow) {
#ifdef LITHMARK_X86_LEVELS
    if (level == SimdLevel::Avx512) return MultiplyAvx512(p, firstRow, lastRow);
    if (level == SimdLevel::Avx2) return MultiplyAvx2(p, firstRow, lastRow);
#endif
    (void)level;
    MultiplyBaseline(p, firstRow, lastRow);
}

// The product by blocks of rows. `done` is told by this thread how much of it is behind, 0 to 1.
template <typename Done>
void Multiply(SimdLevel level, int threads, const Product& p, const Done& done) {
    ShareBlocks(
        p.Rows, kRowBlock, threads, [&](int first, int last) { MultiplyBlock(level, p, first, last); }, done);
}

// The matrix, or a block of its columns, under elimination.
struct Table {
    int Rows, Cols;
    Real* Items;
    Real* Row(int i) const { return Items + static_cast<std::size_t>(i) * static_cast<std::size_t>(Cols); }
};

class Elimination {
  public:
    Elimination(SimdLevel level, int n, int threads, const std::function<void(double)>& progress)
        : level_(level), n_(n), threads_(threads), progress_(progress), swaps_(static_cast<std::size_t>(n)) {
        const int outer = std::min(n, kOuterBlock);
        block_[0].resize(static_cast<std::size_t>(n + kTallest) * outer);
        block_[1].resize(static_cast<std::size_t>(n + kTallest) * std::min(n, kInnerBlock));
        flat_.resize(static_cast<std::size_t>(outer) * ((n + kStrip - 1) / kStrip) * kStrip);
    }

    void Run(Real* matrix) {
        const Table whole{n_, n_, matrix};
        Blocks(whole, 0, 0);
        // The rows were exchanged on the way; in the inverse the columns are put back, in reverse order.
        for (int i = 0; i < n_; ++i) {
            Real* row = whole.Row(i);
            for (int k = n_ - 1; k >= 0; --k) std::swap(row[k], row[swaps_[k]]);
            if (!std::all_of(row, row + n_, [](Real value) { return std::isfinite(value); }))
                Fail(FailureKind::SingularMatrix);
            if (i % kRowBlock == 0) Report(kEliminated + (1 - kEliminated) * i / n_);
        }
        Report(1);
    }

  private:
    // Shares of the time: the elimination in the whole; in it, what a block of columns takes until its product begins.
    static constexpr double kEliminated = 0.98, kNarrow = 0.2;

    void Report(double part) const {
        if (progress_) progress_(part);
    }
    void ReportColumns(double columns) const { Report(kEliminated * columns / n_); }

    // Eliminates all columns of the table; column c has its pivot in row firstPivot + c. depth 0 is the whole matrix,
    // depth 1 a block of its columns.
    void Blocks(const Table& t, int firstPivot, int depth) {
        const int width = depth == 0 ? kOuterBlock : kInnerBlock;
        for (int c = 0; c < t.Cols; c += width) {
            const Table block{t.Rows, std::min(width, t.Cols - c), block_[depth].data()};
            for (int i = 0; i < t.Rows; ++i) std::copy_n(t.Row(i) + c, block.Cols, block.Row(i));
            if (depth == 0)
                Blocks(block, c, 1);
            else
                Columns(block, firstPivot + c);
            if (depth == 0) {
                Apply(t, c, c, block, threads_,
                      [&](double part) { ReportColumns(c + block.Cols * (kNarrow + (1 - kNarrow) * part)); });
            } else {
                Apply(t, c, firstPivot + c, block, 1, [](double) {});
                ReportColumns(firstPivot + kNarrow * c);
            }
        }
    }

    // Gauss-Jordan elimination of a narrow block, column by column.
    void Columns(const Table& t, int firstPivot) {
        for (int c = 0; c < t.Cols; ++c) {
            const int p = firstPivot + c;
            int best = p;
            for (int i = p + 1; i < t.Rows; ++i)
                if (std::abs(t.Row(i)[c]) > std::abs(t.Row(best)[c])) best = i;
            swaps_[p] = best;
            Real* pivotRow = t.Row(p);
            if (best != p) std::swap_ranges(pivotRow, pivotRow + t.Cols, t.Row(best));
            const Real pivot = pivotRow[c];
            if (pivot == 0 || !std::isfinite(pivot)) Fail(FailureKind::SingularMatrix);
            pivotRow[c] = 1;
            for (int i = 0; i < t.Rows; ++i) {
                if (i == p) continue;
                Real* row = t.Row(i);
                // The quotient first: of two equal rows it is exactly 1, and the second one vanishes exactly.
                const Real factor = row[c] / pivot;
                row[c] = 0;
                for (int k = 0; k < t.Cols; ++k) row[k] -= factor * pivotRow[k];
            }
            for (int k = 0; k < t.Cols; ++k) pivotRow[k] /= pivot;
        }
    }

    // Brings the other columns of the table to the state of an eliminated block at column c, and stores the block.
    template <typename Done>
    void Apply(const Table& t, int c, int firstPivot, const Table& block, int threads, const Done& done) {
        const int depth = block.Cols;
        for (int k = 0; k < depth; ++k) {
            const int p = firstPivot + k;
            if (swaps_[p] != p) std::swap_ranges(t.Row(p), t.Row(p) + t.Cols, t.Row(swaps_[p]));
        }
        // The pivot rows go into the flat block and start from zero again; the block's own columns take no part.
        for (int k = 0; k < depth; ++k) {
            Real* row = t.Row(firstPivot + k);
            std::fill_n(row + c, depth, Real(0));
            for (int j = 0; j < t.Cols; j += kStrip) {
                Real* to = flat_.data() + static_cast<std::size_t>(j) * depth + static_cast<std::size_t>(k) * kStrip;
                const int count = std::min(kStrip, t.Cols - j);
                std::copy_n(row + j, count, to);
                std::fill(to + count, to + kStrip, Real(0));
            }
            std::fill_n(row, t.Cols, Real(0));
        }
        Multiply(level_, threads, {t.Rows, t.Cols, depth, block.Items, flat_.data(), t.Items, std::size_t(t.Cols)},
                 done);
        for (int i = 0; i < t.Rows; ++i) std::copy_n(block.Row(i), depth, t.Row(i) + c);
    }

    const SimdLevel level_;
    const int n_, threads_;
    const std::function<void(double)>& progress_;
    std::vector<int> swaps_;      // row that was exchanged with each pivot row
    std::vector<Real> block_[2];  // the columns under elimination, of the matrix and of such a block
    std::vector<Real> flat_;      // their pivot rows
};

}  // namespace

SimdLevel WidestSimdLevel() {
#ifdef LITHMARK_X86_LEVELS
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx512f")) return SimdLevel::Avx512;
    if (__builtin_cpu_supports("avx2")) return SimdLevel::Avx2;
#endif
    return SimdLevel::Baseline;
}

int UsefulThreads(int n) {
    if (n < 800) return 1;  // below, starting threads costs more than it saves
    return ProcessorsUpTo(n / (2 * kRowBlock));
}

void InvertInPlace(int n, Single::Storage* matrix, SimdLevel level, int threads,
                   const std::function<void(double)>& progress) {
    Elimination(level, n, threads, progress).Run(matrix);
}

}  // namespace lithmark::detail
