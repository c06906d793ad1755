// Regression of the ratios on the slice number, T-zero values, and medians.
#pragma once

#include <span>

#include "ui/context.hpp"

namespace kolvar {

// Least-squares line through the points (first, values[0]), (first + 1, values[1]), ... of which those count whose
// flag is below 1; `n` is their number. Fault(division_by_zero) when the points have one place only; for a constant
// value only the correlation is one.
struct LineFit {
    double slope = 0, intercept = 0;
    double together = 0, spread_x = 0, spread_y = 0;  // n^2 times covariance and variances
    [[nodiscard]] double correlation() const;
};
LineFit fit_line(std::span<const double> values, std::span<const int> flags, int first, double n);

// Slope, intercept, correlation, T-zero value and its error of each ratio, and their labels. Below three selected
// slices everything stays as it was.
void Lin_Regr_UP(Context& context);

// Med68 .. Med76 over the selection.
void median_UP(RunState& rs);

// The error as it is shown: `sd` by the setting setErr (0 s.d., 1 relative s.d. in percent, 2 s.e., 3 relative s.e. in
// percent) times setErr_times. The standard error divides by the root of n - 1. Any other setting: `former`.
double shown_error(const RunState& rs, double sd, double value, double former);

}  // namespace kolvar
