// The quick-results file: one line of average concentrations for each measurement of a day.
#pragma once

#include "core/platform.hpp"
#include "core/run_state.hpp"

namespace kolvar {

enum class QuickCall {
    from_time_selection,  // blank, statistics and concentrations are calculated first
    from_results,         // what the last calculation has left is written, with its rejections
};

// Appends to "0_quick-results" in AppPath2, in one write. Any fault shows a warning and leaves the file as it was.
void AppendQuickResults(RunState& rs, Platform& os, QuickCall call);

}  // namespace kolvar
