#include "settings/reference_files.hpp"

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/records.hpp"

namespace kolvar {
namespace {

// Titles and names are read as they stand: a head "007" of a data file finds its row.
RecordReader open_records(const std::string& path) { return {to_text(read_bytes(path)), path}; }

// STC and DWE are named in the settings: the box tells how to put a wrong name right there.
void warn_of_settings_file(Platform& os, const std::string& path, const std::string& what, const std::string& ending) {
    os.warn("Error occurred while trying to load file: " + native_path(path) +
                ".\n\nProbably the path or the file name of the " + what +
                " in the Settings is not correct.\n\nOpen Settings, browse and select an existing " + ending +
                " file and save the settings. At the next start Kolv will find it.",
            "KOLVAR");
}

// Asks for a file; with an answer, its path and name are taken, the file is read and its name shown.
template <class Load>
bool browse(Context& context, const char* filter, std::string& path, std::string& name, Label& label, Load&& load) {
    RunState& rs = context.rs;
    constexpr int of_this_kind = 2;
    rs.SetFilePath = context.os.open_file({filter, of_this_kind, "", ""});
    if (rs.SetFilePath.empty()) return false;
    path = rs.SetFilePath;
    name = file_name(path);
    load();
    label.text = "  " + name + "  ";
    return true;
}

}  // namespace

void warn_of_reference_file(Platform& os, const std::string& path) {
    os.warn("Error occurred while trying to load file: " + native_path(path) + " , please retry or check the file.",
            "KOLVAR");
}

void LoadSTC(RunState& rs, Platform& os) {
    Running running(rs, "LoadSTC");
    rs.nSTC = 0;
    rs.STCtitle.clear();
    guarded(
        [&] {
            RecordReader records = open_records(rs.STCfilePath);
            rs.STCtitle = records.verbatim_field();
            rs.LineBuf = records.text_field();
            rs.LineBuf = records.text_field();
            int i = 1;
            for (; !records.at_end(); ++i) {
                rs.STCiso(i) = records.verbatim_field();
                rs.STCcc(i) = records.number_field();
                rs.STCerr(i) = records.number_field();
            }
            rs.nSTC = i - 1;
        },
        [&](const Fault&) { warn_of_settings_file(os, rs.STCfilePath, "Std Composition File", "STC"); });
}

void LoadDWE(RunState& rs, Platform& os) {
    Running running(rs, "LoadDWE");
    rs.nDWE = 0;
    rs.DWEtitle.clear();
    guarded(
        [&] {
            RecordReader records = open_records(rs.DWEfilePath);
            rs.DWEtitle = records.verbatim_field();
            rs.LineBuf = records.text_field();
            int i = 1;
            for (; !records.at_end(); ++i) {
                rs.DWEiso(i) = records.verbatim_field();
                rs.DWEms(i) = records.number_field();
            }
            rs.nDWE = i - 1;
        },
        [&](const Fault&) { warn_of_settings_file(os, rs.DWEfilePath, "Dwell file", "DWE"); });
}

void LoadSTM(RunState& rs, Platform& os) {
    Running running(rs, "LoadSTM");
    // The count is set when all records are read: after a failed load the former count stands over the new rows.
    guarded(
        [&] {
            RecordReader records = open_records(rs.STMfilePath);
            int i = 1;
            for (; !records.at_end(); ++i) {
                rs.STMiso(i) = records.verbatim_field();
                rs.STMcps(i) = records.number_field();
                rs.STMsd(i) = records.number_field();
                // A standard without counts would divide by zero later; its error goes with it.
                if (rs.STMcps(i) == 0) {
                    rs.STMcps(i) = 0.0001;
                    rs.STMsd(i) = 0.0001;
                }
            }
            rs.nSTM = i - 1;
        },
        [&](const Fault&) { warn_of_reference_file(os, rs.STMfilePath); });
}

void LoadBLK(RunState& rs, Platform& os) {
    Running running(rs, "LoadBLK");
    // As with the standard measurement the count comes last; a blank of 0 is a blank.
    guarded(
        [&] {
            RecordReader records = open_records(rs.BLKfilePath);
            int i = 1;
            for (; !records.at_end(); ++i) {
                rs.BLKiso(i) = records.verbatim_field();
                rs.BLKmean(i) = records.number_field();
                rs.BLKsd(i) = records.number_field();
            }
            rs.nBLK = i - 1;
        },
        [&](const Fault&) { warn_of_reference_file(os, rs.BLKfilePath); });
}

void load_blank_by_ending(RunState& rs, Platform& os) {
    const std::string ending = last_three(rs.BLKfilePath);
    if (ending == ".xl" || ending == ".XL") LoadBlankTable(rs, rs.BLKfilePath);
    if (ending == "blk" || ending == "BLK") LoadBLK(rs, os);
}

void browse_stc(Context& context) {
    RunState& rs = context.rs;
    browse(context, "All Files (*.*)|*.*|Standard Composition Files (*.stc)|*.stc", rs.STCfilePath, rs.STCfileName,
           context.forms.frm1_Settings.lblSTC, [&] { LoadSTC(rs, context.os); });
}

void browse_stm(Context& context) {
    RunState& rs = context.rs;
    browse(context,
           "All Files (*.*)|*.*|Standard Measurement Files (*.stm)|*.stm|"
           "Standard Measurements - Interpolated (*.sti)|*.sti",
           rs.STMfilePath, rs.STMfileName, context.forms.frm1_Settings.lblSTM, [&] { LoadSTM(rs, context.os); });
}

void browse_blk(Context& context) {
    RunState& rs = context.rs;
    browse(context, "All Files (*.*)|*.*|Blank Files (*.blk)|*.blk|Perkin-Elmer Export Files (*.xl)|*.xl",
           rs.BLKfilePath, rs.BLKfileName, context.forms.frm1_Settings.lblBLK,
           [&] { load_blank_by_ending(rs, context.os); });
}

void browse_dwe(Context& context) {
    RunState& rs = context.rs;
    const bool chosen = browse(context, "All Files (*.*)|*.*|Dwell Time Files (*.dwe)|*.dwe", rs.DWEfilePath,
                               rs.DWEfileName, context.forms.frm1_Settings.lblDWE, [&] { LoadDWE(rs, context.os); });
    if (!chosen || rs.DwellFromFile != 1) return;
    // A table of counts was converted when it was loaded, with the dwell times of that moment; it stays as it is.
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.Dwell(i) = Mark::empty;
        for (int j = 1; j <= rs.nDWE; ++j)
            if (rs.DWEiso(j) == rs.IsoName(i)) rs.Dwell(i) = rs.DWEms(j) / 1000;
    }
}

void show_stc_info(RunState& rs, Platform& os) {
    os.warn("Information to Standard Composition File " + rs.STCfileName + ":\n" + rs.STCtitle, "KOLVAR");
}

void show_dwe_info(RunState& rs, Platform& os) {
    os.warn("Information to Dwell Time File " + rs.DWEfileName + ":\n" + rs.DWEtitle, "KOLVAR");
}

bool WriteCpsTable(RunState& rs, Platform& os, const std::string& path) {
    Running running(rs, "WriteCpsTable");
    if (file_exists(path) && !os.ask("Overwrite existing file?")) return false;
    // No 0 is ever written: a cps or an error that rounds to 0 becomes the smallest number that the file can show.
    const auto rounded = [](double cps) {
        const double out = round_to_thousandths(cps);
        return out == 0 ? 0.001 : out;
    };
    RecordWriter records;
    for (int i = 1; i <= rs.nIso; ++i) {
        records.field(rs.IsoName(i)).field(rounded(rs.AvCps(i).number())).field(rounded(rs.AccCpsSE(i)));
        records.end_record();
    }
    replace_file(os, path, records.bytes());
    return true;
}

}  // namespace kolvar
