#include "trace/concentrations.hpp"

#include <cmath>
#include <utility>
#include <vector>

#include "core/fault.hpp"
#include "core/numbers.hpp"
#include "trace/concentration_stages.hpp"
#include "trace/selected_median.hpp"

namespace kolvar {
namespace concentration {
namespace {

struct AcceptedSums {
    double net = 0, raw = 0, ratio = 0;
};

template <bool WithRatio>
AcceptedSums add_accepted(std::span<const double> net, std::span<const double> raw, std::span<const double> standard,
                          std::span<const std::uint8_t> rejected) {
    AcceptedSums sums;
    for (std::size_t t = 0; t < net.size(); ++t) {
        if (rejected[t] == 1) continue;
        sums.net += net[t];
        sums.raw += raw[t];
        if constexpr (WithRatio) {
            if (standard[t] > 0.0) sums.ratio += net[t] / standard[t];
        }
    }
    finite(sums.net);
    finite(sums.raw);
    finite(sums.ratio);
    return sums;
}

// Concentration of a column from its ratio to the standard, in two steps: the stored first step is what a fault in
// the second leaves.
void scale_by_standard(const RunState& rs, int i, double ratio, Cell& concentration) {
    const int standard = rs.IsoISidx(i);
    concentration = finite(ratio * quotient(rs.StdConc(i).number(), rs.StdCps(i).number()));
    concentration = quotient(finite(concentration.number() * finite(rs.IsoISconc(i) * rs.StdCps(standard).number())),
                             rs.StdConc(standard).number());
}

}  // namespace

void average_accepted(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const auto net = cells_of(std::as_const(rs.Sig2), i, selection);
        const auto raw = cells_of(std::as_const(rs.Sig), i, selection);
        const auto rejected = cells_of(std::as_const(rs.Rej), i, selection);
        const AcceptedSums sums =
            rs.ModeData == 1
                ? add_accepted<true>(net, raw, cells_of(std::as_const(rs.Sig2), rs.IsoISidx(i), selection), rejected)
                : add_accepted<false>(net, raw, {}, rejected);
        if (rs.nData(i) == 0 || (rs.BlkMean(i).is_empty() && rs.ModeData != 0)) continue;
        rs.AvCps(i) = quotient(sums.net, rs.nData(i));
        rs.AvRawCps(i) = quotient(sums.raw, rs.nData(i));
        // A slice whose standard has no signal adds nothing but is counted.
        rs.AccRatio(i) = quotient(sums.ratio, rs.nData(i));
    }
}

void mean_and_median(RunState& rs, const Interval& selection) {
    std::vector<double> work;
    Table1<double> sums(MaxIso);  // of each standard, once it was wanted
    Table1<bool> summed(MaxIso);
    rs.nIsoCalc = rs.nIso;
    for (int i = 1; i <= rs.nIso; ++i) {
        if (is_omitted(rs, i)) {
            rs.nIsoCalc -= 1;
            rs.ConcMean(i) = Mark::dashes;
            rs.ConcMedian(i) = Mark::dashes;
            continue;
        }
        if (!rs.StdConc(i).is_empty() && !rs.StdCps(i).is_empty())
            scale_by_standard(rs, i, rs.AccRatio(i), rs.ConcMean(i));
        if (rs.ConcMean(i) == Cell(0.0)) rs.ConcMean(i) = 1.0E-05;

        // The median is one of cps: rejection leaves it alone, and it is scaled by the plain mean of the standard.
        const double median = selected_median(cells_of(std::as_const(rs.Sig2), i, selection), rs.SelN.val(), work);
        const int standard = rs.IsoISidx(i);
        if (!summed(standard)) {
            sums(standard) = sum_of(cells_of(std::as_const(rs.Sig2), standard, selection));
            summed(standard) = true;
        }
        const double mean_of_standard = quotient(sums(standard), rs.SelN.val());
        scale_by_standard(rs, i, quotient(median, mean_of_standard), rs.ConcMedian(i));
    }
}

void spread_of_accepted(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const auto net = cells_of(std::as_const(rs.Sig2), i, selection);
        const auto rejected = cells_of(std::as_const(rs.Rej), i, selection);
        const double mean = rs.AvCps(i).number();
        // A rejected datum adds nothing at all: the sum is the same to the last bit as one that passes over it.
        add_up(rs.BlkSpikes, net.size(), [=](std::size_t t) {
            const double away = net[t] - mean;
            return rejected[t] == 1 ? 0.0 : away * away;
        });
        rs.AccCpsSD(i) = root(quotient(rs.BlkSpikes, rs.nData(i) - 1));
        rs.AccCpsSE(i) = quotient(rs.AccCpsSD(i), root(rs.nData(i)));
    }
}

}  // namespace concentration

void ComputeConcentrations(RunState& rs, Platform& os) {
    Running running(rs, "ComputeConcentrations");
    const Interval selection = interval_of(rs.SelLow, rs.SelUpp);
    guarded(
        [&] {
            using namespace concentration;
            average_accepted(rs, selection);
            if (rs.ModeData == 0) {
                spread_of_accepted(rs, selection);
                return;
            }
            mean_and_median(rs, selection);
            concentration_of_slices(rs, selection);
            spread(rs, selection);
            error_of_slices(rs, selection);
            detection_limits(rs);
            correlation(rs, selection);
        },
        [&](const Fault&) {
            os.warn(
                "Error occurred while calculating the results."
                " Probably there are too much extreme numbers in the selected blank, or the data set does not contain"
                " all internal standards.",
                "KOLVAR");
        });
}

}  // namespace kolvar
