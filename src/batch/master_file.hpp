// The master file of a batch: one line a measurement, with its results, rewritten whole after each.
#pragma once

#include <string>

#include "core/platform.hpp"
#include "core/run_state.hpp"
#include "ui/control.hpp"

namespace kolvar {

inline constexpr int MasterFields = 70;  // of a line of the file
inline constexpr int TitledFields = 64;  // 0..63 have titles and meaning

// Title of the column of a field; "" for field 0 and for the spare fields behind the last title.
const char* master_title(int field);

// A line has been processed: it holds a measured 206/238 other than 0. False outside the list.
bool is_processed(const RunState& rs, int line);
bool is_standard(const RunState& rs, int line);

// Fills counters, MasterRecs and SeqPhase. Fault with the path when the file can't be read (file_missing,
// file_unreadable), ends too early (end_of_file), has no count of files in its header (type) or counts more lines than
// a list holds (too_many); counters and list are then as before.
void ReadMaster(RunState& rs, const std::string& path);

// Writes the file from the list window's grid (ListMode 0; refused when the file exists) or from MasterRecs
// (ListMode 1). A failure is told in a box. True when the file was written.
bool SaveMaster(RunState& rs, Platform& os, const Grid& list, const std::string& path);

}  // namespace kolvar
