// A simulated measurement for the benchmarks and the tests beside them: gas blank, then an ablation that decays.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

#include "core/run_state.hpp"

namespace kolvar::plain {

// Columns 1..columns, slices 1..slices; the first `blank` slices are blank, the rest but the last is selected. Some
// cells are rejected, some columns omitted, and weak columns have cells at or below their blank.
inline void simulate_run(RunState& rs, int columns, int slices, int blank, unsigned seed = 610) {
    std::mt19937 random(seed);
    rs.nIso = columns;
    rs.nSlices = slices;
    rs.ModeData = 1;
    rs.BlankFromData = 1;
    rs.BlkLow = 2, rs.BlkUpp = blank, rs.BlkN = blank - 1;
    rs.SelLow = blank + 3, rs.SelUpp = slices - 1;
    rs.SelN = slices - 1 - blank - 3 + 1;
    rs.IS1col = 1, rs.IS1conc = 340000, rs.IS1err = 3400;
    for (int i = 1; i <= columns; ++i) {
        const double background = 20.0 + 7 * (i % 9);
        const double height = i % 5 == 0 ? 30.0 : 2000.0 * (1 + i % 13);
        std::normal_distribution<double> noise(0, 1);
        for (int t = 1; t <= slices; ++t) {
            const double signal = t <= blank ? 0 : height * std::exp(-static_cast<double>(t - blank) / slices);
            const double mean = background + signal;
            rs.Sig(i, t) = std::max(0.0, std::floor((mean + noise(random) * std::sqrt(mean)) * 100) / 100);
        }
        rs.IsoName(i) = rs.IsoCanon(i) = std::to_string(i);
        rs.IsoOmit(i) = i % 11 == 7 ? 1 : 0;
        rs.IsoISidx(i) = i % 4 == 3 && columns > 5 ? 5 : 1;
        rs.IsoISconc(i) = 340000, rs.IsoISerr(i) = 3400;
        rs.StdConc(i) = 400.0 + i, rs.StdConcErr(i) = 4.0;
        rs.StdCps(i) = 3000.0 + 10 * i, rs.StdCpsErr(i) = 30.0;
        rs.Dwell(i) = 0.01 + 0.001 * (i % 3);
        rs.nData(i) = rs.SelN.val();
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
            if (random() % 50 != 0) continue;
            rs.Rej(i, t) = 1;
            rs.nData(i) -= 1;
        }
    }
}

// Ten columns of the U/Pb path, with all that its calculations ask of the settings and the blank.
inline void simulate_uranium_run(RunState& rs, int slices, int blank) {
    simulate_run(rs, 10, slices, blank);
    rs.Method = 1;
    rs.ColHg = 10, rs.HgMass = 202, rs.ColPb204 = 5;
    rs.ColPb206 = 1, rs.ColPb207 = 2, rs.ColPb208 = 3;
    rs.ColTh232 = 4, rs.ColU235 = 6, rs.ColU238 = 7;
    for (int i = 1; i <= rs.nIso; ++i) rs.BlkMean(i) = 20.0, rs.BlkSD(i) = 5.0;
    for (Value* dwell : {&rs.dweU238, &rs.dweU235, &rs.dweTh232, &rs.dwePb208, &rs.dwePb207, &rs.dwePb206})
        *dwell = 0.01;
    rs.setErr = 2, rs.setErr_times = 2, rs.UU8_5 = 137.818, rs.Hg2_4 = 4.3607;
}

}  // namespace kolvar::plain
