// The import profiles, and how the one of its ending reads the data file that was chosen last.
#include <algorithm>
#include <cmath>
#include <vector>

#include "core/fault.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "import/file_format.hpp"
#include "import/profile_detection.hpp"
#include "import/table_preview.hpp"
#include "screens/screens.hpp"
#include "settings/default_file.hpp"
#include "settings/settings_file.hpp"

namespace kolvar {

namespace {

constexpr int preview_lines = 30;
constexpr int detection_lines = 20000;

// Boxes and keys of one format.
struct ProfileBoxes {
    FileFormat format;
    const char* name;
    Entry &iso, &dat, &first;
    Value &iso_key, &dat_key, &first_key;
};

std::vector<ProfileBoxes> profiles(RunState& rs, FrmInputForm& f) {
    return {{FileFormat::csv, "CSV (comma delimited)", f.txtCSViso, f.txtCSVdat, f.txtCSVfirst, rs.setCSVisoLINE,
             rs.setCSVdatLINE, rs.setCSVfirstCOL},
            {FileFormat::txt, "TXT (TAB delimited)", f.txtTXTiso, f.txtTXTdat, f.txtTXTfirst, rs.setTXTisoLINE,
             rs.setTXTdatLINE, rs.setTXTfirstCOL},
            {FileFormat::xl, "XL (comma delimited)", f.txtXLiso, f.txtXLdat, f.txtXLfirst, rs.setXLisoLINE,
             rs.setXLdatLINE, rs.setXLfirstCOL}};
}

// What a box would be stored as. A number too large for any file is no fault while the user is typing.
Value typed_number(const Entry& box) { return std::floor(leading_number(box.text).number); }

// Why no profile reads a file; "" when one does.
std::string reason_for_no_preview(const RunState& rs) {
    if (rs.DataFileName == " pasted from clipboard ")
        return "The data were pasted from the clipboard. No profile has to do with them.";
    if (rs.DataFilePath.empty()) return "No data file was chosen.";
    const std::string path = native_path(rs.DataFilePath);
    if (format_of(path) == FileFormat::none) return "No profile reads files of this ending: " + path;
    if (!file_exists(path)) return "The file was not found: " + path;
    return {};
}

void show_lines(Grid& grid, const std::vector<std::string>& lines, const TableProfile& profile) {
    constexpr std::size_t longest_text = 80;
    std::vector<std::vector<std::string_view>> table;
    std::size_t columns = 1;
    for (const std::string& line : lines) {
        table.push_back(fields_of(line, profile.separator));
        columns = std::max(columns, std::min(table.back().size(), static_cast<std::size_t>(MaxIso)));
    }
    const TableLines read = lines_read(lines, profile);
    const int cols = static_cast<int>(columns);
    grid.resize(static_cast<int>(lines.size()) + 1, cols + 1);
    grid.column_widths = {540, 900};
    for (int col = 1; col <= cols; ++col) grid.cell(0, col).text = std::to_string(col);
    for (int row = 1; row < grid.rows; ++row) {
        const auto& fields = table[static_cast<std::size_t>(row - 1)];
        const bool skipped = profile.skips_empty_lines && lines[static_cast<std::size_t>(row - 1)].empty();
        const bool passed_over = row != read.head && (row < read.first || skipped);
        grid.cell(row, 0).text = std::to_string(row);
        for (int col = 0; col <= cols; ++col) {
            Grid::Cell& cell = grid.cell(row, col);
            const auto field = static_cast<std::size_t>(col - 1);
            if (col > 0 && field < fields.size()) {
                std::string_view text = fields[field].substr(0, longest_text);
                while (!text.empty() && text.size() < fields[field].size() &&
                       (fields[field][text.size()] & 0xC0) == 0x80)
                    text.remove_suffix(1);
                cell.text = text;
            }
            if (passed_over) cell.fore = FrmInputForm::not_read;
            if (row == read.head) cell.back = FrmInputForm::pale_red;
            if (row == read.first) cell.back = FrmInputForm::pale_blue;
            if (col > 0 && col < profile.first_column) cell.back = FrmInputForm::dropped;
        }
    }
}

// Heads or a first time slice that the lines shown don't reach.
std::string beyond_preview(const TableLines& read, int shown) {
    std::string note;
    if (read.head > shown) note += "   Line of heads: behind the lines shown.";
    if (read.first > shown) note += "   First time slice: behind the lines shown.";
    return note;
}

void show_preview(Context& context) {
    RunState& rs = context.rs;
    FrmInputForm& form = context.forms.frm_InputForm;
    Grid& grid = form.FlexGrid1;
    grid.resize(0, 0);
    form.lblFile.text = reason_for_no_preview(rs);
    if (form.lblFile.text.empty()) {
        for (const ProfileBoxes& boxes : profiles(rs, form)) {
            if (boxes.format != format_of(rs.DataFilePath)) continue;
            const TableProfile profile =
                profile_of(boxes.format, typed_number(boxes.iso), typed_number(boxes.dat), typed_number(boxes.first));
            guarded(
                [&] {
                    const std::vector<std::string> lines = first_lines(rs.DataFilePath, preview_lines);
                    show_lines(grid, lines, profile);
                    form.lblFile.text = file_name(rs.DataFilePath) + " by the profile " + boxes.name +
                                        beyond_preview(lines_read(lines, profile), static_cast<int>(lines.size()));
                },
                [&](const Fault&) { form.lblFile.text = "The file cannot be read: " + native_path(rs.DataFilePath); });
        }
    }
    grid.touch();
}

void open_import_filter(Context& context) {
    for (const ProfileBoxes& boxes : profiles(context.rs, context.forms.frm_InputForm)) {
        boxes.iso.text = boxes.iso_key.text();
        boxes.dat.text = boxes.dat_key.text();
        boxes.first.text = boxes.first_key.text();
    }
    show_preview(context);
}

// Proposes the numbers of the profile that reads the file; the user may still change or cancel them.
void detect(Context& context) {
    RunState& rs = context.rs;
    FrmInputForm& form = context.forms.frm_InputForm;
    show_preview(context);
    if (form.FlexGrid1.rows == 0) return;  // the label tells why
    const FileFormat format = format_of(rs.DataFilePath);
    const char separator = profile_of(format, {}, {}, {}).separator;
    const auto found = detect_profile(first_lines(rs.DataFilePath, detection_lines), separator);
    if (!found) {
        form.lblFile.text =
            "No line with names of isotopes before lines of numbers was found in " + file_name(rs.DataFilePath);
        return;
    }
    for (const ProfileBoxes& boxes : profiles(rs, form)) {
        if (boxes.format != format) continue;
        boxes.iso.text = std::to_string(found->head_line);
        boxes.dat.text = std::to_string(found->data_line);
        boxes.first.text = std::to_string(found->first_column);
    }
    show_preview(context);
    form.lblFile.text += "   Detected.";
}

void cmdSave(Context& context) {
    RunState& rs = context.rs;
    FrmInputForm& form = context.forms.frm_InputForm;
    const std::vector<ProfileBoxes> all = profiles(rs, form);
    bool in_order = true;
    for (const ProfileBoxes& boxes : all) in_order = Val(boxes.iso.text) < Val(boxes.dat.text) && in_order;
    if (!in_order) return context.os.warn("The RED numbers must be smaller than the BLUE ones.");
    for (const ProfileBoxes& boxes : all)
        for (const Entry* box : {&boxes.iso, &boxes.dat, &boxes.first})
            if (!is_numeric(box->text) || Val(box->text) <= 0)
                return context.os.warn("Some input values are not numeric or zero or negative.");
    // A number between 0 and 1 passes and is stored as 0.
    for (const ProfileBoxes& boxes : all) {
        boxes.iso_key = std::floor(Val(boxes.iso.text));
        boxes.dat_key = std::floor(Val(boxes.dat.text));
        boxes.first_key = std::floor(Val(boxes.first.text));
    }
    if (rs.Method == 0) save_settings_as(rs, context.os);
    if (rs.Method == 1) save_defaults_as(rs, context.os, rs.AppPath1);
    context.shell.close(form);
}

}  // namespace

void connect_import_filter_window(Program& program) {
    Context& context = program.context();
    FrmInputForm& form = context.forms.frm_InputForm;
    program.shell().set_hooks(form, {[&context] { open_import_filter(context); }, {}});
    for (const ProfileBoxes& boxes : profiles(context.rs, form))
        for (Entry* box : {&boxes.iso, &boxes.dat, &boxes.first}) {
            box->changed = [&context] { show_preview(context); };
            program.on(form, box->name, EventKind::enter, [&context](const Event&) { cmdSave(context); });
        }
    program.on(form, "cmdDetect", EventKind::click, [&context](const Event&) { detect(context); });
    program.on(form, "cmdSave", EventKind::click, [&context](const Event&) { cmdSave(context); });
    program.on(form, "cmdCancel", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_InputForm); });
}

}  // namespace kolvar
