// Blank and plain statistics of the marked intervals.
#pragma once

#include "core/platform.hpp"
#include "core/run_state.hpp"

namespace kolvar {

// Mean, s.d. (cps) and spikes of the blank interval of every isotope. A blank of fewer than two slices shows a box and
// changes nothing. Fault(index) for an interval beyond the tables, Fault(overflow); none is reported here.
void ComputeBlank(RunState& rs, Platform& os);

// Blank-corrected cps (Sig2) of the whole table and the statistics of the selection, cps and ratios. Reports its own
// faults, save Fault(index) for a selection beyond the tables; what was written stays.
void ComputeSelStats(RunState& rs, Platform& os);

}  // namespace kolvar
