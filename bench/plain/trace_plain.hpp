// Blank, interval statistics and concentrations as plainly as they can be told: cell by cell through the tables of the
// run state, every sum in the common cell. No faults are expected here. Beside it the fast ones must give the same
// bits.
#pragma once

#include <cmath>
#include <vector>

#include "core/numbers.hpp"
#include "core/run_state.hpp"
#include "median_plain.hpp"

namespace kolvar::plain {

inline double squared(double number) { return number * number; }
inline double not_zero(double number) { return number == 0 ? 0.0001 : number; }

inline void compute_blank(RunState& rs) {
    const int low = rs.BlkLow.val();
    const int upp = rs.BlkUpp.val();
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.BlkSpikes = 0;
        for (int t = low; t <= upp; ++t) rs.BlkSpikes += rs.Sig(i, t);
        rs.BlkMean(i) = not_zero(rs.BlkSpikes / rs.BlkN);
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.BlkSpikes = 0;
        for (int t = low; t <= upp; ++t) rs.BlkSpikes += squared(rs.BlkMean(i).number() - rs.Sig(i, t));
        rs.BlkSD(i) = not_zero(std::sqrt(rs.BlkSpikes / (rs.BlkN - 1)));
    }
    rs.BlkSpikes = 0;
    for (int i = 1; i <= rs.nIso; ++i)
        for (int t = low; t <= upp; ++t)
            if (std::abs(rs.Sig(i, t) - rs.BlkMean(i).number()) > 3 * rs.BlkSD(i).number()) rs.BlkSpikes += 1;
}

inline void extreme_places(const Table2<double>& table, int i, int first, int last, double high, int& low_place,
                           int& high_place) {
    double low = 1.0E15;
    for (int t = first; t <= last; ++t) {
        if (table(i, t) < low) {
            low = table(i, t);
            low_place = t;
        }
        if (table(i, t) > high) {
            high = table(i, t);
            high_place = t;
        }
    }
}

inline void compute_selection_statistics(RunState& rs) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    const int n = rs.SelN.val();
    rs.BlkSpikes = 0;
    for (int i = 1; i <= rs.nIso; ++i) {
        for (int t = 2; t <= rs.nSlices; ++t) {
            if (rs.ModeData == 1 && !rs.BlkMean(i).is_empty()) rs.Sig2(i, t) = rs.Sig(i, t) - rs.BlkMean(i).number();
            if (rs.ModeCreateSTM == 1) rs.Sig2(i, t) = rs.Sig(i, t) - rs.BlkMean(i).val();
            if (rs.ModeCreateBLK == 1) rs.Sig2(i, t) = rs.Sig(i, t);
        }
        rs.BlkSpikes = 0;
        for (int t = low; t <= upp; ++t) rs.BlkSpikes += rs.Sig2(i, t);
        rs.CpsMean(i) = rs.BlkSpikes / n;
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        const bool blank = !rs.BlkMean(i).is_empty();
        if (blank || rs.ModeData == 0) {
            rs.BlkSpikes = 0;
            for (int t = low; t <= upp; ++t) rs.BlkSpikes += squared(rs.Sig2(i, t) - rs.CpsMean(i));
            rs.CpsSD(i) = not_zero(std::sqrt(rs.BlkSpikes / (n - 1)));
        }
        if (!blank) rs.CpsSD(i) = Mark::dashes;
    }
    for (int i = 1; i <= rs.nIso; ++i)
        if (!rs.BlkMean(i).is_empty() || rs.ModeData == 0)
            extreme_places(rs.Sig2, i, low, upp, -1.0E15, rs.CpsMinPos(i), rs.CpsMaxPos(i));
    if (rs.ModeData == 0) return;
    for (int i = 1; i <= rs.nIso; ++i) {
        const int standard = rs.IsoISidx(i);
        rs.BlkSpikes = 0;
        for (int t = low; t <= upp; ++t) {
            if (rs.BlkMean(i).is_empty() || !(rs.Sig2(standard, t) > 0)) continue;
            rs.Ratio(i, t) = rs.Sig2(i, t) / rs.Sig2(standard, t);
            rs.BlkSpikes += rs.Ratio(i, t);
        }
        rs.RatioMean(i) = rs.BlkSpikes / n;
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.BlkSpikes = 0;
        for (int t = low; t <= upp; ++t) rs.BlkSpikes += squared(rs.Ratio(i, t) - rs.RatioMean(i));
        rs.RatioSD(i) = not_zero(std::sqrt(rs.BlkSpikes / (n - 1)));
    }
    for (int i = 1; i <= rs.nIso; ++i) extreme_places(rs.Ratio, i, low, upp, 0, rs.RatioMinPos(i), rs.RatioMaxPos(i));
}

