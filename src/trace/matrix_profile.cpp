// The normalised trend of one isotope over the selection.
#include <cmath>

#include "core/numbers.hpp"
#include "trace/matrix.hpp"

namespace kolvar {
namespace {

// The largest deviation of the selection with a margin, so that the curve stays off the edges.
double scale_of(const RunState& rs, int row) {
    if (row == rs.IS1col.val()) return 1;
    double largest = 0;
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t)
        largest = std::max(largest, std::abs(rs.Ratio(row, t) - rs.RatioMean(row)));
    return largest == 0 ? 0.0001 : 1.2 * largest;
}

double mean_ratio(const RunState& rs, int row, int from, int upto) {
    double sum = 0;
    for (int t = from; t <= upto; ++t) sum += rs.Ratio(row, t);
    return quotient(sum, upto - from + 1);
}

void show_halves(RunState& rs, Frm3Matrix& form, int row) {
    const int low = rs.SelLow.val();
    const int slices = rs.SelN.val();
    if (slices < 2) return;
    const int half = slices / 2;
    const double first = mean_ratio(rs, row, low, low + half - 1);
    const double second = mean_ratio(rs, row, low + half, low + slices - 1);
    if (second <= 0) return;
    form.lblFirstSec.text = Format(quotient(first, second), "0.00");
    form.lblFirstSecHead.visible = true;
}

}  // namespace

void clear_halves(Frm3Matrix& form) {
    form.lblFirstSec.text = form.lblFirstSecHead.text;
    form.lblFirstSecHead.visible = false;
}

void Draw_Profile(Context& context, int row) {
    Running running(context.rs, "Draw_Profile");
    RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    if (rs.CpsSD(row).is_dashes()) return;

    Canvas& canvas = form.pict1.canvas;
    const double width = form.pict1.width > 0 ? form.pict1.width : 6000;
    const double height = form.pict1.height > 0 ? form.pict1.height : 2400;
    const double scale = scale_of(rs, row);
    const int low = rs.SelLow.val();
    const int slices = rs.SelN.val();
    const auto x = [&](int t) { return slices > 1 ? width * (t - low) / (slices - 1) : 0.0; };
    const auto y = [&](double deviation) { return height / 2 - deviation / scale * (height / 2); };
    const auto deviation = [&](int t) { return row == rs.IS1col.val() ? 0.0 : rs.Ratio(row, t) - rs.RatioMean(row); };

    canvas.Clear();
    canvas.SetLineWidth(1);
    canvas.Line(0, height / 2, width, height / 2, palette(8));
    canvas.note_label("legendIsotope", rs.IsoName(row), 60, 30);
    // The raw signal of the standard decides where a ratio means something.
    const auto measured = [&](int t) { return rs.Sig(rs.IS1col.val(), t) > 0; };
    for (int t = low; t < low + slices - 1; ++t)
        if (measured(t) && measured(t + 1))
            canvas.Line(x(t), y(deviation(t)), x(t + 1), y(deviation(t + 1)), palette(12));

    clear_halves(form);
    show_halves(rs, form, row);
}

}  // namespace kolvar
