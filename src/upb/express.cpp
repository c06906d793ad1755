#include "upb/express.hpp"

#include <array>
#include <cmath>

#include "core/numbers.hpp"
#include "upb/outliers.hpp"
#include "upb/ratio_fields.hpp"
#include "upb/regression.hpp"
#include "upb/scatter_plot.hpp"

namespace kolvar {

namespace {

constexpr double floor_cps = 0.01;  // a net signal is never 0, so that no ratio divides by it

void subtract_blank(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) {
        const double blank = rs.BlkMean(i).number();
        const auto raw = rs.Sig.column(i);
        const auto net = rs.Sig2.column(i);
        for (std::size_t t = 1; t <= static_cast<std::size_t>(rs.nSlices); ++t) {
            const double cps = raw[t] - blank;
            net[t] = cps <= 0 ? floor_cps : cps;
        }
    }
}

// From the end of the blank on; the slices before keep their measured signal.
void calculate_u235(RunState& rs) {
    for (int t = rs.BlkUpp.val(); t <= rs.nSlices; ++t)
        rs.Sig2(rs.ColU235, t) = quotient(rs.Sig2(rs.ColU238, t), rs.UU8_5.val());
}

// Takes the Hg of the gas off the raw Pb204, the same for every slice of the file. The blank of Pb204 itself is not
// subtracted: it is the Hg.
void correct_pb204(RunState& rs, Label& warning) {
    for (int t = rs.BlkUpp.val(); t <= rs.nSlices; ++t) {
        rs.Sig204Net(t) = rs.Sig2(rs.ColPb204, t);
        if (const auto hg = hg204_of_blank(rs)) rs.Sig2(rs.ColPb204, t) = rs.Sig(rs.ColPb204, t) - *hg;
    }
    double sum = 0;
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) sum += rs.Sig2(rs.ColPb204, t);
    // Only its sign counts; the mean itself is taken anew below.
    rs.CpsMean(rs.ColPb204) = quotient(sum, rs.nSlices);
    if (rs.CpsMean(rs.ColPb204) < 0) warning.visible = true;
}

// The mean divides by all selected slices, also by those whose outliers are rejected, and the standard deviation counts
// them all.
void signal_statistics(RunState& rs) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    for (int i = 1; i <= rs.nIso; ++i) {
        double sum = 0;
        for (int t = low; t <= upp; ++t)
            if (counted(rs, t)) sum += rs.Sig2(i, t);
        rs.CpsMean(i) = quotient(sum, rs.SelN.val());
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        double sum = 0;
        for (int t = low; t <= upp; ++t) {
            const double off = rs.Sig2(i, t) - rs.CpsMean(i);
            sum += off * off;
        }
        const double sd = root(quotient(sum, rs.SelN.val() - 1));
        rs.CpsSD(i) = sd == 0 ? 0.0001 : sd;
    }
}

void ratios_of_slices(RunState& rs) {
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t)
        for (const RatioFields& ratio : ratio_fields())
            if (ratio.measured(rs))
                (rs.*ratio.slices)(t) = quotient(rs.Sig2(rs.*ratio.numerator, t), rs.Sig2(rs.*ratio.denominator, t));
}

double ratio_85(const RunState& rs, int t) { return quotient(rs.Sig2(rs.ColU238, t), rs.Sig2(rs.ColU235, t)); }

// The sum over the slices that count.
template <class Term>
double sum_counted(const RunState& rs, Term&& term) {
    double sum = 0;
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t)
        if (counted(rs, t)) sum += term(t);
    return sum;
}

// A ratio that isn't measured takes part too, with what an earlier file left; its results are not shown.
void means(RunState& rs) {
    for (const RatioFields& ratio : ratio_fields())
        rs.*ratio.mean = quotient(sum_counted(rs, [&](int t) { return (rs.*ratio.slices)(t); }), rs.SelNGood);
    const double sum = rs.ColU235 != 0 ? sum_counted(rs, [&](int t) { return ratio_85(rs, t); }) : 0.0;
    rs.Mean85 = quotient(sum, rs.SelNGood);
}

// Over the whole selection, rejected slices too.
void extremes(const RunState& rs, const Table1<double>& ratio, Value& highest, Value& lowest) {
    double maximum = 0;
    double minimum = 1000000000;
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
        if (ratio(t) > maximum) maximum = ratio(t);
        if (ratio(t) < minimum) minimum = ratio(t);
    }
    highest = maximum;
    lowest = minimum;
}

void standard_deviations(RunState& rs) {
    const auto sd = [&](auto&& value, double mean) {
        const double sum = sum_counted(rs, [&](int t) {
            const double off = value(t) - mean;
            return off * off;
        });
        return root(quotient(sum, rs.SelNGood - 1));
    };
    for (const RatioFields& ratio : ratio_fields())
        rs.*ratio.sd = sd([&](int t) { return (rs.*ratio.slices)(t); }, rs.*ratio.mean);
    rs.SD85 = rs.ColU235 != 0 ? sd([&](int t) { return ratio_85(rs, t); }, rs.Mean85) : 0.0;
}

