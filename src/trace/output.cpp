#include "trace/output.hpp"

#include <array>

#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/records.hpp"
#include "trace/number_text.hpp"

namespace kolvar {
namespace {

constexpr char tab = '\t';
constexpr char cr = '\r';

// UTF-8: the text without its last characters, "" when it has no more.
std::string without_last(std::string text, int characters) {
    for (; characters > 0 && !text.empty(); --characters) {
        while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U) text.pop_back();
        if (!text.empty()) text.pop_back();
    }
    return text;
}

void add_standards(const RunState& rs, std::string& out) {
    const double number = rs.setISnum.val();
    if (number != 1 && number != 2 && number != 3) return;
    const auto standard = [&](const Limit& column, const Value& conc, const Value& error) {
        out += tab + element_of(rs, column) + tab + conc.text() + tab + error.text();
    };
    out += "Internal Std. / conc. / error [ppm]:";
    standard(rs.IS1col, rs.IS1conc, rs.IS1err);
    if (number >= 2) standard(rs.IS2col, rs.IS2conc, rs.IS2err);
    if (number == 3) {
        // Tables that read this line count on the error of the first standard here, joined to that of the second.
        out += rs.IS1err.text();
        standard(rs.IS3col, rs.IS3conc, rs.IS3err);
    }
    out += cr;
}

std::string rejection_text(const RunState& rs) {
    const double level = rs.RejGrubbsP.val();
    const double limit = rs.RejSDLimit.val();
    if (rs.RejMinMaxOn != 1 && !(limit > 0) && !(rs.RejManual > 0) && !(level > 0)) return "All data considered";
    std::string out;
    if (rs.RejManual == 1) out += "Manual    ";
    if (rs.RejMinMaxOn == 1) out += "Min & Max    ";
    if (level > 0) out += "P(Grubbs) > " + rs.RejGrubbsP.text() + "    ";
    if (limit > 0) out += "S.D. > " + rs.RejSDLimit.text();
    return out;
}

void add_warnings(const RunState& rs, std::string& out) {
    // Dwell times alone bring no warning.
    if (rs.MissSTC.empty() && rs.MissSTM.empty() && rs.MissBLK.empty()) return;
    out += cr;
    out += "WARNING - Incomplete data sets";
    out += cr;
    const auto add = [&](const char* label, const std::string& list) {
        if (!list.empty()) out += std::string(label) + tab + without_last(list, 3) + cr;
    };
    add("Missing in the Standard Composition File:", rs.MissSTC);
    add("Missing in the Standard Measurement File:", rs.MissSTM);
    add("Missing in the Blank File:", rs.MissBLK);
    add("Missing in the Dwell Time File - thus these errors are not correct. ", rs.MissDWE);
}

void add_files_and_selection(const RunState& rs, Platform& os, std::string& out) {
    const auto line = [&](const std::string& label, const std::string& rest) { out += label + tab + rest + cr; };
    const DateTime now = os.now();
    out += "* * *  KOLVAR  -  Export of processed Laser-ICP-MS data\r";
    out += "Part 1 - Files, selection and rejection\r";
    line("Date / Time:", date_text(now) + tab + time_text(now));
    line("Data File:", rs.DataFileName);
    line("Setting File:", rs.SettingsName);
    line("Standard Composition File:", rs.STCfileName);
    line("Standard Measurement File:", rs.STMfileName);
    if (rs.BlankFromData == 1) {
        line("Blank from Data File, time slices from / to:", rs.BlkLow.text() + tab + rs.BlkUpp.text());
    } else {
        line("Blank File:", rs.BLKfileName);
    }
    if (rs.DwellFromFile == 1) {
        line("Dwell Time File:", rs.DWEfileName);
    } else {
        line("Dwell time - uniform [msec]:", decimal(rs.DwellUniform * 1000));
    }
    add_standards(rs, out);
    line("Isotopes measured / calculated:", std::to_string(rs.nIso) + tab + std::to_string(rs.nIsoCalc));
    line("Time slices all / selected:", std::to_string(rs.nSlices) + tab + rs.SelN.text());
    line("Selected from / until:", rs.SelLow.text() + tab + rs.SelUpp.text());
    line("Rejection:", rejection_text(rs));
    const double share = quotient(100.0 * rs.nRejected, static_cast<double>(rs.nIso) * rs.SelN.val());
    line("Rejected data / percentage:", std::to_string(rs.nRejected) + tab + Format(share, "0.0"));
}

void add_means(const RunState& rs, std::string& out) {
    out += "\rPart 2 - Mean concentrations\tData File:\t" + rs.DataFileName + cr;
    out +=
        "Isotope\tElement\tMedian\tMean conc.\tS. D.\tS. E.\tLim. of Det.\tRel. Err.\tR2 iso/IS\tAv. counts\tBLK "
        "counts\t"
        "STD counts\tDwell time\tTime slices\r";
    out += "\t\t[ppm]\t[ppm]\t[ppm]\t[ppm]\t[ppm]\t[%]\t\t[cps]\t[cps]\t[cps]\t[msec]\r";
    for (int i = 1; i <= rs.nIso; ++i) {
        out += rs.IsoName(i) + tab + rs.IsoElem(i);
        for (const Cell* cell : {&rs.ConcMedian(i), &rs.ConcMean(i), &rs.ConcSD(i), &rs.ConcSE(i)}) {
            out += tab;
            append_fixed(out, *cell, 2);
        }
        out += tab + rs.LoD(i).text() + tab + rs.RelErr(i).text() + tab + decimal(rs.R2IsoIS(i)) + tab;
        append_fixed(out, rs.AvCps(i), 1);
        out += tab;
        append_fixed(out, rs.BlkMean(i).val(), 1);
        out += tab;
        append_fixed(out, rs.StdCps(i), 1);
        out += tab + decimal(rs.Dwell(i).number() * 1000) + tab + std::to_string(rs.nData(i)) + cr;
    }
}

// One of the two tables of the slices. Isotopes are lines with setTableFormat 0, columns with 1.
void add_slices(const RunState& rs, const Table2<Cell>& table, std::string& out) {
    const int low = rs.SelLow.val();
    const int upp = rs.SelUpp.val();
    if (rs.setTableFormat.val() == 0) {
        out += "Isotope\tElement";
        for (int t = low; t <= upp; ++t) out += "\tt" + std::to_string(t);
        out += cr;
        for (int i = 1; i <= rs.nIso; ++i) {
            out += rs.IsoName(i) + tab + rs.IsoElem(i);
            for (int t = low; t <= upp; ++t) {
                out += tab;
                append_fixed(out, table(i, t), 2);
            }
            out += cr;
        }
    } else if (rs.setTableFormat.val() == 1) {
        out += "Time slice";
        for (int i = 1; i <= rs.nIso; ++i) out += tab + rs.IsoName(i);
        out += cr;
        for (int i = 1; i <= rs.nIso; ++i) out += tab + rs.IsoElem(i);
        out += cr;
        for (int t = low; t <= upp; ++t) {
            out += std::to_string(t);
            for (int i = 1; i <= rs.nIso; ++i) {
                out += tab;
                append_fixed(out, table(i, t), 2);
            }
            out += cr;
        }
    }
}

}  // namespace

