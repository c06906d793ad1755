#include "upb/refinement_scan.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/numbers.hpp"
#include "upb/express.hpp"
#include "upb/normal_distribution.hpp"
#include "upb/ratio_fields.hpp"
#include "upb/refinement.hpp"
#include "upb/sorted_slices.hpp"

namespace kolvar {

namespace {

constexpr int widest_band = 20000;    // its pairs are still counted by an int
constexpr double beyond_sums = 1e15;  // squares of such signals could overflow

// No fault lies ahead in any interval of the band, and no value that the sort passes over.
bool harmless(const RunState& rs, int first, int last) {
    for (int t = first; t <= last; ++t) {
        if (rs.RejFlag(t) != 0) return false;
        for (int i = 1; i <= rs.nIso; ++i)
            if (!(std::fabs(rs.Sig2(i, t)) < beyond_sums)) return false;
        for (const RatioFields& ratio : ratio_fields())
            if (ratio.measured(rs) && !(rs.Sig2(rs.*ratio.denominator, t) > 0)) return false;
    }
    return true;
}

// From Sig2 where the ratio is measured; otherwise what an earlier file left.
std::vector<double> values_of(const RunState& rs, const RatioFields& ratio, int first, int last) {
    std::vector<double> values;
    for (int t = first; t <= last; ++t)
        values.push_back(ratio.measured(rs) ? rs.Sig2(rs.*ratio.numerator, t) / rs.Sig2(rs.*ratio.denominator, t)
                                            : (rs.*ratio.slices)(t));
    return values;
}

bool sortable(const std::vector<double>& values) {
    return std::all_of(values.begin(), values.end(), [](double v) { return v >= 0 && v < sort_sentinel; });
}

// The limits that a scan began with come back when a fault ends it.
class ScanLimits {
public:
    ScanLimits(RunState& rs, Platform& os) : rs_(rs), os_(os) {
        rs.BestLow = rs.SelLow;
        rs.BestUpp = rs.SelUpp;
    }
    ScanLimits(const ScanLimits&) = delete;
    ScanLimits& operator=(const ScanLimits&) = delete;
    ~ScanLimits() {
        os_.progress(1, 1);
        rs_.TrialLimits = ended_;
        if (ended_) return;
        set(rs_.BestLow.val(), rs_.BestUpp.val());
        rs_.ZizzRunning = false;
    }
    void set(int low, int upp) {
        rs_.SelLow = low;
        rs_.SelUpp = upp;
        rs_.SelN = upp - low + 1;
        rs_.SelNGood = upp - low + 1;
    }
    void end() { ended_ = true; }

private:
    RunState& rs_;
    Platform& os_;
    bool ended_ = false;
};

int width_of_band(const RunState& rs, const Frm2UP& form) {
    const double range = Val(form.txtZizzRange.text);
    const bool per_cent = form.comboBzz.value == 0;
    const double steps = per_cent ? std::max(1.0, std::trunc(rs.SelN.val() * range / 100)) : round_half_even(range);
    if (std::fabs(steps) > widest_band) fail(FaultKind::overflow);
    return static_cast<int>(steps);
}

}  // namespace

std::optional<QuickPairs> QuickPairs::of(const RunState& rs, int first, int last, int shortest, bool hg_corrected) {
    QuickPairs pairs;
    pairs.method_ = rs.setBzzMethod.val();
    pairs.plot_ = rs.setBzzPlot.val();
    pairs.u235_ = rs.ColU235 != 0;
    pairs.first_ = first;
    if (pairs.method_ != 0 && pairs.method_ != 1) return std::nullopt;
    if (pairs.plot_ != 0 && pairs.plot_ != 1) return std::nullopt;
    if (shortest < 3 || rs.BlkUpp.val() - rs.BlkLow.val() < 1 || !harmless(rs, first, last)) return std::nullopt;
    for (const RatioFields& ratio : ratio_fields())
        if (!sortable(values_of(rs, ratio, first, last))) return std::nullopt;
    const auto& ratios = ratio_fields();
    pairs.r68_ = ratio_of(values_of(rs, ratios[0], first, last));
    pairs.r75_ = ratio_of(values_of(rs, ratios[1], first, last));
    pairs.r76_ = ratio_of(values_of(rs, ratios[4], first, last));
    if (hg_corrected)
        for (int t = first; t <= last; ++t) pairs.pb204_.push_back(rs.Sig2(rs.ColPb204, t));
    return pairs;
}

QuickPairs::Ratio QuickPairs::ratio_of(const std::vector<double>& values) {
    Ratio ratio;
    ratio.values = values;
    ratio.ascending.resize(values.size());
    std::iota(ratio.ascending.begin(), ratio.ascending.end(), 0);
    std::sort(ratio.ascending.begin(), ratio.ascending.end(),
              [&](int a, int b) { return values[static_cast<std::size_t>(a)] < values[static_cast<std::size_t>(b)]; });
    return ratio;
}

void QuickPairs::begin(int low) {
    low_ = low;
    upp_ = low - 1;
    r68_.sum = r75_.sum = r76_.sum = pb204_sum_ = 0;
}

double QuickPairs::sd_of(const Ratio& ratio, double mean) const {
    double sum = 0;
    for (std::size_t k = low_place(); k <= upp_place(); ++k) {
        const double off = ratio.values[k] - mean;
        sum += off * off;
    }
    return std::sqrt(sum / (upp_ - low_));
}

double QuickPairs::cubes_of(const Ratio& ratio, double mean) const {
    double sum = 0;
    for (std::size_t k = low_place(); k <= upp_place(); ++k) {
        const double off = ratio.values[k] - mean;
        sum += off * off * off;
    }
    return sum;
}

template <class Take>
void QuickPairs::each_ascending(const Ratio& ratio, Take&& take) const {
    const int low = low_ - first_;
    const int upp = upp_ - first_;
    for (const int place : ratio.ascending)
        if (place >= low && place <= upp) take(ratio.values[static_cast<std::size_t>(place)]);
}

std::optional<PairMeasures> QuickPairs::measure(RunState& rs, int upp) {
    while (upp_ < upp) {
        ++upp_;
        for (Ratio* ratio : {&r68_, &r75_, &r76_}) ratio->sum += ratio->values[upp_place()];
        if (!pb204_.empty()) pb204_sum_ += pb204_[upp_place()];
    }
    negative_pb204_ = pb204_sum_ / rs.nSlices < 0;

    const double n = upp_ - low_ + 1;
    struct Moments {
        double mean, sd;
    };
    const auto moments = [&](const Ratio& ratio) {
        const double mean = ratio.sum / n;
        return Moments{mean, sd_of(ratio, mean)};
    };
    const Moments m68 = moments(r68_);
    if (m68.sd == 0) return std::nullopt;
    if (method_ == 1) {
        const Moments m75 = moments(r75_);
        const Moments m76 = moments(r76_);
        if (m75.sd == 0 || m76.sd == 0) return std::nullopt;
        const Ratio& second = plot_ == 1 ? r76_ : r75_;
        const Moments& m = plot_ == 1 ? m76 : m75;
        return PairMeasures{skewness(cubes_of(r68_, m68.mean), n, m68.sd), skewness(cubes_of(second, m.mean), n, m.sd)};
    }

    PairMeasures out;
    double k = 0;
    std::vector<double> z68;  // without U235 they stand in for those of 207/235
    each_ascending(r68_, [&](double value) {
        const double z = (value - m68.mean) / m68.sd;
        const double off = ++k / n - normal_share_below(z, value > m68.mean);
        out.first += off * off;
        if (plot_ == 0 && !u235_) z68.push_back(z);
    });
    k = 0;
    if (plot_ == 0) {
        const Moments m75 = moments(r75_);
        if (u235_ && m75.sd == 0) return std::nullopt;
        each_ascending(r75_, [&](double value) {
            const double z = u235_ ? (value - m75.mean) / m75.sd : z68[static_cast<std::size_t>(k)];
            const double off = ++k / n - normal_share_below(z, value > m75.mean);
            out.second += off * off;
        });
        return out;
    }
    const Moments m76 = moments(r76_);
    if (m76.sd == 0) return std::nullopt;
    if (upp_ < MaxSlices) {
        const double behind = rs.Sorted2(upp_ + 1);
        rs.NormP2(upp_ + 1) = normal_share_below(quotient(behind - m76.mean, m76.sd), behind > m76.mean);
    }
    for (const double share : rs.NormP2.range(low_, upp_)) {
        const double off = ++k / n - share;
        out.second += off * off;
    }
    return out;
}

namespace {

// As ZiZi_Test, after calc_express_UP. False where the pair needs these.
bool test_quickly(Context& context, QuickPairs& pairs) {
    RunState& rs = context.rs;
    const Running running(rs, "ZiZi_Test");
    const std::optional<PairMeasures> measures = pairs.measure(rs, rs.SelUpp.val());
    if (!measures) return false;
    rs.ZizzVal1 = measures->first;
    rs.ZizzVal2 = measures->second;
    context.forms.frm2_UP.lblHgCorrNegative.visible = false;
    if (pairs.negative_pb204()) context.forms.frm2_Time.lblHgCorrNegative.visible = true;
    weigh_measures(context);
    return true;
}

}  // namespace

void ziz_Manager_UP(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "ziz_Manager_UP");
    Frm2UP& form = context.forms.frm2_UP;
    // Of the scan before: the first one is never too wide.
    if (3 * rs.ZizzSteps > rs.SelN.val()) {
        context.os.warn("The time interval is too short for the selected boundary optimaztion!");
        return;
    }
    rs.ZizzBest = rs.ZizzGain1 = rs.ZizzGain2 = 0;
    ZiZi_Test(context);

