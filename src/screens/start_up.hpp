// From process start to the first window.
#pragma once

#include <string>

#include "ui/context.hpp"

namespace kolvar {

// Fills the run state, loads tables, settings and the start kit in a fixed order, and opens the first window. A failed
// step reports by itself and the sequence goes on.
void start_up(Context& context, int method, const std::string& app_folder);

}  // namespace kolvar
