// The refinement of the selection as plainly as it can be told: every pair is calculated whole, with sorts by repeated
// selection. Beside it the quick scan must give the same last bit, in results, labels and leftovers.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "core/numbers.hpp"
#include "median_plain.hpp"
#include "ui/context.hpp"
#include "upb/express.hpp"
#include "upb/ratio_fields.hpp"

namespace kolvar::plain {

inline void selection_sort(RunState& rs, const Table1<double>& values, Table1<double>& sorted) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    const std::vector<double> ordered = sorted_by_selection(values.range(low, upp));
    for (int t = low; t <= upp; ++t) sorted(t) = ordered[static_cast<std::size_t>(t - low)];
}

inline double normal_probability(double z) {
    const double u = 1 / (1 + 0.33267 * std::fabs(z));
    const double pdf = std::exp(-z * z / 2) / std::sqrt(6.283186);
    return pdf * (0.4361836 * u - 0.1201676 * (u * u) + 0.937298 * (u * u * u));
}

inline void measure(RunState& rs) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    const double n = rs.SelNGood;
    const double plot = rs.setBzzPlot.val();
    if (rs.setBzzMethod.val() == 1) {
        double sum68 = 0;
        double sum75 = 0;
        double sum76 = 0;
        for (int t = low; t <= upp; ++t) {
            sum68 += (rs.Rat68(t) - rs.Mean68) * (rs.Rat68(t) - rs.Mean68) * (rs.Rat68(t) - rs.Mean68);
            sum75 += (rs.Rat75(t) - rs.Mean75) * (rs.Rat75(t) - rs.Mean75) * (rs.Rat75(t) - rs.Mean75);
            sum76 += (rs.Rat76(t) - rs.Mean76) * (rs.Rat76(t) - rs.Mean76) * (rs.Rat76(t) - rs.Mean76);
        }
        const auto skew = [&](double sum, double sd) { return quotient(n * sum, (n - 1) * (n - 2) * (sd * sd * sd)); };
        const double skew68 = skew(sum68, rs.SD68);
        const double skew75 = skew(sum75, rs.SD75);
        const double skew76 = skew(sum76, rs.SD76);
        rs.ZizzVal1 = skew68;
        rs.ZizzVal2 = plot == 1 ? skew76 : skew75;
    }
    if (rs.setBzzMethod.val() != 0) return;
    selection_sort(rs, rs.Rat68, rs.Sorted1);
    if (plot == 0 || plot == 1) {
        selection_sort(rs, plot == 1 ? rs.Rat76 : rs.Rat75, rs.Sorted2);
    } else {
        for (int k = low; k <= upp; ++k) rs.Sorted2(k) = 1000000000;  // the first sort took every value
    }
    std::vector<double> z(static_cast<std::size_t>(MaxSlices) + 2);
    int t = low;
    for (; t <= upp; ++t) {
        double& z_t = z[static_cast<std::size_t>(t)];
        z_t = quotient(rs.Sorted1(t) - rs.Mean68, rs.SD68);
        const double p = normal_probability(z_t);
        rs.NormP1(t) = rs.Sorted1(t) > rs.Mean68 ? 1 - p : p;
    }
    if (plot == 1) {
        if (t <= MaxSlices) {
            const double p = normal_probability(quotient(rs.Sorted2(t) - rs.Mean76, rs.SD76));
            rs.NormP2(t) = rs.Sorted2(t) > rs.Mean76 ? 1 - p : p;
        }
    }
    if (plot == 0) {
        for (t = low; t <= upp; ++t) {
            double& z_t = z[static_cast<std::size_t>(t)];
            if (rs.ColU235 != 0) z_t = quotient(rs.Sorted2(t) - rs.Mean75, rs.SD75);
            const double p = normal_probability(z_t);
            rs.NormP2(t) = rs.Sorted2(t) > rs.Mean75 ? 1 - p : p;
        }
    }
    rs.ZizzVal1 = 0;
    rs.ZizzVal2 = 0;
    for (t = low; t <= upp; ++t) {
        const double share = quotient((t - low) + 1, rs.SelN.val());
        rs.ZizzVal1 += (share - rs.NormP1(t)) * (share - rs.NormP1(t));
        rs.ZizzVal2 += (share - rs.NormP2(t)) * (share - rs.NormP2(t));
    }
}

