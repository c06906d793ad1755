// What follows the load of a data file on the U/Pb and FLEX paths: are the isotopes there, which Hg is used, the
// screen.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// A column is missing that every result needs.
bool lacks_isotopes(const RunState& rs);

// True when the data lack isotopes; frm_Missing_UPb was opened then.
bool refused_for_missing_isotopes(Context& context);

// True when the data hold several Hg isotopes on the U/Pb path; frm_Hg_isot was opened then.
bool asked_about_mercury(Context& context);

// After a load: the report of missing isotopes, the question about several Hg isotopes, or frm2_UP on the new data.
// `from` is the window that the file was chosen in; it closes.
void go_on_with_new_file(Context& context, Form& from);

// Reads DataFilePath in place of the former data. A path of an ending that no reader is made for leaves them as they
// are, and the user goes on with them.
void load_named_file(Context& context);

// The dialog of frm2_UP for the next file.
void choose_next_file(Context& context);

}  // namespace kolvar
