// The table of the rejection matrix: opening, the four views, and what its colours say when the step is left.
#include <cmath>

#include "core/numbers.hpp"
#include "trace/matrix.hpp"
#include "trace/matrix_cells.hpp"
#include "trace/number_text.hpp"
#include "trace/statistics.hpp"

namespace kolvar {

using namespace matrix;

namespace {

// The levels of Grubbs' test for so many data: the table of critical values has no others.
std::vector<std::string> levels_for(int slices) {
    if (slices < 4 || slices > 100) return {};
    if (slices <= 20) return {" 1", "2.5", " 5", "7.5", "10"};
    if (slices <= 25) return {" 1", "2.5", " 5"};
    return {"2.5", " 5"};
}

void fill_levels(Context& context) {
    RunState& rs = context.rs;
    ListBox& levels = context.forms.frm3_Matrix.comboProc;
    const int slices = rs.SelN.val();
    std::string& level = rs.RejProcName;
    // A level chosen for a shorter selection gives way to its neighbour.
    if (slices >= 21 && slices <= 100) {
        if (level == "7.5" || level == "10") level = " 5";
        if (slices >= 26 && level == " 1") level = "2.5";
    }
    levels.set_items(levels_for(slices));
    levels.show_item(level);
}

void clear_boxes(Frm3Matrix& form) {
    for (CheckBox* box : {&form.chkShowMinMax, &form.chkShowStDev, &form.chkShowGrubbs, &form.chkMinMax, &form.chkStDev,
                          &form.chkGrubbs})
        box->set_value_quietly(0);
    form.pictMinMax.visible = form.pictStDev.visible = form.pictGrubbs.visible = false;
}

OptionButton& chosen_view(Context& context) {
    Frm3Matrix& form = context.forms.frm3_Matrix;
    if (context.rs.ModeData == 0) return form.optCPS;
    switch (context.rs.setDataTable.whole()) {
        case 1:
            return form.optCpsSD;
        case 2:
            return form.optIIS;
        case 3:
            return form.optIisSD;
        default:
            return form.optCPS;
    }
}

void apply_presets(Context& context) {
    RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    if (rs.SelN.val() <= 3) return;
    const bool grubbs = rs.SelN.val() <= 100;
    const auto apply = [&](const Value& preset, CheckBox& box, void (*switched)(Context&)) {
        if (preset.val() != 1) return;
        box.set_value_quietly(1);
        switched(context);
    };
    apply(rs.setShowMinMax, form.chkShowMinMax, switch_show_min_max);
    apply(rs.setRejMinMax, form.chkMinMax, switch_reject_min_max);
    if (grubbs) apply(rs.setShowGrubbs, form.chkShowGrubbs, switch_show_grubbs);
    if (grubbs) apply(rs.setRejGrubbs, form.chkGrubbs, switch_reject_grubbs);
    apply(rs.setShowSD, form.chkShowStDev, switch_show_deviation);
    apply(rs.setRejSD, form.chkStDev, switch_reject_deviation);
}

void fill_headers(const RunState& rs, View view, Grid& grid) {
    const auto top = row_of(grid, 0);
    top[0].text = view == View::cps ? "CPS / Average" : view == View::ratio ? "Isot./I.S." : "S. D.";
    for (std::size_t c = 1; c < top.size(); ++c)
        top[c].text.assign(1, 't').append(std::to_string(rs.SelLow.val() + static_cast<int>(c) - 1));
}

std::string row_header(const RunState& rs, View view, int row) {
    if (view != View::cps) return rs.IsoName(row);
    return rs.IsoName(row) + "   /  " +
           (rs.CpsSD(row).is_dashes() ? std::string("---") : decimal(round_half_up(rs.CpsMean(row))));
}

// Runs over the data of a row and its cells side by side.
template <class Write>
void fill_row(std::span<GridCell> cells, const double* data, Write&& write) {
    for (std::size_t c = 1; c < cells.size(); ++c) {
        cells[c].text.clear();
        write(cells[c].text, data[c - 1]);
    }
}

void fill_cells(const RunState& rs, View view, int row, std::span<GridCell> cells) {
    const RowStatistics statistics = statistics_of(rs, view, row);
    const int first = rs.SelLow.val();
    const double* data = statistics.data.data() + first;
    const auto dashes = [](std::string& text, double) { text = "---"; };
    const auto tenths = [&](std::string& text, double datum) {
        append_tenths(text, std::floor(10 * (datum - statistics.mean) / statistics.sd));
    };
    switch (view) {
        case View::cps:
            if (rs.BlkMean(row).is_empty()) {
                fill_row(cells, data, [](std::string&, double) {});
            } else {
                fill_row(cells, data, [](std::string& text, double datum) { text = decimal(round_half_up(datum)); });
            }
            break;
        case View::ratio:
            if (rs.RatioSD(row) != 0) {
                fill_row(cells, data, [](std::string& text, double datum) { append_fixed(text, datum, 4); });
            } else {
                fill_row(cells, data, dashes);
            }
            break;
        case View::cps_deviation:
        case View::ratio_deviation:
            if (has_deviation(rs, view, row)) {
                fill_row(cells, data, tenths);
            } else {
                fill_row(cells, data, dashes);
            }
            break;
    }
}

}  // namespace

void load_matrix(Context& context) {
    Running running(context.rs, "frm3_Matrix_Load");
    RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;

    clear_boxes(form);
    form.txtSD.text = rs.setSD_IS.text();
    for (OptionButton* view : {&form.optCpsSD, &form.optIIS, &form.optIisSD}) view->enabled = rs.ModeData != 0;
    form.cmdNext.text = rs.ModeCreateSTM == 1 ? "Save STM file" : rs.ModeCreateBLK == 1 ? "Save BLK file" : "Next Step";
    form.cmdReset.enabled = false;
    form.lblFile.text = rs.DataFileName;
    form.lblSlices.text = std::to_string(rs.nSlices);
    form.lblSelected.text = rs.SelN.text();
    form.lblIsotopes.text = std::to_string(rs.nIso);
    form.pict1.canvas.Clear();
    clear_halves(form);
    fill_levels(context);
    settle_boxes(context);
    draw_legends(context);

    ComputeSelStats(rs, context.os);

    form.FlexGrid1.resize(rs.nIso + 1, std::max(rs.SelN.val(), 0) + 1);
    OptionButton& view = chosen_view(context);
    view.set_value_quietly(1);
    rs.TableView = on_ratios(view_of(form)) ? "iis" : "cps";
    FillTable(context);
    paint_standards(context);
    apply_presets(context);
}

void FillTable(Context& context) {
    Running running(context.rs, "FillTable");
    RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    Grid& grid = form.FlexGrid1;
    const View view = view_of(form);

    // What is marked belongs to the statistics of the table that goes.
    const char* basis = on_ratios(view) ? "iis" : "cps";
    if (rs.TableView != basis) {
        clear_show_boxes(context);
        ClearShowColours(context);
        settle_boxes(context);
    }
    rs.TableView = basis;
    form.Frame2.text = on_ratios(view) ? "Isotope / Internal Standard  (with blank correction)" : "CPS  (raw data)";
    rs.NameColWidth = view == View::cps ? 1550 : 800;
    grid.column_widths = {rs.NameColWidth, 800};

    check_slices(rs, grid);
    fill_headers(rs, view, grid);
    for (int row = 1; row < grid.rows; ++row) {
        const auto cells = row_of(grid, row);
        cells[0].text = row_header(rs, view, row);
        fill_cells(rs, view, row, cells);
    }
    grid.touch();
}

void ReadRejections(Context& context) {
    Running running(context.rs, "ReadRejections");
    RunState& rs = context.rs;
    Grid& grid = context.forms.frm3_Matrix.FlexGrid1;
    const int first = rs.SelLow.val();
    const int slices = rs.SelN.val();

    if (slices >= grid.cols) fail(FaultKind::index);
    rs.nRejected = 0;
    rs.RejManual = 0;
    rs.OutText.clear();
    for (int i = 1; i <= rs.nIso; ++i) {
        const auto cells = row_of(grid, i);
        rs.nData(i) = slices;
        for (int c = 1; c <= slices; ++c) {
            const GridCell& cell = cells[static_cast<std::size_t>(c)];
            rs.Rej(i, first + c - 1) = is_rejected(cell) ? 1 : 0;
            if (!is_rejected(cell)) continue;
            --rs.nData(i);
            if (is_black(cell)) rs.RejManual = 1;
        }
        rs.nRejected += slices - rs.nData(i);
        if (rs.nData(i) < 2) rs.OutText += rs.IsoName(i) + ",    ";
    }
}

}  // namespace kolvar