inline void means(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const int standard = rs.IsoISidx(i);
        double a = 0, b = 0, c = 0;
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
            if (rs.Rej(i, t) == 1) continue;
            a += rs.Sig2(i, t);
            b += rs.Sig(i, t);
            if (rs.ModeData == 1 && rs.Sig2(standard, t) > 0) c += rs.Sig2(i, t) / rs.Sig2(standard, t);
        }
        if (rs.nData(i) == 0 || (rs.BlkMean(i).is_empty() && rs.ModeData != 0)) continue;
        rs.AvCps(i) = a / rs.nData(i);
        rs.AvRawCps(i) = b / rs.nData(i);
        rs.AccRatio(i) = c / rs.nData(i);
    }
}

inline void mean_and_median(RunState& rs) {
    rs.nIsoCalc = rs.nIso;
    for (int i = 1; i <= rs.nIso; ++i) {
        if (rs.IsoOmit(i) == 1) {
            rs.nIsoCalc -= 1;
            rs.ConcMean(i) = rs.ConcMedian(i) = Cell(Mark::dashes);
            continue;
        }
        const int s = rs.IsoISidx(i);
        const double by_reference = rs.StdConc(i).number() / rs.StdCps(i).number();
        rs.ConcMean(i) = rs.AccRatio(i) * by_reference;
        rs.ConcMean(i) = rs.ConcMean(i).number() * (rs.IsoISconc(i) * rs.StdCps(s).number()) / rs.StdConc(s).number();
        if (rs.ConcMean(i).number() == 0) rs.ConcMean(i) = 1.0E-05;
        std::vector<double> selected;
        double sum = 0;
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
            selected.push_back(rs.Sig2(i, t));
            sum += rs.Sig2(s, t);
        }
        rs.ConcMedian(i) = selected_median(selected) / (sum / rs.SelN.val()) * by_reference;
        rs.ConcMedian(i) =
            rs.ConcMedian(i).number() * (rs.IsoISconc(i) * rs.StdCps(s).number()) / rs.StdConc(s).number();
    }
}

inline void slices_and_spread(RunState& rs) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    for (int i = 1; i <= rs.nIso; ++i) {
        const int s = rs.IsoISidx(i);
        for (int t = low; t <= upp; ++t) {
            if (rs.IsoOmit(i) == 1) {
                rs.ConcT(i, t) = Mark::dashes;
            } else if (rs.Rej(i, t) == 1 || !(rs.Sig2(s, t) > 0)) {
                rs.ConcT(i, t) = Mark::xx;
            } else {
                rs.ConcT(i, t) = rs.Sig2(i, t) * (rs.StdConc(i).number() / rs.StdCps(i).number());
                rs.ConcT(i, t) = rs.ConcT(i, t).number() * (rs.IsoISconc(i) * rs.StdCps(s).number()) /
                                 (rs.Sig2(s, t) * rs.StdConc(s).number());
            }
        }
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        if (rs.IsoOmit(i) == 1) {
            rs.ConcSD(i) = rs.ConcSE(i) = rs.RelErr(i) = Cell(Mark::dashes);
            continue;
        }
        rs.BlkSpikes = 0;
        for (int t = low; t <= upp; ++t)
            if (rs.Rej(i, t) != 1 && rs.ConcT(i, t).above(0))
                rs.BlkSpikes += squared(rs.ConcT(i, t).number() - rs.ConcMean(i).number());
        rs.ConcSD(i) = std::sqrt(rs.BlkSpikes / (rs.nData(i) - 1));
        rs.ConcSE(i) = rs.ConcSD(i).number() / std::sqrt(rs.nData(i));
        rs.RelErr(i) = std::floor(100 * rs.ConcSD(i).number() / rs.ConcMean(i).number() + 0.5);
    }
    rs.ConcSD(rs.IS1col.val()) = rs.IS1err.val();
}

