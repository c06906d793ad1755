// The redraw of both signal plots as plainly as it can be told: step by step, the maximum slice by slice over the
// curves, each line of each curve with both of its ends reckoned anew. Beside it the quick one must give the same list
// of drawing commands, bit for bit.
#pragma once

#include <cmath>
#include <initializer_list>
#include <optional>
#include <string>

#include "core/numbers.hpp"
#include "ui/context.hpp"

namespace kolvar::plain {

struct Scale {
    double steps, end;
};

inline double power_of_ten(int exponent) { return Val("1E" + std::to_string(exponent)); }

inline Scale nice_scale(double v) {
    int e = -1;
    for (int i = 10; i >= -10; --i)
        if (power_of_ten(i) > v) e = i - 1;
    const double m = v / power_of_ten(e);
    double steps = 0;
    for (const double step : {10.0, 8.0, 6.0, 5.0, 4.0, 3.0, 2.0, 1.5, 1.2, 1.0})
        if (step > m) steps = step;
    return {steps, power_of_ten(e) * steps};
}

inline double log10(double v) { return v == 0 ? 0.0 : logarithm(v) / std::log(10.0); }

inline int digits(double v) {
    int count = 1;
    for (double rest = std::floor(std::fabs(v)); rest >= 10; rest = std::floor(rest / 10)) ++count;
    return count;
}

inline double slice_x(const RunState& rs, const Frm2Time& frm, int slice) {
    return static_cast<double>(frm.pict1.width) * slice / rs.nSlices;
}

// A scale that ends at 0, or below the logarithm of 1, has no places.
inline std::optional<double> height_of(std::optional<double> v, double height, double top, bool linear) {
    if (!v || !(top > 0)) return std::nullopt;
    double y = 0;
    if (linear) y = height - height * *v / (top / 0.9);
    if (!linear && *v <= 0) v = 0.00001;
    if (!linear) y = height - height * std::log(*v) / (top / 0.9);
    if (!std::isfinite(y)) return std::nullopt;
    return y;
}

// The line from the slice before to this one, where both have a place.
template <class Quantity>
void draw_piece(const RunState& rs, const Frm2Time& frm, Picture& plot, Colour colour, int slice, double top,
                bool linear, const Quantity& quantity) {
    const std::optional<double> from = height_of(quantity(slice - 1), plot.height, top, linear);
    const std::optional<double> to = height_of(quantity(slice), plot.height, top, linear);
    if (from && to) plot.canvas.Line(slice_x(rs, frm, slice - 1), *from, slice_x(rs, frm, slice), *to, colour);
}

// What the lower plot shows: nothing where a cell holds a text, a column has no standard or a denominator is 0.
inline std::optional<double> ratio(const RunState& rs, int numerator, int denominator, int slice) {
    if (denominator == 0 || rs.Sig2(denominator, slice) == 0) return std::nullopt;
    const double value = rs.Sig2(numerator, slice) / rs.Sig2(denominator, slice);
    if (!std::isfinite(value)) return std::nullopt;
    return value;
}
inline std::optional<double> quantity_of_column(const RunState& rs, int column, int slice) {
    if (rs.setRatio_ppmIS.val() != 1) return ratio(rs, column, rs.IsoISidx(column), slice);
    if (!rs.ConcT(column, slice).is_number()) return std::nullopt;
    return rs.ConcT(column, slice).number();
}

inline Colour colour_of(int j) {
    const auto one_of = [j](std::initializer_list<int> columns) {
        for (const int column : columns)
            if (column == j) return true;
        return false;
    };
    if (one_of({1, 8, 18, 25, 35, 42})) return palette(0);
    if (one_of({2, 9, 19, 26, 36, 43})) return palette(12);
    if (one_of({3, 10, 20, 27, 37, 44})) return palette(9);
    if (one_of({4, 11, 21, 28, 38, 45})) return palette(10);
    if (one_of({5, 12, 22, 29, 39, 46})) return palette(11);
    if (one_of({6, 13, 23, 30, 40, 47})) return palette(13);
    if (one_of({7, 14, 24, 31, 41, 48})) return palette(14);
    if (one_of({15, 32, 49})) return rgb(192, 192, 192);
    if (one_of({16, 33, 50})) return rgb(255, 128, 0);
    return rgb(128, 128, 0);
}

inline void show(Canvas& canvas, Label& label, const std::string& text, double left, double top) {
    label.text = text;
    label.visible = true;
    label.move_to(left, top);
    canvas.note_label(label.name, text, left, top);
}
inline void hide(Canvas& canvas, Label& label) {
    label.visible = false;
    canvas.note_hidden_label(label.name);
}

inline void hide_scale_labels(Frm2Time& frm) {
    for (Label* label :
         {&frm.lbl10, &frm.lbl100, &frm.lbl1000, &frm.lbl10k, &frm.lbl100k, &frm.lbl1m, &frm.lbl10m, &frm.lblRatios})
        label->visible = false;
}

inline bool blank_here(const RunState& rs) { return rs.BlankFromData == 1 && rs.ModeCreateBLK != 1; }

inline void draw_intervals(const RunState& rs, const Frm2Time& frm, Picture& plot, bool tints) {
    const double width = frm.pict1.width;
    const double height = plot.height;
    if (tints) plot.canvas.FillRect(0, 0, rs.SelLowX, height, rgb(255, 255, 225));
    plot.canvas.Line(rs.SelLowX, 0, rs.SelLowX, height, palette(6));
    if (rs.SelUppX > 0 && tints) plot.canvas.FillRect(rs.SelUppX, 0, width, height, rgb(255, 255, 225));
    if (rs.SelUppX > 0) plot.canvas.Line(rs.SelUppX, 0, rs.SelUppX, height, palette(6));
    if (tints && blank_here(rs) && rs.BlkLowX > 0 && rs.BlkUppX > 0)
        plot.canvas.FillRect(rs.BlkLowX, 0, rs.BlkUppX, height, rgb(192, 255, 255));
    if (rs.BlkLowX > 0) plot.canvas.Line(rs.BlkLowX, 0, rs.BlkLowX, height, palette(3));
    if (rs.BlkUppX > 0) plot.canvas.Line(rs.BlkUppX, 0, rs.BlkUppX, height, palette(3));
    plot.canvas.SetLineWidth(1);
}

// A limit at 0 keeps the text of its label.
inline void show_limits(RunState& rs, Frm2Time& frm) {
    const bool former = rs.FormerUppX > rs.FormerLowX;
    frm.lblFormer1.visible = former;
    frm.lblFormer2.visible = former;
    frm.lblFormerBL1.visible = former && blank_here(rs);
    frm.lblFormerBL2.visible = former && blank_here(rs);
    frm.pictFormer.visible = former;
    if (former) frm.lblFormer2.text = rs.FormerLow.text() + " - " + rs.FormerUpp.text();
    if (former && blank_here(rs)) frm.lblFormerBL2.text = rs.FormerBlkLow.text() + " - " + rs.FormerBlkUpp.text();
    if (former) {
        frm.pictFormer.move_to(rs.FormerLowX + frm.pict1.left, frm.pict1.top + frm.pict1.height);
        frm.pictFormer.width = static_cast<int>(std::floor(rs.FormerUppX - rs.FormerLowX + 0.5));
        frm.pictFormer.height = 75;
    }
    const std::string low = rs.SelLow == Limit(0) ? frm.lblLow.text : rs.SelLow.text();
    const std::string upp = rs.SelUpp == Limit(0) ? frm.lblUpp.text : rs.SelUpp.text();
    const double below = frm.pict1.top + frm.pict1.height + 100;
    show(frm.pict1.canvas, frm.lblLow, low, frm.pict1.left + rs.SelLowX - frm.lblLow.width, below);
    show(frm.pict1.canvas, frm.lblUpp, upp, frm.pict1.left + rs.SelUppX, below);
    frm.lblMeasSel.text = "";
    if (rs.SelN.val() > 0) frm.lblMeasSel.text = rs.SelN.text();
    rs.BlkN = rs.BlkUpp.val() - rs.BlkLow.val() + 1;
}

inline void take_entry(Value& entry, double& maximum) {
    if (!(entry.val() > 0)) return;
    maximum = entry.val();
    entry = "";
}

// At a tenth of the plot's height below its top.
inline void show_end(Picture& plot, Label& label, const std::string& text) {
    show(plot.canvas, label, text, plot.left - label.width, plot.top + plot.height * 0.1 - label.height / 2.0);
}

inline void draw_division(Frm2Time& frm, double y, bool line) {
    if (line) frm.pict1.canvas.Line(0, y, frm.pict1.width, y, palette(7));
    frm.pict1.canvas.Line(0, y, 75, y, palette(8));
}

// A maximum below 1 has no decades, whatever its digits.
inline void draw_decades(Frm2Time& frm, double maximum) {
    const bool lines = frm.cmdHorizLines.text == "Horiz. lines OFF";
    const double height = frm.pict1.height;
    for (int i = 1; maximum >= 1 && i <= digits(maximum) - 1; ++i) {
        const double y = height - height * 0.9 * i / log10(maximum);
        draw_division(frm, y, lines);
        Label* label = nullptr;
        if (i == 1) label = &frm.lbl10;
        if (i == 2) label = &frm.lbl100;
        if (i == 3) label = &frm.lbl1000;
        if (i == 4) label = &frm.lbl10k;
        if (i == 5) label = &frm.lbl100k;
        if (i == 6) label = &frm.lbl1m;
        if (i == 7) label = &frm.lbl10m;
        if (label != nullptr)
            show(frm.pict1.canvas, *label, label->text, frm.pict1.left - label->width,
                 frm.pict1.top + y - label->height / 2.0);
    }
}

inline void draw_lower(RunState& rs, Frm2Time& frm) {
    const double shows = rs.setRatio_ppmIS.val();
    const auto pair_shown = [&](int pair) {
        return frm.chkR(pair).on() && rs.RatioCol(2 * pair - 2) > 0 && rs.RatioCol(2 * pair - 1) > 0;
    };
    const auto of_pair = [&](int pair, int slice) {
        return ratio(rs, rs.RatioCol(2 * pair - 2), rs.RatioCol(2 * pair - 1), slice);
    };
    rs.MaxRatio = 0;
    const auto take = [&](std::optional<double> value) {
        if (value && *value > rs.MaxRatio) rs.MaxRatio = *value;
    };
    if (rs.SelLow.is_set() || rs.SelUpp.is_set()) {
        for (int t = 0; t <= rs.nSlices; ++t) {
            if (t < rs.SelLow.val() || t > rs.SelUpp.val()) continue;
            for (int pair = 1; pair <= 6 && shows == 2; ++pair)
                if (pair_shown(pair)) take(of_pair(pair, t));
            for (int j = 1; j <= rs.nIso && j <= 50 && (shows == 0 || shows == 1); ++j)
                if (rs.CurveOn(j)) take(quantity_of_column(rs, j, t));
        }
    }
    const bool found = rs.MaxRatio > 0;
    take_entry(rs.YMaxEntry2, rs.MaxRatio);
    if (rs.MaxRatio == 0) rs.MaxRatio = 0.0001;
    const Scale scale = nice_scale(rs.MaxRatio);
    rs.ScaleStep2 = scale.steps;
    rs.MaxRatio = scale.end;
    if (rs.ScaleFresh2 || rs.AutoScale2) rs.FullMax2 = rs.MaxRatio;
    if (found) rs.AutoScale2 = false;
    if (rs.ModeData == 1) {
        std::string pattern = "0";
        if (rs.MaxRatio < 2) pattern = "0.0";
        if (rs.MaxRatio < 0.1) pattern = "0.000";
        if (rs.MaxRatio < 0.001) pattern = "0.0000";
        show_end(frm.pict2, frm.lblMaxIIS, Format(rs.MaxRatio, pattern));
        show(frm.pict2.canvas, frm.lblMaxIIS2, Format(rs.MaxRatio, pattern),
             frm.pict2.left + frm.pict2.width - frm.lblMaxIIS2.width, frm.pict2.top - frm.lblMaxIIS2.height - 15);
    }
    for (int pair = 1; pair <= 6 && shows == 2; ++pair)
        for (int t = 2; t <= rs.nSlices; ++t)
            if (pair_shown(pair))
                draw_piece(rs, frm, frm.pict2, colour_of(pair), t, rs.MaxRatio, true,
                           [&](int slice) { return of_pair(pair, slice); });
    for (int j = 1; j <= rs.nIso && j <= 50 && (shows == 0 || shows == 1); ++j)
        for (int t = 2; t <= rs.nSlices; ++t)
            if (rs.CurveOn(j))
                draw_piece(rs, frm, frm.pict2, colour_of(j), t, rs.MaxRatio, true,
                           [&](int slice) { return quantity_of_column(rs, j, slice); });
}

// All chosen curves, and the lower plot.
inline void redraw_all(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& frm = context.forms.frm2_Time;
    if (rs.PlotOn == 1) return;
    rs.CurvesShown = 1;
    hide_scale_labels(frm);
    frm.pict1.canvas.Clear();
    frm.pict2.canvas.Clear();
    draw_intervals(rs, frm, frm.pict1, true);
    draw_intervals(rs, frm, frm.pict2, true);
    show_limits(rs, frm);
    rs.MaxCps = 0;
    for (int t = 1; t <= rs.nSlices; ++t)
        for (int j = 1; j <= rs.nIso && j <= 50; ++j)
            if (rs.CurveOn(j) && rs.Sig(j, t) > rs.MaxCps) rs.MaxCps = rs.Sig(j, t);
    take_entry(rs.YMaxEntry, rs.MaxCps);
    frm.lbluppScal.text = decimal(rs.MaxCps);
    const Scale scale = nice_scale(rs.MaxCps);
    rs.ScaleStep = scale.steps;
    rs.MaxCps = scale.end;
    if (rs.ScaleFresh || rs.AutoScale1) rs.FullMax = rs.MaxCps;
    rs.ScaleFresh = false;
    rs.AutoScale1 = false;
    show_end(frm.pict1, frm.lblMaxCps, Format(rs.MaxCps, "0"));
    if (rs.MaxCps > 0 && !rs.LinearView) rs.MaxCps = logarithm(rs.MaxCps);
    draw_lower(rs, frm);
    bool chosen = false;
    for (int j = 1; j <= rs.nIso && j <= 50; ++j)
        if (rs.CurveOn(j)) chosen = true;
    if (!rs.LinearView) hide(frm.pict1.canvas, frm.lblMaxCps);
    if (!rs.LinearView && chosen) draw_decades(frm, scale.end);
    if (rs.LinearView && chosen && frm.cmdHorizLines.text == "Horiz. lines OFF")
        for (int i = 1; i <= rs.ScaleStep; ++i) {
            const double height = frm.pict1.height;
            draw_division(frm, height - height * 0.9 * i / rs.ScaleStep, true);
        }
    for (int j = 1; j <= rs.nIso && j <= 50; ++j)
        for (int t = 2; t <= rs.nSlices; ++t)
            if (rs.CurveOn(j))
                draw_piece(rs, frm, frm.pict1, colour_of(j), t, rs.MaxCps, rs.LinearView,
                           [&](int slice) { return std::optional<double>(rs.Sig(j, slice)); });
}

// Column and colour of the six single curves.
inline int single_column(const RunState& rs, int k) {
    if (k == 1) return rs.Curve1;
    if (k == 2) return rs.Curve2;
    if (k == 3) return rs.Curve3;
    if (k == 4) return rs.Curve4;
    return k == 5 ? rs.Curve5 : rs.Curve6;
}
inline Colour single_colour(int k) {
    if (k == 1) return palette(0);
    if (k == 2) return palette(12);
    if (k == 3) return palette(10);
    if (k == 4) return palette(9);
    return k == 5 ? palette(13) : palette(11);
}

// The lower plot of the single curves.
inline void redraw_lower_single(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& frm = context.forms.frm2_Time;
    if (rs.PlotOn == 1) return;
    frm.pict2.canvas.Clear();
    draw_intervals(rs, frm, frm.pict2, false);
    show_end(frm.pict2, frm.lblMaxIIS, Format(rs.MaxRatio, "0.000"));
    for (int t = 2; t <= rs.nSlices; ++t)
        for (int k = 1; k <= 6; ++k)
            if (single_column(rs, k) != 0)
                draw_piece(rs, frm, frm.pict2, single_colour(k), t, rs.MaxRatio, true,
                           [&](int slice) { return quantity_of_column(rs, single_column(rs, k), slice); });
}

// The single curves, slice by slice; in the logarithmic view each draw takes the logarithm of the logarithm.
inline void redraw_single(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& frm = context.forms.frm2_Time;
    if (rs.PlotOn == 1) return;
    hide_scale_labels(frm);
    frm.pict1.canvas.Clear();
    draw_intervals(rs, frm, frm.pict1, true);
    show_limits(rs, frm);
    if (rs.MaxCps > 0 && !rs.LinearView) rs.MaxCps = logarithm(rs.MaxCps);
    rs.FullMax = rs.MaxCps;
    take_entry(rs.YMaxEntry, rs.MaxCps);
    show_end(frm.pict1, frm.lblMaxCps, Format(rs.MaxCps, "0.0"));
    for (int t = 2; t <= rs.nSlices; ++t)
        for (int k = 1; k <= 6; ++k)
            if (single_column(rs, k) != 0)
                draw_piece(rs, frm, frm.pict1, single_colour(k), t, rs.MaxCps, rs.LinearView,
                           [&](int slice) { return std::optional<double>(rs.Sig(single_column(rs, k), slice)); });
    if (!rs.LinearView) {
        hide(frm.pict1.canvas, frm.lblMaxCps);
        if (rs.MaxCps != 0) rs.MaxCps = logarithm(std::fabs(rs.MaxCps));
        draw_decades(frm, rs.MaxCps);
    }
    if (rs.ModeData == 1) redraw_lower_single(context);
}

}  // namespace kolvar::plain
