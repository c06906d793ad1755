// The drift of a batch: expected / measured of its standards, the straight line through them over the list, and the
// factors that the line gives to every file.
#pragma once

#include <span>

#include "core/run_state.hpp"
#include "ui/forms/frm_drift.hpp"

namespace kolvar {

// The least-squares line through the points (places[k], values[k]), and the coefficient of correlation. `n` counts as
// the number of points. Fault(division_by_zero) when the points have one place or one value only.
struct DriftLine {
    double intercept = 0, slope = 0, r = 0;
};
DriftLine fit_drift(std::span<const double> places, std::span<const double> values, double n);

// A standard that takes part in plot and line.
bool counts_for_drift(const RunState& rs, int line);

// DriftCF68, DriftCF75 and DriftCF76 of every line, and their extremes over the standards. Fault(division_by_zero) for
// a standard that has not been measured.
void find_drift(RunState& rs);

// Intercept, slope and correlation of the three ratios over the list, and their labels.
void Lin_Regr_DRI(RunState& rs, FrmDrift& form);

// The factors of every line for 206/238 and 207/206 (fields 5 and 7), to 5 decimals.
void write_factors(RunState& rs);

}  // namespace kolvar
