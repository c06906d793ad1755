#include "upb/export.hpp"

#include <array>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "core/files.hpp"
#include "core/numbers.hpp"
#include "upb/express.hpp"
#include "upb/ratio_fields.hpp"

namespace kolvar {

namespace {

using namespace std::string_literals;

const std::string tab = "\t";
const std::string line_end = "\r";
constexpr const char* summary_name = "0_summary";

// Numbers as the tables show them. `sign` is the decimal sign of the machine.
class NumberText {
public:
    explicit NumberText(std::string sign) : sign_(std::move(sign)) {}
    [[nodiscard]] std::string localised(std::string text) const {
        const std::size_t point = text.find('.');
        if (point != std::string::npos) text.replace(point, 1, sign_);
        return text;
    }
    [[nodiscard]] std::string four_decimals(double number) const { return localised(Format(number, "0.0000")); }
    // Four decimals without the zeros at their end.
    [[nodiscard]] std::string value(double number) const { return localised(decimal(Val(Format(number, "0.0000")))); }
    [[nodiscard]] std::string plain(double number) const { return localised(decimal(number)); }

private:
    std::string sign_;
};

std::string whole(double number) { return decimal(round_half_even(number)); }

std::string tabs(int count) { return std::string(static_cast<std::size_t>(count), '\t'); }

std::string joined(std::span<const std::string> fields) {
    std::string out;
    for (std::size_t k = 0; k < fields.size(); ++k) out += (k > 0 ? tab : std::string()) + fields[k];
    return out;
}

std::string each_with_tab(std::span<const std::string> fields) {
    std::string out;
    for (const std::string& field : fields) out += field + tab;
    return out;
}

// ---- Major layout

constexpr const char* major_heads =
    "Kolvar export\t202\t204Hg\t204Pb\t206\t207\t208\t232\t235\t238\t204m\t204cPb\t206cPb\t207cPb\t206\t207\t208\t232"
    "\t235\t238\t207/206\t1s%\t207*/206*\t1s%\t207/235\t1s%\t206/238\t1s%\t208*/232\t1s%\t208/232\t1s%\t\t206/238fra"
    "\t208/232";

std::vector<std::string> major_fields(const RunState& rs, const NumberText& text) {
    const std::array<int, 6> columns{rs.ColPb206, rs.ColPb207, rs.ColPb208, rs.ColTh232, rs.ColU235, rs.ColU238};
    std::vector<std::string> out{rs.DataFileName, whole(rs.BlkMean(rs.ColHg).number()),
                                 whole(hg204_of_blank(rs).value_or(0)), "--204"};
    for (const int column : columns) out.push_back(whole(rs.BlkMean(column).number()));
    out.push_back(whole(rs.CpsMean(rs.ColPb204)));
    out.insert(out.end(), {"204cPb", "", ""});
    for (const int column : columns) out.push_back(whole(rs.CpsMean(column)));

    // Value and error of a ratio, by what the results are based on; the median never stands here.
    const double based_on = rs.setAver.val();
    const auto result = [&](const RatioFields& ratio, bool always_mean) {
        if (based_on != 0 && based_on != 1) return out.insert(out.end(), {"", ""}), void();
        const bool mean = based_on == 0 || always_mean;
        out.push_back(text.value(mean ? rs.*ratio.mean : rs.*ratio.tzero));
        out.push_back(text.four_decimals(mean ? rs.*ratio.error : rs.*ratio.tzero_error));
    };
    const auto& ratios = ratio_fields();
    result(ratios[4], rs.setPbAver.val() == 1);
    out.insert(out.end(), {"---", "-"});
    result(ratios[1], false);
    result(ratios[0], false);
    out.insert(out.end(), {"---", "-"});
    result(ratios[2], false);
    out.insert(out.end(), {"", "206/238fra", "208/232"});
    return out;
}

// ---- Full layout of U/Pb and layout of solutions

struct SignalGroup {
    std::array<const char*, 8> names;
    std::array<int, 8> columns;
};

constexpr std::array<const char*, 5> group_prefixes = {"", "se ", "sd ", "blk ", "bSD "};

void append_signal_heads(std::vector<std::string>& heads, const SignalGroup& group) {
    for (const char* prefix : group_prefixes)
        for (const char* name : group.names) heads.push_back(std::string(prefix) + name);
}

void append_signals(const RunState& rs, std::vector<std::string>& fields, const SignalGroup& group, double d) {
    for (const int c : group.columns) fields.push_back(whole(rs.CpsMean(c)));
    for (const int c : group.columns) fields.push_back(whole(quotient(rs.CpsSD(c).number(), d)));
    for (const int c : group.columns) fields.push_back(whole(rs.CpsSD(c).number()));
    for (const int c : group.columns) fields.push_back(whole(rs.BlkMean(c).number()));
    for (const int c : group.columns) fields.push_back(whole(rs.BlkSD(c).number()));
}

std::string title_of(const std::string& export_of, int indent, int ratios) {
    std::string out = export_of + tabs(indent) + "[Isotope ratios]" + tabs(ratios) + "[Std. error of isot. ratios]" +
                      tabs(ratios) + "[Std. deviation of isot. ratios]" + tabs(ratios) + "[Blank corrected cps]";
    for (const char* group : {"[Std. error of cps]", "[Std. deviation of cps]", "[Blank cps]", "[Std. dev. of blank]"})
        out += tabs(8) + group;
    return out;
}

std::string rejection_text(const RunState& rs, const Frm2UP& form, const NumberText& text) {
    if (!rs.RejectOn) return "no";
    return form.lblOM.text + ", rejected by " + text.plain(Val(form.txtSD.text)) + " s.d.";
}

std::string method_text(const RunState& rs, const NumberText& text) {
    std::string average = rs.setMean_UP.val() == 1 ? "median" : "mean";
    if (rs.setAver.val() != 1) return average;
    const bool lead_mean = rs.setPbAver.val() == 1;
    const double tzero = rs.setTzero.val();
    if (tzero == 0) return "Tzero intercept at start selection"s + (lead_mean ? ", but Pb/Pb = mean" : "");
    if (tzero == 1) return "Tzero intercept at start laser"s + (lead_mean ? " ,but Pb/Pb = mean" : "");
    if (tzero == 2)
        return "Tzero intercept at " + text.plain(rs.setDelay.val()) + " steps after start laser" +
               (lead_mean ? ", but Pb/Pb = mean" : "");
    return average;
}

std::vector<std::string> file_and_intervals(const RunState& rs, Platform& os) {
    return {rs.DataFileName, date_text(os.now()), rs.BlkLow.text() + " to " + rs.BlkUpp.text(),
            rs.SelLow.text() + " to " + rs.SelUpp.text()};
}

// Values, standard errors and standard deviations of the five ratios. The errors are absolute whatever the setting of
// the screen says, and the fields of the screen's errors keep the last column of them.
void append_ratios(RunState& rs, std::vector<std::string>& fields, const NumberText& text, double d) {
    const double based_on = rs.setAver.val();
    if (based_on != 0 && based_on != 1) return fields.insert(fields.end(), 15, ""), void();
    const double times = rs.setErr_times.val();
    const bool median = rs.setMean_UP.val() == 1;
    const auto averaged = [&](int k) { return based_on == 0 || (k == 4 && rs.setPbAver.val() == 1); };
    const auto& ratios = ratio_fields();
    for (int k = 0; k < ratio_count; ++k) {
        const RatioFields& ratio = ratios[static_cast<std::size_t>(k)];
        const double average = median ? rs.*ratio.median : rs.*ratio.mean;
        fields.push_back(text.four_decimals(averaged(k) ? average : rs.*ratio.tzero));
    }
    for (const bool standard_error : {true, false}) {
        for (int k = 0; k < ratio_count; ++k) {
            const RatioFields& ratio = ratios[static_cast<std::size_t>(k)];
            const double sd = times * (averaged(k) ? rs.*ratio.sd : rs.*ratio.residual_sd);
            rs.*ratio.error = standard_error ? quotient(sd, d) : sd;
            fields.push_back(text.four_decimals(rs.*ratio.error));
        }
    }
}

double root_of_count(const RunState& rs) { return root(rs.SelNGood - 1); }

void compose_major(RunState& rs, const NumberText& text) {
    rs.QuickHdr2 = major_heads;
    rs.QuickLine = joined(major_fields(rs, text));
}

void compose_full(RunState& rs, Platform& os, const Frm2UP& form, const NumberText& text) {
    rs.QuickHdr1 = title_of("KOLVAR  -  Export of LA-ICP-MS U/Pb data", 7, 5);
    const SignalGroup group{
        {"U238", "U235", "Th232", "Pb208", "Pb207", "Pb206", "Pb204", "Hg20x"},
        {rs.ColU238, rs.ColU235, rs.ColTh232, rs.ColPb208, rs.ColPb207, rs.ColPb206, rs.ColPb204, rs.ColHg}};
    std::vector<std::string> heads{"File:",      "Date:",          "Blank:",     "Selection:",
                                   "Average:",   "error x times:", "Rejection:", "Pb206/U238",
                                   "Pb207/U235", "Pb208/Th232",    "U238/Th232", "Pb207/Pb206"};
    for (const char* kind : {"SE ", "SD "})
        for (const char* ratio : {"206/238", "207/235", "208/232", "238/232", "207/206"})
            heads.push_back(std::string(kind) + ratio);
    append_signal_heads(heads, group);
    rs.QuickHdr2 = joined(heads);

    std::vector<std::string> fields = file_and_intervals(rs, os);
    // Under the head of the errors' multiplier stands the multiple of the outlier test.
    fields.insert(fields.end(),
                  {method_text(rs, text), text.localised(rs.setOL_SD.text()), rejection_text(rs, form, text)});
    const double d = root_of_count(rs);
    append_ratios(rs, fields, text, d);
    append_signals(rs, fields, group, d);
    rs.QuickLine = each_with_tab(fields);
}

void compose_solution(RunState& rs, Platform& os, const Frm2UP& form, const NumberText& text) {
    rs.QuickHdr1 = title_of("KOLVAR  -  Export of Solution-MS U & Th & Sm data", 6, 4);
    // The heads are fixed; the columns hold what the catalogue of the data has put there.
    const SignalGroup group{
        {"U238", "U235", "U233", "Th232", "Th230", "Sm147", "Ca43", "Pt195"},
        {rs.ColU238, rs.ColU235, rs.ColPb206, rs.ColTh232, rs.ColPb208, rs.ColPb207, rs.ColPb204, rs.ColHg}};
    std::vector<std::string> heads{"File:",          "Date:",     "Blank:",      "Selection:", "Rejection:",
                                   "error x times:", "U233/U238", "Th230/Th232", "U238/Th232", "U238/U235"};
    for (const char* kind : {"SE ", "SD "})
        for (const char* ratio : {"233/238", "230/232", "238/232", "238/235"})
            heads.push_back(std::string(kind) + ratio);
    append_signal_heads(heads, group);
    rs.QuickHdr2 = joined(heads);

    std::vector<std::string> fields = file_and_intervals(rs, os);
    fields.insert(fields.end(), {rejection_text(rs, form, text), text.localised(rs.setErr_times.text())});
    const double d = root_of_count(rs);
    for (const double mean : {rs.Mean68, rs.Mean82, rs.Mean382, rs.Mean85}) fields.push_back(text.four_decimals(mean));
    const std::array<double, 4> deviations{rs.SD68, rs.SD82, rs.SD382, rs.SD85};
    // Only the standard errors are multiplied.
    for (const double sd : deviations) fields.push_back(text.four_decimals(quotient(rs.setErr_times.val() * sd, d)));
    for (const double sd : deviations) fields.push_back(text.four_decimals(sd));
    append_signals(rs, fields, group, d);
    rs.QuickLine = each_with_tab(fields);
}

// ---- Hand-over

void hand_to_clipboard(RunState& rs, Platform& os, bool no_head) {
    os.set_clipboard("");
    if (!no_head) {
        if (!rs.QuickHdr1.empty()) rs.OutText = rs.QuickHdr1 + line_end;
        rs.OutText += rs.QuickHdr2 + line_end;
    }
    rs.OutText += rs.QuickLine;
    os.set_clipboard(rs.OutText);
}

// The heads stand once, at the birth of the file. Whether it exists is asked of the current folder, though it lies
// beside the data.
void append_to_summary(const RunState& rs, Platform& os) {
    const std::string file_line_end = "\r\n";
    std::string lines;
    if (!file_exists(summary_name)) {
        if (!rs.QuickHdr1.empty()) lines += rs.QuickHdr1 + file_line_end;
        lines += rs.QuickHdr2 + file_line_end;
    }
    append_file(os, path_in(rs.AppPath2, summary_name), lines + rs.QuickLine + file_line_end);
}

}  // namespace

void copy_to_clpb(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "copy_to_clpb");
    const WaitCursor waiting(context.os);
    // A failure of any kind leaves no flag standing for the next export.
    const bool no_head = std::exchange(rs.NoHead, false);
    const bool to_summary = std::exchange(rs.AppendSummary, false);
    rs.QuickHdr1.clear();
    rs.QuickHdr2.clear();
    rs.QuickLine.clear();
    rs.OutText.clear();
    const NumberText text(context.os.decimal_sign());
    const Frm2UP& form = context.forms.frm2_UP;
    if (rs.Method == 1 && rs.setPasteDat.val() == 0) compose_major(rs, text);
    if (rs.Method == 1 && rs.setPasteDat.val() == 1) compose_full(rs, context.os, form, text);
    if (rs.Method == 3) compose_solution(rs, context.os, form, text);
    if (to_summary)
        append_to_summary(rs, context.os);
    else
        hand_to_clipboard(rs, context.os, no_head);
    // Once more: after an append there is no text, and the clipboard ends empty.
    context.os.set_clipboard(rs.OutText);
}

