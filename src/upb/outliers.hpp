// Slices whose ratios lie too far from the mean or the regression line, and their rejection.
#pragma once

#include <vector>

#include "ui/context.hpp"

namespace kolvar {

// An outlier: the ratio (0..4 in the order of ratio_fields) and the slice.
struct Outlier {
    int ratio, slice;
};

// Tests every slice of the selection in the ratios that are ticked and set for the test, counts the slices that fail,
// and leaves RejFlag set while rejection is on. While slices are rejected nothing is tested again.
std::vector<Outlier> Out_Liers(RunState& rs, Frm2UP& form);

// Puts all slices of the selection back into the statistics; the button offers the rejection again. Of a slice outside,
// which the selection held when it was rejected, the flag stays until a search for outliers comes over it.
void restore_rejected(RunState& rs, Frm2UP& form);

// Makes the button usable. With it come back the controls around it that a new file without intervals had hidden, the
// count of outliers only while they are shown.
void offer_rejection(Frm2UP& form);

// How lblReject and lblOM tell that outliers are rejected.
void emphasise_rejection(Frm2UP& form, bool rejected);

}  // namespace kolvar
