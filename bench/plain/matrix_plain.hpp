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
