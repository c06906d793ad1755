// The list of a batch: files of a folder in the order of measurement, or the files of a master file.
#include <algorithm>
#include <filesystem>

#include "batch/file_order.hpp"
#include "batch/master_file.hpp"
#include "core/files.hpp"
#include "core/numbers.hpp"
#include "screens/file_list.hpp"
#include "screens/screens.hpp"
#include "screens/sequence.hpp"
#include "settings/default_file.hpp"

namespace kolvar {

namespace {

std::vector<std::string> counted(int last) {
    std::vector<std::string> items;
    for (int number = 1; number <= last; ++number) items.push_back(std::to_string(number));
    return items;
}

// While a new list is made, the strip of the batch in work rests, and its drift plot closes: they would save into the
// new list. Closing the list window goes back to that batch.
void rest_running_batch(Context& context) {
    context.shell.close(context.forms.frm_drift);
    if (!in_sequence(context.rs) || context.rs.MasterName.empty()) return;
    context.forms.frm2_UP.pictSeq.enabled = false;
}

void go_back_to_running_batch(Context& context) {
    RunState& rs = context.rs;
    Panel& strip = context.forms.frm2_UP.pictSeq;
    if (strip.enabled) return;
    rs.MasterPath = rs.MasterDir + rs.MasterName;
    rs.ListMode = 1;
    ReadMaster(rs, rs.MasterPath);
    strip.enabled = true;
    if (context.forms.frm2_UP.shown) show_sequence(context);
}

// The count may still be that of a master file which was read since: it is again that of the new list, or of the files
// of the folder while these are not yet accepted.
void count_new_list(RunState& rs) {
    const auto filled = [](const auto& names) {
        int count = 0;
        while (count < MaxListed && !names(count + 1).empty()) ++count;
        return count;
    };
    rs.SeqCount = filled(rs.FileOrdered);
    if (rs.SeqCount == 0) rs.SeqCount = filled(rs.FileNames);
}

void show_files(Context& context, const std::string& folder, const std::vector<std::string>& files) {
    RunState& rs = context.rs;
    FrmFileList& form = context.forms.frm_FileList;
    rest_running_batch(context);
    std::string path = native_path(folder);
    form.Dir1.text = form.lblPath.text = path;
    show_drive(form.Drive1, form.Dir1.text);
    while (path.size() > 1 && file_name(path).empty()) path = folder_of(path);
    // So named, the master file stands before the data files of its folder.
    rs.MasterPath = join_path(path, "0-" + file_name(path) + ".msf");
    form.List1.set_items(files);
    if (!files.empty()) form.List1.show_item(files.front());
    clear_list(context);  // no lines until it is accepted or ordered
    for (int i = 1; i <= MaxListed; ++i) rs.FileNames(i).clear();
    rs.SeqCount = static_cast<int>(files.size());
    for (int i = 1; i <= rs.SeqCount; ++i) rs.FileNames(i) = files[static_cast<std::size_t>(i) - 1];

    constexpr std::size_t looked_at = 100;
    const auto last = files.begin() + static_cast<std::ptrdiff_t>(std::min(looked_at, files.size()));
    if (std::any_of(files.begin(), last, [](const std::string& name) { return name.ends_with(".msf"); }))
        context.os.warn("There is a master file already in this directory! Do you want to create another?\n\n");
}

void Dir1(Context& context, const std::string& folder) {
    const auto files = files_of_folder(folder);
    if (!files) fail(FaultKind::file_unreadable, folder);
    show_files(context, folder, *files);
}

// A drive without a disk is passed over.
void Drive1(Context& context) {
    const std::string root = context.forms.frm_FileList.Drive1.text;
    if (root == context.forms.frm_FileList.Dir1.text) return;
    if (const auto files = files_of_folder(root)) show_files(context, root, *files);
}

void cmdAccept(Context& context) {
    RunState& rs = context.rs;
    for (int i = 1; i <= rs.SeqCount; ++i) rs.FileOrdered(i) = rs.FileNames(i);
    Update_Flex2(context);
}

// The option chosen for the place of the serial number, -1 for none.
int chosen_place(FrmFileList& form) {
    for (const OptionButton& option : form.optStringSearch)
        if (option.on()) return option.index;
    return -1;
}

// The prompt is no ending.
std::string special_ending(const FrmFileList& form) {
    if (form.txtSpecExt.text == "type your special extension here") return "kkkkkkkkkkkkkkkk";
    return form.txtSpecExt.text;
}

// Takes out what is no data file and what has no serial number, and brings the rest into the order of the numbers.
void cmdReOrd(Context& context) {
    RunState& rs = context.rs;
    FrmFileList& form = context.forms.frm_FileList;
    for (int i = 1; i <= MaxListed; ++i) {
        rs.FileSerial(i) = Value();
        rs.FileOrdered(i).clear();
    }
    int kept = 0;
    for (int i = 1; i <= rs.SeqCount; ++i)
        if (is_data_file(rs.FileNames(i), special_ending(form))) rs.FileNames(++kept) = rs.FileNames(i);
    for (int i = kept + 1; i <= MaxListed; ++i) rs.FileNames(i).clear();

    const SerialRule rule{static_cast<SerialPlace>(chosen_place(form)), static_cast<int>(Val(form.Combo2.text)),
                          static_cast<int>(Val(form.Combo1.text))};
    std::vector<std::optional<double>> serials;
    for (int i = 1; i <= kept; ++i) {
        serials.push_back(serial_number(rs.FileNames(i), rule));
        if (serials.back()) rs.FileSerial(i) = *serials.back();
    }
    constexpr double taken = 1000000000;
    rs.SeqCount = 0;
    for (const std::size_t at : order_of_measurement(serials)) {
        const int i = static_cast<int>(at) + 1;
        rs.FileSerial(i) = taken;
        rs.FileOrdered(++rs.SeqCount) = rs.FileNames(i);
    }
    rs.ListMode = 0;
    Update_Flex2(context);
}

void cmdSaveParam(Context& context) {
    RunState& rs = context.rs;
    FrmFileList& form = context.forms.frm_FileList;
    if (const int place = chosen_place(form); place >= 0) rs.setSerialNo1 = place;
    rs.setSerialNo2 = Val(form.Combo2.text);
    rs.setSerialNo3 = Val(form.Combo1.text);
    save_defaults_as(rs, context.os, rs.AppPath2);
}

void cmdSave(Context& context) {
    RunState& rs = context.rs;
    const Grid& grid = context.forms.frm_FileList.FlexGrid2;
    rs.SeqStdCount = 0;
    for (int line = 1; line < grid.rows; ++line)
        if (grid.cell(line, 2).text == "Std") ++rs.SeqStdCount;
    if (rs.SeqStdCount < 2)
        return context.os.warn(" Too few standard file, interpolation for samples is not possible.");
    for (int line = 1; line <= rs.SeqCount; ++line) rs.FileTypes(line) = grid.cell(line, 2).text;
    const auto path =
        context.os.save_file({"Master Files (*.msf)|*.msf|All Files (*.*)|*.*|", 1, rs.MasterPath, rs.AppPath2});
    if (!path || path->empty()) return;
    rs.MasterPath = *path;
    SaveMaster(rs, context.os, grid, rs.MasterPath);
}

// For a new choice: the list goes, folder and ordering come back.
void cmdBack(Context& context) {
    constexpr int width_of_choice = 7500;  // twips
    FrmFileList& form = context.forms.frm_FileList;
    rest_running_batch(context);
    const bool showed_master = context.rs.ListMode != 0;
    context.rs.ListMode = 0;
    clear_list(context);
    if (showed_master) count_new_list(context.rs);
    form.lblTitle.text.clear();
    form.FlexGrid2.text.clear();
    show_choice(form, true);
    show_grid(form, false);
    form.width = width_of_choice;
}

void cmdClose(Context& context) {
    context.shell.close(context.forms.frm_FileList);
    go_back_to_running_batch(context);
}

// The following lines move up with their marks, also those set by hand.
void delete_line(Context& context, int line) {
    RunState& rs = context.rs;
    if (!context.os.ask("Do you want to delete file:\n\nNo. " + std::to_string(line) + "\n\n from the list?")) return;
    std::vector<Marks> marks = shown_marks(context);
    marks.erase(marks.begin() + (line - 1));
    for (int i = line; i < rs.SeqCount; ++i) rs.FileOrdered(i) = rs.FileOrdered(i + 1);
    rs.FileOrdered(rs.SeqCount).clear();
    --rs.SeqCount;
    for (int i = 1; i <= MaxListed; ++i) {
        rs.FileNames(i) = i <= rs.SeqCount ? rs.FileOrdered(i) : "";
        rs.FileSerial(i) = i <= rs.SeqCount ? Value(i) : Value();
    }
    rs.ListMode = 0;
    show_new_list(context, marks);
}

void ask_for_standard(FrmFileList& form, int line) {
    form.line_of_standard = line;
    form.comboStd.show_item(form.FlexGrid2.cell(line, 3).text);
    form.lblStd.text = "Standard of No. " + std::to_string(line) + ":";
    form.comboStd.visible = form.lblStd.visible = true;
    form.set_focus(form.comboStd);
}

void deselect_standard(Grid& grid, int line) {
    if (grid.cell(line, 2).text != "Std") return;
    grid.cell(line, 2).text.clear();
    grid.cell(line, 3).text.clear();
    colour_new_line(grid, line);
    grid.touch();
}

void comboStd(FrmFileList& form) {
    Grid& grid = form.FlexGrid2;
    grid.cell(form.line_of_standard, 3).text = form.comboStd.text;
    grid.cell(form.line_of_standard, 2).text = "Std";
    colour_new_line(grid, form.line_of_standard);
    grid.touch();
    form.comboStd.visible = form.lblStd.visible = false;
}

// The file name is a head of its row; its double click and that on the number beside it are the same.
void FlexGrid2(Context& context, int line, int column) {
    RunState& rs = context.rs;
    FrmFileList& form = context.forms.frm_FileList;
    if (line < 1 || line > rs.SeqCount || line >= form.FlexGrid2.rows) return;
    if (rs.ListMode == 1 && column <= 1) return open_listed_file(context, line);
    if (rs.ListMode != 0) return;
    if (form.FlexGrid2.cell(line, 0).text.empty()) return;  // a folder is chosen, its list not yet accepted
    if (column <= 1) return delete_line(context, line);
    if (column == 2) deselect_standard(form.FlexGrid2, line);
    if (column == 3) ask_for_standard(form, line);
}

void open_file_list(Context& context) {
    RunState& rs = context.rs;
    FrmFileList& form = context.forms.frm_FileList;
    const Running running(rs, "open_file_list");
    if (rs.ListMode == 0) {
        rest_running_batch(context);
        count_new_list(rs);
    }
    if (form.width == 0) form.width = 18000, form.height = 10500;  // room for the table on a small screen
    if (rs.ListMode == 0 || rs.ListMode == 1) {
        form.Combo1.set_items(counted(25));
        form.Combo2.set_items(counted(5));
        for (OptionButton& option : form.optStringSearch) option.value = option.index == rs.setSerialNo1.val() ? 1 : 0;
        form.Combo1.show_item(rs.setSerialNo3.text());
        form.Combo2.show_item(rs.setSerialNo2.text());
        std::vector<std::string> standards;
        for (int k = 1; k <= rs.setNumSTD.whole(); ++k) standards.push_back(rs.Std_Name(k).text());
        form.comboStd.set_items(standards);
        if (form.Dir1.text.empty()) form.Dir1.text = native_path(rs.AppPath2.empty() ? rs.WorkPath : rs.AppPath2);
        show_drive(form.Drive1, form.Dir1.text);
    }
    Update_Flex2(context);
    form.just_opened = true;
}

// The window may have stayed open, or loaded, while the list went on or the way of showing it changed.
void follow_list(Context& context) {
    FrmFileList& form = context.forms.frm_FileList;
    if (form.just_opened) {
        form.just_opened = false;
        return;
    }
    const bool shows_choice = form.Dir1.visible;
    if (context.rs.ListMode != 0) {
        Update_Flex2(context);
    } else if (!shows_choice) {
        open_file_list(context);
        form.just_opened = false;
    }
}

}  // namespace

void connect_file_list(Program& program) {
    Context& context = program.context();
    FrmFileList& form = context.forms.frm_FileList;
    program.shell().set_hooks(form, {[&context] { open_file_list(context); }, [&context] { follow_list(context); }});
    const auto click = [&](const char* control, void (*handler)(Context&)) {
        program.on(form, control, EventKind::click, [&context, handler](const Event&) { handler(context); });
    };
    click("cmdAccept", cmdAccept);
    click("cmdReOrd", cmdReOrd);
    click("cmdSaveParam", cmdSaveParam);
    click("cmdSave", cmdSave);
    click("cmdBack", cmdBack);
    click("cmdClose", cmdClose);
    program.on(form, "", EventKind::close, [&context](const Event&) { cmdClose(context); });
    program.on(form, "Drive1", EventKind::choose, [&context](const Event&) { Drive1(context); });
    program.on(form, "Dir1", EventKind::choose, [&context](const Event& event) { Dir1(context, event.text); });
    program.on(form, "comboStd", EventKind::choose, [&form](const Event&) { comboStd(form); });
    program.on(form, "FlexGrid2", EventKind::cell_dblclick,
               [&context](const Event& event) { FlexGrid2(context, event.row, event.col); });
}

}  // namespace kolvar
