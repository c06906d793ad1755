#include "import/data_file.hpp"

#include <algorithm>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "import/file_format.hpp"
#include "import/recognition.hpp"
#include "import/table_reader.hpp"
#include "trace/statistics.hpp"

namespace kolvar {
namespace {

constexpr const char* data_file_filter =
    "All Files (*.*)|*.*|Comma Delimited Files (*.csv)|*.csv|Perkin-Elmer Export Files (*.xl)|*.xl|"
    "Element 2 Export Files (*.txt)|*.xl|All Registered File Typ (*.csv, *.xl, *.txt)|*.csv; *.xl; *.txt";
constexpr int all_registered = 5;

template <class Profile>
void load(Context& context, const std::string& path, Profile&& profile) {
    guarded(
        [&] {
            read_table(context.rs, context.rs.DataFilePath, profile());
            AfterImport(context);
        },
        [&](const Fault&) {
            context.os.warn(
                "Error occurred while trying to load file: " + native_path(path) + " , please retry or check the file.",
                "KOLVAR");
        });
}

void take_dwell_times(RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i) {
        rs.Dwell(i) = Mark::empty;
        for (int j = 1; j <= rs.nDWE; ++j)
            if (rs.IsoName(i) == rs.DWEiso(j)) rs.Dwell(i) = rs.DWEms(j) / 1000;
    }
}

void warn_of_missing_dwell_times(RunState& rs, Platform& os) {
    for (int i = 1; i <= rs.nIso; ++i)
        if (rs.Dwell(i).is_empty()) rs.MissDWE += rs.IsoName(i) + ",  ";
    if (rs.MissDWE.empty()) return;
    os.warn("Isotopes of the Data File are not present in the Dwell Time File! \n\n" + rs.MissDWE +
            "\n\nThe calculation of cps values and the concentrations from counts are NOT CORRECT!"
            "\n\nLoad the proper DWELL TIME FILE in the next window.");
}

// The dwell time that turns the counts of a column into cps. A column without one is divided by the uniform time, which
// is kept in milliseconds: its values come out 1000 times too small, as the user was warned.
double counting_time(const RunState& rs, int column) {
    const double dwell = rs.Dwell(column).val();
    return dwell != 0 ? dwell : rs.setIS_Dwell.val();
}

void convert_counts_to_cps(RunState& rs) {
    if (rs.nSlices < 1) return;
    for (int i = 1; i <= rs.nIso; ++i) {
        if (counting_time(rs, i) != 0) continue;
        // The first slice is the first that can't be converted; the columns before this one still are.
        for (int k = 1; k < i; ++k) rs.Sig(k, 1) = quotient(rs.Sig(k, 1), counting_time(rs, k));
        fail(FaultKind::division_by_zero);
    }
    for (int i = 1; i <= rs.nIso; ++i) {
        const double time = counting_time(rs, i);
        const auto cells = rs.Sig.column(i).subspan(1, static_cast<std::size_t>(rs.nSlices));
        for (double& cell : cells) cell = quotient(cell, time);
    }
}

void find_internal_standards(RunState& rs) {
    rs.IS1col = 0;
    rs.IS2col = 0;
    rs.IS3col = 0;
    for (int i = 1; i <= rs.nIso; ++i) {
        if (rs.IS1name == rs.IsoName(i)) rs.IS1col = i;
        if (rs.IS2name == rs.IsoName(i)) rs.IS2col = i;
        if (rs.IS3name == rs.IsoName(i)) rs.IS3col = i;
    }
}

void drop_intervals(RunState& rs) {
    rs.SelN.clear();
    rs.SelNGood = 0;
    rs.SelLow.clear();
    rs.SelUpp.clear();
    rs.TrialLimits = false;
    rs.BlkLow.clear();
    rs.BlkUpp.clear();
    rs.SelLowX = 0;
    rs.SelUppX = 0;
    rs.BlkLowX = 0;
    rs.BlkUppX = 0;
}

}  // namespace

void clear_ratio_results(RunState& rs) {
    rs.Mean68 = rs.Mean75 = rs.Mean82 = rs.Mean382 = rs.Mean76 = 0;
    rs.Med68 = rs.Med75 = rs.Med82 = rs.Med382 = rs.Med76 = 0;
    rs.SD68 = rs.SD75 = rs.SD82 = rs.SD382 = rs.SD76 = 0;
    rs.Err68 = rs.Err75 = rs.Err82 = rs.Err382 = rs.Err76 = 0;
}

// Clearing empties the names of all columns; only a table that is read to its end has them again.
bool read_to_its_end(const RunState& rs) {
    for (int i = 1; i <= rs.nIso; ++i)
        if (!rs.IsoCanon(i).empty()) return true;
    return false;
}

void load_in_place_of_former(Context& context) {
    RunState& rs = context.rs;
    ClearData(rs);
    load_by_ending(context);
    // The screen of ratios comes up all the same; it must not show results of a table that could not be read.
    if ((rs.Method == 1 || rs.Method == 3) && !read_to_its_end(rs)) {
        rs.RejectOn = false;
        rs.RejFlag.fill(0);
        drop_intervals(rs);
        clear_ratio_results(rs);
    }
}

