// The marks of blank and signal: clicks on the plots become limits.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Slice of a position and position of a slice, for a plot of this width (twips).
int slice_at(double x, double width, int slices);
double position_of(int slice, double width, int slices);

// Mouse button down over pict1 (plot 1) or pict2 (plot 2), and up again. button 1 left, 2 right; shift: 0 none,
// 1 SHIFT, else other modifiers.
void OnPlotDown(Context& context, TimeScreen& screen, int plot, int button, int shift, double x, double y);
void OnPlotUp(Context& context, TimeScreen& screen);
// Applies the stored click (ClickX, ClickButton, ClickShift).
void mark_selection(Context& context, TimeScreen& screen);
// A click on the label of the beam start: the next click on the plot sets it.
// The present selection is shown as the former one from now on.
void keep_as_former(RunState& rs);

void OnBeamStartLabel(RunState& rs);
// The plot's width has changed: positions anew from the slices.
void positions_from_slices(RunState& rs, const TimeScreen& screen);
// The captions and figures of a refinement go.
void forget_proposal(Frm2UP& form);
// The labels of the limits move to their places beside the plot and show the limits.
void place_limit_labels(const RunState& rs, TimeScreen& screen);

}  // namespace kolvar
