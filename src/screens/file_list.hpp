// The table of the list window and the names of a folder's files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "batch/file_order.hpp"
#include "ui/context.hpp"

namespace kolvar {

// Names of a folder's files, sorted, the first 1000 of them; nothing when the folder can't be read.
std::optional<std::vector<std::string>> files_of_folder(const std::string& folder);

// The drives of the machine, and the one of this folder chosen.
void show_drive(ListBox& list, const std::string& folder);

// Fills the grid of the list window by ListMode: a new list with the marks that its names tell (0), the master file as
// it stands on the disk (1, 2). A fault of the master file leaves the grid as it was.
void Update_Flex2(Context& context);

// The new list with these marks, one for each line.
void show_new_list(Context& context, const std::vector<Marks>& marks);

// The marks of the new list as the grid shows them, set by its names or by hand.
std::vector<Marks> shown_marks(const Context& context);

// An empty grid, and nothing in the new list. The controls of the choice stand as they are.
void clear_list(Context& context);

// Folder and order of a new list.
void show_choice(FrmFileList& form, bool shown);

// The grid with what belongs to it; the window grows for it.
void show_grid(FrmFileList& form, bool shown);

// Colours of a line of the new list: standards stand out.
void colour_new_line(Grid& grid, int line);

}  // namespace kolvar
