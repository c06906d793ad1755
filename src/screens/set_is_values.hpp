// What the controls of frm_SetIS mean: which setting each of them shows and is taken into.
#pragma once

#include "core/run_state.hpp"
#include "ui/forms/frm_set_is.hpp"

namespace kolvar {

// The controls show the settings, the lists the columns of the data. Runs no change handlers.
void show_settings(FrmSetIS& form, const RunState& rs);

// The settings, and what follows from them in the run state, take the controls. A number is what its box begins with;
// one beyond the range of a double is Fault(overflow), and what stands before its box is then taken.
void take_settings(const FrmSetIS& form, RunState& rs);

}  // namespace kolvar
