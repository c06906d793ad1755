// The settings file: everything that the internal-standard path remembers between runs.
#pragma once

#include <functional>
#include <string>

#include "core/platform.hpp"
#include "core/run_state.hpp"

namespace kolvar {

// Reads the 183 lines by their position and derives IS1name..IS3err, BlankFromData, DwellFromFile, LinearView. A fault
// shows a warning; what was read stays and nothing is derived.
void ReadSettings(RunState& rs, Platform& os, const std::string& path);

// The box for a settings file that could not be read.
void warn_of_settings_file(Platform& os, const std::string& path);

// The fields of the run state that follow from the keys: IS1name..IS3err, BlankFromData, LinearView.
void derive_from_settings(RunState& rs);

// Replaces SetFilePath by what `compose` gives; asks before it overwrites; reports its own faults.
void replace_settings(const RunState& rs, Platform& os, const std::function<std::string()>& compose);

// Writes to SetFilePath; asks before it overwrites; reports its own faults.
void WriteSettings(RunState& rs, Platform& os);

// How the save dialog for a settings file opens: at the current settings file.
FileDialog settings_save_dialog(const RunState& rs);

// That dialog, then WriteSettings. A cancelled dialog writes to the proposed name.
void save_settings_as(RunState& rs, Platform& os);

}  // namespace kolvar
