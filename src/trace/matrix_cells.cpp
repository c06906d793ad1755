#include "trace/matrix_cells.hpp"

#include <cmath>

#include "core/numbers.hpp"

namespace kolvar::matrix {

View view_of(const Frm3Matrix& form) {
    if (form.optCpsSD.on()) return View::cps_deviation;
    if (form.optIIS.on()) return View::ratio;
    if (form.optIisSD.on()) return View::ratio_deviation;
    return View::cps;
}

Standards standards_in_use(const RunState& rs) {
    Standards out;
    if (rs.ModeData != 1) return out;
    const double number = rs.setISnum.val();
    const std::array<int, 3> columns = {rs.IS1col.val(), number > 1 ? rs.IS2col.val() : 0,
                                        number == 3 ? rs.IS3col.val() : 0};
    for (const int column : columns)
        if (column >= 1 && column <= rs.nIso) out.column[static_cast<std::size_t>(out.count++)] = column;
    return out;
}

std::span<GridCell> row_of(Grid& grid, int row) { return {&grid.cell(row, 0), static_cast<std::size_t>(grid.cols)}; }

double RowStatistics::tenths(int slice) const {
    return std::floor(10 * (data[static_cast<std::size_t>(slice)] - mean) / sd);
}

RowStatistics statistics_of(const RunState& rs, View view, int row) {
    RowStatistics out;
    // Grubbs' test takes the slices of the cps extremes on both bases: with ratios it judges the cell at the extreme
    // ratio by the ratio at the extreme cps. Results of earlier years rest on that.
    out.min_value = rs.CpsMinPos(row);
    out.max_value = rs.CpsMaxPos(row);
    if (on_ratios(view)) {
        out.data = rs.Ratio.column(row);
        out.mean = rs.RatioMean(row);
        out.sd = rs.RatioSD(row);
        out.min_at = rs.RatioMinPos(row);
        out.max_at = rs.RatioMaxPos(row);
    } else {
        out.data = rs.Sig2.column(row);
        out.mean = rs.CpsMean(row);
        out.sd = rs.CpsSD(row).val();
        out.min_at = rs.CpsMinPos(row);
        out.max_at = rs.CpsMaxPos(row);
    }
    return out;
}

void check_slices(const RunState& rs, const Grid& grid) {
    const int low = rs.SelLow.val();
    if (low < 0 || low + grid.cols - 2 > MaxSlices) fail(FaultKind::index);
}

bool is_selected(const RunState& rs, int slice) {
    return slice >= 0 && slice <= MaxSlices && slice >= rs.SelLow.val() && slice < rs.SelLow.val() + rs.SelN.val();
}

bool has_extremes(const RunState& rs, View view, int row) {
    if (on_ratios(view)) return rs.RatioMaxPos(row) > 0;
    return !rs.CpsSD(row).is_dashes() || rs.ModeData == 0;
}

bool has_grubbs(const RunState& rs, View view, int row) {
    if (on_ratios(view)) return rs.RatioMaxPos(row) > 0 && rs.RatioSD(row) > 0;
    return rs.CpsSD(row).above(0);
}

bool has_deviation(const RunState& rs, View view, int row) {
    return on_ratios(view) ? rs.RatioSD(row) > 0 : rs.CpsSD(row).above(0);
}

double grubbs_of_minimum(const RowStatistics& row) {
    return quotient(row.mean - row.data[static_cast<std::size_t>(row.min_value)], row.sd);
}

double grubbs_of_maximum(const RowStatistics& row) {
    return quotient(row.data[static_cast<std::size_t>(row.max_value)] - row.mean, row.sd);
}

void paint_standards(Context& context) {
    Grid& grid = context.forms.frm3_Matrix.FlexGrid1;
    const Standards standards = standards_in_use(context.rs);
    for (int k = 0; k < standards.count; ++k)
        for (GridCell& cell : row_of(grid, standards.column[static_cast<std::size_t>(k)]))
            if (!is_grey(cell) && !is_black(cell)) cell.back = pale_green;
    grid.touch();
}

void ClearShowColours(Context& context) {
    Grid& grid = context.forms.frm3_Matrix.FlexGrid1;
    for (int row = 1; row < grid.rows; ++row)
        for (GridCell& cell : row_of(grid, row).subspan(1))
            if (!is_grey(cell) && !is_black(cell)) cell.back = white;
    paint_standards(context);
}

void reject_column(Context& context, int col) {
    const double number = context.rs.setISnum.val();
    if (number != 1 && number != 2 && number != 3) return;
    Grid& grid = context.forms.frm3_Matrix.FlexGrid1;
    // What was rejected by hand stays so.
    for (int row = 1; row < grid.rows; ++row)
        if (GridCell& cell = grid.cell(row, col); !is_black(cell)) reject(cell);
}

void restore_column(Context& context, int col) {
    Grid& grid = context.forms.frm3_Matrix.FlexGrid1;
    const Standards standards = standards_in_use(context.rs);
    for (int row = 1; row < grid.rows; ++row) {
        GridCell& cell = grid.cell(row, col);
        if (is_black(cell)) continue;
        accept(cell);
        if (standards.has(row)) cell.back = pale_green;
    }
}

void restore_cell(GridCell& cell) {
    if (is_grey(cell)) accept(cell);
}

void settle_boxes(Context& context) {
    Frm3Matrix& form = context.forms.frm3_Matrix;
    const int slices = context.rs.SelN.val();
    const bool testable = slices >= 4;
    const bool grubbs = testable && slices <= 100;  // the table of critical values ends there
    const bool tested = form.chkMinMax.on() || form.chkStDev.on() || form.chkGrubbs.on();
    const bool shown = form.chkShowMinMax.on() || form.chkShowStDev.on() || form.chkShowGrubbs.on();
    const auto may_show = [&](const CheckBox& box) { return testable && !tested && (box.on() || !shown); };
    form.chkShowMinMax.enabled = may_show(form.chkShowMinMax);
    form.chkShowStDev.enabled = may_show(form.chkShowStDev);
    form.chkShowGrubbs.enabled = may_show(form.chkShowGrubbs) && grubbs;
    form.chkMinMax.enabled = form.chkStDev.enabled = testable;
    form.chkGrubbs.enabled = grubbs;
    form.comboProc.enabled = grubbs && !tested;
    form.txtSD.locked = form.chkStDev.on();
    if (tested) form.cmdReset.enabled = true;
}

}  // namespace kolvar::matrix
