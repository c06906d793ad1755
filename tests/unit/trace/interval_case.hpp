// A run state with a small table, for tests of the trace calculations.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "core/run_state.hpp"
#include "support/test_support.hpp"

namespace kolvar::test {

struct IntervalCase : ::testing::Test {
    RunState rs;
    ScriptedPlatform os;

    // A further column of raw cps, its slices from 1.
    int column(const std::string& name, std::initializer_list<double> slices) {
        const int i = ++rs.nIso;
        rs.IsoName(i) = name;
        rs.IsoCanon(i) = name;
        write(rs.Sig, i, slices);
        rs.nSlices = static_cast<int>(slices.size());
        rs.IsoISidx(i) = 1;
        return i;
    }
    // Blank-corrected cps of a column, from slice 1.
    void net(int i, std::initializer_list<double> slices) { write(rs.Sig2, i, slices); }
    void blank(int low, int upp) {
        rs.BlkLow = low;
        rs.BlkUpp = upp;
        rs.BlkN = upp - low + 1;
    }
    void select(int low, int upp) {
        rs.SelLow = low;
        rs.SelUpp = upp;
        rs.SelN = upp - low + 1;
        for (int i = 1; i <= rs.nIso; ++i) rs.nData(i) = upp - low + 1;
    }
    static void write(Table2<double>& table, int i, std::initializer_list<double> slices) {
        int t = 0;
        for (const double cell : slices) table(i, ++t) = cell;
    }
};

// The kind of the fault that leaves `work`; a test that expects one fails without.
template <class Work>
std::string fault_of(Work work) {
    try {
        work();
    } catch (const Fault& fault) {
        return fault_text(fault.kind);
    }
    return "no fault";
}

}  // namespace kolvar::test