inline void slice_errors(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const int s = rs.IsoISidx(i);
        const double dwell = rs.Dwell(i).number();
        if (rs.IsoOmit(i) != 1) {
            rs.e6 = squared(rs.StdConcErr(s).number() / rs.StdConc(s).number());
            rs.e7 = squared(rs.IsoISerr(i) / rs.IsoISconc(i));
            if (dwell > 0) {
                rs.e3 = 1 / (rs.StdCps(i).number() * dwell);
                rs.e4 = 1 / (rs.StdCps(s).number() * dwell);
                rs.e5 = squared(rs.StdConcErr(i).number() / rs.StdConc(i).number());
            }
        }
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
            if (rs.IsoOmit(i) == 1) {
                rs.ErrT(i, t) = Mark::dashes;
            } else if (!rs.ConcT(i, t).above(0) || rs.Rej(i, t) == 1) {
                rs.ErrT(i, t) = Mark::xx;
            } else {
                if (rs.Sig2(s, t) > 0 && rs.Sig2(i, t) != 0) {
                    rs.e1 = 1 / (rs.Sig2(i, t) * dwell);
                    rs.e2 = 1 / (rs.Sig2(s, t) * dwell);
                }
                const double sum = rs.e1 + rs.e2 + rs.e3 + rs.e4 + rs.e5 + rs.e6 + rs.e7;
                rs.ErrT(i, t) = rs.ConcT(i, t).number() * std::sqrt(std::abs(sum));
            }
        }
    }
}

inline void limits_and_correlation(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.LoD(i) = "---";
        if (rs.IsoOmit(i) == 1) continue;
        const double blank = rs.BlkMean(i).number();
        rs.LoD(i) = rs.StdConc(i).number() * (3 * rs.BlkSD(i).number() + blank) / (rs.StdCps(i).number() - blank);
        if (rs.LoD(i).number() > 0.001) rs.LoD(i) = Format(rs.LoD(i).number(), "0.000");
        if (rs.LoD(i).number() > 0.0001) rs.LoD(i) = Format(rs.LoD(i).number(), "0.0000");
        if (rs.LoD(i).number() > 0.00001) rs.LoD(i) = Format(rs.LoD(i).number(), "0.00000");
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        double Sx = 0, Sy = 0, Sxx = 0, Syy = 0, Sxy = 0;
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
            const double x = rs.Sig2(i, t);
            const double y = rs.Sig2(rs.IsoISidx(i), t);
            if (rs.Rej(i, t) == 1 || !(x > 0) || !(y > 0)) continue;
            Sx += x;
            Sy += y;
            Sxx += x * x;
            Syy += y * y;
            Sxy += x * y;
        }
        const double n = rs.nData(i);
        if (n > 2 && n * Sxx - Sx * Sx > 0 && n * Syy - Sy * Sy > 0) {
            const double r = (n * Sxy - Sx * Sy) / std::sqrt((n * Sxx - Sx * Sx) * (n * Syy - Sy * Sy));
            rs.R2IsoIS(i) = Val(Format(r * r * (r / std::abs(r)), "0.00"));
        }
    }
}

inline void compute_concentrations(RunState& rs) {
    means(rs);
    if (rs.ModeData == 0) {
        for (int i = 1; i <= rs.nIso; ++i) {
            rs.BlkSpikes = 0;
            for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t)
                if (rs.Rej(i, t) != 1) rs.BlkSpikes += squared(rs.Sig2(i, t) - rs.AvCps(i).number());
            rs.AccCpsSD(i) = std::sqrt(rs.BlkSpikes / (rs.nData(i) - 1));
            rs.AccCpsSE(i) = rs.AccCpsSD(i) / std::sqrt(rs.nData(i));
        }
        return;
    }
    mean_and_median(rs);
    slices_and_spread(rs);
    slice_errors(rs);
    limits_and_correlation(rs);
}

}  // namespace kolvar::plain
