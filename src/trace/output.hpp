// The result table as one text, and the files that results are written to.
#pragma once

#include <string>

#include "ui/context.hpp"

namespace kolvar {

// Composes the whole result table into OutText.
void Comp_Output(RunState& rs, Platform& os);
// The element of an internal standard, by its column.
std::string element_of(const RunState& rs, const Limit& column);
// "_M_G2.5_t20-t80": how data were rejected and which slices were selected.
std::string BuildSuffix(const RunState& rs);
// The data file's name without its ending, the suffix, and an ending such as ".txt".
std::string default_result_name(const RunState& rs, const std::string& ending);
// Asks before it overwrites. Faults pass to the caller.
void WriteResultFile(RunState& rs, Platform& os, const std::string& path);
// No rejection: nRejected, RejManual, nData, Rej as before any test. Common to the four "new" commands of step 4.
void reset_rejections(RunState& rs);
// Load of frm5_Preview: the grid from OutText.
void load_preview(Context& context);
// Load of frm_AverConc: the labels from ConcMean and ConcSD, which it uses up.
void load_averages(Context& context);

}  // namespace kolvar
