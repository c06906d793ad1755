// The calculations of the ratio screen as plainly as they can be told: pass by pass over the selection, the median by
// repeated selection, the outliers with their limit read anew for each ratio of each slice. Beside it the quick ones
// must give the same bits and labels.
#pragma once

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "core/numbers.hpp"
#include "ui/context.hpp"
#include "upb/outliers.hpp"
#include "upb/scatter_plot.hpp"

namespace kolvar::plain {

// A ratio with its results and its labels.
struct Ratio {
    bool measured;
    Table1<double>& slices;
    double &mean, &median, &sd, &error;
    double &slope, &intercept, &correlation, &tzero, &residual_sd, &tzero_error;
    const Value& tested;
    const CheckBox& box;
    Label &mean_text, &median_text, &skewness_text, &slope_text, &correlation_text, &tzero_text;
};

inline std::array<Ratio, 5> ratios(RunState& rs, Frm2UP& f) {
    const bool u235 = rs.ColU235 != 0;
    const bool th232 = rs.ColTh232 != 0;
    return {{
        {true,      rs.Rat68,    rs.Mean68,  rs.Med68,   rs.SD68,    rs.Err68,    rs.Slope68,
         rs.Icpt68, rs.Corr68,   rs.Tz68,    rs.ResSD68, rs.TzErr68, rs.setOL_68, f.chk68,
         f.lbl6_8,  f.lblMed6_8, f.lblSkew1, f.lblLR1b,  f.lblLR1r,  f.lblTz6_8},
        {u235,      rs.Rat75,    rs.Mean75,  rs.Med75,   rs.SD75,    rs.Err75,    rs.Slope75,
         rs.Icpt75, rs.Corr75,   rs.Tz75,    rs.ResSD75, rs.TzErr75, rs.setOL_75, f.chk75,
         f.lbl7_5,  f.lblMed7_5, f.lblSkew2, f.lblLR2b,  f.lblLR2r,  f.lblTz7_5},
        {th232,     rs.Rat82,    rs.Mean82,  rs.Med82,   rs.SD82,    rs.Err82,     rs.Slope82,
         rs.Icpt82, rs.Corr82,   rs.Tz82,    rs.ResSD82, rs.TzErr82, rs.setOL_082, f.chk82,
         f.lbl8_2,  f.lblMed8_2, f.lblSkew3, f.lblLR3b,  f.lblLR3r,  f.lblTz8_2},
        {th232,      rs.Rat382,    rs.Mean382, rs.Med382,   rs.SD382,    rs.Err382,    rs.Slope382,
         rs.Icpt382, rs.Corr382,   rs.Tz382,   rs.ResSD382, rs.TzErr382, rs.setOL_382, f.chkUTh,
         f.lbl38_2,  f.lblMed38_2, f.lblSkew4, f.lblLR4b,   f.lblLR4r,   f.lblTz38_2},
        {true,      rs.Rat76,    rs.Mean76,  rs.Med76,   rs.SD76,    rs.Err76,    rs.Slope76,
         rs.Icpt76, rs.Corr76,   rs.Tz76,    rs.ResSD76, rs.TzErr76, rs.setOL_76, f.chk76,
         f.lbl7_6,  f.lblMed7_6, f.lblSkew5, f.lblLR5b,  f.lblLR5r,  f.lblTz7_6},
    }};
}

inline double total(const RunState& rs, int slice) {
    double sum = 0;
    if (slice > MaxSlices) return sum;
    for (int i = 3; i <= rs.nIso; ++i) sum += rs.Sig(i, slice);
    return sum;
}

inline void search_beam_start(RunState& rs) {
    const int low = rs.BlkLow.val();
    const int upp = rs.BlkUpp.val();
    if (upp == low) return;
    double sum = 0;
    for (int t = low; t <= upp; ++t) sum += total(rs, t);
    const double threshold = quotient(sum, upp - low);
    for (int t = upp; t <= rs.nSlices - 5; ++t) {
        bool all_above = true;
        for (int k = 0; k < 10; ++k)
            if (!(total(rs, t + k) > threshold)) all_above = false;
        if (all_above && rs.BeamStart < 1) rs.BeamStart = t;
    }
}

inline void net_signal(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    form.lblHgCorrNegative.visible = false;
    for (int i = 1; i <= rs.nIso; ++i) {
        for (int t = 1; t <= rs.nSlices; ++t) {
            rs.Sig2(i, t) = rs.Sig(i, t) - rs.BlkMean(i).number();
            if (rs.Sig2(i, t) <= 0) rs.Sig2(i, t) = 0.01;
        }
    }
    if (rs.Method == 1 && rs.set235_Calc.val() == 1)
        for (int t = rs.BlkUpp.val(); t <= rs.nSlices; ++t)
            rs.Sig2(rs.ColU235, t) = quotient(rs.Sig2(rs.ColU238, t), rs.UU8_5.val());
    if (form.chkHgCorr.on() && rs.Method == 1) {
        const int lead = rs.ColPb204;
        for (int t = rs.BlkUpp.val(); t <= rs.nSlices; ++t) {
            rs.Sig204Net(t) = rs.Sig2(lead, t);
            const auto corrected = [&](const Value& k) {
                return rs.Sig(lead, t) - quotient(rs.BlkMean(rs.ColHg).number(), k.val());
            };
            if (rs.HgMass == 198) rs.Sig2(lead, t) = corrected(rs.Hg8_4);
            if (rs.HgMass == 199) rs.Sig2(lead, t) = corrected(rs.Hg9_4);
            if (rs.HgMass == 200) rs.Sig2(lead, t) = corrected(rs.Hg0_4);
            if (rs.HgMass == 201) rs.Sig2(lead, t) = corrected(rs.Hg1_4);
            if (rs.HgMass == 202) rs.Sig2(lead, t) = corrected(rs.Hg2_4);
        }
        double sum = 0;
        for (int t = low; t <= upp; ++t) sum += rs.Sig2(lead, t);
        rs.CpsMean(lead) = quotient(sum, rs.nSlices);
        if (rs.CpsMean(lead) < 0) context.forms.frm2_Time.lblHgCorrNegative.visible = true;
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        double sum = 0;
        for (int t = low; t <= upp; ++t)
            if (rs.RejFlag(t) < 1) sum += rs.Sig2(i, t);
        rs.CpsMean(i) = quotient(sum, rs.SelN.val());
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        double sum = 0;
        for (int t = low; t <= upp; ++t) sum += (rs.Sig2(i, t) - rs.CpsMean(i)) * (rs.Sig2(i, t) - rs.CpsMean(i));
        rs.CpsSD(i) = root(quotient(sum, rs.SelN.val() - 1));
        if (rs.CpsSD(i).number() == 0) rs.CpsSD(i) = 0.0001;
    }
}

inline void medians(RunState& rs, std::array<Ratio, 5>& all) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    for (Ratio& ratio : all) {
        for (int t = low; t <= upp; ++t) rs.MedianWork(t) = ratio.slices(t);
        for (int i = low; i <= upp; ++i) {
            if (rs.RejFlag(i) == 1) continue;
            rs.MedianSorted(i) = 1000000000;
            int found = 0;
            for (int j = low; j <= upp; ++j) {
                if (rs.MedianWork(j) < rs.MedianSorted(i)) {
                    rs.MedianSorted(i) = rs.MedianWork(j);
                    found = j;
                }
            }
            if (found != 0) rs.MedianWork(found) = 1000000000;
        }
        const int half = rs.SelN.val() / 2;
        if (rs.SelN.val() == 2 * half)
            ratio.median = (rs.MedianSorted(low + half - 1) + rs.MedianSorted(low + half)) / 2;
        else
            ratio.median = rs.MedianSorted(low + half);
    }
}

