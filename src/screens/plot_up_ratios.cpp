// The ratios over time: a band for each, its mean at a fixed height, as many standard deviations high as the bar says.
#include <array>
#include <cmath>
#include <optional>

#include "core/numbers.hpp"
#include "screens/plot_parts.hpp"
#include "screens/plots.hpp"
#include "screens/selection.hpp"
#include "screens/time_window.hpp"
#include "upb/beam_start.hpp"
#include "upb/express.hpp"
#include "upb/outliers.hpp"
#include "upb/ratio_fields.hpp"
#include "upb/regression.hpp"

namespace kolvar {

namespace {

constexpr double mark_radius = 60;  // twips, of an outlier

struct Band {
    double centre;  // fraction of the plot's height
    Colour colour;
    const RatioFields* ratio;
    bool shown;  // ticked and measured
    double mean = 0, spread = 0;
    bool stands = false;  // mean and spread are known
};

class BandPlot {
public:
    BandPlot(RunState& rs, Frm2UP& form) : rs_(rs), area_(plot::lower_area(form)) {
        constexpr std::array<double, ratio_count> centres{0.25, 0.38, 0.5, 0.62, 0.75};
        const std::array<Colour, ratio_count> colours{palette(0), palette(12), palette(10), palette(1), palette(13)};
        for (std::size_t k = 0; k < bands_.size(); ++k) {
            const RatioFields& ratio = ratio_fields()[k];
            const bool shown = form.ratio_row(static_cast<int>(k)).box.on() && ratio.measured(rs);
            bands_[k] = {centres[k], colours[k], &ratio, shown};
        }
    }

    // Mean and spread over the selection, rejected slices too. The spread divides by the length of the selection, also
    // where slices without a signal were left out.
    void find_bands() {
        for (Band& band : bands_) {
            if (!band.ratio->measured(rs_)) continue;
            double sum = 0;
            int count = 0;
            each_ratio(band, [&](double value) { sum += value, ++count; });
            if (count == 0) continue;
            band.mean = sum / count;
            double squares = 0;
            each_ratio(band, [&](double value) { squares += (value - band.mean) * (value - band.mean); });
            band.spread = std::sqrt(squares / (rs_.SelN.val() - 1));
            band.stands = std::isfinite(band.mean) && std::isfinite(band.spread) && band.spread > 0;
        }
    }

    void draw_curves() {
        if (rs_.PlotPool <= 1) return draw_slices(2, rs_.nSlices);
        draw_slices(2, rs_.SelLow.val());
        for (int t = rs_.SelLow.val() + rs_.PlotPool; t <= rs_.SelUpp.val(); t += rs_.PlotPool)
            for (const Band& band : bands_) draw_pooled(band, t);
        draw_slices(std::max(rs_.SelUpp.val(), 2), rs_.nSlices);
    }

    void draw_regression() {
        const double kind = rs_.setTzero.val();
        double start = 0;
        if (kind == 0) start = rs_.SelLow.val();
        if (kind == 1) start = rs_.BeamStart;
        if (kind == 2) start = rs_.BeamStart + rs_.setDelay.val();
        for (const Band& band : bands_) {
            if (!band.shown || !band.stands) continue;
            const auto value = [&](double t) { return rs_.*band.ratio->intercept + t * (rs_.*band.ratio->slope); };
            area_.canvas.SetLineWidth(2);
            area_.canvas.Line(x(start), y(band, value(start)), x(rs_.SelUpp.val()), y(band, value(rs_.SelUpp.val())),
                              band.colour);
            area_.canvas.SetLineWidth(1);
        }
    }

    void draw_outliers(const std::vector<Outlier>& outliers) {
        if (outliers.empty()) return;
        area_.canvas.SetLineWidth(3);
        for (const Outlier& outlier : outliers) {
            const Band& band = bands_[static_cast<std::size_t>(outlier.ratio)];
            if (!band.stands) continue;
            const double value = (rs_.*band.ratio->slices)(outlier.slice);
            area_.canvas.Circle(x(outlier.slice), y(band, value), mark_radius, band.colour);
        }
        area_.canvas.SetLineWidth(1);
    }

private:
    double x(double slice) const { return area_.width * slice / rs_.nSlices; }
    double y(const Band& band, double value) const {
        return band.centre * area_.height - area_.height * (value - band.mean) / (band.spread * rs_.RatioScale);
    }
    double above(const Band& band, int t) const { return rs_.Sig2(rs_.*band.ratio->numerator, t); }
    double below(const Band& band, int t) const { return rs_.Sig2(rs_.*band.ratio->denominator, t); }