std::string element_of(const RunState& rs, const Limit& column) { return rs.IsoElem(column.val()); }

void Comp_Output(RunState& rs, Platform& os) {
    Running running(rs, "Comp_Output");
    std::string& out = rs.OutText;
    out.clear();
    const int slices = rs.SelN.val() > 0 ? rs.SelN.val() : 0;
    out.reserve(4000 + static_cast<std::size_t>(rs.nIso) * (200 + 16 * static_cast<std::size_t>(slices)));

    add_files_and_selection(rs, os, out);
    add_warnings(rs, out);
    add_means(rs, out);
    out += "\rPart 3 - Conc. in time slices [ppm]\r";
    add_slices(rs, rs.ConcT, out);
    out += "\rPart 4 - Errors of conc. [ppm]\r";
    add_slices(rs, rs.ErrT, out);
    if (rs.setTableFormat.val() == 0) out += cr;
}

std::string BuildSuffix(const RunState& rs) {
    std::string out;
    if (rs.RejManual == 1) out += "_M";
    if (rs.RejMinMaxOn == 1) out += "_X";
    if (rs.RejGrubbsP.val() > 0) out += "_G" + rs.RejProcName;
    if (rs.RejSDLimit.val() > 0) out += "_S" + rs.RejSDLimit.text();
    return out + "_t" + rs.SelLow.text() + "-t" + rs.SelUpp.text();
}

std::string default_result_name(const RunState& rs, const std::string& ending) {
    // A two-letter ending is told only by its spelling; any other name loses four characters, whatever they are.
    const std::string last = last_three(rs.DataFileName);
    const int cut = last == ".xl" || last == ".XL" ? 3 : 4;
    return without_last(rs.DataFileName, cut) + BuildSuffix(rs) + ending;
}

void WriteResultFile(RunState& rs, Platform& os, const std::string& path) {
    Running running(rs, "WriteResultFile");
    if (file_exists(path) && !os.ask("Overwrite existing file?")) return;
    RecordWriter record;
    record.field(rs.OutText);
    record.end_record();
    replace_file(os, path, record.bytes());
}

void reset_rejections(RunState& rs) {
    rs.nRejected = 0;
    rs.RejManual = 0;
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.nData(i) = rs.SelN.val();
        for (int t = 1; t <= rs.nSlices; ++t) rs.Rej(i, t) = 0;
    }
}

}  // namespace kolvar
