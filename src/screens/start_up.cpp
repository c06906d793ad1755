#include "screens/start_up.hpp"

#include "core/files.hpp"
#include "core/numbers.hpp"
#include "core/records.hpp"
#include "core/stat_tables.hpp"
#include "import/data_file.hpp"
#include "screens/start_paths.hpp"
#include "settings/default_file.hpp"
#include "settings/reference_files.hpp"
#include "settings/settings_file.hpp"

namespace kolvar {

namespace {

constexpr const char* default_settings = "Kolvar-default-h.set";
// The folder that the start path names in a kit that nobody has changed yet.
constexpr const char* shipped_kit = "start-kit";

// The folder of the start kit, from the file that names it.
void read_start_path(RunState& rs, Platform& os, const std::string& name) {
    const Running running(rs, "read_start_path");
    guarded(
        [&] {
            const std::string path = join_path(rs.AppPath1, name);
            RecordReader reader(to_text(read_bytes(path)), path);
            rs.WorkPath = start_kit_folder(rs, reader.verbatim_field());
        },
        [&](const Fault&) {
            os.warn("Error occurred while trying to load file: '" + name +
                        "' \nThis file contains the path to the necessary start kit of Kolvar and must be in the work "
                        "directory of the EXE program.",
                    "KOLVAR");
        });
}

// While nobody has named the kit's folder its paths are a name behind a lone separator. A file that happens to lie
// there, in the root of the disk, is none of the kit: each load fails with its own message.
bool kit_named(const RunState& rs) { return !rs.WorkPath.empty(); }

// The number that a setting begins with. The text of one beyond all bounds counts as none: it does not end the start.
double number_in(const Value& setting) { return leading_number(setting.text()).number; }

void load_example(Context& context, const std::string& name, void (*load)(Context&, const std::string&)) {
    RunState& rs = context.rs;
    rs.DataFileName = name;
    const std::string example = join_path(rs.WorkPath, name);
    rs.DataFilePath = kit_named(rs) ? example : std::string();
    load(context, example);
    rs.DataFilePath = example;
}

void start_internal_standard_path(Context& context) {
    RunState& rs = context.rs;
    read_start_path(rs, context.os, "start_path");

    rs.SettingsName = default_settings;
    rs.SettingsPath = join_path(rs.WorkPath, rs.SettingsName);
    if (kit_named(rs))
        ReadSettings(rs, context.os, rs.SettingsPath);
    else
        warn_of_settings_file(context.os, rs.SettingsPath);

    // The kit of this path is loaded to its end even if the settings file has chosen another path.
    for (int i = 1; i <= MaxIso; ++i) rs.Dwell(i) = number_in(rs.setIS_Dwell) / 1000;

    rs.DWEfilePath = rs.DWEfileName = reference_path(rs, rs.setDWEfile_IS.text());
    LoadDWE(rs, context.os);
    rs.DWEfileName = rs.DWEfilePath;

    rs.STCfilePath = rs.STCfileName = reference_path(rs, rs.setSTCfile_IS.text());
    LoadSTC(rs, context.os);
    rs.STCfileName = rs.STCfilePath;

    rs.BLKfileName = "2004-12-19-a.blk";
    rs.BLKfilePath = join_path(rs.WorkPath, rs.BLKfileName);
    if (kit_named(rs))
        LoadBLK(rs, context.os);
    else
        warn_of_reference_file(context.os, rs.BLKfilePath);

    rs.STMfileName = "nbs-610-2004-12-19-1.stm";
    rs.STMfilePath = join_path(rs.WorkPath, rs.STMfileName);
    if (kit_named(rs))
        LoadSTM(rs, context.os);
    else
        warn_of_reference_file(context.os, rs.STMfilePath);

    load_example(context, "example-1.csv", LoadCSV);
}

void start_uranium_lead_path(Context& context, int method) {
    RunState& rs = context.rs;
    read_start_path(rs, context.os, "start_path_KolvAGE");
    rs.SettingsName = "KolvAge-default-b01.def";
    rs.SettingsPath = join_path(rs.WorkPath, rs.SettingsName);
    if (kit_named(rs))
        ReadDefaults(rs, context.os, rs.SettingsPath);
    else
        warn_of_reference_file(context.os, rs.SettingsPath);
    if (method == 3) {
        rs.Method = 3;  // whatever the file holds
        return load_example(context, "0-FLEX-UT19-50.xl", LoadXL);
    }
    // The example has neither a line before its heads nor a column before its first isotope; it is left out when the
    // files of the user do.
    if (number_in(rs.setCSVisoLINE) == 1 && number_in(rs.setCSVdatLINE) == 2 && number_in(rs.setCSVfirstCOL) == 1)
        load_example(context, "test-01-no-Hg-235-232.csv", LoadCSV);
}

}  // namespace

std::string start_kit_folder(const RunState& rs, const std::string& named) {
    std::string folder = native_path(named);
    if (!is_relative_path(folder) || folder_exists(folder)) return folder;
    std::string beside_program = join_path(rs.AppPath1, folder);
    if (folder_exists(beside_program)) return beside_program;
    // A kit that was copied under another name, start path and all, is found where its start path lies. A folder that
    // somebody has named is not replaced: its files are told as missing, so that the right one can be named.
    const bool as_shipped = folder == shipped_kit;
    return as_shipped && file_exists(join_path(rs.AppPath1, default_settings)) ? rs.AppPath1 : folder;
}

std::string reference_path(const RunState& rs, const std::string& named) {
    std::string path = native_path(named);
    if (rs.WorkPath.empty()) return path;
    std::string in_kit = join_path(rs.WorkPath, path);
    if (is_relative_path(path) && !file_exists(path) && file_exists(in_kit)) return in_kit;
    return path;
}

void start_up(Context& context, int method, const std::string& app_folder) {
    RunState& rs = context.rs;
    const Running running(rs, "start_up");
    set_start_values(rs);
    rs.Method = method;
    rs.AppPath1 = rs.AppPath2 = app_folder;
    LoadGrubbs(rs, context.os);
    LoadStudent(rs, context.os);

    if (method == 0) {
        start_internal_standard_path(context);
    } else if (method == 1 || method == 3) {
        start_uranium_lead_path(context, method);
    }
    rs.PlotOn = 0;
    context.shell.open(context.forms.frm1_Settings);
}

}  // namespace kolvar
