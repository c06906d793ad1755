// The signal plots of the time-selection screen as drawing commands.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

struct NiceEnd {
    double steps;    // divisions of the scale; 0 when there is none
    double maximum;  // its end
};

// Rounds a maximum up to 1, 1.2, 1.5, 2, 3, 4, 5, 6, 8 or 10 times a power of ten; a value on a step moves up.
NiceEnd NiceScale(double v);
// ln(v) / ln(10), 0 for 0.
double Log10(double v);

// All chosen curves, and the lower plot of ratios, concentrations or signal ratios.
void draw_all(Context& context);
// The six single curves of the single-curve mode, and its lower plot.
void draw_pict1(Context& context);
void draw_pict2(Context& context);

// The U/Pb and FLEX screen: the signals, and below them, once all four limits stand, the calculation of the file and
// its ratios over time. While a file is taken in nothing is drawn or calculated.
void draw_UP(Context& context);
void draw_UPratio(Context& context);

}  // namespace kolvar
