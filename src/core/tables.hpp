// Heap tables of the run state with checked, inclusive limits.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "core/fault.hpp"

namespace kolvar {

inline constexpr int MaxIso = 100;
inline constexpr int MaxSlices = 6000;
inline constexpr int MaxSTC = 500;
inline constexpr int MaxMaster = 500;
inline constexpr int MaxStd = 30;
inline constexpr int MaxMineral = 10;
inline constexpr int MaxRatioName = 12;
inline constexpr int MaxPeriod = 99;
inline constexpr int MaxShow = 6;
inline constexpr int MaxFlex = 15;
inline constexpr int MaxCurveFlags = 50;

// Cells 0..last. An index outside is Fault(index).
template <class T>
class Table1 {
public:
    explicit Table1(int last) : last_(last), cells_(std::make_unique<T[]>(static_cast<std::size_t>(last) + 1)) {}
    Table1(const Table1&) = delete;
    Table1& operator=(const Table1&) = delete;
    Table1(Table1&&) noexcept = default;
    Table1& operator=(Table1&&) noexcept = default;

    T& operator()(int i) { return cells_[checked(i)]; }
    const T& operator()(int i) const { return cells_[checked(i)]; }
    [[nodiscard]] int last() const { return last_; }
    // Cells first..last; none when last is below first.
    std::span<T> range(int first, int upto) { return {&cells_[checked(first)], length(first, upto)}; }
    std::span<const T> range(int first, int upto) const { return {&cells_[checked(first)], length(first, upto)}; }
    void fill(const T& cell) {
        for (int i = 0; i <= last_; ++i) cells_[static_cast<std::size_t>(i)] = cell;
    }

private:
    [[nodiscard]] std::size_t checked(int i) const {
        if (i < 0 || i > last_) fail(FaultKind::index);
        return static_cast<std::size_t>(i);
    }
    [[nodiscard]] std::size_t length(int first, int upto) const {
        return upto < first ? 0 : checked(upto) - checked(first) + 1;
    }
    int last_;
    std::unique_ptr<T[]> cells_;
};

// Cells (0..last_column, 0..last_row), column first: a column's rows lie side by side in memory.
template <class T>
class Table2 {
public:
    Table2(int last_column, int last_row)
        : columns_(last_column),
          rows_(last_row),
          stride_(static_cast<std::size_t>(last_row) + 1),
          cells_((static_cast<std::size_t>(last_column) + 1) * stride_) {}
    Table2(const Table2&) = delete;
    Table2& operator=(const Table2&) = delete;
    Table2(Table2&&) noexcept = default;
    Table2& operator=(Table2&&) noexcept = default;

    T& operator()(int i, int j) { return cells_[checked(i, j)]; }
    const T& operator()(int i, int j) const { return cells_[checked(i, j)]; }
    [[nodiscard]] int last_column() const { return columns_; }
    [[nodiscard]] int last_row() const { return rows_; }

    // Rows 0..last_row of column i; kernels run over it without a check at every cell.
    std::span<T> column(int i) { return {&cells_[checked(i, 0)], stride_}; }
    std::span<const T> column(int i) const { return {&cells_[checked(i, 0)], stride_}; }

private:
    [[nodiscard]] std::size_t checked(int i, int j) const {
        if (i < 0 || i > columns_ || j < 0 || j > rows_) fail(FaultKind::index);
        return static_cast<std::size_t>(i) * stride_ + static_cast<std::size_t>(j);
    }
    int columns_;
    int rows_;
    std::size_t stride_;
    std::vector<T> cells_;
};

}  // namespace kolvar
