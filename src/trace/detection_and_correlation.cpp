// Limits of detection, and the correlation of each isotope with its internal standard.
#include <array>
#include <cmath>
#include <utility>

#include "core/fault.hpp"
#include "core/numbers.hpp"
#include "trace/concentration_stages.hpp"

namespace kolvar::concentration {
namespace {

struct PairSums {
    double x = 0, y = 0, xx = 0, yy = 0, xy = 0;
};

// Pairs that are both above 0 and not rejected.
PairSums add_pairs(std::span<const double> xs, std::span<const double> ys, std::span<const std::uint8_t> rejected) {
    PairSums sums;
    for (std::size_t t = 0; t < xs.size(); ++t) {
        const double x = xs[t];
        const double y = ys[t];
        if (rejected[t] == 1 || !(x > 0.0) || !(y > 0.0)) continue;
        sums.x += x;
        sums.y += y;
        sums.xx += x * x;
        sums.yy += y * y;
        sums.xy += x * y;
    }
    for (const double sum : {sums.x, sums.y, sums.xx, sums.yy, sums.xy}) finite(sum);
    return sums;
}

}  // namespace

Value reported_limit(double limit) {
    struct Step {
        double above;
        const char* pattern;
    };
    constexpr std::array<Step, 3> steps = {{{0.001, "0.000"}, {0.0001, "0.0000"}, {0.00001, "0.00000"}}};
    Value reported = limit;
    for (const Step& step : steps)
        if (reported.number() > step.above) reported = Format(reported.number(), step.pattern);
    return reported;
}

void detection_limits(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) {
        if (is_omitted(rs, i)) {
            rs.LoD(i) = "---";
            continue;
        }
        // The blank mean is added to its three s.d., and taken from the standard's cps although they hold no blank.
        const double blank = finite(finite(3 * rs.BlkSD(i).number()) + rs.BlkMean(i).number());
        const double limit =
            quotient(finite(rs.StdConc(i).number() * blank), finite(rs.StdCps(i).number() - rs.BlkMean(i).number()));
        rs.LoD(i) = reported_limit(limit);
    }
}

void correlation(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const PairSums sums = add_pairs(cells_of(std::as_const(rs.Sig2), i, selection),
                                        cells_of(std::as_const(rs.Sig2), rs.IsoISidx(i), selection),
                                        cells_of(std::as_const(rs.Rej), i, selection));
        // The accepted data of the isotope count, not the pairs that were added.
        const double n = rs.nData(i);
        if (!(n > 2)) continue;
        const double spread_x = finite(finite(n * sums.xx) - finite(sums.x * sums.x));
        const double spread_y = finite(finite(n * sums.yy) - finite(sums.y * sums.y));
        if (!(spread_x > 0) || !(spread_y > 0)) continue;
        const double r =
            quotient(finite(finite(n * sums.xy) - finite(sums.x * sums.y)), root(finite(spread_x * spread_y)));
        // Without any correlation there is no sign to keep, and the calculation stops.
        rs.R2IsoIS(i) = finite(r * r) * quotient(r, std::abs(r));
        rs.R2IsoIS(i) = Val(Format(rs.R2IsoIS(i), "0.00"));
    }
}

}  // namespace kolvar::concentration
