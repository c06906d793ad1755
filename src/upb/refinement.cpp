#include "upb/refinement.hpp"

#include <algorithm>
#include <cmath>

#include "core/numbers.hpp"
#include "upb/express.hpp"
#include "upb/normal_distribution.hpp"
#include "upb/ratio_fields.hpp"
#include "upb/sorted_slices.hpp"

namespace kolvar {

namespace {

double skewness_of_selection(const RunState& rs, const RatioFields& ratio) {
    double cubes = 0;
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
        const double off = (rs.*ratio.slices)(t)-rs.*ratio.mean;
        cubes += off * off * off;
    }
    return skewness(cubes, rs.SelNGood, rs.*ratio.sd);
}

void measure_skewness(RunState& rs) {
    const auto& ratios = ratio_fields();
    const double lead_uranium = skewness_of_selection(rs, ratios[0]);
    const double lead_uranium235 = skewness_of_selection(rs, ratios[1]);
    const double lead_lead = skewness_of_selection(rs, ratios[4]);
    rs.ZizzVal1 = lead_uranium;
    rs.ZizzVal2 = rs.setBzzPlot.val() == 1 ? lead_lead : lead_uranium235;
}

double squared_distances(const RunState& rs, const Table1<double>& probability) {
    const int low = rs.SelLow.val();
    double sum = 0;
    for (int t = low; t <= rs.SelUpp.val(); ++t) {
        const double off = quotient(t - low + 1, rs.SelN.val()) - probability(t);
        sum += off * off;
    }
    return sum;
}

void measure_distances(RunState& rs) {
    const double plot = rs.setBzzPlot.val();
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    sort_slices(rs, rs.Rat68, rs.Sorted1, false);
    // For another diagram, which a default file may name, what the first sort has left is sorted: sentinels.
    sort_slices(rs, plot == 0 ? rs.Rat75 : plot == 1 ? rs.Rat76 : rs.MedianWork, rs.Sorted2, false);
    const auto z68 = [&](int t) { return quotient(rs.Sorted1(t) - rs.Mean68, rs.SD68); };
    for (int t = low; t <= upp; ++t) rs.NormP1(t) = normal_share_below(z68(t), rs.Sorted1(t) > rs.Mean68);
    if (plot == 0) {
        // Without U235 the deviation of 206/238 in the same place stands in for that of 207/235.
        for (int t = low; t <= upp; ++t) {
            const double z = rs.ColU235 != 0 ? quotient(rs.Sorted2(t) - rs.Mean75, rs.SD75) : z68(t);
            rs.NormP2(t) = normal_share_below(z, rs.Sorted2(t) > rs.Mean75);
        }
    }
    // In the diagram of 207/206 a single entry is made, the one behind the selection. All others are those of earlier
    // passes and files, and the measure counts them.
    const int behind = std::max(low, upp + 1);
    if (plot == 1 && behind <= MaxSlices) {
        const double z = quotient(rs.Sorted2(behind) - rs.Mean76, rs.SD76);
        rs.NormP2(behind) = normal_share_below(z, rs.Sorted2(behind) > rs.Mean76);
    }
    rs.ZizzVal1 = squared_distances(rs, rs.NormP1);
    rs.ZizzVal2 = squared_distances(rs, rs.NormP2);
}

double gain(double reference, double measure) {
    return quotient(std::fabs(reference) - std::fabs(measure), std::fabs(reference));
}

void show_limit(Label& proposal, const Limit& limit, double left, double top) {
    proposal.text = limit.text();
    proposal.visible = true;
    proposal.move_to(left, top);
}

// Both limits are told only where they differ from those that the scan began with.
void propose(const RunState& rs, Frm2UP& form, const std::string& gain_text) {
    form.lblBestLow.visible = form.lblBestUpp.visible = false;
    form.lblBest68.text = Format(rs.ZizzVal1, "0.0000");
    form.lblBest75.text = Format(rs.ZizzVal2, "0.0000");
    if (rs.SelLow != rs.BestLow)
        show_limit(form.lblBestLow, rs.SelLow, form.lblLow.left - form.lblBestLow.width, form.lblLow.top);
    if (rs.SelUpp != rs.BestUpp)
        show_limit(form.lblBestUpp, rs.SelUpp, form.lblUpp.left + form.lblUpp.width, form.lblUpp.top);
    form.lblImprove.text = gain_text + " %";
    explain_refinement(rs, form);
}

void keep_smaller(Label& smallest, double measure) {
    if (std::fabs(measure) < std::fabs(Val(smallest.text))) smallest.text = Format(measure, "0.0000");
}

}  // namespace

void measure_selection(RunState& rs) {
    const double method = rs.setBzzMethod.val();
    if (method == 1) measure_skewness(rs);
    if (method == 0) measure_distances(rs);
}

void explain_refinement(const RunState& rs, Frm2UP& form) {
    form.lblExplain.text = rs.setBzzMethod.val() == 1 ? "reduction of skewness" : "reduction of residual error";
    form.lblExplain.visible = true;
}

void weigh_measures(Context& context) {
    RunState& rs = context.rs;
    Frm2UP& form = context.forms.frm2_UP;
    if (!rs.ZizzRunning) {
        form.lblRMS68.text = Format(rs.ZizzVal1, "0.0000");
        form.lblRMS75.text = Format(rs.ZizzVal2, "0.0000");
        rs.ZizzRef1 = rs.ZizzVal1;
        rs.ZizzRef2 = rs.ZizzVal2;
        return;
    }
    rs.ZizzGain1 = gain(rs.ZizzRef1, rs.ZizzVal1);
    rs.ZizzGain2 = gain(rs.ZizzRef2, rs.ZizzVal2);
    const double sum = rs.ZizzGain1 + rs.ZizzGain2;
    // Both must gain, and more than any pair before. A gain that rounds to nothing is none.
    if (rs.ZizzGain1 > 0 && rs.ZizzGain2 > 0 && sum > rs.ZizzBest) {
        const std::string gain_text = Format(-sum * 100 / 2, "0");
        if (gain_text != "0") {
            rs.ZizzBest = sum;
            propose(rs, form, gain_text);
        }
    }
    keep_smaller(form.lblZizzMin1, rs.ZizzVal1);
    keep_smaller(form.lblZizzMin2, rs.ZizzVal2);
}

void ZiZi_Test(Context& context) {
    const Running running(context.rs, "ZiZi_Test");
    measure_selection(context.rs);
    weigh_measures(context);
}

}  // namespace kolvar
