// From the marked intervals to ratios, ages and detection margins: all figures of the screen, at every redraw.
#pragma once

#include <optional>
#include <string>

#include "ui/context.hpp"

namespace kolvar {

// Net signals, means and standard deviations of the selection, and for U/Pb the calculated U235 and the corrected
// Pb204: Sig2, CpsMean, CpsSD, Sig204Net.
void ReCalc_UP(Context& context);

// The net signal, the ratios of each slice, their statistics, and the labels of the screen. An interval below two
// slices shows a warning and leaves everything as it is. While a refinement scans no label changes.
void calc_express_UP(Context& context);

// Third standardised moment with the correction for small n: `cubes` is the sum of the cubed deviations from the mean,
// sd the standard deviation with n - 1. Fault(division_by_zero) for n = 2 and for sd = 0.
double skewness(double cubes, double n, double sd);

// Hg in the blank on mass 204, from the Hg isotope in use: cps; nothing when none of the five is in use.
// Fault(division_by_zero) for an isotope ratio of 0.
std::optional<double> hg204_of_blank(const RunState& rs);

// The name of the Hg isotope in use, "Hg" when there is none.
std::string hg_name(const RunState& rs);

}  // namespace kolvar
