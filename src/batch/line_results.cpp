#include "batch/line_results.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <vector>

#include "batch/master_file.hpp"
#include "core/numbers.hpp"

namespace kolvar {

namespace {

using Line = std::vector<Value>;

double five_decimals(double number) { return round_half_even(finite(number), 5); }

// 206/238, 207/235, 207/206 and their errors.
struct Measured {
    std::array<double, 3> ratios, errors;
};

Measured measured(const RunState& rs) {
    if (rs.setAver.val() != 1) {
        const std::array<double, 3> errors{rs.Err68, rs.Err75, rs.Err76};
        if (rs.setMean_UP.val() == 1) return {{rs.Med68, rs.Med75, rs.Med76}, errors};
        return {{rs.Mean68, rs.Mean75, rs.Mean76}, errors};
    }
    Measured out{{rs.Tz68, rs.Tz75, rs.Tz76}, {rs.TzErr68, rs.TzErr75, rs.TzErr76}};
    // The two leads run alike through the ablation: their ratio may be averaged. It is the mean, also when medians
    // are chosen.
    if (rs.setPbAver.val() == 1) {
        out.ratios[2] = rs.Mean76;
        out.errors[2] = rs.Err76;
    }
    return out;
}

std::string average_text(const RunState& rs) {
    std::string out = rs.setMean_UP.val() == 1 ? "median" : "mean";
    if (rs.setAver.val() != 1) return out;
    const double tzero = rs.setTzero.val();
    if (tzero == 0) out = "Tzero intercept at start selection";
    if (tzero == 1) out = "Tzero intercept at start laser";
    if (tzero == 2) out = "Tzero intercept at " + decimal(rs.setDelay.val()) + " steps after start laser";
    if (rs.setPbAver.val() == 1) out += ", but Pb/Pb = mean";
    return out;
}

std::string rejection_text(const RunState& rs, const Frm2UP& form) {
    if (!rs.RejectOn) return "no";
    return form.lblOM.text + ", rejected by " + decimal(Val(form.txtSD.text)) + " s.d.";
}

void fill_signals(const RunState& rs, Line& line) {
    const std::array<int, 8> columns{rs.ColU238,  rs.ColU235,  rs.ColTh232, rs.ColPb208,
                                     rs.ColPb207, rs.ColPb206, rs.ColPb204, rs.ColHg};
    for (std::size_t k = 0; k < columns.size(); ++k) {
        const int c = columns[k];
        line[32 + k] = round_half_even(rs.CpsMean(c));
        line[40 + k] = round_half_even(rs.CpsSD(c).number());
        line[48 + k] = round_half_even(rs.BlkMean(c).number());
        line[56 + k] = round_half_even(rs.BlkSD(c).number());
    }
}

void fill_line(const RunState& rs, const Frm2UP& form, Platform& os, Line& line) {
    const Measured results = measured(rs);
    for (std::size_t k = 0; k < 3; ++k) {
        line[11 + k] = five_decimals(results.ratios[k]);
        line[17 + k] = five_decimals(results.errors[k]);
    }
    // Of the figures as the file shows them, so that the user can check a product by hand.
    if (rs.SeqPhase == 3) {
        line[14] = five_decimals(line[11].val() * line[5].val());
        line[16] = five_decimals(line[13].val() * line[7].val());
    }
    line[23] = date_text(os.now());
    line[24] = rs.BlkLow.text() + " to " + rs.BlkUpp.text();
    line[25] = rs.SelLow.text() + " to " + rs.SelUpp.text();
    line[26] = average_text(rs);
    line[27] = rs.setErr_times;
    line[28] = rejection_text(rs, form);
    fill_signals(rs, line);
}

// While standards are missing any first save counts for one of them, afterwards for a sample.
void count_line(RunState& rs) {
    if (is_processed(rs, rs.SeqPos)) return;
    ++(rs.SeqStdDone < rs.SeqStdCount ? rs.SeqStdDone : rs.SeqSamDone);
}

}  // namespace

void store_line(RunState& rs, const Frm2UP& form, Platform& os) {
    const std::span<Value> record = rs.MasterRecs.column(rs.SeqPos);
    Line line(record.begin(), record.end());
    fill_line(rs, form, os, line);
    count_line(rs);
    std::ranges::move(line, record.begin());
}

}  // namespace kolvar