inline void transform_error(const RunState& rs, double s, double m, double& error) {
    const double k = rs.setErr_times.val();
    const double n = rs.SelNGood;
    if (rs.setErr.val() == 0) error = k * s;
    if (rs.setErr.val() == 1) error = k * (quotient(s, m) * 100);
    if (rs.setErr.val() == 2) error = quotient(k * s, root(n - 1));
    if (rs.setErr.val() == 3) error = quotient(k * (quotient(s, m) * 100), root(n - 1));
}

inline void show_signal(const RunState& rs, int column, bool shown, Label& cps) {
    cps.text = shown ? Format(rs.CpsMean(column), "###,###,###") : "n. d.";
}

inline void show_margin(const RunState& rs, int column, Label& margin) {
    margin.text.clear();  // of an isotope that has no column
    if (column == 0) return;
    const double limit = rs.BlkMean(column).number() + 3 * rs.BlkSD(column).number();
    margin.text = decimal(round_half_even(quotient(rs.CpsMean(column), limit)));
    if (Val(margin.text) > 100) margin.text = ">100";
}

inline void show_scatter(const RunState& rs, int a, const Value& da, int b, const Value& db, Label& label) {
    const double ra = quotient(rs.CpsSD(a).number(), rs.CpsMean(a));
    const double rb = quotient(rs.CpsSD(b).number(), rs.CpsMean(b));
    const double rel = root(ra * ra + rb * rb);
    const double counting =
        root(std::fabs(quotient(1, da.val() * rs.CpsMean(a)) + quotient(1, db.val() * rs.CpsMean(b))));
    label.text = Format(quotient(rel, counting), "0.0") + " x";
}

