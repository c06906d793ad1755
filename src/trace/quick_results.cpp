#include "trace/quick_results.hpp"

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "trace/concentrations.hpp"
#include "trace/output.hpp"
#include "trace/statistics.hpp"

namespace kolvar {
namespace {

constexpr const char* quick_name = "0_quick-results";
constexpr const char* tab = "\t";
constexpr const char* line_end = "\r\n";

// A field for each isotope, and an empty field behind the last one.
template <class Field>
std::string group(const RunState& rs, Field&& field) {
    std::string out;
    for (int i = 1; i <= rs.nIso; ++i) out += field(i) + tab;
    return out + tab;
}

std::string heads(const RunState& rs) {
    std::string out =
        "Data File:\tDate:\tTime slices from:\t...until:\tBlank from:\tBlank until:\tIntern. Std. / conc. [ppm]:\t"
        "Average calculated as:\t";
    out += group(rs, [&](int i) { return rs.IsoName(i); });
    out += group(rs, [&](int i) { return "se" + rs.IsoName(i); });
    // The last isotope stands without its unit; tables of earlier days have it so.
    out += group(rs, [&](int i) { return rs.IsoName(i) + (i < rs.nIso ? " cps" : ""); });
    return out + "Mean ratio of selected analytes (NBC = no blank correction)";
}

std::string standards(const RunState& rs) {
    const auto standard = [&](const Limit& column, const Value& conc) {
        return element_of(rs, column) + " / " + conc.text();
    };
    std::string out = standard(rs.IS1col, rs.IS1conc);
    if (rs.setISnum.val() > 1) out += ", " + standard(rs.IS2col, rs.IS2conc);
    if (rs.setISnum.val() == 3) out += ", " + standard(rs.IS3col, rs.IS3conc);
    return out;
}

// The pairs of analytes that both have a column, each with its label and its ratio of mean signals.
std::string ratios(const RunState& rs) {
    std::string out;
    for (int pair = 1; pair <= MaxShow; ++pair) {
        const int a = rs.RatioCol(2 * pair - 2);
        const int b = rs.RatioCol(2 * pair - 1);
        const double kind = rs.setRatBLK(pair).val();
        if (a == 0 || b == 0 || (kind != 0 && kind != 1 && kind != 2 && kind != 3)) continue;
        const bool raw_a = kind == 1 || kind == 3;
        const bool raw_b = kind == 2 || kind == 3;
        const Cell& above = raw_a ? rs.AvRawCps(a) : rs.AvCps(a);
        const Cell& below = raw_b ? rs.AvRawCps(b) : rs.AvCps(b);
        const double ratio = quotient(above.number(), below.number());
        out += rs.IsoName(a) + (raw_a ? "_NBC" : "") + "/" + rs.IsoName(b) + (raw_b ? "_NBC:" : ":") + tab;
        out += decimal(ratio) + tab;
    }
    return out;
}

std::string line(const RunState& rs, Platform& os) {
    std::string out = rs.DataFileName + tab + date_text(os.now()) + tab;
    for (const Limit* limit : {&rs.SelLow, &rs.SelUpp, &rs.BlkLow, &rs.BlkUpp}) out += limit->text() + tab;
    out += standards(rs) + tab;
    const double average = rs.setMean_IS.val();
    out += std::string(average == 0 ? "Median" : "Mean") + tab;
    if (average == 0) out += group(rs, [&](int i) { return Format(rs.ConcMedian(i), "0.00"); });
    if (average == 1) out += group(rs, [&](int i) { return Format(rs.ConcMean(i), "0.00"); });
    // Also beside medians the standard error is that of the mean.
    out += group(rs, [&](int i) { return Format(rs.ConcSE(i), "0.00"); });
    out += group(rs, [&](int i) { return Format(rs.AvCps(i), "0.00"); });
    return out + ratios(rs);
}

}  // namespace

void AppendQuickResults(RunState& rs, Platform& os, QuickCall call) {
    const Running running(rs, "AppendQuickResults");
    guarded(
        [&] {
            // All slices of the selection, also where data are rejected; the result table counts them so from here on.
            for (int i = 1; i <= rs.nIso; ++i) rs.nData(i) = rs.SelN.val();
            if (call == QuickCall::from_time_selection) {
                if (rs.BlankFromData == 1) ComputeBlank(rs, os);
                ComputeSelStats(rs, os);
                ComputeConcentrations(rs, os);
            }
            rs.QuickHdr1 = "KOLVAR - Quick Export of average concentrations [ppm]\t";
            rs.QuickHdr2 = heads(rs);
            rs.QuickLine = line(rs, os);
            // Asked of the current folder, though the file grows beside the data: where the two differ the heads of a
            // first use are written again.
            rs.QuickExists = file_exists(quick_name);
            std::string text;
            if (!rs.QuickExists) text += rs.QuickHdr1 + line_end;
            const double layout = rs.setOneLine_IS.val();
            if (!rs.QuickExists || layout == 1) text += rs.QuickHdr2 + line_end;
            if (!rs.QuickExists || layout == 0 || layout == 1) text += rs.QuickLine + line_end;
            append_file(os, path_in(rs.AppPath2, quick_name), text);
        },
        [&](const Fault&) {
            os.warn(
                "Error encountered while trying to save the Quick Result file. Maybe there is a 'Permission denided "
                "error' because the file is already opened by an other program. Check, close the other application and "
                "retry, please.",
                "KOLVAR");
        });
}

}  // namespace kolvar
