// The stages of a concentration run, in the order in which they are called. All faults pass to the caller.
#pragma once

#include <span>

#include "core/run_state.hpp"
#include "trace/interval_kernels.hpp"

namespace kolvar::concentration {

// A column without reference, or without an internal standard under the periodic assignment, is not calculated.
inline bool is_omitted(const RunState& rs, int i) { return rs.IsoOmit(i) == 1 || rs.IsoISidx(i) == 0; }

// AvCps, AvRawCps, AccRatio: means of the slices that were not rejected.
void average_accepted(RunState& rs, const Interval& selection);
// ConcMean, ConcMedian, nIsoCalc; ppm.
void mean_and_median(RunState& rs, const Interval& selection);
// ConcT; ppm.
void concentration_of_slices(RunState& rs, const Interval& selection);
// ConcSD, ConcSE (ppm), RelErr (whole percent).
void spread(RunState& rs, const Interval& selection);
// ErrT; ppm.
void error_of_slices(RunState& rs, const Interval& selection);
// LoD; ppm.
void detection_limits(RunState& rs);
// R2IsoIS: the square of the correlation with the internal standard, with the sign of the correlation.
void correlation(RunState& rs, const Interval& selection);
// AccCpsSD, AccCpsSE of the create modes; cps.
void spread_of_accepted(RunState& rs, const Interval& selection);

// The relative errors squared that make up the error of a slice: counting statistics of the isotope (e1) and of its
// internal standard (e2) in the sample, of both in the standard measurement (e3, e4), and the errors of the reference
// values (e5 to e7).
struct ErrorTerms {
    double e1 = 0, e2 = 0, e3 = 0, e4 = 0, e5 = 0, e6 = 0, e7 = 0;
};

// The error of each slice of one column, in the unit of its concentration; "XX" where that is not above 0 or the datum
// is rejected. cells and standard are blank-corrected cps, dwell is in s. e1 and e2 keep their values at a slice
// without signal. Fault(division_by_zero, overflow); what was written before stays.
void slice_errors(std::span<const double> cells, std::span<const double> standard,
                  std::span<const std::uint8_t> rejected, std::span<const Cell> concentration, double dwell,
                  ErrorTerms& terms, std::span<Cell> error);

// A limit of detection as it is reported: rounded to 3, 4 and 5 decimals where it is above 0.001, 0.0001 and 0.00001,
// one rounding after the other, so that it ends with five decimals; a smaller one stays a number.
Value reported_limit(double limit);

}  // namespace kolvar::concentration
