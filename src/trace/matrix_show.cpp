// The boxes that mark data without rejecting them, and their legends.
#include <cmath>

#include "core/stat_tables.hpp"
#include "trace/matrix.hpp"
#include "trace/matrix_cells.hpp"

namespace kolvar {

using namespace matrix;

namespace {

constexpr Colour minimum_colour = palette(11);
constexpr Colour maximum_colour = palette(13);
constexpr Colour orange = rgb(255, 192, 128);

struct Level {
    const char* name;
    Colour colour;
};
constexpr std::array<Level, 5> levels = {
    {{" 1", palette(13)}, {"2.5", palette(12)}, {" 5", orange}, {"7.5", palette(14)}, {"10", pale_yellow}}};

void mark(GridCell& cell, Colour colour) {
    if (is_grey(cell) || is_black(cell) || is_dashes(cell)) return;
    cell.back = colour;
}

void mark_extremes(Context& context) {
    const RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const View view = view_of(form);
    for (int i = 1; i <= rs.nIso; ++i) {
        if (!has_extremes(rs, view, i)) continue;
        const RowStatistics row = statistics_of(rs, view, i);
        if (is_selected(rs, row.min_at)) mark(form.FlexGrid1.cell(i, column_of(rs, row.min_at)), minimum_colour);
        if (is_selected(rs, row.max_at)) mark(form.FlexGrid1.cell(i, column_of(rs, row.max_at)), maximum_colour);
    }
}

void mark_deviations(Context& context) {
    const RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const View view = view_of(form);
    check_slices(rs, form.FlexGrid1);
    for (int i = 1; i <= rs.nIso; ++i) {
        if (!has_deviation(rs, view, i)) continue;
        const RowStatistics row = statistics_of(rs, view, i);
        const auto cells = row_of(form.FlexGrid1, i);
        for (int c = 1; c < form.FlexGrid1.cols; ++c) {
            const double d = row.deviation(rs.SelLow.val() + c - 1);
            if (std::abs(d) < 2) continue;
            if (const auto colour = deviation_colour(d)) mark(cells[static_cast<std::size_t>(c)], *colour);
        }
    }
}

// By the strictest level that the datum fails; none leaves it as it is.
void mark_by_level(const RunState& rs, GridCell& cell, double g) {
    for (const Level& level : levels) {
        if (!(g > grubbs_critical(rs, level.name, rs.SelN.val()))) continue;
        mark(cell, level.colour);
        return;
    }
}

void mark_grubbs(Context& context) {
    const RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const View view = view_of(form);
    for (int i = 1; i <= rs.nIso; ++i) {
        if (!has_grubbs(rs, view, i)) continue;
        const RowStatistics row = statistics_of(rs, view, i);
        if (is_selected(rs, row.min_at) && is_selected(rs, row.min_value))
            mark_by_level(rs, form.FlexGrid1.cell(i, column_of(rs, row.min_at)), grubbs_of_minimum(row));
        if (is_selected(rs, row.max_at) && is_selected(rs, row.max_value))
            mark_by_level(rs, form.FlexGrid1.cell(i, column_of(rs, row.max_at)), grubbs_of_maximum(row));
    }
}

void switch_show(Context& context, CheckBox& box, Picture& legend) {
    Frm3Matrix& form = context.forms.frm3_Matrix;
    // Presets can have put on two boxes: what the other one marks is kept.
    if (!box.on()) ClearShowColours(context);
    mark_shown(context);
    if (box.on()) form.pictMinMax.visible = form.pictStDev.visible = form.pictGrubbs.visible = false;
    legend.visible = box.on();
    settle_boxes(context);
}

void draw_legend(Picture& picture, std::initializer_list<std::pair<Colour, const char*>> keys) {
    constexpr int line = 240;
    picture.canvas.Clear();
    int top = 60;
    for (const auto& [colour, words] : keys) {
        picture.canvas.FillRect(60, top, 360, top + 180, colour);
        picture.canvas.note_label("legend" + std::to_string(top / line + 1), words, 450, top);
        top += line;
    }
}

}  // namespace

namespace matrix {

std::optional<Colour> deviation_colour(double d) {
    const double size = std::abs(d);
    // The bands leave gaps below 3 and 4; deviations have one decimal, so none of the table falls into them.
    if (size >= 2 && size <= 2.999) return palette(14);
    if (size >= 3 && size <= 3.999) return palette(12);
    if (size > 3.999) return palette(13);
    return std::nullopt;
}

void mark_shown(Context& context) {
    const Frm3Matrix& form = context.forms.frm3_Matrix;
    // Two are on together only from the settings: the later one of the presets lies over the other.
    if (form.chkShowMinMax.on()) mark_extremes(context);
    if (form.chkShowGrubbs.on()) mark_grubbs(context);
    if (form.chkShowStDev.on()) mark_deviations(context);
    context.forms.frm3_Matrix.FlexGrid1.touch();
}

void clear_show_boxes(Context& context) {
    Frm3Matrix& form = context.forms.frm3_Matrix;
    for (CheckBox* box : {&form.chkShowMinMax, &form.chkShowStDev, &form.chkShowGrubbs}) box->set_value_quietly(0);
    form.pictMinMax.visible = form.pictStDev.visible = form.pictGrubbs.visible = false;
}

void draw_legends(Context& context) {
    Frm3Matrix& form = context.forms.frm3_Matrix;
    draw_legend(form.pictMinMax, {{minimum_colour, "minimum"}, {maximum_colour, "maximum"}});
    draw_legend(form.pictStDev, {{palette(14), "2 - 3 s.d."}, {palette(12), "3 - 4 s.d."}, {palette(13), "> 4 s.d."}});
    const int slices = context.rs.SelN.val();
    if (slices <= 20) {
        draw_legend(form.pictGrubbs, {{palette(13), "P < 1 %"},
                                      {palette(12), "P < 2.5 %"},
                                      {orange, "P < 5 %"},
                                      {palette(14), "P < 7.5 %"},
                                      {pale_yellow, "P < 10 %"}});
    } else if (slices <= 25) {
        draw_legend(form.pictGrubbs, {{palette(13), "P < 1 %"}, {palette(12), "P < 2.5 %"}, {orange, "P < 5 %"}});
    } else {
        draw_legend(form.pictGrubbs, {{palette(12), "P < 2.5 %"}, {orange, "P < 5 %"}});
    }
}

}  // namespace matrix

void switch_show_min_max(Context& context) {
    Running running(context.rs, "chkShowMinMax_Click");
    switch_show(context, context.forms.frm3_Matrix.chkShowMinMax, context.forms.frm3_Matrix.pictMinMax);
}

void switch_show_deviation(Context& context) {
    Running running(context.rs, "chkShowStDev_Click");
    switch_show(context, context.forms.frm3_Matrix.chkShowStDev, context.forms.frm3_Matrix.pictStDev);
}

void switch_show_grubbs(Context& context) {
    Running running(context.rs, "chkShowGrubbs_Click");
    switch_show(context, context.forms.frm3_Matrix.chkShowGrubbs, context.forms.frm3_Matrix.pictGrubbs);
}

}  // namespace kolvar