void errors(RunState& rs) {
    for (const RatioFields& ratio : ratio_fields())
        if (ratio.measured(rs)) rs.*ratio.error = shown_error(rs, rs.*ratio.sd, rs.*ratio.mean, rs.*ratio.error);
    if (rs.ColU235 != 0) rs.Err85 = shown_error(rs, rs.SD85, rs.Mean85, rs.Err85);
}

std::string with_error(double value, double error) {
    return Format(value, "0.000") + "  \xC2\xB1 " + Format(error, "0.000");
}

void show_ratios(const RunState& rs, Frm2UP& form) {
    for (int k = 0; k < ratio_count; ++k) {
        const RatioFields& ratio = ratio_fields()[static_cast<std::size_t>(k)];
        if (!ratio.measured(rs)) continue;
        const Frm2UP::RatioRow row = form.ratio_row(k);
        row.mean.text = with_error(rs.*ratio.mean, rs.*ratio.error);
        row.median.text = Format(rs.*ratio.median, "0.000");
    }
    if (rs.ColU235 != 0) form.lbl8_5.text = with_error(rs.Mean85, rs.Err85);
}

double skewness_of(const RunState& rs, const RatioFields& ratio) {
    const double mean = rs.*ratio.mean;
    const double cubes = sum_counted(rs, [&](int t) {
        const double off = (rs.*ratio.slices)(t)-mean;
        return off * off * off;
    });
    return skewness(cubes, rs.SelNGood, rs.*ratio.sd);
}

// All are known before one is shown: where a ratio is constant none of the labels changes.
void show_skewness(const RunState& rs, Frm2UP& form) {
    std::array<std::string, ratio_count> texts;
    for (std::size_t k = 0; k < texts.size(); ++k)
        if (ratio_fields()[k].measured(rs)) texts[k] = Format(skewness_of(rs, ratio_fields()[k]), "0.0");
    for (int k = 0; k < ratio_count; ++k)
        if (ratio_fields()[static_cast<std::size_t>(k)].measured(rs))
            form.ratio_row(k).skewness.text = texts[static_cast<std::size_t>(k)];
}

struct SignalLabels {
    int column;
    Label &mean, &margin;
    bool shown;  // the column takes part
};

// Mean signals and how many times they stand above the detection limit of the blank.
void show_signals(const RunState& rs, Frm2UP& form) {
    const auto optional = [](int column) { return column != 0; };
    const bool hg = rs.Method != 1 || rs.HgMass != 0;
    const std::array<SignalLabels, 8> signals{{
        {rs.ColU238, form.lbl238, form.lbl238LoD, true},
        {rs.ColU235, form.lbl235, form.lbl235LoD, optional(rs.ColU235)},
        {rs.ColTh232, form.lbl232, form.lbl232LoD, optional(rs.ColTh232)},
        {rs.ColPb208, form.lbl208, form.lbl208LoD, true},
        {rs.ColPb207, form.lbl207, form.lbl207LoD, true},
        {rs.ColPb206, form.lbl206, form.lbl206LoD, true},
        {rs.ColPb204, form.lbl204, form.lbl204LoD, optional(rs.ColPb204)},
        {rs.ColHg, form.lblAver(8), form.lbl20xLoD, hg},
    }};
    // Of an analyte that was not measured and is not called missing, as on the FLEX path, nothing is shown.
    for (const SignalLabels& signal : signals) {
        const std::string cps = signal.column == 0 ? "" : Format(rs.CpsMean(signal.column), "###,###,###");
        signal.mean.text = signal.shown ? cps : "n. d.";
    }
    for (const SignalLabels& signal : signals) {
        if (!signal.shown) continue;
        if (signal.column == 0) {
            signal.margin.text.clear();
            continue;
        }
        const double limit = rs.BlkMean(signal.column).number() + 3 * rs.BlkSD(signal.column).number();
        const std::string margin = decimal(round_half_even(quotient(rs.CpsMean(signal.column), limit)));
        signal.margin.text = Val(margin) > 100 ? ">100" : margin;
    }
}

// Observed scatter of a ratio over that of counting statistics.
std::string poisson_text(const RunState& rs, int a, const Value& dwell_a, int b, const Value& dwell_b) {
    const double rel_a = quotient(rs.CpsSD(a).number(), rs.CpsMean(a));
    const double rel_b = quotient(rs.CpsSD(b).number(), rs.CpsMean(b));
    const double observed = root(rel_a * rel_a + rel_b * rel_b);
    const double counted_a = quotient(1, dwell_a.val() * rs.CpsMean(a));
    const double counted_b = quotient(1, dwell_b.val() * rs.CpsMean(b));
    return Format(quotient(observed, root(std::fabs(counted_a + counted_b))), "0.0") + " x";
}

