// Where things stand on the U/Pb and FLEX screen. All measures are twips.
#include <algorithm>

#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "screens/time_pieces.hpp"
#include "screens/up_window.hpp"

namespace kolvar {

namespace {

constexpr int margin = 120;
constexpr int plain_head = 1020;     // lines about file and intervals above the plots
constexpr int signals_width = 3150;  // analytes, mean cps, margins
constexpr int signals_top = 1320;
constexpr int sequence_left = 3735;
constexpr int sequence_top = 720;
constexpr int sequence_height = 1170;
constexpr int folded_height = 1770;      // of the strip whose buttons have captions of two lines
constexpr int room_for_buttons = 18300;  // width of a window where they need one
constexpr int interpolation_height = 690;
constexpr int folded_interpolation_height = 1080;
constexpr int above_plots = 270;          // room for the mark of the signal
constexpr int sequence_right = 180;       // between the strip of a sequence and the edge of the window
constexpr int interpolation_left = 7215;  // within the strip
constexpr int scale_labels = 750;
constexpr int second_end = 1200;      // of the scale, above the plot
constexpr int strip_width = 2550;     // scales, copies, the way
constexpr int results_height = 3900;  // of all that stands below the plots
constexpr int ratios_height = 3700;   // the panel of the ratios alone
constexpr int right_margin = 60;
constexpr int narrow_window = 16500;  // up to this width the panels below have their least width
constexpr int ratios_width = 7600;
constexpr int ages_width = 2930;
constexpr int refinement_width = 2950;
constexpr int status_height = 900;

// A plot that was given its size keeps it.
void place_plot(Picture& plot, int left, int top, int width, int height) {
    plot.place(left, top);
    if (plot.sized_by_hand) return;
    plot.width = width;
    plot.height = height;
}

}  // namespace

void lay_out_up_window(Context& context) {
    Frm2UP& form = context.forms.frm2_UP;
    const int results_top = form.height - results_height;
    const bool folded = form.width < room_for_buttons;
    const int strip = folded ? folded_height : sequence_height;
    place(form.pictSeq, sequence_left, sequence_top, std::max(form.width - sequence_right - sequence_left, 300), strip);
    place(form.cmdInterpolation, interpolation_left, 30, std::max(form.pictSeq.width - interpolation_left - 60, 300),
          folded ? folded_interpolation_height : interpolation_height);
    const int head = form.pictSeq.visible ? sequence_top + strip + above_plots : plain_head;
    const int left = margin + signals_width + scale_labels;
    const int width = std::max(form.width - left - bar_width - strip_width - 2 * margin, 300);
    const int height = std::max((results_top - head - 2 * between_plots) / 2, 300);
    place_plot(form.pict1, left, head, width, height);
    place_plot(form.pict2, left, head + height + between_plots, form.pict1.width, height);
    place_upper_scale(form, left - scale_labels, scale_labels - 60);
    // The end of the scale once more, at the right end of the plot, where the zoom bar stands.
    place(form.lblMaxCps2, left + form.pict1.width - second_end, head - label_height - 15, second_end, label_height);
    place_around_plots(form);
    form.lblBeam_St.height = label_height;
    for (Label* limit : {&form.lblBestLow, &form.lblBestUpp}) {
        limit->width = form.lblLow.width;
        limit->height = label_height;
    }
    place(form.picUP_elems, margin, signals_top, signals_width, results_top - signals_top - margin);
    place(form.pictRightSide, form.width - right_margin - strip_width, head, strip_width, results_top - head - margin);
    // Below: ratios, ages over outliers, refinement over the choice of the diagram, the scatter plot.
    // What a wider window gives goes to the ratios and to the scatter plot.
    const int height_below = results_height - margin;
    const int more = std::clamp((form.width - narrow_window) / 4, 0, 3000);
    place(form.pictResults, margin, form.height - ratios_height, ratios_width + more,
          ratios_height - margin - status_height);
    place(form.lblStatus, margin, form.height - status_height - margin / 2, ratios_width + more, status_height);
    int at = margin + ratios_width + more + margin;
    place(form.Frame1, at, results_top, ages_width, 1680);
    const int ages_height = form.Frame1.visible ? 1740 : 0;
    place(form.Frame4, at, results_top + ages_height, ages_width, height_below - 1740);
    at += ages_width + margin;
    place(form.FrameBzzz, at, results_top, refinement_width, 2370);
    place(form.Frame2, at, results_top + 2430, refinement_width, height_below - 2430);
    at += refinement_width + margin;
    const int scatter_width = std::max(form.width - at - bar_width - margin, 300);
    place(form.lblXY, at - 510, results_top, scatter_width + bar_width + 630, label_height);
    place_plot(form.pict3, at, results_top + label_height + 30, scatter_width, height_below - 2 * label_height - 60);
    place(form.VScroll2, at + form.pict3.width + 15, form.pict3.top, bar_width, form.pict3.height);
    const int below_scatter = form.pict3.top + form.pict3.height + 30;
    place(form.lblRizsa(12), at, below_scatter, scatter_width / 2, label_height);
    place(form.lblRizsa(13), at + scatter_width / 2, below_scatter, scatter_width / 2, label_height);
}

void resize_up_window(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    if (form.width < 11000) return;
    if (rs.ShowFirst == "elso") {
        rs.ShowFirst = "masodik";
        return;
    }
    form.VScroll1.set_value(1);
    lay_out_up_window(context);
    positions_from_slices(rs, form);
    draw_UP(context);
}

}  // namespace kolvar
