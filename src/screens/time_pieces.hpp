// Places that the two time-selection screens share. All measures are twips.
#pragma once

#include "ui/forms/time_screen.hpp"

namespace kolvar {

inline constexpr int label_height = 240;
inline constexpr int bar_width = 255;
inline constexpr int between_plots = 640;  // numbers of the limits, head of the lower plot

void place(Control& control, int left, int top, int width, int height);

// Left of the upper plot: the end of its scale with the entry for another one, and the decades.
void place_upper_scale(TimeScreen& form, int left, int width);
// Bars at the right edges of the plots, numbers of the limits, head of the lower plot, strip of the former selection.
void place_around_plots(TimeScreen& form);

}  // namespace kolvar
