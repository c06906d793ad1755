// The boxes that reject data by a test, rejection by hand, and the way back to no rejection.
#include <cmath>
#include <vector>

#include "core/numbers.hpp"
#include "core/stat_tables.hpp"
#include "trace/matrix.hpp"
#include "trace/matrix_cells.hpp"

namespace kolvar {

using namespace matrix;

namespace {

// Calls `found(row, col)` for each cell that the min/max test takes on the basis in view.
template <class Found>
void for_extremes(const RunState& rs, View view, Found&& found) {
    for (int i = 1; i <= rs.nIso; ++i) {
        if (!has_extremes(rs, view, i)) continue;
        const RowStatistics row = statistics_of(rs, view, i);
        // Both at one slice are one cell, taken twice.
        if (is_selected(rs, row.min_at)) found(i, column_of(rs, row.min_at));
        if (is_selected(rs, row.max_at)) found(i, column_of(rs, row.max_at));
    }
}

// The same for Grubbs' test at a level. One candidate at each end of each row, once: the data that remain are not
// tested again. No row is left out, not even those of the standards.
template <class Found>
void for_outliers(const RunState& rs, View view, const std::string& level, Found&& found) {
    const double critical = grubbs_critical(rs, level, rs.SelN.val());
    for (int i = 1; i <= rs.nIso; ++i) {
        if (!has_grubbs(rs, view, i)) continue;
        const RowStatistics row = statistics_of(rs, view, i);
        if (is_selected(rs, row.min_at) && is_selected(rs, row.min_value) && grubbs_of_minimum(row) > critical)
            found(i, column_of(rs, row.min_at));
        if (is_selected(rs, row.max_at) && is_selected(rs, row.max_value) && grubbs_of_maximum(row) > critical)
            found(i, column_of(rs, row.max_at));
    }
}

// Calls `deviates(row, cells, far)` for each row that the s.d. test looks at; far(col) tells whether a cell is at or
// beyond the limit.
template <class Deviates>
void for_deviating_rows(Context& context, double limit, Deviates&& deviates) {
    const RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const View view = view_of(form);
    check_slices(rs, form.FlexGrid1);
    for (int i = 1; i <= rs.nIso; ++i) {
        if (rs.CpsSD(i).is_dashes() || !has_deviation(rs, view, i)) continue;
        const RowStatistics row = statistics_of(rs, view, i);
        const int first = rs.SelLow.val();
        // Cut downwards: -2.94 s.d. counts as -3.0 and fails at a limit of 3, 2.94 counts as 2.9 and does not.
        const auto far = [&](int col) { return std::abs(row.deviation(first + col - 1)) >= limit; };
        deviates(i, row_of(form.FlexGrid1, i), far);
    }
}

void for_columns(Context& context, const std::vector<char>& columns, void (*change)(GridCell&)) {
    Grid& grid = context.forms.frm3_Matrix.FlexGrid1;
    for (int i = 1; i < grid.rows; ++i) {
        const auto cells = row_of(grid, i);
        for (std::size_t c = 1; c < cells.size(); ++c)
            if (columns[c] != 0 && !is_black(cells[c])) change(cells[c]);
    }
}

bool any(const std::vector<char>& columns) {
    for (const char column : columns)
        if (column != 0) return true;
    return false;
}

void begin_test(Context& context) {
    context.forms.frm3_Matrix.FlexGrid1.touch();
    settle_boxes(context);
}

void switch_off(CheckBox& box, void (*switched)(Context&), Context& context) {
    if (!box.on()) return;
    box.set_value_quietly(0);
    switched(context);
}

// The test that was switched off has put back its cells; the others go off with it, as if each had been clicked.
void end_test(Context& context) {
    Frm3Matrix& form = context.forms.frm3_Matrix;
    switch_off(form.chkMinMax, switch_reject_min_max, context);
    switch_off(form.chkStDev, switch_reject_deviation, context);
    switch_off(form.chkGrubbs, switch_reject_grubbs, context);
    clear_show_boxes(context);
    ClearShowColours(context);
    form.FlexGrid1.touch();
    settle_boxes(context);
}

// A datum that a test had rejected is accepted again, with its whole slice in the row of a standard.
void take_back(Context& context, const Standards& standards, int row, int col) {
    GridCell& cell = context.forms.frm3_Matrix.FlexGrid1.cell(row, col);
    const bool was_rejected = is_rejected(cell);
    restore_cell(cell);
    if (was_rejected && standards.has(row)) restore_column(context, col);
}

void reject_deviations(Context& context, double limit) {
    RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const int first_standard = rs.ModeData == 1 ? rs.IS1col.val() : 0;
    std::vector<char> slices(static_cast<std::size_t>(form.FlexGrid1.cols), 0);
    for_deviating_rows(context, limit, [&](int i, std::span<GridCell> cells, auto&& far) {
        for (int c = 1; c < form.FlexGrid1.cols; ++c) {
            const auto at = static_cast<std::size_t>(c);
            if (is_black(cells[at]) || !far(c)) continue;
            reject(cells[at]);
            // Only the first standard takes its slice along; the other tests do so for each standard.
            if (i == first_standard) slices[at] = 1;
        }
    });
    const double number = rs.setISnum.val();
    if ((number == 1 || number == 2 || number == 3) && any(slices)) for_columns(context, slices, reject);
}

void restore_deviations(Context& context, double limit) {
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const Standards standards = standards_in_use(context.rs);
    std::vector<char> slices(static_cast<std::size_t>(form.FlexGrid1.cols), 0);
    for_deviating_rows(context, limit, [&](int i, std::span<GridCell> cells, auto&& far) {
        const bool standard = standards.has(i);
        for (int c = 1; c < form.FlexGrid1.cols; ++c) {
            const auto at = static_cast<std::size_t>(c);
            if (!is_rejected(cells[at]) || !far(c)) continue;
            restore_cell(cells[at]);
            if (standard) slices[at] = 1;
        }
    });
    if (any(slices)) for_columns(context, slices, accept);
}

}  // namespace

void switch_reject_min_max(Context& context) {
    Running running(context.rs, "chkMinMax_Click");
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const View view = view_of(form);
    const Standards standards = standards_in_use(context.rs);
    if (form.chkMinMax.on()) {
        for_extremes(context.rs, view, [&](int row, int col) {
            GridCell& cell = form.FlexGrid1.cell(row, col);
            if (is_black(cell) || is_dashes(cell)) return;
            reject(cell);
            if (standards.has(row)) reject_column(context, col);
        });
        begin_test(context);
    } else {
        for_extremes(context.rs, view, [&](int row, int col) { take_back(context, standards, row, col); });
        end_test(context);
    }
}

void switch_reject_grubbs(Context& context) {
    Running running(context.rs, "chkGrubbs_Click");
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const View view = view_of(form);
    const Standards standards = standards_in_use(context.rs);
    const std::string& level = form.comboProc.text;
    if (form.chkGrubbs.on()) {
        for_outliers(context.rs, view, level, [&](int row, int col) {
            GridCell& cell = form.FlexGrid1.cell(row, col);
            if (is_black(cell) || is_dashes(cell)) return;
            reject(cell);
            // With ratios the other isotopes keep the slice.
            if (!on_ratios(view) && standards.has(row)) reject_column(context, col);
        });
        begin_test(context);
    } else {
        for_outliers(context.rs, view, level, [&](int row, int col) { take_back(context, standards, row, col); });
        end_test(context);
    }
}

void switch_reject_deviation(Context& context) {
    Running running(context.rs, "chkStDev_Click");
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const double limit = Val(form.txtSD.text);
    if (!form.chkStDev.on()) {
        restore_deviations(context, limit);
        end_test(context);
        return;
    }
    if (!(limit > 0)) {
        context.os.warn("The entered S. D. valaue is not a positive number!");
        form.txtSD.text = context.rs.setSD_IS.text();
        // The test never came on: what the other tests have rejected stays.
        form.chkStDev.set_value_quietly(0);
        settle_boxes(context);
        return;
    }
    form.txtSD.text = decimal(limit);
    reject_deviations(context, limit);
    begin_test(context);
}

void reset_rejection(Context& context) {
    Running running(context.rs, "cmdReset_Click");
    Frm3Matrix& form = context.forms.frm3_Matrix;
    for (int row = 1; row < form.FlexGrid1.rows; ++row)
        for (GridCell& cell : row_of(form.FlexGrid1, row).subspan(1)) accept(cell);
    paint_standards(context);
    for (CheckBox* box : {&form.chkMinMax, &form.chkStDev, &form.chkGrubbs}) box->set_value_quietly(0);
    clear_show_boxes(context);
    settle_boxes(context);
    form.cmdReset.enabled = false;
}

void click_matrix(Context& context, int row, int col) {
    Running running(context.rs, "FlexGrid1_MouseDown");
    RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    Grid& grid = form.FlexGrid1;
    if (rs.SelN.val() < 4 || row < 0 || row >= grid.rows || col < 0 || col >= grid.cols) return;
    if (col == 0) {
        if (rs.ModeData == 1 && row > 0) Draw_Profile(context, row);
        return;
    }
    if (grid.rows < 2) return;
    form.cmdReset.enabled = true;
    // In the header row the first datum of the slice decides which way the slice goes.
    const bool now_black = !is_black(grid.cell(std::max(row, 1), col));
    // Accepted by hand is plain white, in the row of a standard too.
    const auto toggle = [&](GridCell& cell) {
        cell.back = now_black ? black : white;
        cell.fore = now_black ? white : black;
    };
    if (row == 0 || (rs.ModeData == 1 && row == rs.IS1col.val())) {
        for (int i = 1; i < grid.rows; ++i) toggle(grid.cell(i, col));
    } else {
        toggle(grid.cell(row, col));
    }
    grid.touch();
}

void refuse_typed_level(Context& context) {
    ListBox& levels = context.forms.frm3_Matrix.comboProc;
    context.os.warn("You can not type directly the percent of probability here. Select from the roll-down list.");
    const bool chosen = levels.value >= 0 && levels.value < static_cast<int>(levels.items.size());
    levels.show_item(chosen ? levels.items[static_cast<std::size_t>(levels.value)] : context.rs.RejProcName);
}

}  // namespace kolvar
