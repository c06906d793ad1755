// The walk through a master list: the next file on the U/Pb screen, the strip that tells where the batch stands, and
// saving the results of the file in hand.
#pragma once

#include <string>

#include "ui/context.hpp"

namespace kolvar {

// A sequence of files is running.
bool in_sequence(const RunState& rs);

// A line whose results may be saved now: in the list, a standard before the interpolation, a sample after it. In phase 0
// every line may.
bool can_save_line(const RunState& rs);

// Loads the file named in NextFile and shows it on frm2_UP, or asks for what is missing or ambiguous first. "" does
// nothing.
void Sequence_next(Context& context);

// The strip, its buttons and labels for the line in work; nothing when no sequence is running. May move SeqPhase to 2.
void show_sequence(Context& context);

// From the list window that opens the files of a master file: the line becomes the one in work, its file is loaded and
// shown like the next one of the walk, and the list window closes. The field-0 text of the line is the file; a fault of
// the reader leaves the list as it is.
void open_listed_file(Context& context, int line);

// Loads the file `name` of MasterDir by its ending, after the results of the last file were set to 0; with an ending
// that no reader knows the former data stay.
void load_listed_file(Context& context, const std::string& name);

}  // namespace kolvar
