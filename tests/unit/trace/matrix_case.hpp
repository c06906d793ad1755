// A small rejection matrix: three isotopes, the first of them the internal standard, and five selected slices.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "support/test_support.hpp"
#include "trace/matrix.hpp"
#include "trace/matrix_cells.hpp"

namespace kolvar::test {

struct MatrixCase : ::testing::Test {
    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
    Frm3Matrix& form = forms.frm3_Matrix;
    Grid& grid = form.FlexGrid1;

    // Slices 2..: the first slice of a table never gets its blank subtracted. The blank is 0.
    void isotope(const std::string& name, const std::vector<double>& cps) {
        const int i = ++rs.nIso;
        rs.IsoName(i) = name;
        rs.IsoISidx(i) = 1;
        rs.BlkMean(i) = 0.0;
        for (std::size_t k = 0; k < cps.size(); ++k) rs.Sig(i, static_cast<int>(k) + 2) = cps[k];
        rs.nSlices = static_cast<int>(cps.size()) + 1;
        rs.SelLow = 2;
        rs.SelUpp = rs.nSlices;
        rs.SelN = static_cast<int>(cps.size());
    }

    void three_isotopes() {
        rs.ModeData = 1;
        rs.setISnum = 1;
        rs.IS1col = 1;
        rs.RejProcName = " 5";
        isotope("Si29", {100, 110, 90, 100, 100});
        isotope("Sr88", {10, 20, 30, 40, 50});
        isotope("La139", {7, 7, 9, 7, 5});
        load_matrix(context);
    }

    // So many slices of a signal with one high datum in the middle.
    void long_selection(int slices) {
        rs.ModeData = 1;
        rs.setISnum = 1;
        rs.IS1col = 1;
        std::vector<double> cps(static_cast<std::size_t>(slices), 100);
        for (std::size_t k = 0; k < cps.size(); k += 2) cps[k] = 102;
        cps[cps.size() / 2] = 200;
        isotope("Si29", std::vector<double>(static_cast<std::size_t>(slices), 100));
        isotope("Sr88", cps);
    }

    // Gives a row the statistics that a test wants to measure with; the table is filled anew.
    void cps_statistics(int row, double mean, double sd, int min_at, int max_at) {
        rs.CpsMean(row) = mean;
        rs.CpsSD(row) = sd;
        rs.CpsMinPos(row) = min_at;
        rs.CpsMaxPos(row) = max_at;
        FillTable(context);
    }
    void ratio_statistics(int row, double mean, double sd, int min_at, int max_at) {
        rs.RatioMean(row) = mean;
        rs.RatioSD(row) = sd;
        rs.RatioMinPos(row) = min_at;
        rs.RatioMaxPos(row) = max_at;
        FillTable(context);
    }
    void data(Table2<double>& table, int row, const std::vector<double>& cells) {
        for (std::size_t k = 0; k < cells.size(); ++k) table(row, static_cast<int>(k) + 2) = cells[k];
    }

    void tick(CheckBox& box, void (*switched)(Context&)) {
        box.set_value_quietly(box.on() ? 0 : 1);
        switched(context);
    }
    void min_max() { tick(form.chkMinMax, switch_reject_min_max); }
    void deviation() { tick(form.chkStDev, switch_reject_deviation); }
    void grubbs() { tick(form.chkGrubbs, switch_reject_grubbs); }
    void show_min_max() { tick(form.chkShowMinMax, switch_show_min_max); }
    void show_deviation() { tick(form.chkShowStDev, switch_show_deviation); }
    void show_grubbs() { tick(form.chkShowGrubbs, switch_show_grubbs); }
    void view(OptionButton& option) {
        option.set_value_quietly(1);
        FillTable(context);
    }

    // The states of a row's cells: "." accepted, "g" accepted in a standard's row, "x" rejected, "M" rejected by hand;
    // marks: c cyan, m magenta, y yellow, r red, o orange, p pale yellow; "?" is none of the states.
    [[nodiscard]] std::string row(int at) const {
        std::string out;
        for (int c = 1; c < grid.cols; ++c) out += state(std::as_const(grid).cell(at, c));
        return out;
    }
    [[nodiscard]] std::string picture() const {
        std::string out;
        for (int i = 1; i < grid.rows; ++i) {
            if (i > 1) out += ' ';
            out += row(i);
        }
        return out;
    }
    [[nodiscard]] std::string texts(int at) const {
        std::string out;
        for (int c = 1; c < grid.cols; ++c) {
            if (c > 1) out += ' ';
            out += std::as_const(grid).cell(at, c).text;
        }
        return out;
    }
    [[nodiscard]] std::string rejected(int iso) const {
        std::string out;
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) out += rs.Rej(iso, t) == 1 ? '1' : '0';
        return out;
    }

    static char state(const Grid::Cell& cell) {
        if (cell.fore == palette(15)) return cell.back == palette(8) ? 'x' : cell.back == palette(0) ? 'M' : '?';
        if (cell.fore != palette(0)) return '?';
        if (cell.back == rgb(192, 255, 192)) return 'g';
        if (cell.back == rgb(255, 192, 128)) return 'o';
        if (cell.back == rgb(255, 255, 225)) return 'p';
        switch (palette_number(cell.back)) {
            case 15:
                return '.';
            case 11:
                return 'c';
            case 12:
                return 'r';
            case 13:
                return 'm';
            case 14:
                return 'y';
            default:
                return '?';
        }
    }
};

}  // namespace kolvar::test
