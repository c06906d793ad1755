#include <array>
#include <cmath>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/plots.hpp"

namespace kolvar {
namespace {

constexpr double tick_length = 75;  // twips

// 10^-11 .. 10^10
constexpr std::array<double, 22> powers{1e-11, 1e-10, 1e-9, 1e-8, 1e-7, 1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1,
                                        1e0,   1e1,   1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10};
constexpr int lowest_power = -11;

double power_of_ten(int exponent) { return powers[static_cast<std::size_t>(exponent - lowest_power)]; }

int digits_of_integer_part(double number) { return static_cast<int>(decimal(std::floor(std::fabs(number))).size()); }

void draw_mark(const plot::Area& area, double y, bool line) {
    if (line) area.canvas.Line(0, y, area.width, y, palette(7));
    area.canvas.Line(0, y, tick_length, y, palette(8));
}

}  // namespace

NiceEnd NiceScale(double v) {
    int e = -1;
    for (int i = -10; i <= 10; ++i) {
        if (power_of_ten(i) > v) {
            e = i - 1;
            break;
        }
    }
    const double m = v / power_of_ten(e);
    double steps = 0;
    for (const double step : {10.0, 8.0, 6.0, 5.0, 4.0, 3.0, 2.0, 1.5, 1.2, 1.0})
        if (step > m) steps = step;
    return {steps, power_of_ten(e) * steps};
}

double Log10(double v) { return v == 0 ? 0.0 : logarithm(v) / std::log(10.0); }

namespace plot {

void take_entered_limit(Value& entry, double& maximum) {
    const double entered = entry.val();
    if (!(entered > 0)) return;
    maximum = entered;
    entry = "";
}

NiceEnd take_upper_scale(RunState& rs, TimeScreen& frm, double highest) {
    rs.MaxCps = highest;
    take_entered_limit(rs.YMaxEntry, rs.MaxCps);
    frm.lbluppScal.text = decimal(rs.MaxCps);
    const NiceEnd end = NiceScale(rs.MaxCps);
    rs.ScaleStep = end.steps;
    rs.MaxCps = end.maximum;
    if (rs.ScaleFresh || rs.AutoScale1) {
        rs.FullMax = rs.MaxCps;
        rs.ScaleFresh = rs.AutoScale1 = false;
    }
    return end;
}

bool lines_shown(const Frm2Time& frm) { return frm.cmdHorizLines.text == "Horiz. lines OFF"; }

void draw_decades(TimeScreen& frm, double maximum, bool lines) {
    const Area area = upper_area(frm);
    const std::array<Label*, 7> labels{&frm.lbl10,   &frm.lbl100, &frm.lbl1000, &frm.lbl10k,
                                       &frm.lbl100k, &frm.lbl1m,  &frm.lbl10m};
    // Of a typed limit near 0 the single curves hand over a logarithm far below 0: it has digits, but no decades.
    const int decades = maximum > 1 ? digits_of_integer_part(maximum) - 1 : 0;
    for (int i = 1; i <= decades; ++i) {
        const double y = area.height - area.height * 0.9 * i / Log10(maximum);
        draw_mark(area, y, lines);
        if (i > static_cast<int>(labels.size())) continue;
        Label& label = *labels[static_cast<std::size_t>(i) - 1];
        show_label(area.canvas, label, label.text, frm.pict1.left - label.width,
                   frm.pict1.top + y - label.height / 2.0);
    }
}

void draw_linear_divisions(TimeScreen& frm, double steps) {
    const Area area = upper_area(frm);
    for (int i = 1; i <= std::floor(steps); ++i) draw_mark(area, area.height - area.height * 0.9 * i / steps, true);
}

void show_maximum(Picture& plot, Label& label, const std::string& text) {
    show_label(plot.canvas, label, text, plot.left - label.width, plot.top + plot.height * 0.1 - label.height / 2.0);
}

}  // namespace plot
}  // namespace kolvar