void show_poisson(const RunState& rs, Frm2UP& form) {
    form.lblExPo68.text = poisson_text(rs, rs.ColU238, rs.dweU238, rs.ColPb206, rs.dwePb206);
    if (rs.ColU235 != 0) form.lblExPo75.text = poisson_text(rs, rs.ColU235, rs.dweU235, rs.ColPb207, rs.dwePb207);
    if (rs.ColTh232 != 0) {
        form.lblExPo82.text = poisson_text(rs, rs.ColTh232, rs.dweTh232, rs.ColPb208, rs.dwePb208);
        form.lblExPo382.text = poisson_text(rs, rs.ColTh232, rs.dweTh232, rs.ColU238, rs.dweU238);
    }
    form.lblExPo76.text = poisson_text(rs, rs.ColPb206, rs.dwePb206, rs.ColPb207, rs.dwePb207);
}

// Red where the 207/235 age is too low, blue where it is too high. Between the steps lie small gaps, in which the
// colour stays as it was.
std::optional<Colour> concordance_colour(double x) {
    if (x < 0.85) return rgb(255, 0, 0);
    if (x <= 0.89999) return rgb(255, 128, 128);
    if (x >= 0.9 && x <= 0.94999) return rgb(255, 192, 192);
    if (x >= 0.95 && x <= 1.04999) return rgb(255, 255, 255);
    if (x >= 1.05 && x <= 1.09999) return rgb(192, 192, 255);
    if (x >= 1.10001 && x <= 1.14999) return rgb(128, 128, 255);
    if (x > 1.15) return rgb(0, 0, 255);
    return std::nullopt;
}

// Ages always rest on the means, whatever the results are based on.
void show_ages(RunState& rs, Frm2UP& form) {
    rs.Age68 = quotient(1, rs.Lambda238) * logarithm(1 + rs.Mean68);
    rs.Age75 = quotient(1, rs.Lambda235) * logarithm(1 + rs.Mean75);
    form.lblAge06_38.text = decimal(round_half_even(rs.Age68 / 1000000));
    form.lblAge07_35.text = decimal(round_half_even(rs.Age75 / 1000000));
    if (rs.ColU235 != 0) form.lblConcord1.text = decimal(round_half_even(quotient(rs.Age68, rs.Age75), 2));
    if (const auto colour = concordance_colour(quotient(rs.Age75, rs.Age68))) form.lblConcord1.back = *colour;
}

bool intervals_long_enough(Context& context) {
    const RunState& rs = context.rs;
    if (rs.BlkUpp.val() - rs.BlkLow.val() < 1) {
        context.os.warn(
            "The selected blank interval is too short. Select longer blank interval or confirm the former selection by "
            "SHIFT + left and right mouse clicks, please.");
        return false;
    }
    if (rs.SelUpp.val() - rs.SelLow.val() < 1) {
        context.os.warn(
            "The selected time interval is too short. Select longer interval or confirm the former selection by left "
            "and right mouse clicks, please.");
        return false;
    }
    return true;
}

}  // namespace

double skewness(double cubes, double n, double sd) { return quotient(n * cubes, (n - 1) * (n - 2) * (sd * sd * sd)); }

std::optional<double> hg204_of_blank(const RunState& rs) {
    const std::array<const Value*, 5> ratios{&rs.Hg8_4, &rs.Hg9_4, &rs.Hg0_4, &rs.Hg1_4, &rs.Hg2_4};
    if (rs.HgMass < 198 || rs.HgMass > 202) return std::nullopt;
    const Value& ratio = *ratios[static_cast<std::size_t>(rs.HgMass - 198)];
    return quotient(rs.BlkMean(rs.ColHg).number(), ratio.val());
}

std::string hg_name(const RunState& rs) {
    return rs.HgMass >= 198 && rs.HgMass <= 202 ? "Hg" + std::to_string(rs.HgMass) : "Hg";
}

void ReCalc_UP(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "ReCalc_UP");
    Frm2UP& form = context.forms.frm2_UP;
    form.lblHgCorrNegative.visible = false;
    subtract_blank(rs);
    if (rs.Method == 1 && rs.set235_Calc.val() == 1) calculate_u235(rs);
    if (rs.Method == 1 && form.chkHgCorr.on()) correct_pb204(rs, context.forms.frm2_Time.lblHgCorrNegative);
    signal_statistics(rs);
}

void calc_express_UP(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "calc_express_UP");
    if (!intervals_long_enough(context)) return;
    ReCalc_UP(context);
    ratios_of_slices(rs);
    means(rs);
    median_UP(rs);
    extremes(rs, rs.Rat68, rs.Max68, rs.Min68);
    extremes(rs, rs.Rat75, rs.Max75, rs.Min75);
    extremes(rs, rs.Rat76, rs.Max76, rs.Min76);
    standard_deviations(rs);
    errors(rs);
    if (!rs.ZizzRunning) {
        Frm2UP& form = context.forms.frm2_UP;
        show_ratios(rs, form);
        show_skewness(rs, form);
        show_signals(rs, form);
        offer_rejection(form);
        form.cmdCopyHead.enabled = form.cmdCopy.enabled = form.cmdApp.enabled = true;
        if (rs.Method == 1) form.cmdCopySel.enabled = true;
        show_poisson(rs, form);
        show_ages(rs, form);
    }
    if (!rs.ZizzRunning || rs.AcceptBest) draw_XY(context);
}

}  // namespace kolvar