void ClearData(RunState& rs) {
    Running running(rs, "ClearData");
    const int columns = std::clamp(rs.nIso, 0, MaxIso);
    const int slices = std::clamp(rs.nSlices, 0, MaxSlices);
    // The cells become 1, not 0: a cell that the next file does not reach reads as one count.
    for (int i = 1; i <= columns; ++i) {
        std::fill_n(rs.Sig.column(i).begin() + 1, slices, 1.0);
        std::fill_n(rs.Sig2.column(i).begin() + 1, slices, 1.0);
    }
    for (int j = 1; j <= slices; ++j) {
        rs.RejFlag(j) = 0;
        for (auto* ratio : {&rs.Rat68, &rs.Rat75, &rs.Rat82, &rs.Rat382, &rs.Rat76, &rs.Sig204Net}) (*ratio)(j) = 0;
    }
    for (int i = 1; i <= columns; ++i) {
        rs.IsoName(i).clear();
        rs.IsoCanon(i).clear();
        rs.IsoElem(i).clear();
    }
}

void LoadCSV(Context& context, const std::string& path) {
    RunState& rs = context.rs;
    Running running(rs, "LoadCSV");
    load(context, path,
         [&] { return profile_of(FileFormat::csv, rs.setCSVisoLINE, rs.setCSVdatLINE, rs.setCSVfirstCOL); });
}

void LoadTXT(Context& context, const std::string& path) {
    RunState& rs = context.rs;
    Running running(rs, "LoadTXT");
    load(context, path,
         [&] { return profile_of(FileFormat::txt, rs.setTXTisoLINE, rs.setTXTdatLINE, rs.setTXTfirstCOL); });
}

void LoadXL(Context& context, const std::string& path) {
    RunState& rs = context.rs;
    Running running(rs, "LoadXL");
    load(context, path, [&] { return profile_of(FileFormat::xl, rs.setXLisoLINE, rs.setXLdatLINE, rs.setXLfirstCOL); });
}

void load_by_ending(Context& context) {
    const std::string path = context.rs.DataFilePath;
    switch (format_of(path)) {
        case FileFormat::csv:
            return LoadCSV(context, path);
        case FileFormat::txt:
            return LoadTXT(context, path);
        case FileFormat::xl:
            return LoadXL(context, path);
        case FileFormat::none:
            return;
    }
}

void SplitIsoNames(RunState& rs) {
    Running running(rs, "SplitIsoNames");
    for (int i = 1; i <= rs.nIso; ++i) {
        std::string letters;
        std::string digits;
        for (const char c : rs.IsoName(i)) (c >= '0' && c <= '9' ? digits : letters) += c;
        rs.IsoElem(i) = letters;
        rs.IsoCanon(i) = letters + digits;
    }
}

void AfterImport(Context& context) {
    RunState& rs = context.rs;
    Running running(rs, "AfterImport");
    SplitIsoNames(rs);
    if (rs.Method == 1 || rs.Method == 3) {
        rs.BeamStart = 0;
        if (rs.Method == 1) RecogniseUPb(rs);
        if (rs.Method == 3) RecogniseFlex(rs);
        MaintainIntervals(context);
        return;
    }
    if (rs.Method != 0) return;

    if (rs.DwellFromFile == 1) take_dwell_times(rs);
    rs.MissDWE.clear();
    rs.MissSTC.clear();
    rs.MissSTM.clear();
    if (rs.setCPS_IS.val() == 0) {
        if (rs.DwellFromFile == 1) warn_of_missing_dwell_times(rs, context.os);
        convert_counts_to_cps(rs);
    }
    find_internal_standards(rs);
    // While the program starts no window stands yet; the first one opens when the start-up is through.
    if (!context.shell.shown().empty()) context.shell.open(context.forms.frm1_Settings);
    MaintainIntervals(context);
}

void MaintainIntervals(Context& context) {
    RunState& rs = context.rs;
    Running running(rs, "MaintainIntervals");
    if (rs.Method == 0) {
        // Intervals of a file of the same length stay, and the blank is computed anew whether or not one is marked: the
        // user who has not marked any is told that it is too short.
        if (rs.nSlices == rs.PrevSlices) {
            ComputeBlank(rs, context.os);
            return;
        }
        rs.PrevSlices = 0;
        drop_intervals(rs);
        rs.FormerLowX = 0;
        rs.FormerUppX = 0;
    } else if (rs.Method == 1 || rs.Method == 3) {
        rs.PlotOn = 1;
        rs.RejectOn = false;
        rs.SelNGood = rs.SelN.val();
        rs.RejFlag.fill(0);
        if (rs.PrevSlices > 0 && rs.nSlices == rs.PrevSlices && rs.setFormer_Sel.val() == 1) {
            ComputeBlank(rs, context.os);
            return;
        }
        drop_intervals(rs);
        clear_ratio_results(rs);
        Frm2UP& form = context.forms.frm2_UP;
        form.pict1.canvas.Clear();
        form.pict2.canvas.Clear();
        for (Control* control : std::initializer_list<Control*>{&form.cmdReject, &form.chkShowSD, &form.txtSD,
                                                                &form.lblReject, &form.lblOM})
            control->visible = false;
    }
}

bool name_data_file(RunState& rs, Platform& os, const std::string& folder) {
    rs.SetFilePath = os.open_file({data_file_filter, all_registered, "", folder});
    if (rs.SetFilePath.empty()) return false;
    rs.AppPath2 = folder_of(rs.SetFilePath);
    rs.DataFilePath = rs.SetFilePath;
    rs.DataFileName = file_name(rs.SetFilePath);
    return true;
}

bool ChooseDataFile(Context& context) {
    Running running(context.rs, "ChooseDataFile");
    if (!name_data_file(context.rs, context.os)) return false;
    load_in_place_of_former(context);
    return true;
}

}  // namespace kolvar
