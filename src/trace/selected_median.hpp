// The median of a column's selected cps.
#pragma once

#include <span>
#include <vector>

namespace kolvar {

// What stands at a place of the cells sorted upwards when every cell of 1.0E9 or more counts as 1.0E9. Cells that are
// equal keep their order. Places count from 0; one outside the cells was never filled and is 0.
// `work` is room that is reused from column to column.
class SortedCells {
public:
    SortedCells(std::span<const double> cells, std::vector<double>& work) : cells_(cells), work_(work) {}
    double at(int place);

private:
    double zero_at(int place) const;

    std::span<const double> cells_;
    std::vector<double>& work_;
    int sorted_from_ = -1;  // work_ is split at this place, -1 = not yet
};

// The middle one of `count` cells, or the mean of the two in the middle; `count` is the length of the selection.
// Fault(division_by_zero) for a count of 0 or 1, Fault(overflow).
double selected_median(std::span<const double> cells, int count, std::vector<double>& work);

}  // namespace kolvar
