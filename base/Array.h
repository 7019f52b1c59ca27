// Array: a checked array with a lower bound of its own, and Matrix: a checked table in contiguous memory.
//
// Access goes through operator(); an index outside the bounds is a SubscriptRange failure.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <vector>

#include "base/Failure.h"

namespace lithmark {

template <typename T>
class Array {
  public:
    Array() = default;
    // Elements lower..upper, value-initialised. An upper bound below the lower one gives an empty array.
    Array(int lower, int upper) { Redim(lower, upper); }
    // Elements 1..n with these values. A named function and not a constructor, so that Array<Single>{0, 70} means
    // bounds.
    static Array Of(std::initializer_list<T> values) {
        Array array;
        array.items_.assign(values);
        return array;
    }

    // New bounds; nothing of the old content stays.
    void Redim(int lower, int upper) {
        lower_ = lower;
        items_.assign(upper >= lower ? static_cast<std::size_t>(upper - lower) + 1 : 0, T{});
    }
    // New upper bound; the content that still fits stays.
    void Grow(int upper) { items_.resize(upper >= lower_ ? static_cast<std::size_t>(upper - lower_) + 1 : 0); }

    int Lower() const noexcept { return lower_; }
    int Upper() const noexcept { return lower_ + static_cast<int>(items_.size()) - 1; }
    bool Empty() const noexcept { return items_.empty(); }
    std::size_t Size() const noexcept { return items_.size(); }

    T& operator()(int i) { return items_[Offset(i)]; }
    const T& operator()(int i) const { return items_[Offset(i)]; }

    std::span<T> Items() noexcept { return items_; }
    std::span<const T> Items() const noexcept { return items_; }
    auto begin() noexcept { return items_.begin(); }
    auto end() noexcept { return items_.end(); }
    auto begin() const noexcept { return items_.begin(); }
    auto end() const noexcept { return items_.end(); }

  private:
    std::size_t Offset(int i) const {
        const auto offset = static_cast<std::size_t>(static_cast<long long>(i) - lower_);
        if (offset >= items_.size()) Fail(FailureKind::SubscriptRange);
        return offset;
    }

    int lower_ = 1;
    std::vector<T> items_;
};

// Rows lowerRow..upperRow by columns lowerCol..upperCol, row by row in contiguous memory.
template <typename T>
class Matrix {
  public:
    Matrix() = default;
    Matrix(int lowerRow, int upperRow, int lowerCol, int upperCol) { Redim(lowerRow, upperRow, lowerCol, upperCol); }
    // Rows 1..rows, columns 1..cols.
    Matrix(int rows, int cols) : Matrix(1, rows, 1, cols) {}

    void Redim(int lowerRow, int upperRow, int lowerCol, int upperCol) {
        lowerRow_ = lowerRow;
        lowerCol_ = lowerCol;
        rows_ = upperRow >= lowerRow ? static_cast<std::size_t>(upperRow - lowerRow) + 1 : 0;
        cols_ = upperCol >= lowerCol ? static_cast<std::size_t>(upperCol - lowerCol) + 1 : 0;
        items_.assign(rows_ * cols_, T{});
    }

    int LowerRow() const noexcept { return lowerRow_; }
    int UpperRow() const noexcept { return lowerRow_ + static_cast<int>(rows_) - 1; }
    int LowerCol() const noexcept { return lowerCol_; }
    int UpperCol() const noexcept { return lowerCol_ + static_cast<int>(cols_) - 1; }
    bool Empty() const noexcept { return items_.empty(); }

    T& operator()(int row, int col) { return items_[Offset(row, col)]; }
    const T& operator()(int row, int col) const { return items_[Offset(row, col)]; }

    std::span<T> Row(int row) { return std::span<T>(items_).subspan(Offset(row, lowerCol_), cols_); }
    std::span<const T> Row(int row) const { return std::span<const T>(items_).subspan(Offset(row, lowerCol_), cols_); }
    std::span<T> Items() noexcept { return items_; }
    std::span<const T> Items() const noexcept { return items_; }

  private:
    std::size_t Offset(int row, int col) const {
        const auto r = static_cast<std::size_t>(static_cast<long long>(row) - lowerRow_);
        const auto c = static_cast<std::size_t>(static_cast<long long>(col) - lowerCol_);
        if (r >= rows_ || c >= cols_) Fail(FailureKind::SubscriptRange);
        return r * cols_ + c;
    }

    int lowerRow_ = 1;
    int lowerCol_ = 1;
    std::size_t rows_ = 0;
    std::size_t cols_ = 0;
    std::vector<T> items_;
};

}  // namespace lithmark
