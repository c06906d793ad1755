// The results of a data file on its line of the master list.
#pragma once

#include "core/platform.hpp"
#include "core/run_state.hpp"
#include "ui/forms/frm2_up.hpp"

namespace kolvar {

// Counts line SeqPos as done when these are its first results, and fills its fields 11 to 63. SeqPos lies in the list.
// A fault (a blank that is no number, a corrected ratio out of range) leaves line and counters as they were.
void store_line(RunState& rs, const Frm2UP& form, Platform& os);

}  // namespace kolvar
