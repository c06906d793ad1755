// Step 2 of the U/Pb and FLEX paths, cut by topic: opening, layout, handlers.
#pragma once

#include "screens/program.hpp"
#include "ui/context.hpp"

namespace kolvar {

void open_up_window(Context& context);
void activate_up_window(Context& context);
// A window that stands open shows other data: nothing of the file before is left, scales and ticks stay.
void renew_up_window(Context& context);
// Places the plots and the panels around them for the window's present size (twips).
void lay_out_up_window(Context& context);
void resize_up_window(Context& context);

}  // namespace kolvar
