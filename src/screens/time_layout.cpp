// Where things stand in the time-selection window. All measures are twips.
#include <algorithm>

#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "screens/time_pieces.hpp"
#include "screens/time_window.hpp"

namespace kolvar {

namespace {

constexpr int margin = 60;
constexpr int plot_top = 760;         // below the two lines about file and intervals
constexpr int scale_labels = 900;     // left of the plots
constexpr int right_of_plots = 1935;  // bars and the strip at the right
constexpr int button_height = 405;
constexpr int panel_height = 1200;  // of the signal ratios
constexpr int panel_height_edit = 2680;
constexpr int below_plot = 240;

int analytes_width(const RunState& rs) { return rs.nIso > 17 ? (rs.nIso > 34 ? 3600 : 2460) : 1350; }

void size_plots(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    const int plot_height = (form.height - 2000) / 2;
    const int left = margin + analytes_width(rs) + scale_labels;
    const int width = std::max(form.width - right_of_plots - left, 300);
    const bool one_plot = rs.ModeData == 0;

    if (!form.pict1.sized_by_hand) {
        const int both = 2 * plot_height + between_plots;
        const bool take_both = one_plot && width > 6360;
        form.pict1.width = width;
        form.pict1.height = take_both ? both : plot_height;
    }
    form.pict1.place(left, plot_top);
    if (!form.pict2.sized_by_hand) {
        const int panel = ratio_panel_in_edit_mode(form) ? panel_height_edit : panel_height;
        form.pict2.width = form.pict1.width;
        form.pict2.height = form.pictRatios.visible ? std::max(plot_height - panel - below_plot, 300) : plot_height;
    }
    form.pict2.place(left, plot_top + plot_height + between_plots);
}

void place_scale_labels(Frm2Time& form) {
    const int left = form.pict1.left - scale_labels;
    const int width = scale_labels - 75;
    place_upper_scale(form, left, width);
    const int lower_end = form.pict2.top + form.pict2.height / 10 - label_height / 2;
    place(form.lblMaxIIS, left, lower_end, width, label_height);
    form.lblMaxIIS2.width = width;
    form.lblMaxIIS2.height = label_height;
    place(form.lblXNew2, left, lower_end + 2 * label_height, 1500, label_height);
    place(form.txtYMaxInp2, left, lower_end + 3 * label_height, 1200, 330);
}

}  // namespace

void lay_out_time_window(Context& context) {
    Frm2Time& form = context.forms.frm2_Time;
    const int w = form.width;
    const int h = form.height;
    size_plots(context);
    place_scale_labels(form);
    place(form.pictAllIso, margin, plot_top - 30, analytes_width(context.rs), h - plot_top - 600);
    place_around_plots(form);
    const int strip = right_of_plots - bar_width - 2 * margin;
    place(form.pictRightSide, w - margin - strip, plot_top, strip, h - plot_top - 600);

    place(form.lblRatios, form.pict2.left, form.pict2.top - label_height - 15, form.pict2.width / 4, label_height);
    place(form.pictRatios, form.pict2.left, form.pict2.top + form.pict2.height + below_plot, form.pict2.width,
          ratio_panel_in_edit_mode(form) ? panel_height_edit : panel_height);

    // The buttons of the way: their left edges keep their distance from the right edge of the window.
    const int row = h - 510;
    place(form.cmdNext, w - 1350, row, 1350 - margin, button_height);
    place(form.cmdBack, w - 2310, row, 900, button_height);
    place(form.cmdExit, w - 3030, row, 660, button_height);
    place(form.cmsSettings, w - 4290, row, 1200, button_height);
    place(form.cmdSett, w - 1350, row, 1350 - margin, button_height);
}

void OnResize(Context& context) {
    RunState& rs = context.rs;
    Frm2Time& form = context.forms.frm2_Time;
    if (form.width < 11000) return;
    if (rs.ShowFirst == "elso") {
        rs.ShowFirst = "masodik";
        return;
    }
    form.VScroll1.set_value(1);
    lay_out_time_window(context);
    positions_from_slices(rs, form);
    if (rs.setAllCurve.val() == 0)
        draw_pict1(context);
    else
        draw_all(context);
}

}  // namespace kolvar
