// The median by repeated selection, as plainly as it can be told: beside it the fast one must give the same last bit.
#pragma once

#include <cmath>
#include <span>
#include <vector>

namespace kolvar::plain {

// The cells in upward order. A cell that was taken is marked with 1E9, so that cells of 1E9 or more are never found.
inline std::vector<double> sorted_by_selection(std::span<const double> cells) {
    std::vector<double> source(cells.begin(), cells.end());
    std::vector<double> sorted(source.size());
    for (std::size_t place = 0; place < source.size(); ++place) {
        double low = 1.0E9;
        std::size_t found = source.size();
        for (std::size_t j = 0; j < source.size(); ++j) {
            if (source[j] < low) {
                low = source[j];
                found = j;
            }
        }
        sorted[place] = low;
        if (found < source.size()) source[found] = 1.0E9;
    }
    return sorted;
}

inline double selected_median(std::span<const double> cells) {
    const std::vector<double> sorted = sorted_by_selection(cells);
    const double half = static_cast<double>(cells.size()) / 2.0;
    const auto middle = static_cast<std::size_t>(std::floor(half));
    if (half / std::floor(half) > 1) return sorted[middle];
    return (sorted[middle - 1] + sorted[middle]) / 2;
}

// The same while slices are rejected: the places that are flagged with 1 keep what stands in `sorted`, the others take
// the smallest of all cells in upward order.
inline void sort_around_rejected(std::span<const double> cells, std::span<const int> flags, std::span<double> sorted) {
    std::vector<double> source(cells.begin(), cells.end());
    std::size_t found = 0;
    for (std::size_t place = 0; place < source.size(); ++place) {
        if (flags[place] == 1) continue;
        sorted[place] = 1.0E9;
        for (std::size_t j = 0; j < source.size(); ++j) {
            if (source[j] < sorted[place]) {
                sorted[place] = source[j];
                found = j;
            }
        }
        source[found] = 1.0E9;
    }
}

}  // namespace kolvar::plain
