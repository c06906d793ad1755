// The settings window of the internal-standard path.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Opens frm_SetIS; `return_to` tells which window follows it: "back to start" or "back to time".
void open_set_is(Context& context, const char* return_to);

// Takes the controls into the settings and the run state, saves them when asked to, and leads back.
void Take_New_Values_IS(Context& context);

}  // namespace kolvar
