// The choice of a folder: where the start kit lies, or, on the U/Pb path, which files a simple sequence is made of.
#include "batch/file_order.hpp"
#include "core/files.hpp"
#include "core/records.hpp"
#include "screens/file_list.hpp"
#include "screens/screens.hpp"
#include "screens/sequence.hpp"
#include "screens/uranium_lead_files.hpp"

namespace kolvar {

namespace {

constexpr int grid_rows = 1000;
constexpr int grid_columns = 8;

bool chooses_sequence(const RunState& rs) { return rs.Method == 1; }

void open_folder_window(Context& context) {
    FrmChoseDir& form = context.forms.frm_ChoseDir;
    const bool sequence = chooses_sequence(context.rs);
    form.Dir1.text = native_path(context.rs.WorkPath.empty() ? context.rs.AppPath1 : context.rs.WorkPath);
    form.lblPath.text = form.Dir1.text;
    show_drive(form.Drive1, form.Dir1.text);
    form.lblAdvice.visible = form.cmdSave.visible = !sequence;
    form.List1.visible = form.FlexGrid2.visible = form.cmdOK.visible = form.cmdProc.visible = sequence;
    form.List1.set_items({});
    form.FlexGrid2.resize(0, 0);
    form.FlexGrid2.touch();
}

void list_files(Context& context, const std::string& folder, const std::vector<std::string>& files) {
    RunState& rs = context.rs;
    rs.MasterDir = join_path(folder, "");
    context.forms.frm_ChoseDir.List1.set_items(files);
    for (int i = 1; i <= MaxListed; ++i) rs.FileNames(i).clear();
    for (std::size_t i = 0; i < files.size(); ++i) rs.FileNames(static_cast<int>(i) + 1) = files[i];
}

void show_folder(FrmChoseDir& form, const std::string& folder) {
    form.Dir1.text = form.lblPath.text = native_path(folder);
    show_drive(form.Drive1, form.Dir1.text);
}

void Dir1(Context& context, const std::string& folder) {
    if (chooses_sequence(context.rs)) {
        const auto files = files_of_folder(folder);
        if (!files) fail(FaultKind::file_unreadable, folder);
        list_files(context, folder, *files);
    }
    show_folder(context.forms.frm_ChoseDir, folder);
}

// A drive without a disk is passed over.
void Drive1(Context& context) {
    FrmChoseDir& form = context.forms.frm_ChoseDir;
    const std::string root = form.Drive1.text;
    const auto files = files_of_folder(root);
    if (!files) return;
    if (chooses_sequence(context.rs)) list_files(context, root, *files);
    show_folder(form, root);
}

// The files in the order of their names, standards by the mark in the name.
void cmdOK(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "cmdOK");
    Grid& grid = context.forms.frm_ChoseDir.FlexGrid2;
    grid.resize(grid_rows, grid_columns);
    grid.column_widths = {400, 2600, 600, 500, 1050};
    const char* const titles[] = {"File name", "Status", "Done", "Pb206/U238"};
    for (int column = 1; column <= 4; ++column) grid.cell(0, column).text = titles[column - 1];
    const std::string mark = rs.setSTDabbr.text();
    for (int i = 1; i <= MaxListed; ++i) {
        const std::string& name = rs.FileNames(i);
        const bool standard = !name.empty() && abbreviation_in(name, mark, character_count(mark));
        rs.FileOrdered(i) = name;
        rs.FileTypes(i) = standard ? "Std" : "";
        if (name.empty() || i >= grid_rows) continue;
        grid.cell(i, 0).text = std::to_string(i);
        grid.cell(i, 1).text = name;
        grid.cell(i, 2).text = rs.FileTypes(i);
        if (standard) continue;
        for (int column = 0; column < grid_columns; ++column) grid.cell(i, column).fore = palette(8);
    }
    grid.touch();
}

// The last standard of the list goes to the time selection of concentrations.
void cmdProc(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "cmdProc");
    Form& form = context.forms.frm_ChoseDir;
    rs.Method = 1;
    rs.BlankFromData = 1;
    int last = 0;
    for (int i = 1; i <= MaxListed; ++i)
        if (rs.FileTypes(i) == "Std") last = i;
    if (last == 0) return;
    rs.SeqPos = last;
    load_listed_file(context, rs.FileOrdered(last));
    if (!refused_for_missing_isotopes(context) && !asked_about_mercury(context)) {
        rs.HgChosen = true;
        rs.PlotOn = 0;
        context.shell.open(context.forms.frm2_Time);
    }
    context.shell.close(form);
    context.shell.close(context.forms.frm1_Settings);
}

// The new folder counts from the next start on.
void save_start_path(Context& context) {
    const Running running(context.rs, "save_start_path");
    RecordWriter writer;
    writer.field(context.forms.frm_ChoseDir.lblPath.text);
    writer.end_record();
    replace_file(context.os, join_path(context.rs.AppPath1, "start_path"), writer.bytes());
    context.shell.close(context.forms.frm_ChoseDir);
}

}  // namespace

void connect_folder_window(Program& program) {
    Context& context = program.context();
    const FrmChoseDir& form = context.forms.frm_ChoseDir;
    program.shell().set_hooks(form, {[&context] { open_folder_window(context); }, {}});
    program.on(form, "Dir1", EventKind::choose, [&context](const Event& event) { Dir1(context, event.text); });
    program.on(form, "Drive1", EventKind::choose, [&context](const Event&) { Drive1(context); });
    const auto click = [&](const std::string& control, void (*handler)(Context&)) {
        program.on(form, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    click("cmdSave", save_start_path);
    click("cmdOK", cmdOK);
    click("cmdProc", cmdProc);
    click("cmdCancel", [](Context& c) { c.shell.close(c.forms.frm_ChoseDir); });
}

}  // namespace kolvar
