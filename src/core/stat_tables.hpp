// Critical values of Grubbs' test and Student's t, read from the two files beside the executable.
#pragma once

#include <string_view>

#include "core/platform.hpp"
#include "core/run_state.hpp"

namespace kolvar {

// Each shows a warning when its file is missing or too short; what was read stays.
void LoadGrubbs(RunState& rs, Platform& os);
void LoadStudent(RunState& rs, Platform& os);

// The critical value at a level as the matrix names it (" 1", "2.5", " 5", "7.5", "10") for n data; 0 for n below 3.
// Fault(index) above 100.
double grubbs_critical(const RunState& rs, std::string_view level, int n);

}  // namespace kolvar
