// Concentration and error of each slice, and the spread of the concentrations.
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/fault.hpp"
#include "core/numbers.hpp"
#include "trace/concentration_stages.hpp"

namespace kolvar::concentration {
namespace {

double squared(double number) { return finite(number * number); }

// The four factors of a slice's concentration that don't change from slice to slice.
struct Scale {
    double by_reference = 0;  // ppm per cps in the standard measurement
    double by_standard = 0;   // concentration of the internal standard times its cps in the standard measurement
    double of_reference = 0;  // concentration of the internal standard in the standard
};

// One slice step by step: what a fault leaves in the cell is the step before.
void concentration_checked(double cell, double standard, const Scale& scale, Cell& out) {
    out = finite(cell * scale.by_reference);
    out = quotient(finite(out.number() * scale.by_standard), finite(standard * scale.of_reference));
}

void concentrations_of_column(std::span<const double> cells, std::span<const double> standard,
                              std::span<const std::uint8_t> rejected, const Scale& scale, std::span<Cell> out) {
    for (std::size_t t = 0; t < cells.size(); ++t) {
        if (rejected[t] == 1 || !(standard[t] > 0.0)) {
            out[t] = Mark::xx;
            continue;
        }
        const double divisor = standard[t] * scale.of_reference;
        const double concentration = cells[t] * scale.by_reference * scale.by_standard / divisor;
        if (std::isfinite(concentration) && std::isfinite(divisor))
            out[t] = concentration;
        else
            concentration_checked(cells[t], standard[t], scale, out[t]);
    }
}

// Terms that hold for all slices of a column. Without a dwell time those of the column before stay in force.
void column_terms(RunState& rs, int i) {
    const int standard = rs.IsoISidx(i);
    rs.e6 = squared(quotient(rs.StdConcErr(standard).number(), rs.StdConc(standard).number()));
    rs.e7 = squared(quotient(rs.IsoISerr(i), rs.IsoISconc(i)));
    if (!rs.Dwell(i).above(0.0)) return;
    const double dwell = rs.Dwell(i).number();
    rs.e3 = quotient(1.0, finite(rs.StdCps(i).number() * dwell));
    // The dwell time of the isotope, not that of its standard, counts here and in e2.
    rs.e4 = quotient(1.0, finite(rs.StdCps(standard).number() * dwell));
    rs.e5 = squared(quotient(rs.StdConcErr(i).number(), rs.StdConc(i).number()));
}

// Hands the terms to a column and takes them back, whatever ends it: they survive from one calculation to the next.
class LentTerms {
public:
    explicit LentTerms(RunState& rs) : terms{rs.e1, rs.e2, rs.e3, rs.e4, rs.e5, rs.e6, rs.e7}, rs_(rs) {}
    ~LentTerms() {
        rs_.e1 = terms.e1;
        rs_.e2 = terms.e2;
    }
    LentTerms(const LentTerms&) = delete;
    LentTerms& operator=(const LentTerms&) = delete;
    ErrorTerms terms;

private:
    RunState& rs_;
};

}  // namespace

void concentration_of_slices(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const auto out = cells_of(rs.ConcT, i, selection);
        if (is_omitted(rs, i)) {
            for (Cell& cell : out) cell = Mark::dashes;
            continue;
        }
        const int standard = rs.IsoISidx(i);
        const Scale scale{quotient(rs.StdConc(i).number(), rs.StdCps(i).number()),
                          finite(rs.IsoISconc(i) * rs.StdCps(standard).number()), rs.StdConc(standard).number()};
        concentrations_of_column(cells_of(std::as_const(rs.Sig2), i, selection),
                                 cells_of(std::as_const(rs.Sig2), standard, selection),
                                 cells_of(std::as_const(rs.Rej), i, selection), scale, out);
    }
}

