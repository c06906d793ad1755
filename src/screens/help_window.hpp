// The help menus of all windows, and the help window.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Hands a help document of the program's folder to the system; a box tells which file is missing.
void open_help(Context& context, const std::string& document);

}  // namespace kolvar
