// Sums, extremes and spikes of one interval of a column: spans and numbers in, a number or a small struct out.
#pragma once

#include <cmath>
#include <cstddef>
#include <span>

#include "core/fault.hpp"
#include "core/numbers.hpp"
#include "core/tables.hpp"
#include "core/value.hpp"

namespace kolvar {

// Slices first..last, both included; empty when last lies before first.
struct Interval {
    int first = 0, last = -1;

    [[nodiscard]] int count() const { return last < first ? 0 : last - first + 1; }
    [[nodiscard]] bool is_empty() const { return last < first; }
};

// An unmarked limit reads as 0, and slice 0 can be read. Fault(index) when a slice of it lies beyond the tables.
Interval interval_of(const Limit& low, const Limit& upp);

// The cells of an interval in a column; empty for an empty interval.
template <class T>
std::span<T> cells_of(Table2<T>& table, int column, const Interval& interval) {
    if (interval.is_empty()) return {};
    return table.column(column).subspan(static_cast<std::size_t>(interval.first),
                                        static_cast<std::size_t>(interval.count()));
}
template <class T>
std::span<const T> cells_of(const Table2<T>& table, int column, const Interval& interval) {
    if (interval.is_empty()) return {};
    return table.column(column).subspan(static_cast<std::size_t>(interval.first),
                                        static_cast<std::size_t>(interval.count()));
}

// Adds term(0)..term(n - 1) in this order; `cell` holds the sum, and at Fault(overflow) what was added before.
template <class Term>
void add_up_checked(double& cell, std::size_t n, Term term) {
    cell = 0.0;
    for (std::size_t t = 0; t < n; ++t) cell = finite(cell + term(t));
}

// The same to the last bit; checked once, at the end.
template <class Term>
void add_up(double& cell, std::size_t n, Term term) {
    double sum = 0.0;
    for (std::size_t t = 0; t < n; ++t) sum += term(t);
    if (std::isfinite(sum))
        cell = sum;
    else
        add_up_checked(cell, n, term);
}

// The same for columns 1..columns, one after the other: cell = the sum of term_of(i), then finish(i). Four columns are
// added side by side, because the additions of one column wait for each other; the order within a column stays.
// term_of must not throw: it is asked before the columns ahead of it are finished.
template <class TermOf, class Finish>
void add_up_columns(double& cell, int columns, std::size_t n, TermOf term_of, Finish finish) {
    const auto settle = [&](int column, double sum, const auto& term) {
        if (std::isfinite(sum))
            cell = sum;
        else
            add_up_checked(cell, n, term);
        finish(column);
    };
    int i = 1;
    for (; i + 3 <= columns; i += 4) {
        const auto term1 = term_of(i), term2 = term_of(i + 1), term3 = term_of(i + 2), term4 = term_of(i + 3);
        double sum1 = 0.0, sum2 = 0.0, sum3 = 0.0, sum4 = 0.0;
        for (std::size_t t = 0; t < n; ++t) {
            sum1 += term1(t);
            sum2 += term2(t);
            sum3 += term3(t);
            sum4 += term4(t);
        }
        settle(i, sum1, term1);
        settle(i + 1, sum2, term2);
        settle(i + 2, sum3, term3);
        settle(i + 3, sum4, term4);
    }
    for (; i <= columns; ++i) {
        add_up(cell, n, term_of(i));
        finish(i);
    }
}

// The sum in the order of the cells; Fault(overflow).
double sum_of(std::span<const double> cells);

// How many cells lie farther from the mean than the limit; one at the limit does not.
int count_beyond(std::span<const double> cells, double mean, double limit);

// Places of the smallest and the largest cell, counted from 0; -1 = none below 1E15, none above `floor`. The first of
// equal cells wins.
struct Extremes {
    int low = -1, high = -1;
};
Extremes extremes_of(std::span<const double> cells, double floor);

// net = raw less the blank; Fault(overflow), what was written before stays.
void subtract_blank(std::span<const double> raw, double blank, std::span<double> net);

// Writes ratio = cells / standard wherever the standard is above 0; other cells of ratio stay and add nothing.
// `sum` holds the sum of the written ratios, also when Fault(overflow) ends it.
void ratios_to_standard(std::span<const double> cells, std::span<const double> standard, std::span<double> ratio,
                        double& sum);

}  // namespace kolvar
