// The slice at which the laser fires.
#pragma once

#include "core/run_state.hpp"

namespace kolvar {

// Sets BeamStart to the first slice from the end of the blank on with which ten slices begin whose total signal is
// above that of the blank. It stays 0 when there is none.
void Search_BeamStart(RunState& rs);

}  // namespace kolvar
