#include "trace/selected_median.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/numbers.hpp"

namespace kolvar {

double SortedCells::at(int place) {
    if (place < 0 || place >= static_cast<int>(cells_.size())) return 0.0;
    if (sorted_from_ < 0) {
        work_.resize(cells_.size());
        std::transform(cells_.begin(), cells_.end(), work_.begin(),
                       [](double cell) { return cell < 1.0E9 ? cell : 1.0E9; });
    }
    if (sorted_from_ < 0 || place > sorted_from_) {
        std::nth_element(work_.begin(), work_.begin() + place, work_.end());
        sorted_from_ = place;
    } else if (place == sorted_from_ - 1) {
        // The largest of those below the place that is known.
        std::iter_swap(work_.begin() + place, std::max_element(work_.begin(), work_.begin() + sorted_from_));
        sorted_from_ = place;
    } else if (place < sorted_from_) {
        std::nth_element(work_.begin(), work_.begin() + place, work_.begin() + sorted_from_);
        sorted_from_ = place;
    }
    const double cell = work_[static_cast<std::size_t>(place)];
    return cell == 0.0 ? zero_at(place) : cell;
}

// Zeros of both signs are equal and keep their order, which splitting does not tell.
double SortedCells::zero_at(int place) const {
    auto before = std::count_if(cells_.begin(), cells_.end(), [](double cell) { return cell < 0.0; });
    for (const double cell : cells_)
        if (cell == 0.0 && before++ == place) return cell;
    return 0.0;
}

double selected_median(std::span<const double> cells, int count, std::vector<double>& work) {
    const double half = count / 2.0;
    const double whole = std::floor(half);
    const double ratio = quotient(half, whole);
    const int middle = static_cast<int>(whole);
    SortedCells sorted(cells, work);
    if (ratio > 1) return sorted.at(middle);
    if (ratio < 1) return 0.0;
    const double upper = sorted.at(middle);
    return finite(sorted.at(middle - 1) + upper) / 2;
}

}  // namespace kolvar
