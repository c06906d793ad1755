// What the controls of the two windows of the defaults mean: which setting each of them shows and is taken into.
#pragma once

#include "core/run_state.hpp"
#include "ui/forms/frm_set_flex.hpp"
#include "ui/forms/frm_set_up.hpp"

namespace kolvar {

// The controls show the settings. Runs no change handlers.
void show_defaults(FrmSetUP& form, const RunState& rs);
void show_defaults(FrmSetFLEX& form, const RunState& rs);

// The settings take the controls. A number is what its field begins with; one beyond the range of a double is
// Fault(overflow), and what stands before its field is then taken.
void take_defaults(FrmSetUP& form, RunState& rs);
void take_defaults(FrmSetFLEX& form, RunState& rs);

// The colour of a list of analytes: white with a name, grey without one.
void colour_choice(ListBox& list);

}  // namespace kolvar
