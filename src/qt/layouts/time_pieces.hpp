// What the windows of both time-selection screens share.
#pragma once

#include <QLabel>

#include "core/run_state.hpp"
#include "qt/form_window.hpp"
#include "ui/forms/time_screen.hpp"

namespace kolvar {

inline constexpr int time_head_height = 48;  // logical pixels above the plots

// The two lines about file and intervals. `default_head` stands before the settings or default file.
QWidget* lay_out_time_head(FormWindow& window, const TimeScreen& f, const Label& default_head);
// Numbers beside the plots, and the strip of the former selection.
void align_time_labels(FormWindow& window, const TimeScreen& f);
// Shows slice and value under the pointer in `status`.
void watch_pointer(FormWindow& window, const Picture& picture, QLabel* status, const RunState& rs, bool upper);

}  // namespace kolvar