    ScanLimits limits(rs, context.os);
    rs.ZizzRunning = true;
    rs.AcceptBest = false;
    rs.ZizzBest = 0;
    rs.ZizzMin68 = rs.ZizzMin75 = 0;
    rs.ZizzSteps = width_of_band(rs, form);
    form.lblZizzMin1.text = form.lblZizzMin2.text = "10000000";

    const int steps = rs.ZizzSteps;
    const int across = 2 * steps + 1;
    int done = 0;
    const auto low_of = [&](int offset) { return std::max(1, rs.BestLow.val() + offset); };
    const auto upp_of = [&](int offset) { return std::min(rs.nSlices, rs.BestUpp.val() + offset); };
    const bool hg_corrected = rs.Method == 1 && form.chkHgCorr.on();
    std::optional<QuickPairs> quick;
    for (rs.ZizzDLow = -steps; rs.ZizzDLow <= steps; ++rs.ZizzDLow) {
        const int low = low_of(rs.ZizzDLow);
        if (quick) quick->begin(low);
        for (rs.ZizzDUpp = -steps; rs.ZizzDUpp <= steps; ++rs.ZizzDUpp) {
            limits.set(low, upp_of(rs.ZizzDUpp));
            // The last pair of each lower limit leaves its tables, and with them all that the pairs before left.
            if (!quick || rs.ZizzDUpp == steps || !test_quickly(context, *quick)) {
                calc_express_UP(context);
                ZiZi_Test(context);
            }
            if (!quick && rs.ZizzDLow == -steps && rs.ZizzDUpp == -steps) {
                quick = QuickPairs::of(rs, low, upp_of(steps), upp_of(-steps) - low_of(steps) + 1, hg_corrected);
                if (quick) quick->begin(low);
            }
        }
        // Pairs done of all, painted once for each lower limit: the paint takes longer than a quick pair.
        context.os.progress(done += across, across * across);
    }
    limits.end();
}

}  // namespace kolvar
