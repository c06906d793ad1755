// Refinement of the selection: all pairs of limits in a band around the marked ones are tried, and the pair is proposed
// that improves two measures most: how far the values of two ratios are from a normal distribution, or how skewed.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// The two measures of the limits in force, ZizzVal1 and ZizzVal2, from what calc_express_UP has left. "RMS": sum of the
// squared distances of the empirical from the normal distribution function, this by Abramowitz and Stegun (1964),
// formula 26.2.16. "Skewness": the third standardised moment, corrected for the number of slices. Rejected slices take
// part. A standard deviation of 0 is Fault(division by zero).
void measure_selection(RunState& rs);

// Outside a scan the measures become the reference; in a scan they are weighed against it, and against the best pair so
// far, which the screen shows.
void weigh_measures(Context& context);

// Both in turn.
void ZiZi_Test(Context& context);

// Says what the improvement is one of.
void explain_refinement(const RunState& rs, Frm2UP& form);

// The scan. Its labels tell the proposal; the limits of the last pair stay in force. A fault puts the limits back that
// it began with.
void ziz_Manager_UP(Context& context);

}  // namespace kolvar
