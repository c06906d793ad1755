#include "screens/file_list.hpp"

#include <algorithm>
#include <filesystem>

#include "batch/master_file.hpp"
#include "core/files.hpp"

namespace kolvar {

namespace {

constexpr int grid_rows = 1000, grid_columns = 80;

// Columns of the grid.
constexpr int name_column = 0, number_column = 1, type_column = 2, standard_column = 3;

void empty_grid(Grid& grid, int lines) {
    grid.resize(std::max(grid_rows, lines + 1), grid_columns);
    for (int field = 0; field < TitledFields; ++field) grid.cell(0, field).text = master_title(field);
}

// The colour of the numbers in a column: factors and corrected ratios stand out.
Colour number_colour(int field) {
    if (field >= 5 && field <= 10) return palette(13);
    if (field >= 14 && field <= 19) return palette(12);
    return palette(0);
}

Colour line_colour(bool standard, bool processed) {
    if (standard) return processed ? FrmFileList::processed_standard : FrmFileList::open_standard;
    return processed ? FrmFileList::processed_sample : palette(15);
}

void show_master(Context& context) {
    RunState& rs = context.rs;
    FrmFileList& form = context.forms.frm_FileList;
    Grid& grid = form.FlexGrid2;
    ReadMaster(rs, rs.MasterPath);
    empty_grid(grid, rs.SeqCount);
    for (int field = 0; field < TitledFields; ++field) {
        grid.cell(0, field).fore = number_colour(field);
        for (int line = 1; line <= rs.SeqCount; ++line) {
            Grid::Cell& cell = grid.cell(line, field);
            cell.text = rs.MasterRecs(line, field).text();
            cell.fore = number_colour(field);
            cell.back = line_colour(is_standard(rs, line), is_processed(rs, line));
        }
    }
    grid.touch();
    const bool opens = rs.ListMode == 1;
    grid.text = opens ? "Open file by double click on file name" : "";
    form.lblTitle.text = opens ? " Open selected file by double click on file name " : " Content of the master file ";
    show_choice(form, false);
    show_grid(form, true);
}

std::vector<std::string> drives() {
    std::vector<std::string> roots{"/"};
    for (char letter = 'A'; letter <= 'Z'; ++letter) roots.push_back(std::string(1, letter) + ":\\");
    std::erase_if(roots, [](const std::string& root) {
        return !std::filesystem::path(root).is_absolute() || !folder_exists(root);
    });
    return roots;
}

std::vector<NamedStandard> table_of_standards(const RunState& rs) {
    std::vector<NamedStandard> standards;
    for (int k = 1; k <= rs.setNumSTD.whole(); ++k) standards.push_back({rs.Std_Name(k).text(), rs.Std_Abbr(k).text()});
    return standards;
}

}  // namespace

std::optional<std::vector<std::string>> files_of_folder(const std::string& folder) {
    namespace fs = std::filesystem;
    std::error_code error;
    std::vector<std::string> names;
    fs::directory_iterator entry(native_path(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code vanished;
        if (entry->is_regular_file(vanished)) names.push_back(entry->path().filename().string());
    }
    if (error) return std::nullopt;
    std::sort(names.begin(), names.end());
    if (names.size() > MaxListed) names.resize(MaxListed);
    return names;
}

void show_drive(ListBox& list, const std::string& folder) {
    list.set_items(drives());
    std::error_code nowhere;
    list.show_item(std::filesystem::absolute(folder, nowhere).root_path().string());
}

void show_choice(FrmFileList& form, bool shown) {
    for (Control* control : std::initializer_list<Control*>{&form.pictChoice,
                                                            &form.Drive1,
                                                            &form.Dir1,
                                                            &form.lblPath,
                                                            &form.List1,
                                                            &form.cmdAccept,
                                                            &form.optStringSearch(0),
                                                            &form.optStringSearch(1),
                                                            &form.optStringSearch(2),
                                                            &form.Combo1,
                                                            &form.Label2,
                                                            &form.Combo2,
                                                            &form.txtSpecExt,
                                                            &form.cmdReOrd,
                                                            &form.cmdSaveParam,
                                                            &form.cmdSave,
                                                            &form.lblHint(0),
                                                            &form.lblHint(1),
                                                            &form.lblHint(2),
                                                            &form.lblHint(3)})
        control->visible = shown;
    form.comboStd.visible = form.lblStd.visible = false;
}

void show_grid(FrmFileList& form, bool shown) {
    constexpr int width_with_list = 18000;  // twips
    if (shown && !form.FlexGrid2.visible) form.width = std::max(form.width, width_with_list);
    form.FlexGrid2.visible = form.pictKey.visible = shown;
    // These tell how a new list is changed.
    for (int hint = 1; hint <= form.lblHint.last(); ++hint) form.lblHint(hint).visible = shown && form.Dir1.visible;
}

void clear_list(Context& context) {
    for (int line = 1; line <= MaxListed; ++line) context.rs.FileOrdered(line).clear();
    empty_grid(context.forms.frm_FileList.FlexGrid2, 0);
    context.forms.frm_FileList.FlexGrid2.touch();
}

void colour_new_line(Grid& grid, int line) {
    const Colour back = line_colour(grid.cell(line, type_column).text == "Std", false);
    for (int column = name_column; column <= standard_column; ++column) grid.cell(line, column).back = back;
}

std::vector<Marks> shown_marks(const Context& context) {
    const Grid& grid = context.forms.frm_FileList.FlexGrid2;
    std::vector<Marks> marks;
    for (int line = 1; line <= std::min(context.rs.SeqCount, grid.rows - 1); ++line)
        marks.push_back({grid.cell(line, type_column).text == "Std", grid.cell(line, standard_column).text});
    return marks;
}

void show_new_list(Context& context, const std::vector<Marks>& marks) {
    RunState& rs = context.rs;
    FrmFileList& form = context.forms.frm_FileList;
    Grid& grid = form.FlexGrid2;
    rs.SeqStdCount = 0;  // counted when the list is saved
    empty_grid(grid, rs.SeqCount);
    for (int line = 1; line <= rs.SeqCount; ++line) {
        if (rs.FileOrdered(line).empty()) continue;
        const Marks& mark = marks.at(static_cast<std::size_t>(line) - 1);
        grid.cell(line, name_column).text = rs.FileOrdered(line);
        grid.cell(line, number_column).text = std::to_string(line);
        if (mark.standard) grid.cell(line, type_column).text = "Std";
        grid.cell(line, standard_column).text = mark.standard_name;
        colour_new_line(grid, line);
    }
    grid.touch();
    grid.text.clear();
    form.lblTitle.text.clear();
    show_choice(form, true);
    show_grid(form, true);
}

void Update_Flex2(Context& context) {
    RunState& rs = context.rs;
    const Running running(rs, "Update_Flex2");
    if (rs.ListMode != 0) return show_master(context);
    const std::vector<NamedStandard> standards = table_of_standards(rs);
    const std::string any_standard = rs.setSTDabbr.text();
    std::vector<Marks> marks;
    for (int line = 1; line <= rs.SeqCount; ++line)
        marks.push_back(marks_of(rs.FileOrdered(line), any_standard, standards));
    show_new_list(context, marks);
}

}  // namespace kolvar
