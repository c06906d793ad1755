// Where the start kit and the files that the settings name are found.
#pragma once

#include <string>

#include "core/run_state.hpp"

namespace kolvar {

// The kit's folder as the start-path file names it. A relative name that isn't found from the current folder counts
// from the folder of the program, so that program and kit can be moved together; the kit's own name, found in neither,
// means the folder of the start path itself if that holds the default settings.
std::string start_kit_folder(const RunState& rs, const std::string& named);

// A reference file as the settings name it. A relative name that isn't found from the current folder counts from the
// start kit, so that a kit can be copied anywhere.
std::string reference_path(const RunState& rs, const std::string& named);

}  // namespace kolvar