inline void show_all(Context& context, std::array<Ratio, 5>& all) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    const bool u235 = rs.ColU235 != 0;
    const bool th232 = rs.ColTh232 != 0;
    const auto with_error = [](double value, double error) {
        return Format(value, "0.000") + "  \xC2\xB1 " + Format(error, "0.000");
    };
    for (Ratio& ratio : all) {
        if (!ratio.measured) continue;
        ratio.mean_text.text = with_error(ratio.mean, ratio.error);
        ratio.median_text.text = Format(ratio.median, "0.000");
    }
    if (u235) form.lbl8_5.text = with_error(rs.Mean85, rs.Err85);

    const double n = rs.SelNGood;
    std::array<double, 5> skewness{};
    for (std::size_t k = 0; k < all.size(); ++k) {
        double sum = 0;
        for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
            const double off = all[k].slices(t) - all[k].mean;
            if (rs.RejFlag(t) < 1) sum += off * off * off;
        }
        if (!all[k].measured) continue;
        skewness[k] = quotient(n * sum, (n - 1) * (n - 2) * (all[k].sd * all[k].sd * all[k].sd));
    }
    for (std::size_t k = 0; k < all.size(); ++k)
        if (all[k].measured) all[k].skewness_text.text = Format(skewness[k], "0.0");

    const bool hg = !(rs.Method == 1 && rs.HgMass == 0);
    show_signal(rs, rs.ColU238, true, form.lbl238);
    show_signal(rs, rs.ColU235, u235, form.lbl235);
    show_signal(rs, rs.ColTh232, th232, form.lbl232);
    show_signal(rs, rs.ColPb208, true, form.lbl208);
    show_signal(rs, rs.ColPb207, true, form.lbl207);
    show_signal(rs, rs.ColPb206, true, form.lbl206);
    show_signal(rs, rs.ColPb204, rs.ColPb204 != 0, form.lbl204);
    show_signal(rs, rs.ColHg, hg, form.lblAver(8));
    show_margin(rs, rs.ColU238, form.lbl238LoD);
    if (u235) show_margin(rs, rs.ColU235, form.lbl235LoD);
    if (th232) show_margin(rs, rs.ColTh232, form.lbl232LoD);
    show_margin(rs, rs.ColPb208, form.lbl208LoD);
    show_margin(rs, rs.ColPb207, form.lbl207LoD);
    show_margin(rs, rs.ColPb206, form.lbl206LoD);
    if (rs.ColPb204 != 0) show_margin(rs, rs.ColPb204, form.lbl204LoD);
    if (form.lblAver(8).text != "n. d.") show_margin(rs, rs.ColHg, form.lbl20xLoD);

    offer_rejection(form);
    form.cmdCopyHead.enabled = true;
    form.cmdCopy.enabled = true;
    form.cmdApp.enabled = true;
    if (rs.Method == 1) form.cmdCopySel.enabled = true;

    show_scatter(rs, rs.ColU238, rs.dweU238, rs.ColPb206, rs.dwePb206, form.lblExPo68);
    if (u235) show_scatter(rs, rs.ColU235, rs.dweU235, rs.ColPb207, rs.dwePb207, form.lblExPo75);
    if (th232) show_scatter(rs, rs.ColTh232, rs.dweTh232, rs.ColPb208, rs.dwePb208, form.lblExPo82);
    if (th232) show_scatter(rs, rs.ColTh232, rs.dweTh232, rs.ColU238, rs.dweU238, form.lblExPo382);
    show_scatter(rs, rs.ColPb206, rs.dwePb206, rs.ColPb207, rs.dwePb207, form.lblExPo76);

    rs.Age68 = quotient(1, rs.Lambda238) * logarithm(1 + rs.Mean68);
    rs.Age75 = quotient(1, rs.Lambda235) * logarithm(1 + rs.Mean75);
    form.lblAge06_38.text = decimal(round_half_even(rs.Age68 / 1000000));
    form.lblAge07_35.text = decimal(round_half_even(rs.Age75 / 1000000));
    if (u235) form.lblConcord1.text = decimal(round_half_even(quotient(rs.Age68, rs.Age75), 2));
    struct Step {
        double from, to;
        Colour colour;
    };
    const double x = quotient(rs.Age75, rs.Age68);
    for (const Step& step : {Step{0.85, 0.89999, rgb(255, 128, 128)}, Step{0.9, 0.94999, rgb(255, 192, 192)},
                             Step{0.95, 1.04999, rgb(255, 255, 255)}, Step{1.05, 1.09999, rgb(192, 192, 255)},
                             Step{1.10001, 1.14999, rgb(128, 128, 255)}})
        if (x >= step.from && x <= step.to) form.lblConcord1.back = step.colour;
    if (x < 0.85) form.lblConcord1.back = rgb(255, 0, 0);
    if (x > 1.15) form.lblConcord1.back = rgb(0, 0, 255);
}

