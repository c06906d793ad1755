// The plot of the drift: factors of the standards and the lines through them over the list. All measures are twips.
#pragma once

#include "core/run_state.hpp"
#include "ui/forms/frm_drift.hpp"

namespace kolvar {

inline constexpr int drift_tick_room = 120;  // of the pictures of the ticks beside and below the plot

// "Plot": factors, lines and the whole drawing. It can be accepted afterwards unless the factors are written already.
void plot_drift(RunState& rs, FrmDrift& form);

// The drawing alone, from the factors and lines as they stand.
void draw_drift(RunState& rs, FrmDrift& form);

// Beside the name of each ratio: how its standards and its line are drawn.
void draw_drift_legends(FrmDrift& form);

}  // namespace kolvar
