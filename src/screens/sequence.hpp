// The walk through a master list: the next file on the U/Pb screen, the strip that tells where the batch stands, and
// saving the results of the file in hand.
#pragma once

#include <string>

#include "screens/program.hpp"
#include "ui/context.hpp"

namespace kolvar {

// A sequence of files is running.
bool in_sequence(const RunState& rs);

// A line whose results may be saved now: in the list, its file read, a standard before the interpolation, a sample
// after it. In phase 0 both kinds may.
bool can_save_line(const RunState& rs);

// Loads the file named in NextFile and shows it on frm2_UP, or asks for what is missing or ambiguous first. "" does
// nothing.
void Sequence_next(Context& context);

// The strip, its buttons and labels for the line in work; nothing when no sequence is running. May move SeqPhase to 2.
void show_sequence(Context& context);
// frm2_UP as it is without a sequence.
void hide_sequence(Frm2UP& form);

// frm2_UP on the data that were just loaded, with the strip. A window that was open keeps its scales and ticks.
void show_file_in_work(Context& context);

// From the list window that opens the files of a master file: the line becomes the one in work, its file is loaded and
// shown like the next one of the walk, and the list window is gone. A line without a name does nothing.
void open_listed_file(Context& context, int line);

// The list window, filled anew in this ListMode.
void open_list_window(Context& context, int mode);

// Loads the file `name` of MasterDir by its ending, after the results of the last file were set to 0; with an ending
// that no reader knows the former data stay.
void load_listed_file(Context& context, const std::string& name);

// cmdOpenMaster of the start panel: a master file is read, and the walk begins at its first line or first sample. A
// file that can't be read is a fault that leaves the list in work as it is.
void cmdOpenMaster(Context& context);

// The buttons that move through the list, with or without saving.
void connect_moves(Program& program);

}  // namespace kolvar
