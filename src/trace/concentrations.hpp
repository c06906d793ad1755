// Concentrations, their errors, limits of detection and correlations by the method of the internal standard.
#pragma once

#include "core/platform.hpp"
#include "core/run_state.hpp"

namespace kolvar {

// Expects ComputeSelStats to have run and nData, Rej to be current. Reports its own faults, save
// Fault(index) for a selection beyond the tables; what was written stays.
void ComputeConcentrations(RunState& rs, Platform& os);

}  // namespace kolvar
