// A small U/Pb measurement for the calculations: eight columns, a blank of slices 1 to 3, a signal of slices 5 to 8.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "support/test_support.hpp"
#include "ui/context.hpp"

namespace kolvar::test {

class UraniumCase : public ::testing::Test {
protected:
    enum Column { u238 = 1, u235, th232, pb208, pb207, pb206, pb204, hg202 };

    UraniumCase() {
        set_start_values(rs);
        rs.Method = 1;
        rs.nIso = 8;
        rs.nSlices = 10;
        const char* const heads[] = {"U238", "U235", "Th232", "Pb208", "Pb207", "Pb206", "Pb204", "Hg202"};
        for (int i = 1; i <= 8; ++i) rs.IsoName(i) = heads[i - 1];
        rs.ColU238 = u238;
        rs.ColU235 = u235;
        rs.ColTh232 = th232;
        rs.ColPb208 = pb208;
        rs.ColPb207 = pb207;
        rs.ColPb206 = pb206;
        rs.ColPb204 = pb204;
        rs.ColHg = hg202;
        rs.HgMass = 202;
        // Net signals of slices 5 to 8; no blank, until a test gives one.
        signal(u238, {100, 100, 200, 200});
        signal(u235, {1, 1, 2, 2});
        signal(th232, {50, 50, 50, 50});
        signal(pb208, {5, 10, 15, 20});
        signal(pb207, {1, 2, 4, 6});
        signal(pb206, {10, 20, 40, 50});
        signal(pb204, {4, 4, 4, 4});
        signal(hg202, {2, 2, 2, 2});
        for (int i = 1; i <= 8; ++i) {
            rs.BlkMean(i) = 0.0001;
            rs.BlkSD(i) = 0.0001;
            blank_free(i);
        }
        select(5, 8);
        rs.BlkLow = 1;
        rs.BlkUpp = 3;
        rs.BlkN = 3;
        rs.BeamStart = 4;
        rs.setErr = 0;
        rs.setErr_times = 1;
        rs.setTzero = 0;
        rs.setDelay = 0;
        rs.setAver = 0;
        rs.setMean_UP = 0;
        rs.UU8_5 = 100;
        for (Value* dwell : {&rs.dweU238, &rs.dweU235, &rs.dweTh232, &rs.dwePb208, &rs.dwePb207, &rs.dwePb206})
            *dwell = 0.01;
    }

    // Values of slices 5, 6, ...
    void signal(int column, std::initializer_list<double> cps) {
        int t = 5;
        for (const double value : cps) rs.Sig(column, t++) = value;
    }
    void blank_free(int column) { rs.BlkMean(column) = 0.0; }
    void select(int low, int upp) {
        rs.SelLow = low;
        rs.SelUpp = upp;
        rs.SelN = upp - low + 1;
        rs.SelNGood = upp - low + 1;
    }
    void ratio(Table1<double>& table, std::initializer_list<double> values) {
        int t = rs.SelLow.val();
        for (const double value : values) table(t++) = value;
    }

    RunState rs;
    Forms forms;
    ScriptedPlatform os;
    Shell shell;
    Context context{rs, forms, os, shell};
    Frm2UP& form = forms.frm2_UP;
};

}  // namespace kolvar::test
