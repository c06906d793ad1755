// The default file: everything that the U/Pb and FLEX paths remember between runs, with the table of standards.
#pragma once

#include <string>

#include "core/platform.hpp"
#include "core/run_state.hpp"

namespace kolvar {

// Reads the keys and the rows of standards by their position and derives what follows from the settings. A file that
// can't be read whole, or that holds more than 30 standards, shows a warning and changes nothing.
void ReadDefaults(RunState& rs, Platform& os, const std::string& path);

// Writes to SetFilePath; asks before it overwrites; reports its own faults.
void WriteDefaults(RunState& rs, Platform& os);

// The dialog, which proposes the current default file, then WriteDefaults. A cancelled dialog writes to the proposed
// name.
void save_defaults_as(RunState& rs, Platform& os, const std::string& folder);

}  // namespace kolvar
