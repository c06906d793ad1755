#include "batch/drift_plot.hpp"

#include <array>
#include <string>

#include "batch/drift.hpp"
#include "batch/master_file.hpp"
#include "core/numbers.hpp"

namespace kolvar {

namespace {

constexpr double share_of_width = 0.95, left_share = 0.025;  // from the first to the last line; left of the first
constexpr double share_of_height = 0.6;                      // from the lowest to the highest factor
constexpr double tick = 60, long_tick = 110;
constexpr double mark_height = 200, mark_width = 30, half_square = 30;  // each half

struct RatioColours {
    Colour standard, line;
};
// 206/238, 207/235, 207/206
constexpr std::array<RatioColours, 3> colours{
    {{palette(0), palette(7)}, {palette(0), rgb(255, 0, 0)}, {palette(13), rgb(255, 192, 255)}}};

void draw_standard(Canvas& canvas, double x, double y, Colour colour) {
    canvas.Line(x, y - mark_height, x, y + mark_height, colour);
    canvas.SetLineWidth(2);
    canvas.Line(x - mark_width, y, x + mark_width, y, colour);
    canvas.SetLineWidth(1);
}

void draw_square(Canvas& canvas, double x, double y, Colour colour) {
    canvas.SetLineWidth(2);
    canvas.FillRect(x - half_square, y - half_square, x + half_square, y + half_square, colour);
    canvas.SetLineWidth(1);
}

// So many lines from one number below the plot to the next.
int label_step(int lines) {
    if (lines < 100) return 10;
    if (lines <= 200) return 20;
    if (lines <= 400) return 40;
    return 50;
}

class DriftPlot {
public:
    DriftPlot(RunState& rs, FrmDrift& form)
        : rs_(rs), form_(form), canvas_(form.pictDrift.canvas), w_(form.pictDrift.width), h_(form.pictDrift.height) {}

    void draw_places() {
        rs_.DriftStep = quotient(share_of_width * w_, rs_.SeqCount - 1);
        Canvas& ticks = form_.pictTicksX.canvas;
        ticks.Clear();
        // The last line has no tick.
        for (int i = 1; i <= rs_.SeqCount - 1; ++i)
            if (rs_.SeqCount < 200 || i % 2 == 0) ticks.Line(x(i), 0, x(i), i % 10 == 0 ? long_tick : tick);
        const int step = label_step(rs_.SeqCount);
        int number = 0;
        for (int i = 1 + step; i <= rs_.SeqCount; i += step) {
            Label& label = form_.lbl(++number);
            show(label, std::to_string(i), form_.pictDrift.left + x(i) - label.width / 2.0,
                 form_.pictDrift.top + h_ + drift_tick_room);
        }
    }

    void draw_standards() {
        for (int i = 1; i <= rs_.SeqCount; ++i) {
            if (!counts_for_drift(rs_, i)) continue;
            const double factors[] = {rs_.DriftCF68(i), rs_.DriftCF75(i), rs_.DriftCF76(i)};
            for (std::size_t k = 0; k < 3; ++k) draw_standard(canvas_, x(i), y(factors[k]), colours[k].standard);
        }
    }

    void draw_lines() {
        for (int i = 1; i <= rs_.SeqCount; ++i) {
            if (is_standard(rs_, i)) continue;
            const double fitted[] = {rs_.DriftA68 + rs_.DriftB68 * i, rs_.DriftA75 + rs_.DriftB75 * i,
                                     rs_.DriftA76 + rs_.DriftB76 * i};
            for (std::size_t k = 0; k < 3; ++k) draw_square(canvas_, x(i), y(fitted[k]), colours[k].line);
        }
    }

    void draw_scale() {
        Canvas& ticks = form_.pictTicksY.canvas;
        ticks.Clear();
        const auto inside = [&](double at) { return 0 < at && at < h_; };
        for (int i = -20; i <= 20; ++i) {
            const double at = y(1 + i / 100.0);
            if (inside(at)) ticks.Line(drift_tick_room - (i == 0 ? long_tick : tick), at, drift_tick_room, at);
        }
        // A number that has no place on the plot stays where it was.
        for (const auto& [percent, label] : form_.scale_labels()) {
            const double at = y(1 + percent / 100.0);
            if (inside(at))
                show(*label, label->text, form_.pictDrift.left - drift_tick_room - label->width,
                     form_.pictDrift.top + at - label->height / 2.0);
        }
    }

private:
    [[nodiscard]] double x(int line) const { return left_share * w_ + rs_.DriftStep * (line - 1); }
    [[nodiscard]] double y(double value) const {
        return h_ * (1 + share_of_height) / 2 -
               quotient(h_ * share_of_height * (value - rs_.DriftMin), rs_.DriftMax - rs_.DriftMin);
    }
    void show(Label& label, const std::string& text, double left, double top) {
        label.text = text;
        label.visible = true;
        label.move_to(left, top);
        canvas_.note_label(label.address(), text, left, top);
    }

    RunState& rs_;
    FrmDrift& form_;
    Canvas& canvas_;
    double w_, h_;
};

}  // namespace

void plot_drift(RunState& rs, FrmDrift& form) {
    // Where a figure ends in a fault there is nothing to accept.
    form.cmdAccept.enabled = false;
    form.plotted = false;
    form.pictDrift.canvas.Clear();
    find_drift(rs);
    DriftPlot plot(rs, form);
    plot.draw_places();
    plot.draw_standards();
    Lin_Regr_DRI(rs, form);
    plot.draw_lines();
    plot.draw_scale();
    form.plotted = true;
    form.cmdAccept.enabled = rs.SeqPhase != 3;
}

void draw_drift(RunState& rs, FrmDrift& form) {
    form.pictDrift.canvas.Clear();
    DriftPlot plot(rs, form);
    plot.draw_places();
    plot.draw_standards();
    plot.draw_lines();
    plot.draw_scale();
}

void draw_drift_legends(FrmDrift& form) {
    Picture* const legends[] = {&form.pict68, &form.pict75, &form.pict76};
    for (std::size_t k = 0; k < 3; ++k) {
        Canvas& canvas = legends[k]->canvas;
        canvas.Clear();
        const double middle = legends[k]->height / 2.0;
        draw_standard(canvas, legends[k]->width / 4.0, middle, colours[k].standard);
        draw_square(canvas, legends[k]->width * 0.75, middle, colours[k].line);
    }
}

}  // namespace kolvar