inline void calculate_ratios(Context& context) {
    RunState& rs = context.rs;
    if (rs.BlkUpp.val() - rs.BlkLow.val() < 1 || rs.SelUpp.val() - rs.SelLow.val() < 1) return context.os.warn("");
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    const int n = rs.SelNGood;
    const bool u235 = rs.ColU235 != 0;
    std::array<Ratio, 5> all = ratios(rs, context.forms.frm2_UP);
    net_signal(context);
    for (int t = low; t <= upp; ++t) {
        rs.Rat68(t) = quotient(rs.Sig2(rs.ColPb206, t), rs.Sig2(rs.ColU238, t));
        if (u235) rs.Rat75(t) = quotient(rs.Sig2(rs.ColPb207, t), rs.Sig2(rs.ColU235, t));
        if (rs.ColTh232 != 0) rs.Rat82(t) = quotient(rs.Sig2(rs.ColPb208, t), rs.Sig2(rs.ColTh232, t));
        if (rs.ColTh232 != 0) rs.Rat382(t) = quotient(rs.Sig2(rs.ColU238, t), rs.Sig2(rs.ColTh232, t));
        rs.Rat76(t) = quotient(rs.Sig2(rs.ColPb207, t), rs.Sig2(rs.ColPb206, t));
    }
    const auto ratio_85 = [&](int t) { return quotient(rs.Sig2(rs.ColU238, t), rs.Sig2(rs.ColU235, t)); };
    for (Ratio& ratio : all) {
        double sum = 0;
        for (int t = low; t <= upp; ++t)
            if (rs.RejFlag(t) < 1) sum += ratio.slices(t);
        ratio.mean = quotient(sum, n);
    }
    double sum85 = 0;
    for (int t = low; t <= upp; ++t)
        if (u235 && rs.RejFlag(t) < 1) sum85 += ratio_85(t);
    rs.Mean85 = quotient(sum85, n);
    medians(rs, all);
    double max68 = 0, max75 = 0, max76 = 0;
    double min68 = 1000000000, min75 = 1000000000, min76 = 1000000000;
    for (int t = low; t <= upp; ++t) {
        if (rs.Rat68(t) > max68) max68 = rs.Rat68(t);
        if (rs.Rat75(t) > max75) max75 = rs.Rat75(t);
        if (rs.Rat76(t) > max76) max76 = rs.Rat76(t);
        if (rs.Rat68(t) < min68) min68 = rs.Rat68(t);
        if (rs.Rat75(t) < min75) min75 = rs.Rat75(t);
        if (rs.Rat76(t) < min76) min76 = rs.Rat76(t);
    }
    rs.Max68 = max68, rs.Max75 = max75, rs.Max76 = max76;
    rs.Min68 = min68, rs.Min75 = min75, rs.Min76 = min76;
    for (Ratio& ratio : all) {
        double sum = 0;
        for (int t = low; t <= upp; ++t)
            if (rs.RejFlag(t) < 1) sum += (ratio.slices(t) - ratio.mean) * (ratio.slices(t) - ratio.mean);
        ratio.sd = root(quotient(sum, n - 1));
    }
    double squares85 = 0;
    for (int t = low; t <= upp; ++t)
        if (u235 && rs.RejFlag(t) < 1) squares85 += (ratio_85(t) - rs.Mean85) * (ratio_85(t) - rs.Mean85);
    rs.SD85 = root(quotient(squares85, n - 1));
    for (Ratio& ratio : all)
        if (ratio.measured) transform_error(rs, ratio.sd, ratio.mean, ratio.error);
    if (u235) transform_error(rs, rs.SD85, rs.Mean85, rs.Err85);
    if (!rs.ZizzRunning) show_all(context, all);
    if (!rs.ZizzRunning || rs.AcceptBest) draw_XY(context);
}

