// Mean and standard deviation of a measured blank.
#pragma once

#include <span>

namespace kolvar {

struct BlankStatistics {
    double mean = 0;
    double sd = 0;  // sample form, divided by n - 1; 0 stays 0
};

// Fewer than two slices are Fault(division_by_zero).
BlankStatistics blank_statistics(std::span<const double> cps);

}  // namespace kolvar
