#include "upb/regression.hpp"

#include <cstddef>

#include "core/numbers.hpp"
#include "upb/ratio_fields.hpp"
#include "upb/sorted_slices.hpp"

namespace kolvar {

namespace {

double tzero_value(const RunState& rs, const LineFit& line, double former) {
    const double kind = rs.setTzero.val();
    if (kind == 0) return line.intercept + rs.SelLow.val() * line.slope;
    if (kind == 1) return line.intercept + rs.BeamStart * line.slope;
    if (kind == 2) return line.intercept + (rs.BeamStart + rs.setDelay.val()) * line.slope;
    return former;
}

// Scatter of the counted slices about the line, with n - 1.
double residual_sd(const RunState& rs, const RatioFields& ratio) {
    double sum = 0;
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
        if (!counted(rs, t)) continue;
        const double off = (rs.*ratio.slices)(t) - (rs.*ratio.intercept + t * (rs.*ratio.slope));
        sum += off * off;
    }
    return root(quotient(sum, rs.SelNGood - 1));
}

}  // namespace

LineFit fit_line(std::span<const double> values, std::span<const int> flags, int first, double n) {
    double sx = 0;
    double sxx = 0;
    double sy = 0;
    double syy = 0;
    double sxy = 0;
    for (std::size_t k = 0; k < values.size(); ++k) {
        if (flags[k] >= 1) continue;
        const double x = first + static_cast<double>(k);
        const double y = values[k];
        sx += x;
        sxx += x * x;
        sy += y;
        syy += y * y;
        sxy += x * y;
    }
    LineFit line;
    line.together = n * sxy - sy * sx;
    line.spread_x = n * sxx - sx * sx;
    line.spread_y = n * syy - sy * sy;
    line.slope = quotient(line.together, line.spread_x);
    line.intercept = quotient(sy - line.slope * sx, n);
    return line;
}

double LineFit::correlation() const { return quotient(together, root(spread_x * spread_y)); }

double shown_error(const RunState& rs, double sd, double value, double former) {
    const double kind = rs.setErr.val();
    const double times = rs.setErr_times.val();
    const auto relative = [&] { return quotient(sd, value) * 100; };
    if (kind == 0) return times * sd;
    if (kind == 1) return times * relative();
    if (kind == 2) return quotient(times * sd, root(rs.SelNGood - 1));
    if (kind == 3) return quotient(times * relative(), root(rs.SelNGood - 1));
    return former;
}

void Lin_Regr_UP(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "Lin_Regr_UP");
    if (rs.SelN.val() < 3) return;
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    Frm2UP& form = context.forms.frm2_UP;
    for (int k = 0; k < ratio_count; ++k) {
        const RatioFields& ratio = ratio_fields()[static_cast<std::size_t>(k)];
        if (!ratio.measured(rs)) continue;
        const LineFit line = fit_line((rs.*ratio.slices).range(low, upp), rs.RejFlag.range(low, upp), low, rs.SelNGood);
        rs.*ratio.slope = line.slope;
        rs.*ratio.intercept = line.intercept;
        rs.*ratio.correlation = line.correlation();  // a constant ratio has a line, but none
        rs.*ratio.tzero = tzero_value(rs, line, rs.*ratio.tzero);
        const Frm2UP::RatioRow row = form.ratio_row(k);
        row.slope.text = Format(line.slope, "0.000");
        row.correlation.text = Format(rs.*ratio.correlation, "0.000");
    }
    // Also of a ratio that isn't measured: its residuals lie about the line of an earlier file.
    for (const RatioFields& ratio : ratio_fields()) rs.*ratio.residual_sd = residual_sd(rs, ratio);
    for (const RatioFields& ratio : ratio_fields())
        if (ratio.measured(rs))
            rs.*ratio.tzero_error = shown_error(rs, rs.*ratio.residual_sd, rs.*ratio.tzero, rs.*ratio.tzero_error);
    for (int k = 0; k < ratio_count; ++k) {
        const RatioFields& ratio = ratio_fields()[static_cast<std::size_t>(k)];
        if (ratio.measured(rs))
            form.ratio_row(k).tzero.text =
                Format(rs.*ratio.tzero, "0.000") + "  \xC2\xB1 " + Format(rs.*ratio.tzero_error, "0.000");
    }
}

void median_UP(RunState& rs) {
    const Running running(rs, "median_UP");
    const int half = rs.SelN.val() / 2;
    const int low = rs.SelLow.val();
    for (const RatioFields& ratio : ratio_fields()) {
        // While outliers are rejected their places keep what stood there before.
        sort_slices(rs, rs.*ratio.slices, rs.MedianSorted, true);
        const bool even = rs.SelN.val() % 2 == 0;
        rs.*ratio.median =
            even ? (rs.MedianSorted(low + half - 1) + rs.MedianSorted(low + half)) / 2 : rs.MedianSorted(low + half);
    }
}

}  // namespace kolvar