void copy_selected_slices(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "cmdCopySel");
    const NumberText text(context.os.decimal_sign());
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    std::string& out = rs.OutText;
    const auto line = [&](const std::string& words) { out += words + line_end; };
    const auto slices = [&](std::string_view name, std::string_view blank, std::string_view title, auto&& cell) {
        for (const std::string_view head : {name, std::string_view(tab), blank, std::string_view(tab), title})
            out += head;
        for (int t = low; t <= upp; ++t) out += tab + cell(t);
        out += line_end;
    };
    out.clear();
    line(
        "* * * * *  KolvAGE  -  Export of processed Laser-ICP-MS U/Pb data  (table contains only the selected time "
        "slices)");
    line("Data are blank corrected cps and uncorrected isotope ratios");
    line("Date:" + tab + date_text(context.os.now()));
    line("Data File:" + tab + rs.DataFileName);
    line("Blank time slices:" + tab + rs.BlkLow.text() + " to " + rs.BlkUpp.text());
    line("");
    slices("", "", "Time slices:", [](int t) { return std::to_string(t); });
    slices("Isotopes", "Blank [cps]",
           "Outliers:", [&](int t) { return std::string(rs.RejFlag(t) > 0 ? "rejected" : ""); });
    // The first column of the table is the time.
    for (int i = 2; i <= rs.nIso; ++i)
        slices(rs.IsoName(i), Format(rs.BlkMean(i), "0"), "", [&](int t) { return Format(rs.Sig2(i, t), "0"); });
    line("ISOTOPE RATIOS");
    constexpr std::array<const char*, ratio_count> names = {"Pb206/U238", "Pb207/U235", "Pb208/Th232", "U238/Th232",
                                                            "Pb207/Pb206"};
    for (std::size_t k = 0; k < names.size(); ++k)
        slices(names[k], "", "", [&](int t) { return text.four_decimals((rs.*ratio_fields()[k].slices)(t)); });
    context.os.set_clipboard("");
    context.os.set_clipboard(out);
}

}  // namespace kolvar
