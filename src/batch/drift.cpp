#include "batch/drift.hpp"

#include <cstddef>
#include <string>
#include <vector>

#include "batch/master_file.hpp"
#include "core/numbers.hpp"

namespace kolvar {

DriftLine fit_drift(std::span<const double> places, std::span<const double> values, double n) {
    double sx = 0, sxx = 0, sy = 0, syy = 0, sxy = 0;
    for (std::size_t k = 0; k < places.size(); ++k) {
        const double x = places[k];
        const double y = values[k];
        sx += x;
        sxx += x * x;
        sy += y;
        syy += y * y;
        sxy += x * y;
    }
    const double together = n * sxy - sx * sy;
    const double spread_x = n * sxx - sx * sx;
    const double spread_y = n * syy - sy * sy;
    DriftLine line;
    line.slope = quotient(together, spread_x);
    line.intercept = quotient(sy - line.slope * sx, n);
    line.r = quotient(together, root(spread_x * spread_y));
    return line;
}

bool counts_for_drift(const RunState& rs, int line) { return is_standard(rs, line) && rs.DriftRej(line).val() < 1; }

void find_drift(RunState& rs) {
    rs.DriftMax = 0;
    rs.DriftMin = 1000000000;
    const int standards = rs.setNumSTD.whole();
    for (int i = 1; i <= rs.SeqCount; ++i) {
        double& cf68 = rs.DriftCF68(i);
        double& cf75 = rs.DriftCF75(i);
        double& cf76 = rs.DriftCF76(i);
        cf68 = rs.MasterRecs(i, 11).number();
        cf75 = rs.MasterRecs(i, 12).number();
        cf76 = rs.MasterRecs(i, 13).number();
        if (!is_processed(rs, i)) {
            // Samples wait for their turn; a standard that was not measured would bend the line.
            if (is_standard(rs, i)) fail(FaultKind::division_by_zero);
            continue;
        }
        // A standard that the table doesn't know keeps its measured ratios. So does every 207/235: it gets no factor,
        // and the user sees on the plot how steady it was.
        const std::string name = rs.MasterRecs(i, 3).text();
        for (int k = 1; k <= standards; ++k) {
            if (rs.Std_Name(k).text() != name) continue;
            cf68 = quotient(rs.Std_68(k).number(), cf68);
            cf76 = quotient(rs.Std_76(k).number(), cf76);
        }
        if (!counts_for_drift(rs, i)) continue;
        for (const double y : {cf68, cf75, cf76}) {
            if (y > rs.DriftMax) rs.DriftMax = y;
            if (y < rs.DriftMin) rs.DriftMin = y;
        }
    }
}

void Lin_Regr_DRI(RunState& rs, FrmDrift& form) {
    const Running running(rs, "Lin_Regr_DRI");
    // Two files have nothing between them: the line stays as it is.
    if (rs.SeqCount < 3) return;
    struct Fitted {
        const Table1<double>& factors;
        double &a, &b, &r;
        Label &slope, &correlation;
    };
    const Fitted ratios[] = {{rs.DriftCF68, rs.DriftA68, rs.DriftB68, rs.DriftR68, form.lblLR68b, form.lblLR68r},
                             {rs.DriftCF75, rs.DriftA75, rs.DriftB75, rs.DriftR75, form.lblLR75b, form.lblLR75r},
                             {rs.DriftCF76, rs.DriftA76, rs.DriftB76, rs.DriftR76, form.lblLR76b, form.lblLR76r}};
    for (const Fitted& ratio : ratios) {
        std::vector<double> places, values;
        for (int i = 1; i <= rs.SeqCount; ++i) {
            if (!counts_for_drift(rs, i)) continue;
            places.push_back(i);
            values.push_back(ratio.factors(i));
        }
        // The line is over the position in the list, and n is the number of all standards, rejected ones too.
        const DriftLine line = fit_drift(places, values, rs.SeqStdCount);
        ratio.a = line.intercept;
        ratio.b = line.slope;
        ratio.r = line.r;
        ratio.slope.text = Format(line.slope, "0.0000");
        ratio.correlation.text = Format(line.r, "0.0000");
    }
}

void write_factors(RunState& rs) {
    for (int i = 1; i <= rs.SeqCount; ++i) {
        // 207/235 gets no factor: field 6 stays empty.
        rs.MasterRecs(i, 5) = round_half_even(rs.DriftA68 + i * rs.DriftB68, 5);
        rs.MasterRecs(i, 7) = round_half_even(rs.DriftA76 + i * rs.DriftB76, 5);
    }
}

}  // namespace kolvar