void spread(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        if (is_omitted(rs, i)) {
            rs.ConcSD(i) = rs.ConcSE(i) = rs.RelErr(i) = Cell(Mark::dashes);
            continue;
        }
        const auto slices = cells_of(std::as_const(rs.ConcT), i, selection);
        const auto rejected = cells_of(std::as_const(rs.Rej), i, selection);
        // A mean that was never calculated belongs to slices that are 0, of which none is compared with it.
        const double mean = rs.ConcMean(i).val();
        // A slice without positive concentration leaves the sum and stays in the divisor.
        add_up(rs.BlkSpikes, slices.size(), [=](std::size_t t) {
            const double away = slices[t].held - mean;
            return slices[t].above(0.0) && rejected[t] != 1 ? away * away : 0.0;
        });
        rs.ConcSD(i) = root(quotient(rs.BlkSpikes, rs.nData(i) - 1));
        if (rs.ConcMean(i).is_dashes()) continue;
        rs.ConcSE(i) = quotient(rs.ConcSD(i).number(), root(rs.nData(i)));
        rs.RelErr(i) = round_half_up(quotient(finite(100 * rs.ConcSD(i).number()), rs.ConcMean(i).number()));
    }
    // The first internal standard shows the error that was stated for it; its s.e. and relative error stay as computed.
    rs.ConcSD(rs.IS1col.val()) = rs.IS1err.val();
}

void slice_errors(std::span<const double> cells, std::span<const double> standard,
                  std::span<const std::uint8_t> rejected, std::span<const Cell> concentration, double dwell,
                  ErrorTerms& terms, std::span<Cell> error) {
    const double e3 = terms.e3, e4 = terms.e4, e5 = terms.e5, e6 = terms.e6, e7 = terms.e7;
    const auto checked = [&](std::size_t t) {
        if (standard[t] > 0.0 && cells[t] != 0.0) {
            terms.e1 = quotient(1.0, finite(cells[t] * dwell));
            terms.e2 = quotient(1.0, finite(standard[t] * dwell));
        }
        // Negative count rates can make the sum negative.
        const double sum = terms.e1 + terms.e2 + e3 + e4 + e5 + e6 + e7;
        error[t] = finite(concentration[t].held * root(std::abs(sum)));
    };
    // A stretch of slices at a time is calculated without looking, because divisions and roots of neighbours can run
    // side by side; then each slice takes what holds for it, step by step where that is no plain number.
    constexpr std::size_t stretch = 128;
    std::array<double, stretch> e1, e2, product;
    for (std::size_t begin = 0; begin < cells.size(); begin += stretch) {
        const std::size_t count = std::min(stretch, cells.size() - begin);
        for (std::size_t k = 0; k < count; ++k) {
            e1[k] = 1.0 / (cells[begin + k] * dwell);
            e2[k] = 1.0 / (standard[begin + k] * dwell);
        }
        for (std::size_t k = 0; k < count; ++k)
            product[k] = concentration[begin + k].held * std::sqrt(std::abs(e1[k] + e2[k] + e3 + e4 + e5 + e6 + e7));
        for (std::size_t k = 0; k < count; ++k) {
            const std::size_t t = begin + k;
            if (!concentration[t].above(0.0) || rejected[t] == 1) {
                error[t] = Mark::xx;
            } else if (standard[t] > 0.0 && cells[t] != 0.0 && e1[k] != 0.0 && e2[k] != 0.0 &&
                       std::isfinite(product[k])) {
                terms.e1 = e1[k];
                terms.e2 = e2[k];
                error[t] = product[k];
            } else {
                checked(t);
            }
        }
    }
}

void error_of_slices(RunState& rs, const Interval& selection) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const auto out = cells_of(rs.ErrT, i, selection);
        if (is_omitted(rs, i)) {
            for (Cell& cell : out) cell = Mark::dashes;
            continue;
        }
        column_terms(rs, i);
        LentTerms lent(rs);
        slice_errors(cells_of(std::as_const(rs.Sig2), i, selection),
                     cells_of(std::as_const(rs.Sig2), rs.IsoISidx(i), selection),
                     cells_of(std::as_const(rs.Rej), i, selection), cells_of(std::as_const(rs.ConcT), i, selection),
                     rs.Dwell(i).number(), lent.terms, out);
    }
}

}  // namespace kolvar::concentration