inline void test(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    measure(rs);
    if (!rs.ZizzRunning) {
        form.lblRMS68.text = Format(rs.ZizzVal1, "0.0000");
        form.lblRMS75.text = Format(rs.ZizzVal2, "0.0000");
        rs.ZizzRef1 = rs.ZizzVal1;
        rs.ZizzRef2 = rs.ZizzVal2;
        return;
    }
    rs.ZizzGain1 = quotient(std::fabs(rs.ZizzRef1) - std::fabs(rs.ZizzVal1), std::fabs(rs.ZizzRef1));
    rs.ZizzGain2 = quotient(std::fabs(rs.ZizzRef2) - std::fabs(rs.ZizzVal2), std::fabs(rs.ZizzRef2));
    const std::string q = Format(-(rs.ZizzGain1 + rs.ZizzGain2) * 100 / 2, "0");
    if (rs.ZizzGain1 > 0 && rs.ZizzGain2 > 0 && rs.ZizzGain1 + rs.ZizzGain2 > rs.ZizzBest && q != "0") {
        rs.ZizzBest = rs.ZizzGain1 + rs.ZizzGain2;
        form.lblBestLow.visible = form.lblBestUpp.visible = false;
        form.lblBest68.text = Format(rs.ZizzVal1, "0.0000");
        form.lblBest75.text = Format(rs.ZizzVal2, "0.0000");
        if (rs.SelLow.val() != rs.BestLow.val()) {
            form.lblBestLow.text = rs.SelLow.text();
            form.lblBestLow.visible = true;
        }
        if (rs.SelUpp.val() != rs.BestUpp.val()) {
            form.lblBestUpp.text = rs.SelUpp.text();
            form.lblBestUpp.visible = true;
        }
        form.lblImprove.text = q + " %";
        form.lblExplain.visible = true;
        form.lblExplain.text = rs.setBzzMethod.val() == 1 ? "reduction of skewness" : "reduction of residual error";
    }
    if (std::fabs(rs.ZizzVal1) < std::fabs(Val(form.lblZizzMin1.text)))
        form.lblZizzMin1.text = Format(rs.ZizzVal1, "0.0000");
    if (std::fabs(rs.ZizzVal2) < std::fabs(Val(form.lblZizzMin2.text)))
        form.lblZizzMin2.text = Format(rs.ZizzVal2, "0.0000");
}

// `slow_medians`: the medians that calc_express_UP has just found are sorted once more by selection, so that the time
// is that of the plain reading.
inline void scan(Context& context, bool slow_medians = false) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    if (3 * rs.ZizzSteps > rs.SelN.val()) {
        context.os.warn("The time interval is too short for the selected boundary optimaztion!");
        return;
    }
    rs.ZizzBest = rs.ZizzGain1 = rs.ZizzGain2 = 0;
    test(context);
    rs.ZizzRunning = true;
    rs.AcceptBest = false;
    rs.BestLow = rs.SelLow;
    rs.BestUpp = rs.SelUpp;
    rs.ZizzBest = rs.ZizzMin68 = rs.ZizzMin75 = 0;
    rs.ZizzSteps = static_cast<int>(round_half_even(Val(form.txtZizzRange.text)));
    if (form.comboBzz.value == 0) {
        rs.ZizzSteps = static_cast<int>(std::trunc(rs.SelN.val() * Val(form.txtZizzRange.text) / 100));
        if (rs.ZizzSteps < 1) rs.ZizzSteps = 1;
    }
    form.lblZizzMin1.text = form.lblZizzMin2.text = "10000000";
    for (rs.ZizzDLow = -rs.ZizzSteps; rs.ZizzDLow <= rs.ZizzSteps; ++rs.ZizzDLow) {
        int low = rs.BestLow.val() + rs.ZizzDLow;
        if (low < 1) low = 1;
        rs.SelLow = low;
        for (rs.ZizzDUpp = -rs.ZizzSteps; rs.ZizzDUpp <= rs.ZizzSteps; ++rs.ZizzDUpp) {
            int upp = rs.BestUpp.val() + rs.ZizzDUpp;
            if (upp > rs.nSlices) upp = rs.nSlices;
            rs.SelUpp = upp;
            rs.SelN = upp - low + 1;
            rs.SelNGood = upp - low + 1;
            calc_express_UP(context);
            if (slow_medians)
                for (const RatioFields& ratio : ratio_fields()) selection_sort(rs, rs.*ratio.slices, rs.MedianSorted);
            test(context);
        }
    }
}

}  // namespace kolvar::plain
