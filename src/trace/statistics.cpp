#include "trace/statistics.hpp"

#include <algorithm>
#include <utility>

#include "core/fault.hpp"
#include "core/numbers.hpp"
#include "trace/interval_kernels.hpp"

namespace kolvar {
namespace {

// A statistic of exactly 0 would stop later divisions.
double never_zero(double number) { return number == 0.0 ? 0.0001 : number; }

// What a cell lies away from the mean, squared.
auto squared_from(const double* cells, double mean) {
    return [cells, mean](std::size_t t) {
        const double away = cells[t] - mean;
        return away * away;
    };
}

// A column without blank takes no part when concentrations are wanted; in the create modes every column does.
bool has_statistics(const RunState& rs, int i) { return !rs.BlkMean(i).is_empty() || rs.ModeData == 0; }

void subtract_and_average(RunState& rs, const Interval& selection) {
    // The first slice of the table is no data of the sample: it is never corrected and keeps what it held.
    const Interval corrected = interval_of(2, rs.nSlices);
    for (int i = 1; i <= rs.nIso; ++i) {
        const auto raw = cells_of(std::as_const(rs.Sig), i, corrected);
        const auto net = cells_of(rs.Sig2, i, corrected);
        if (rs.ModeData == 1 && !rs.BlkMean(i).is_empty()) subtract_blank(raw, rs.BlkMean(i).number(), net);
        if (rs.ModeCreateSTM == 1) subtract_blank(raw, rs.BlkMean(i).val(), net);
        if (rs.ModeCreateBLK == 1) std::copy(raw.begin(), raw.end(), net.begin());

        const auto cells = cells_of(std::as_const(rs.Sig2), i, selection);
        add_up(rs.BlkSpikes, cells.size(), [data = cells.data()](std::size_t t) { return data[t]; });
        rs.CpsMean(i) = quotient(rs.BlkSpikes, rs.SelN.val());
    }
}

void deviations(RunState& rs, const Interval& selection) {
    const double degrees = rs.SelN.val() - 1;
    const auto finish = [&](int i) {
        if (has_statistics(rs, i)) rs.CpsSD(i) = never_zero(root(quotient(rs.BlkSpikes, degrees)));
        if (rs.BlkMean(i).is_empty()) rs.CpsSD(i) = Mark::dashes;
    };
    // A column without statistics is not summed: its cells may be left from another file.
    const auto count = static_cast<std::size_t>(selection.count());
    for (int i = 1; i <= rs.nIso;) {
        int run = i;
        while (run <= rs.nIso && has_statistics(rs, run)) ++run;
        const int before = i - 1;
        add_up_columns(
            rs.BlkSpikes, run - i, count,
            [&](int k) {
                return squared_from(cells_of(std::as_const(rs.Sig2), before + k, selection).data(),
                                    rs.CpsMean(before + k));
            },
            [&](int k) { finish(before + k); });
        if (run <= rs.nIso) finish(run);
        i = run + 1;
    }
}

void extreme_slices(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        if (!has_statistics(rs, i)) continue;
        const Extremes found = extremes_of(cells_of(std::as_const(rs.Sig2), i, selection), -1.0E15);
        if (found.low >= 0) rs.CpsMinPos(i) = selection.first + found.low;
        if (found.high >= 0) rs.CpsMaxPos(i) = selection.first + found.high;
    }
}

void ratios(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.BlkSpikes = 0;
        // A slice whose standard has no signal keeps its former ratio, which still enters the deviation below.
        if (!rs.BlkMean(i).is_empty())
            ratios_to_standard(cells_of(std::as_const(rs.Sig2), i, selection),
                               cells_of(std::as_const(rs.Sig2), rs.IsoISidx(i), selection),
                               cells_of(rs.Ratio, i, selection), rs.BlkSpikes);
        rs.RatioMean(i) = quotient(rs.BlkSpikes, rs.SelN.val());
    }
    const double degrees = rs.SelN.val() - 1;
    add_up_columns(
        rs.BlkSpikes, rs.nIso, static_cast<std::size_t>(selection.count()),
        [&](int i) { return squared_from(cells_of(std::as_const(rs.Ratio), i, selection).data(), rs.RatioMean(i)); },
        [&](int i) { rs.RatioSD(i) = never_zero(root(quotient(rs.BlkSpikes, degrees))); });
    for (int i = 1; i <= rs.nIso; ++i) {
        // Unlike the cps, a ratio is a maximum only above zero; without one the former place stays.
        const Extremes found = extremes_of(cells_of(std::as_const(rs.Ratio), i, selection), 0.0);
        if (found.low >= 0) rs.RatioMinPos(i) = selection.first + found.low;
        if (found.high >= 0) rs.RatioMaxPos(i) = selection.first + found.high;
    }
}

}  // namespace

void ComputeBlank(RunState& rs, Platform& os) {
    Running running(rs, "ComputeBlank");
    if (rs.BlkUpp.val() - rs.BlkLow.val() < 1) {
        os.warn("The selected blank interval is too short.");
        return;
    }
    const Interval blank = interval_of(rs.BlkLow, rs.BlkUpp);
    const auto count = static_cast<std::size_t>(blank.count());
    const auto raw = [&](int i) { return cells_of(std::as_const(rs.Sig), i, blank); };

    add_up_columns(
        rs.BlkSpikes, rs.nIso, count,
        [&](int i) { return [cells = raw(i).data()](std::size_t t) { return cells[t]; }; },
        [&](int i) { rs.BlkMean(i) = never_zero(quotient(rs.BlkSpikes, rs.BlkN)); });
    // About the mean as it is stored: a blank of zeros deviates a little from its mean of 0.0001.
    add_up_columns(
        rs.BlkSpikes, rs.nIso, count, [&](int i) { return squared_from(raw(i).data(), rs.BlkMean(i).held); },
        [&](int i) { rs.BlkSD(i) = never_zero(root(quotient(rs.BlkSpikes, rs.BlkN - 1))); });
    int spikes = 0;
    for (int i = 1; i <= rs.nIso; ++i)
        spikes += count_beyond(raw(i), rs.BlkMean(i).number(), finite(3 * rs.BlkSD(i).number()));
    rs.BlkSpikes = spikes;
}

void ComputeSelStats(RunState& rs, Platform& os) {
    Running running(rs, "ComputeSelStats");
    const Interval selection = interval_of(rs.SelLow, rs.SelUpp);
    guarded(
        [&] {
            rs.BlkSpikes = 0;
            subtract_and_average(rs, selection);
            deviations(rs, selection);
            extreme_slices(rs, selection);
            if (rs.ModeData != 0) ratios(rs, selection);
        },
        [&](const Fault&) {
            os.warn(
                "Error occurred while calculating the average concentrations."
                " Probably there are too much extreme numbers in the selected blank, or the data set does not contain"
                " all internal standards.",
                "KOLVAR");
        });
}

}  // namespace kolvar
