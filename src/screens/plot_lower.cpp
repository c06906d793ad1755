#include <algorithm>
#include <cmath>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/plots.hpp"

namespace kolvar::plot {
namespace {

LowerCurve signal_ratio_curve(const RunState& rs, int numerator, int denominator, Colour colour) {
    LowerCurve curve;
    curve.colour = colour;
    curve.numerator = rs.Sig2.column(numerator);
    if (denominator > 0) curve.denominator = rs.Sig2.column(denominator);
    return curve;
}

// The curves that are chosen: pairs of columns by the boxes of the ratio panel, else columns by the list of analytes.
std::vector<LowerCurve> chosen_curves(const RunState& rs, Frm2Time& frm) {
    std::vector<LowerCurve> curves;
    const double shows = rs.setRatio_ppmIS.val();
    if (shows == 2) {
        for (int pair = 1; pair <= 6; ++pair) {
            const int numerator = rs.RatioCol(2 * pair - 2);
            const int denominator = rs.RatioCol(2 * pair - 1);
            if (frm.chkR(pair).on() && numerator > 0 && denominator > 0)
                curves.push_back(signal_ratio_curve(rs, numerator, denominator, curve_colour(pair)));
        }
    } else if (shows == 0 || shows == 1) {
        for (int j = 1; j <= drawable_columns(rs); ++j)
            if (rs.CurveOn(j))
                curves.push_back(shows == 1 ? concentration_curve(rs, j, curve_colour(j))
                                            : standard_ratio_curve(rs, j, curve_colour(j)));
    }
    return curves;
}

double highest_in_selection(const RunState& rs, const std::vector<LowerCurve>& curves) {
    double highest = 0;
    const auto from = static_cast<std::size_t>(std::max(rs.SelLow.val(), 0));
    const auto until = static_cast<std::size_t>(std::clamp(rs.SelUpp.val(), 0, rs.nSlices));
    if (!rs.SelLow.is_set() && !rs.SelUpp.is_set()) return highest;
    for (const LowerCurve& curve : curves)
        for (std::size_t t = from; t <= until; ++t) highest = std::max(highest, curve.value(t).value_or(0.0));
    return highest;
}

const char* pattern_by_size(double maximum) {
    if (maximum < 0.001) return "0.0000";
    if (maximum < 0.1) return "0.000";
    return maximum < 2 ? "0.0" : "0";
}

}  // namespace

std::optional<double> LowerCurve::value(std::size_t slice) const {
    if (!cells.empty()) return cells[slice].is_number() ? std::optional<double>(cells[slice].held) : std::nullopt;
    if (denominator.empty() || denominator[slice] == 0) return std::nullopt;
    const double ratio = numerator[slice] / denominator[slice];
    return std::isfinite(ratio) ? std::optional<double>(ratio) : std::nullopt;
}

LowerCurve concentration_curve(const RunState& rs, int column, Colour colour) {
    LowerCurve curve;
    curve.colour = colour;
    curve.cells = rs.ConcT.column(column);
    return curve;
}

LowerCurve standard_ratio_curve(const RunState& rs, int column, Colour colour) {
    return signal_ratio_curve(rs, column, rs.IsoISidx(column), colour);
}

void draw_lower_curve(const Area& area, std::span<const double> x, const LowerCurve& curve, double top) {
    const Scale scale(area.height, top, true);
    draw_curve(area.canvas, x, curve.colour, [&](std::size_t i) {
        const std::optional<double> value = curve.value(i);
        return value ? scale.place(*value) : std::nullopt;
    });
}

void draw_lower_plot(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& frm = context.forms.frm2_Time;
    const std::vector<LowerCurve> curves = chosen_curves(rs, frm);
    rs.MaxRatio = highest_in_selection(rs, curves);
    const bool from_data = rs.MaxRatio > 0;
    take_entered_limit(rs.YMaxEntry2, rs.MaxRatio);
    if (rs.MaxRatio == 0) rs.MaxRatio = 0.0001;
    const NiceEnd end = NiceScale(rs.MaxRatio);
    rs.ScaleStep2 = end.steps;
    rs.MaxRatio = end.maximum;
    // Unlike the upper plot's flag, ScaleFresh2 stays: once a change of curves has set it, each draw takes the full
    // scale anew, a zoomed one too. AutoScale2 waits for the first selection: before it there is nothing to scale by.
    if (rs.ScaleFresh2 || rs.AutoScale2) rs.FullMax2 = rs.MaxRatio;
    if (from_data) rs.AutoScale2 = false;
    if (rs.ModeData == 1) {
        const std::string maximum = Format(rs.MaxRatio, pattern_by_size(rs.MaxRatio));
        show_maximum(frm.pict2, frm.lblMaxIIS, maximum);
        // The same number once more, at the right end of the plot, where the zoom bar stands.
        show_label(frm.pict2.canvas, frm.lblMaxIIS2, maximum, frm.pict2.left + frm.pict2.width - frm.lblMaxIIS2.width,
                   frm.pict2.top - frm.lblMaxIIS2.height - 15);
    }
    const Area area = lower_area(frm);
    const std::vector<double> x = slice_positions(area.width, rs.nSlices);
    for (const LowerCurve& curve : curves) draw_lower_curve(area, x, curve, rs.MaxRatio);
}

}  // namespace kolvar::plot
