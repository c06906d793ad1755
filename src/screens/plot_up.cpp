// The signals of the U/Pb and FLEX screen.
#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "screens/time_window.hpp"

namespace kolvar {

namespace {

struct Signal {
    int column;  // 0 = not measured
    Colour colour;
};

std::array<Signal, 8> signals_by_role(const RunState& rs) {
    // Without a Hg isotope ColHg may still hold the column of an earlier file.
    const int mercury = rs.Method == 1 && rs.HgMass == 0 ? 0 : rs.ColHg;
    return {{{mercury, palette(0)},
             {rs.ColPb204, palette(5)},
             {rs.ColPb206, palette(6)},
             {rs.ColPb207, palette(12)},
             {rs.ColPb208, palette(13)},
             {rs.ColTh232, palette(9)},
             {rs.ColU235, palette(2)},
             {rs.ColU238, palette(10)}}};
}

void draw_signals(const RunState& rs, Frm2UP& form, double maximum) {
    const plot::Area area = plot::upper_area(form);
    if (!rs.LinearView && !(maximum > 1)) return;  // such a scale has no places
    const plot::Scale linear(area.height, maximum, true);
    const double decades = rs.LinearView ? 0 : Log10(maximum);
    const auto place = [&](double cps) {
        if (rs.LinearView) return linear.place(cps);
        return std::optional<double>(area.height - area.height * 0.9 * Log10(cps <= 0 ? 0.00001 : cps) / decades);
    };
    std::vector<std::span<const double>> cps;
    std::vector<Colour> colours;
    for (const Signal& signal : signals_by_role(rs)) {
        if (signal.column < 1) continue;
        cps.push_back(rs.Sig.column(signal.column));
        colours.push_back(signal.colour);
    }
    const std::vector<double> x = plot::slice_positions(area.width, rs.nSlices);
    plot::draw_curves_by_slice(area.canvas, x, colours, [&](std::size_t k, std::size_t i) { return place(cps[k][i]); });
}

}  // namespace

double highest_signal_by_role(const RunState& rs) {
    double highest = 0;
    for (const Signal& signal : signals_by_role(rs)) {
        if (signal.column < 1) continue;
        for (int t = 1; t <= rs.nSlices; ++t) highest = std::max(highest, rs.Sig(signal.column, t));
    }
    return highest;
}

void draw_UP(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "draw_UP");
    Frm2UP& form = context.forms.frm2_UP;
    Canvas& canvas = form.pict1.canvas;
    plot::hide_label(canvas, form.lblBeam_St);
    if (rs.SelN.val() > 0) form.lblMeasSel.text = rs.SelN.text();
    if (rs.PlotOn == 1) return;
    canvas.Clear();
    plot::hide_scale_labels(form);
    plot::draw_interval_tints(rs, plot::upper_area(form));
    place_limit_labels(rs, form);
    plot::show_former_selection(rs, form);

    const NiceEnd end = plot::take_upper_scale(rs, form, highest_signal_by_role(rs));
    if (rs.LinearView) plot::draw_linear_divisions(form, rs.ScaleStep);
    draw_signals(rs, form, end.maximum);
    if (rs.LinearView) {
        const std::string maximum = Format(rs.MaxCps, "0");
        plot::show_maximum(form.pict1, form.lblMaxCps, maximum);
        form.lblMaxCps2.text = maximum;
    } else {
        if (end.maximum > 1) plot::draw_decades(form, end.maximum, false);
        plot::hide_label(canvas, form.lblMaxCps);
    }
    form.lblMaxCps2.visible = rs.LinearView;
    if (all_limits_set(rs)) draw_UPratio(context);
}

}  // namespace kolvar
