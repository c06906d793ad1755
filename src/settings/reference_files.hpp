// Standard composition, standard measurement, blank and dwell time files.
#pragma once

#include <string>

#include "ui/context.hpp"

namespace kolvar {

// Each reads the file of its path field and reports its own faults.
void LoadSTC(RunState& rs, Platform& os);
void LoadSTM(RunState& rs, Platform& os);
void LoadBLK(RunState& rs, Platform& os);
void LoadDWE(RunState& rs, Platform& os);
// The box for a standard measurement or blank that could not be read.
void warn_of_reference_file(Platform& os, const std::string& path);

// A raw instrument table of the blank, reduced to means and s.d. at once. Faults are not caught; the table then counts
// as empty.
void LoadBlankTable(RunState& rs, const std::string& path);

// By the ending of BLKfilePath: a Blank File, a measured table, or nothing.
void load_blank_by_ending(RunState& rs, Platform& os);

// The Browse buttons: dialog, fields, load, label. An empty answer leaves everything as it is.
void browse_stc(Context& context);
void browse_stm(Context& context);
void browse_blk(Context& context);
void browse_dwe(Context& context);
// What the header of the file says.
void show_stc_info(RunState& rs, Platform& os);
void show_dwe_info(RunState& rs, Platform& os);

// Writes a Standard Measurement File or Blank File from AvCps and AccCpsSE. Asks before it overwrites; false when the
// user said No. Faults pass to the caller.
bool WriteCpsTable(RunState& rs, Platform& os, const std::string& path);

}  // namespace kolvar
