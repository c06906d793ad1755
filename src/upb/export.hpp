// Results of a selection as TAB-separated text: to the clipboard and to the SUMMARY file.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Composes title, heads and data line by Method and setPasteDat, and hands them over as NoHead and AppendSummary say.
// Fault(file_unwritable, disk_full) for a SUMMARY file that can't be written.
void copy_to_clpb(Context& context);

// The selected slices, net signals and ratios, to the clipboard.
void copy_selected_slices(Context& context);

}  // namespace kolvar
