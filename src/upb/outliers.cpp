#include "upb/outliers.hpp"

#include <cmath>
#include <optional>

#include "core/numbers.hpp"
#include "upb/ratio_fields.hpp"

namespace kolvar {

namespace {

bool is_outlier(const RunState& rs, const RatioFields& ratio, int t, double times) {
    const double value = (rs.*ratio.slices)(t);
    const double based_on = rs.setAver.val();
    if (based_on == 0) return std::fabs(rs.*ratio.mean - value) > times * (rs.*ratio.sd);
    if (based_on == 1) {
        const double line = rs.*ratio.intercept + t * (rs.*ratio.slope);
        return std::fabs(value - line) > times * (rs.*ratio.residual_sd);
    }
    return false;
}

}  // namespace

std::vector<Outlier> Out_Liers(RunState& rs, Frm2UP& form) {
    const Running running(rs, "Out_Liers");
    if (rs.SelNGood < rs.SelN.val()) return {};
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    for (int t = low; t <= upp; ++t) rs.RejFlag(t) = 0;
    rs.SelNGood = rs.SelN.val();
    if (!form.chkShowSD.on()) return {};

    std::optional<double> times;  // read when the first ratio is tested
    std::vector<Outlier> found;
    for (int t = low; t <= upp; ++t) {
        for (int k = 0; k < ratio_count; ++k) {
            const RatioFields& ratio = ratio_fields()[static_cast<std::size_t>(k)];
            if (!form.ratio_row(k).box.on() || (rs.*ratio.tested).val() != 1) continue;
            if (!times) times = Val(form.txtSD.text);
            if (!is_outlier(rs, ratio, t, *times)) continue;
            rs.RejFlag(t) += 1;
            found.push_back({k, t});
        }
    }
    rs.OutlierN = 0;
    for (int t = low; t <= upp; ++t)
        if (rs.RejFlag(t) > 0) ++rs.OutlierN;
    form.lblOM.text = std::to_string(rs.OutlierN) + " / " + rs.SelN.text();
    if (rs.RejectOn) {
        rs.SelNGood = rs.SelN.val() - rs.OutlierN;
    } else {
        for (int t = low; t <= upp; ++t) rs.RejFlag(t) = 0;
    }
    return found;
}

void offer_rejection(Frm2UP& form) {
    if (!form.cmdReject.visible) {
        form.chkShowSD.visible = form.txtSD.visible = true;
        form.lblReject.visible = form.lblOM.visible = form.chkShowSD.on();
    }
    form.cmdReject.enabled = form.cmdReject.visible = true;
}

void emphasise_rejection(Frm2UP& form, bool rejected) {
    const std::optional<Colour> colour = rejected ? std::optional<Colour>(palette(4)) : std::nullopt;
    form.lblReject.fore = form.lblOM.fore = colour;
}

void restore_rejected(RunState& rs, Frm2UP& form) {
    form.cmdReject.text = "Reject outliers";
    form.lblReject.text = "No. of outliers:";
    emphasise_rejection(form, false);
    rs.RejectOn = false;
    rs.SelNGood = rs.SelN.val();
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) rs.RejFlag(t) = 0;
}

}  // namespace kolvar
