#include <algorithm>
#include <utility>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/plots.hpp"

namespace kolvar {
namespace {

bool any_curve_chosen(const RunState& rs) {
    for (int j = 1; j <= plot::drawable_columns(rs); ++j)
        if (rs.CurveOn(j)) return true;
    return false;
}

double highest_signal(const RunState& rs) {
    double highest = 0;
    for (int j = 1; j <= plot::drawable_columns(rs); ++j) {
        if (!rs.CurveOn(j)) continue;
        const auto signal = rs.Sig.column(j).subspan(1, static_cast<std::size_t>(rs.nSlices));
        for (const double cps : signal) highest = std::max(highest, cps);
    }
    return highest;
}

// Logarithmic view: MaxCps holds the logarithm of the scale's end from here on.
void draw_upper_plot(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& frm = context.forms.frm2_Time;
    const NiceEnd end = plot::take_upper_scale(rs, frm, highest_signal(rs));
    plot::show_maximum(frm.pict1, frm.lblMaxCps, Format(rs.MaxCps, "0"));
    if (rs.MaxCps > 0 && !rs.LinearView) rs.MaxCps = logarithm(rs.MaxCps);

    if (!rs.LinearView) plot::hide_label(frm.pict1.canvas, frm.lblMaxCps);
    if (!any_curve_chosen(rs)) return;  // the intervals alone, without a scale
    if (!rs.LinearView)
        plot::draw_decades(frm, end.maximum, plot::lines_shown(frm));
    else if (plot::lines_shown(frm))
        plot::draw_linear_divisions(frm, rs.ScaleStep);

    const plot::Area area = plot::upper_area(frm);
    const plot::Scale scale(area.height, rs.MaxCps, rs.LinearView);
    const std::vector<double> x = plot::slice_positions(area.width, rs.nSlices);
    for (int j = 1; j <= plot::drawable_columns(rs); ++j) {
        if (!rs.CurveOn(j)) continue;
        const auto signal = std::as_const(rs.Sig).column(j);
        plot::draw_curve(area.canvas, x, plot::curve_colour(j), [&](std::size_t i) { return scale.place(signal[i]); });
    }
}

}  // namespace

void draw_all(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "draw_all");
    if (rs.PlotOn == 1) return;  // a file is being taken in
    Frm2Time& frm = context.forms.frm2_Time;
    rs.CurvesShown = 1;
    plot::hide_scale_labels(frm);
    frm.pict1.canvas.Clear();
    frm.pict2.canvas.Clear();
    plot::draw_interval_tints(rs, plot::upper_area(frm));
    plot::draw_interval_tints(rs, plot::lower_area(frm));
    plot::show_guides(rs, frm);
    draw_upper_plot(context);
    plot::draw_lower_plot(context);
}

}  // namespace kolvar
