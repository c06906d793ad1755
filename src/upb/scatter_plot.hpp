// The normalised scatter of two ratios against each other.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Draws pict3: 206/238 over 207/235 or 207/206 over 238/206, the extremes of the selection at eight tenths of the plot.
void draw_XY(Context& context);

}  // namespace kolvar
