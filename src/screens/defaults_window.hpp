// The two windows of the defaults: frm_SetUP of the U/Pb path and frm_Set_FLEX.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Opens the window of the path that is in use, over the present one; the paths without such a window open none.
void open_defaults_window(Context& context);

}  // namespace kolvar
