#include "upb/scatter_plot.hpp"

#include "core/numbers.hpp"

namespace kolvar {

namespace {

constexpr double half_mark = 40;  // twips

// Mean of `term` over the slices that make one point.
template <class Term>
double pooled(const RunState& rs, int t, Term&& term) {
    if (rs.PlotPool == 1) return term(t);
    double sum = 0;
    for (int k = t; k < t + rs.PlotPool; ++k) sum += term(k);
    return sum / rs.PlotPool;
}

struct Axis {
    double least, most;
    [[nodiscard]] bool has_length() const { return most != least; }
    // Distance from the least value on a plot of this size.
    [[nodiscard]] double place(double size, double value) const {
        return 0.8 * size * (value - least) / (most - least);
    }
};

void draw_mark(Canvas& canvas, double x, double y, bool struck_out) {
    canvas.Line(x - half_mark, y, x + half_mark, y);
    canvas.Line(x, y - half_mark, x, y + half_mark);
    if (!struck_out) return;
    canvas.SetLineWidth(3);
    canvas.Line(x - half_mark, y - half_mark, x + half_mark, y + half_mark, palette(4));
    canvas.Line(x - half_mark, y + half_mark, x + half_mark, y - half_mark, palette(4));
    canvas.SetLineWidth(1);
}

}  // namespace

void draw_XY(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "draw_XY");
    Frm2UP& form = context.forms.frm2_UP;
    if (!rs.SelLow.is_set() || rs.Min68.text().empty()) return;
    if (rs.ColU235 == 0) rs.setConcordia = 1;  // without U235 there is no 207/235
    const bool wetherill = rs.setConcordia.val() == 0;
    if (wetherill) {
        form.lblRizsa(12).text = "Y: 206/238";
        form.lblRizsa(13).text = "X: 207/235";
    } else if (rs.setConcordia.val() == 1) {
        form.lblRizsa(12).text = "Y: 207/206";
        form.lblRizsa(13).text = "X: 238/206";
    }
    Canvas& canvas = form.pict3.canvas;
    canvas.Clear();
    if (rs.PlotPool < 1 || (!wetherill && rs.setConcordia.val() != 1)) return;
    Axis across{};
    Axis up{};
    if (wetherill) {
        across = {rs.Min75.val(), rs.Max75.val()};
        up = {rs.Min68.val(), rs.Max68.val()};
    } else {
        if (rs.Max68.val() == 0 || rs.Min68.val() == 0) return;  // 238/206 has no end
        across = {quotient(1, rs.Max68.val()), quotient(1, rs.Min68.val())};
        up = {rs.Min76.val(), rs.Max76.val()};
    }
    if (!across.has_length() || !up.has_length()) return;  // a constant ratio has no place on the plot
    const double width = form.pict3.width;
    const double height = form.pict3.height;
    // A slice that was selected since the last calculation has no ratio yet.
    const auto calculated = [&](int t) {
        for (int k = t; k < t + rs.PlotPool; ++k)
            if (rs.Rat68(k) == 0) return false;
        return true;
    };
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val() - (rs.PlotPool - 1); t += rs.PlotPool) {
        if (!wetherill && !calculated(t)) continue;
        const double x_value = pooled(rs, t, [&](int k) { return wetherill ? rs.Rat75(k) : quotient(1, rs.Rat68(k)); });
        const double y_value = pooled(rs, t, [&](int k) { return wetherill ? rs.Rat68(k) : rs.Rat76(k); });
        const double x = 0.1 * width + across.place(width, x_value);
        const double y = 0.9 * height - up.place(height, y_value);
        draw_mark(canvas, x, y, rs.PlotPool == 1 && rs.RejFlag(t) > 0);
    }
}

}  // namespace kolvar