    template <class Take>
    void each_ratio(const Band& band, Take&& take) const {
        for (int t = rs_.SelLow.val(); t <= rs_.SelUpp.val(); ++t)
            if (above(band, t) != 0 && below(band, t) != 0) take(above(band, t) / below(band, t));
    }

    bool has_signal(const Band& band, int t) const {
        return above(band, t) > 0 && below(band, t) > 0 && above(band, t - 1) > 0 && below(band, t - 1) > 0;
    }

    void draw_piece(const Band& band, int from, double from_value, int to, double to_value) {
        const double y1 = y(band, from_value);
        const double y2 = y(band, to_value);
        if (std::isfinite(y1) && std::isfinite(y2)) area_.canvas.Line(x(from), y1, x(to), y2, band.colour);
    }

    void draw_slices(int first, int last) {
        for (int t = first; t <= last; ++t)
            for (const Band& band : bands_)
                if (band.shown && band.stands && has_signal(band, t))
                    draw_piece(band, t - 1, above(band, t - 1) / below(band, t - 1), t,
                               above(band, t) / below(band, t));
    }

    // Mean of the ratio over the slices of one point; nothing where one of them has no signal to divide by.
    std::optional<double> pooled(const Band& band, int from) const {
        double sum = 0;
        for (int t = from; t < from + rs_.PlotPool; ++t) {
            if (t > MaxSlices || below(band, t) == 0) return std::nullopt;
            sum += above(band, t) / below(band, t);
        }
        return sum / rs_.PlotPool;
    }

    // A piece between two points. Only the last two slices before its end are asked for a signal.
    void draw_pooled(const Band& band, int t) {
        if (!band.shown || !band.stands || !has_signal(band, t)) return;
        const auto from = pooled(band, t - rs_.PlotPool);
        const auto to = pooled(band, t);
        if (from && to) draw_piece(band, t - rs_.PlotPool, *from, t, *to);
    }

    RunState& rs_;
    plot::Area area_;
    std::array<Band, ratio_count> bands_{};
};

void mark_rejected(const RunState& rs, const plot::Area& area) {
    area.canvas.SetLineWidth(3);
    for (int t = rs.SelLow.val(); t <= rs.SelUpp.val(); ++t) {
        if (rs.RejFlag(t) <= 0) continue;
        const double x = position_of(t, area.width, rs.nSlices);
        area.canvas.Line(x, 0, x, area.height, palette(7));
    }
    area.canvas.SetLineWidth(1);
}

void mark_beam_start(const RunState& rs, Frm2UP& form) {
    const plot::Area area = plot::upper_area(form);
    const double x = position_of(rs.BeamStart, area.width, rs.nSlices);
    plot::show_label(area.canvas, form.lblBeam_St, " signal ON:  " + std::to_string(rs.BeamStart) + " ",
                     form.pict1.left + x, form.pict1.top - form.lblBeam_St.height);
    area.canvas.Line(x, 0, x, area.height, palette(0));
}

}  // namespace

void draw_UPratio(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "draw_UPratio");
    if (rs.PlotOn == 1) return;
    Frm2UP& form = context.forms.frm2_UP;
    const bool limits = all_limits_set(rs);
    std::vector<Outlier> outliers;
    if (limits) {
        if (rs.BeamStart == 0) Search_BeamStart(rs);
        calc_express_UP(context);
        Lin_Regr_UP(context);
        outliers = Out_Liers(rs, form);
    }
    form.pict2.canvas.Clear();
    const plot::Area area = plot::lower_area(form);
    plot::draw_interval_tints(rs, area);
    if (limits && rs.RejectOn) mark_rejected(rs, area);
    if (!limits) return;

    BandPlot bands(rs, form);
    if (rs.SelUpp.val() > rs.BeamStart + 2 && rs.SelN.val() > 3) {
        bands.find_bands();
        bands.draw_curves();
    }
    if (rs.SelN.val() > 3 && rs.SelLow.val() > rs.BeamStart) {
        mark_beam_start(rs, form);
        if (form.chkLinReg.on()) bands.draw_regression();
    }
    bands.draw_outliers(outliers);
}

}  // namespace kolvar
