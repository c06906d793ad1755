// What the signal plots are put together from: areas, scales, curves, marks of the intervals, labels beside a plot.
#pragma once

#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "screens/plots.hpp"
#include "ui/context.hpp"

namespace kolvar::plot {

// Where curves are drawn. Both plots have the upper one's width, so that a slice stands at the same place in each.
struct Area {
    Canvas& canvas;
    double width, height;  // twips
};
Area upper_area(TimeScreen& frm);
Area lower_area(TimeScreen& frm);

// A label of the window, and the note of it in the list of the plot it stands beside.
void show_label(Canvas& canvas, Label& label, const std::string& text, double left, double top);
void hide_label(Canvas& canvas, Label& label);

// The blank is an interval of this data file, and the run has another aim than a blank file.
bool blank_is_marked_here(const RunState& rs);

// Steps common to the plots: labels of the scales hidden, ground and lines of the intervals, the guides of the file
// before together with the labels of the limits.
void hide_scale_labels(TimeScreen& frm);
void draw_interval_tints(const RunState& rs, const Area& area);
void draw_interval_lines(const RunState& rs, const Area& area);
void show_former_selection(const RunState& rs, TimeScreen& frm);
void show_guides(RunState& rs, TimeScreen& frm);

// Colour of the curve of a column, 1..50.
Colour curve_colour(int column);

// Columns that can be drawn: the first 50.
int drawable_columns(const RunState& rs);

// Positions of slices 0..slices.
std::vector<double> slice_positions(double width, int slices);

// Heights of values. The scale's end stands a tenth of the plot's height below its top. On a logarithmic scale `top`
// is the natural logarithm of the end. A scale that ends at 0 or below has no places.
class Scale {
public:
    Scale(double height, double top, bool linear) : height_(height), span_(top / 0.9), linear_(linear) {}
    [[nodiscard]] std::optional<double> place(double value) const {
        if (!(span_ > 0)) return std::nullopt;
        const double y = height_ - height_ * (linear_ ? value : std::log(value <= 0 ? 0.00001 : value)) / span_;
        return std::isfinite(y) ? std::optional<double>(y) : std::nullopt;
    }

private:
    double height_, span_;
    bool linear_;
};

// One line between neighbouring slices that both have a place; `place(i)` gives the height of slice i or nothing.
template <class Place>
void draw_curve(Canvas& canvas, std::span<const double> x, Colour colour, Place&& place) {
    if (x.size() < 3) return;
    std::optional<double> former = place(std::size_t{1});
    for (std::size_t i = 2; i < x.size(); ++i) {
        const std::optional<double> here = place(i);
        if (former && here) canvas.Line(x[i - 1], *former, x[i], *here, colour);
        former = here;
    }
}

// Several curves side by side, slice by slice, so that each piece of a later curve lies over those of the earlier ones;
// `place(k, i)` gives the height of curve k at slice i or nothing.
template <class Place>
void draw_curves_by_slice(Canvas& canvas, std::span<const double> x, std::span<const Colour> colours, Place&& place) {
    if (x.size() < 3) return;
    std::vector<std::optional<double>> former(colours.size());
    for (std::size_t k = 0; k < colours.size(); ++k) former[k] = place(k, std::size_t{1});
    for (std::size_t i = 2; i < x.size(); ++i) {
        for (std::size_t k = 0; k < colours.size(); ++k) {
            const std::optional<double> here = place(k, i);
            if (former[k] && here) canvas.Line(x[i - 1], *former[k], x[i], *here, colours[k]);
            former[k] = here;
        }
    }
}

// What the lower plot shows of a column or a pair: a ratio of two signals, or concentrations.
struct LowerCurve {
    Colour colour;
    std::span<const double> numerator, denominator;
    std::span<const Cell> cells;
    // Nothing where there is no number: a text in the cell, no denominator, or a denominator of 0.
    [[nodiscard]] std::optional<double> value(std::size_t slice) const;
};
LowerCurve concentration_curve(const RunState& rs, int column, Colour colour);
LowerCurve standard_ratio_curve(const RunState& rs, int column, Colour colour);  // over its internal standard
// `top` is the end of the linear scale.
void draw_lower_curve(const Area& area, std::span<const double> x, const LowerCurve& curve, double top);

// Maximum, scale and curves of the lower plot together with all curves of the upper one.
void draw_lower_plot(Context& context);

// A typed or scrolled limit above 0 takes the place of the maximum, once: the entry is emptied.
void take_entered_limit(Value& entry, double& maximum);
// The end of the upper scale: the highest signal or the limit that the user has set, rounded up.
NiceEnd take_upper_scale(RunState& rs, TimeScreen& frm, double highest);
// The caption of the button says what it will do: "OFF" stands there while the lines are shown.
bool lines_shown(const Frm2Time& frm);
// Decades of a logarithmic scale that ends at `maximum`: ticks, the labels of the first seven, and lines across.
void draw_decades(TimeScreen& frm, double maximum, bool lines);
void draw_linear_divisions(TimeScreen& frm, double steps);
// The number at a scale's end: left of the plot, its middle a tenth of the plot's height below the top.
void show_maximum(Picture& plot, Label& label, const std::string& text);

}  // namespace kolvar::plot
