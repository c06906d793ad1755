// The tests of the rejection matrix as they read: cell by cell, each slice of the standard rejected at once.
#pragma once

#include <cmath>

#include "core/numbers.hpp"
#include "trace/matrix.hpp"
#include "ui/context.hpp"

namespace kolvar::plain {

inline void reject_slice(Context& context, int col) {
    Grid& grid = context.forms.frm3_Matrix.FlexGrid1;
    for (int row = 1; row < grid.rows; ++row) {
        if (grid.cell(row, col).back == palette(0)) continue;
        grid.cell(row, col).back = palette(8);
        grid.cell(row, col).fore = palette(15);
    }
}

// One standard in use.
inline void reject_deviations(Context& context) {
    const RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    for (int i = 1; i <= rs.nIso; ++i) {
        for (int c = 1; c <= rs.SelN.val(); ++c) {
            Grid::Cell& cell = form.FlexGrid1.cell(i, c);
            const int t = rs.SelLow.val() + c - 1;
            if (cell.back == palette(0) || rs.CpsSD(i).is_dashes()) continue;
            double d = 0;
            if (form.optCpsSD.on() || form.optIisSD.on()) {
                d = std::abs(Val(cell.text));
            } else if (form.optCPS.on()) {
                d = std::floor(10 * (rs.Sig2(i, t) - rs.CpsMean(i)) / rs.CpsSD(i).number()) / 10;
            } else if (rs.RatioSD(i) > 0) {
                d = std::floor(10 * (rs.Ratio(i, t) - rs.RatioMean(i)) / rs.RatioSD(i)) / 10;
            }
            if (!(std::abs(d) >= Val(form.txtSD.text))) continue;
            cell.back = palette(8);
            cell.fore = palette(15);
            if (rs.ModeData == 1 && i == rs.IS1col.val()) reject_slice(context, c);
        }
    }
}

// False when the cell takes no part.
inline bool reject_cell(Context& context, int row, int slice) {
    const RunState& rs = context.rs;
    const int col = slice - rs.SelLow.val() + 1;
    Grid::Cell& cell = context.forms.frm3_Matrix.FlexGrid1.cell(row, col);
    if (cell.back == palette(0) || cell.text == "---") return false;
    cell.back = palette(8);
    cell.fore = palette(15);
    return true;
}

// The least and the greatest of each row, one standard in use: in its row the slice goes, in every view.
inline void reject_extremes(Context& context) {
    const RunState& rs = context.rs;
    const Frm3Matrix& form = context.forms.frm3_Matrix;
    const bool ratios = form.optIIS.on() || form.optIisSD.on();
    for (int i = 1; i <= rs.nIso; ++i) {
        if (ratios ? !(rs.RatioMaxPos(i) > 0) : rs.CpsSD(i).is_dashes() && rs.ModeData != 0) continue;
        for (const int slice :
             {ratios ? rs.RatioMinPos(i) : rs.CpsMinPos(i), ratios ? rs.RatioMaxPos(i) : rs.CpsMaxPos(i)}) {
            if (!reject_cell(context, i, slice)) continue;
            if (rs.ModeData == 1 && i == rs.IS1col.val()) reject_slice(context, slice - rs.SelLow.val() + 1);
        }
    }
}

// Grubbs' test against its critical value: one candidate at each end of each row, the ratio read at the slice of the
// extreme of the cps.
inline void reject_grubbs(Context& context, double critical) {
    const RunState& rs = context.rs;
    const Frm3Matrix& form = context.forms.frm3_Matrix;
    for (int i = 1; i <= rs.nIso; ++i) {
        if (form.optIIS.on() || form.optIisSD.on()) {
            if (!(rs.RatioMaxPos(i) > 0)) continue;
            if ((rs.RatioMean(i) - rs.Ratio(i, rs.CpsMinPos(i))) / rs.RatioSD(i) > critical)
                reject_cell(context, i, rs.RatioMinPos(i));
            if ((rs.Ratio(i, rs.CpsMaxPos(i)) - rs.RatioMean(i)) / rs.RatioSD(i) > critical)
                reject_cell(context, i, rs.RatioMaxPos(i));
        } else if (!rs.CpsSD(i).is_dashes()) {
            const double sd = rs.CpsSD(i).number();
            const bool low = (rs.CpsMean(i) - rs.Sig2(i, rs.CpsMinPos(i))) / sd > critical;
            const bool high = (rs.Sig2(i, rs.CpsMaxPos(i)) - rs.CpsMean(i)) / sd > critical;
            for (const int slice : {low ? rs.CpsMinPos(i) : 0, high ? rs.CpsMaxPos(i) : 0}) {
                if (slice == 0 || !reject_cell(context, i, slice)) continue;
                if (rs.ModeData == 1 && i == rs.IS1col.val()) reject_slice(context, slice - rs.SelLow.val() + 1);
            }
        }
    }
}

// The texts of a table of deviations.
inline void fill_deviations(Context& context) {
    const RunState& rs = context.rs;
    Frm3Matrix& form = context.forms.frm3_Matrix;
    for (int i = 1; i <= rs.nIso; ++i) {
        for (int c = 1; c <= rs.SelN.val(); ++c) {
            const int t = rs.SelLow.val() + c - 1;
            std::string& text = form.FlexGrid1.cell(i, c).text;
            if (rs.CpsSD(i).is_dashes()) {
                text = "---";
            } else {
                text = decimal(std::floor(10 * (rs.Sig2(i, t) - rs.CpsMean(i)) / rs.CpsSD(i).number()) / 10);
            }
        }
    }
}

}  // namespace kolvar::plain
