#include <array>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/plots.hpp"

namespace kolvar {
namespace {

struct SingleCurves {
    std::vector<int> columns;
    std::vector<Colour> colours;
};

// Those of the six that are set.
SingleCurves single_curves(const RunState& rs) {
    SingleCurves curves;
    const std::array<std::pair<int, Colour>, 6> all{{{rs.Curve1, palette(0)},
                                                     {rs.Curve2, palette(12)},
                                                     {rs.Curve3, palette(10)},
                                                     {rs.Curve4, palette(9)},
                                                     {rs.Curve5, palette(13)},
                                                     {rs.Curve6, palette(11)}}};
    for (const auto& [column, colour] : all) {
        if (column == 0) continue;
        curves.columns.push_back(column);
        curves.colours.push_back(colour);
    }
    return curves;
}

}  // namespace

void draw_pict1(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "draw_pict1");
    if (rs.PlotOn == 1) return;  // a file is being taken in
    Frm2Time& frm = context.forms.frm2_Time;
    const plot::Area area = plot::upper_area(frm);
    plot::hide_scale_labels(frm);
    area.canvas.Clear();
    plot::draw_interval_tints(rs, area);
    plot::show_guides(rs, frm);

    // The maximum is the caller's. In the logarithmic view each draw takes its logarithm, and a typed limit, which
    // comes after that, counts as one.
    if (rs.MaxCps > 0 && !rs.LinearView) rs.MaxCps = logarithm(rs.MaxCps);
    rs.FullMax = rs.MaxCps;
    plot::take_entered_limit(rs.YMaxEntry, rs.MaxCps);
    plot::show_maximum(frm.pict1, frm.lblMaxCps, Format(rs.MaxCps, "0.0"));

    const plot::Scale scale(area.height, rs.MaxCps, rs.LinearView);
    const std::vector<double> x = plot::slice_positions(area.width, rs.nSlices);
    const SingleCurves curves = single_curves(rs);
    std::vector<std::span<const double>> signals;
    for (const int column : curves.columns) signals.push_back(std::as_const(rs.Sig).column(column));
    plot::draw_curves_by_slice(area.canvas, x, curves.colours,
                               [&](std::size_t k, std::size_t i) { return scale.place(signals[k][i]); });

    if (!rs.LinearView) {
        plot::hide_label(area.canvas, frm.lblMaxCps);
        // The decades count the digits of the logarithm's logarithm here, so that hardly ever one is marked; the plot
        // of all curves counts those of the maximum itself.
        if (rs.MaxCps != 0) rs.MaxCps = logarithm(std::fabs(rs.MaxCps));
        plot::draw_decades(frm, rs.MaxCps, plot::lines_shown(frm));
    }
    if (rs.ModeData == 1) draw_pict2(context);
}

void draw_pict2(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "draw_pict2");
    if (rs.PlotOn == 1) return;
    Frm2Time& frm = context.forms.frm2_Time;
    const plot::Area area = plot::lower_area(frm);
    area.canvas.Clear();
    plot::draw_interval_lines(rs, area);
    plot::show_maximum(frm.pict2, frm.lblMaxIIS, Format(rs.MaxRatio, "0.000"));
    const std::vector<double> x = plot::slice_positions(area.width, rs.nSlices);
    const SingleCurves curves = single_curves(rs);
    std::vector<plot::LowerCurve> shown;
    for (std::size_t k = 0; k < curves.columns.size(); ++k)
        shown.push_back(rs.setRatio_ppmIS.val() == 1
                            ? plot::concentration_curve(rs, curves.columns[k], curves.colours[k])
                            : plot::standard_ratio_curve(rs, curves.columns[k], curves.colours[k]));
    const plot::Scale scale(area.height, rs.MaxRatio, true);
    plot::draw_curves_by_slice(area.canvas, x, curves.colours, [&](std::size_t k, std::size_t i) {
        const std::optional<double> value = shown[k].value(i);
        return value ? scale.place(*value) : std::nullopt;
    });
}

}  // namespace kolvar