inline void fit_lines(Context& context) {
    RunState& rs = context.rs;
    if (rs.SelN.val() < 3) return;
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    const double n = rs.SelNGood;
    std::array<Ratio, 5> all = ratios(rs, context.forms.frm2_UP);
    for (Ratio& ratio : all) {
        if (!ratio.measured) continue;
        double Sx = 0, Sxx = 0, Sy = 0, Syy = 0, Sxy = 0;
        for (int t = low; t <= upp; ++t) {
            if (!(rs.RejFlag(t) < 1)) continue;
            const double x = t;
            const double y = ratio.slices(t);
            Sx += x;
            Sxx += x * x;
            Sy += y;
            Syy += y * y;
            Sxy += x * y;
        }
        const double b = quotient(n * Sxy - Sy * Sx, n * Sxx - Sx * Sx);
        const double a = quotient(Sy - b * Sx, n);
        ratio.slope = b;
        ratio.intercept = a;
        ratio.correlation = quotient(n * Sxy - Sy * Sx, root((n * Sxx - Sx * Sx) * (n * Syy - Sy * Sy)));
        if (rs.setTzero.val() == 0) ratio.tzero = a + low * b;
        if (rs.setTzero.val() == 1) ratio.tzero = a + rs.BeamStart * b;
        if (rs.setTzero.val() == 2) ratio.tzero = a + (rs.BeamStart + rs.setDelay.val()) * b;
        ratio.slope_text.text = Format(ratio.slope, "0.000");
        ratio.correlation_text.text = Format(ratio.correlation, "0.000");
    }
    for (Ratio& ratio : all) {
        double sum = 0;
        for (int t = low; t <= upp; ++t) {
            const double off = ratio.slices(t) - (ratio.intercept + t * ratio.slope);
            if (rs.RejFlag(t) < 1) sum += off * off;
        }
        ratio.residual_sd = root(quotient(sum, n - 1));
    }
    for (Ratio& ratio : all)
        if (ratio.measured) transform_error(rs, ratio.residual_sd, ratio.tzero, ratio.tzero_error);
    for (Ratio& ratio : all)
        if (ratio.measured)
            ratio.tzero_text.text = Format(ratio.tzero, "0.000") + "  \xC2\xB1 " + Format(ratio.tzero_error, "0.000");
}

inline std::vector<Outlier> find_outliers(RunState& rs, Frm2UP& form) {
    if (rs.SelNGood < rs.SelN.val()) return {};
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    for (int t = low; t <= upp; ++t) rs.RejFlag(t) = 0;
    rs.SelNGood = rs.SelN.val();
    if (!form.chkShowSD.on()) return {};
    const std::array<Ratio, 5> all = ratios(rs, form);
    std::vector<Outlier> marks;
    for (int t = low; t <= upp; ++t) {
        for (int k = 0; k < 5; ++k) {
            const Ratio& ratio = all[static_cast<std::size_t>(k)];
            if (!ratio.box.on() || ratio.tested.val() != 1) continue;
            const double times = Val(form.txtSD.text);
            bool outlier = false;
            if (rs.setAver.val() == 0) outlier = std::fabs(ratio.mean - ratio.slices(t)) > times * ratio.sd;
            if (rs.setAver.val() == 1)
                outlier = std::fabs(ratio.slices(t) - (ratio.intercept + t * ratio.slope)) > times * ratio.residual_sd;
            if (!outlier) continue;
            marks.push_back({k, t});
            rs.RejFlag(t) += 1;
        }
    }
    int found = 0;
    for (int t = low; t <= upp; ++t)
        if (rs.RejFlag(t) > 0) ++found;
    rs.OutlierN = found;
    form.lblOM.text = std::to_string(found) + " / " + rs.SelN.text();
    if (rs.RejectOn)
        rs.SelNGood = rs.SelN.val() - found;
    else
        for (int t = low; t <= upp; ++t) rs.RejFlag(t) = 0;
    return marks;
}

// All calculations of a click.
inline std::vector<Outlier> ratio_click(Context& context) {
    if (context.rs.BeamStart == 0) search_beam_start(context.rs);
    calculate_ratios(context);
    fit_lines(context);
    return find_outliers(context.rs, context.forms.frm2_UP);
}

}  // namespace kolvar::plain
