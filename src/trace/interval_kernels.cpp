#include "trace/interval_kernels.hpp"

#include <algorithm>

namespace kolvar {

Interval interval_of(const Limit& low, const Limit& upp) {
    const Interval interval{low.val(), upp.val()};
    if (!interval.is_empty() && (interval.first < 0 || interval.last > MaxSlices)) fail(FaultKind::index);
    return interval;
}

double sum_of(std::span<const double> cells) {
    double sum = 0.0;
    for (const double cell : cells) sum += cell;
    return finite(sum);
}

int count_beyond(std::span<const double> cells, double mean, double limit) {
    int count = 0;
    for (const double cell : cells) count += std::abs(cell - mean) > limit ? 1 : 0;
    return count;
}

Extremes extremes_of(std::span<const double> cells, double floor) {
    double low = 1.0E15;
    double high = floor;
    // The extreme itself first, which needs no branches; its first place then.
    for (const double cell : cells) {
        low = cell < low ? cell : low;
        high = cell > high ? cell : high;
    }
    const auto place = [&](double extreme) {
        return static_cast<int>(std::find(cells.begin(), cells.end(), extreme) - cells.begin());
    };
    Extremes extremes;
    if (low < 1.0E15) extremes.low = place(low);
    if (high > floor) extremes.high = place(high);
    return extremes;
}

void subtract_blank(std::span<const double> raw, double blank, std::span<double> net) {
    // A blank below half a unit in the last place of the largest number can't carry a cell beyond it.
    constexpr double harmless = 1.0E291;
    if (std::abs(blank) < harmless) {
        for (std::size_t t = 0; t < raw.size(); ++t) net[t] = raw[t] - blank;
    } else {
        for (std::size_t t = 0; t < raw.size(); ++t) net[t] = finite(raw[t] - blank);
    }
}

void ratios_to_standard(std::span<const double> cells, std::span<const double> standard, std::span<double> ratio,
                        double& sum) {
    double added = 0.0;
    sum = 0.0;
    for (std::size_t t = 0; t < cells.size(); ++t) {
        if (!(standard[t] > 0.0)) continue;
        const double quotient = cells[t] / standard[t];
        const double next = added + quotient;
        if (!std::isfinite(next)) {
            sum = added;
            ratio[t] = finite(quotient);
            finite(next);
        }
        ratio[t] = quotient;
        added = next;
    }
    sum = added;
}

}  // namespace kolvar
