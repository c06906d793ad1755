#include "screens/plots.hpp"

#include <algorithm>
#include <array>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/selection.hpp"

namespace kolvar::plot {
namespace {

constexpr int strip_height = 75;  // twips, between the plot and the numbers of its limits

void fill_and_line(const Area& area, double from, double to, double line, bool tinted) {
    if (tinted) area.canvas.FillRect(from, 0, to, area.height, pale_yellow);
    area.canvas.Line(line, 0, line, area.height, palette(6));
}

void draw_intervals(const RunState& rs, const Area& area, bool tinted) {
    // The line of the lower limit is always there: at the left edge while none is marked.
    fill_and_line(area, 0, rs.SelLowX, rs.SelLowX, tinted);
    if (rs.SelUppX > 0) fill_and_line(area, rs.SelUppX, area.width, rs.SelUppX, tinted);
    if (tinted && blank_is_marked_here(rs) && rs.BlkLowX > 0 && rs.BlkUppX > 0)
        area.canvas.FillRect(rs.BlkLowX, 0, rs.BlkUppX, area.height, pale_cyan);
    for (const double x : {rs.BlkLowX, rs.BlkUppX})
        if (x > 0) area.canvas.Line(x, 0, x, area.height, palette(3));
    area.canvas.SetLineWidth(1);
}

}  // namespace

Area upper_area(TimeScreen& frm) {
    return {frm.pict1.canvas, static_cast<double>(frm.pict1.width), static_cast<double>(frm.pict1.height)};
}

Area lower_area(TimeScreen& frm) {
    return {frm.pict2.canvas, static_cast<double>(frm.pict1.width), static_cast<double>(frm.pict2.height)};
}

void show_label(Canvas& canvas, Label& label, const std::string& text, double left, double top) {
    label.text = text;
    label.visible = true;
    label.move_to(left, top);
    canvas.note_label(label.name, text, left, top);
}

void hide_label(Canvas& canvas, Label& label) {
    label.visible = false;
    canvas.note_hidden_label(label.name);
}

bool blank_is_marked_here(const RunState& rs) { return rs.BlankFromData == 1 && rs.ModeCreateBLK != 1; }

void hide_scale_labels(TimeScreen& frm) {
    // All in the list of the upper plot: the lower one isn't cleared by each draw, and its list would grow.
    for (Label* label :
         {&frm.lbl10, &frm.lbl100, &frm.lbl1000, &frm.lbl10k, &frm.lbl100k, &frm.lbl1m, &frm.lbl10m, &frm.lblRatios})
        hide_label(frm.pict1.canvas, *label);
}

void draw_interval_tints(const RunState& rs, const Area& area) { draw_intervals(rs, area, true); }
void draw_interval_lines(const RunState& rs, const Area& area) { draw_intervals(rs, area, false); }

void show_former_selection(const RunState& rs, TimeScreen& frm) {
    const bool former = rs.FormerUppX > rs.FormerLowX;
    const bool former_blank = former && blank_is_marked_here(rs);
    frm.lblFormer1.visible = frm.lblFormer2.visible = frm.pictFormer.visible = former;
    frm.lblFormerBL1.visible = frm.lblFormerBL2.visible = former_blank;
    if (former) {
        frm.lblFormer2.text = rs.FormerLow.text() + " - " + rs.FormerUpp.text();
        frm.pictFormer.move_to(rs.FormerLowX + frm.pict1.left, frm.pict1.top + frm.pict1.height);
        frm.pictFormer.width = static_cast<int>(round_half_up(rs.FormerUppX - rs.FormerLowX));
        frm.pictFormer.height = strip_height;
    }
    if (former_blank) frm.lblFormerBL2.text = rs.FormerBlkLow.text() + " - " + rs.FormerBlkUpp.text();
}

void show_guides(RunState& rs, TimeScreen& frm) {
    show_former_selection(rs, frm);
    place_limit_labels(rs, frm);
    frm.lblMeasSel.text = rs.SelN.val() > 0 ? rs.SelN.text() : std::string();
    rs.BlkN = rs.BlkUpp.val() - rs.BlkLow.val() + 1;
}

Colour curve_colour(int column) {
    constexpr std::array<Colour, 7> table{palette(0),  palette(12), palette(9), palette(10),
                                          palette(11), palette(13), palette(14)};
    constexpr std::array<Colour, 3> more{rgb(192, 192, 192), rgb(255, 128, 0), rgb(128, 128, 0)};
    const auto place = static_cast<std::size_t>((column - 1) % 17);
    return place < 14 ? table[place % 7] : more[place - 14];
}

int drawable_columns(const RunState& rs) { return std::min(rs.nIso, MaxCurveFlags); }

std::vector<double> slice_positions(double width, int slices) {
    std::vector<double> positions;
    for (int i = 0; i <= slices; ++i) positions.push_back(position_of(i, width, slices));
    return positions;
}

}  // namespace kolvar::plot
