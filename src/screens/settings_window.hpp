// Step 1: what the windows around it need of its handlers.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// From the choice of files to the choice of internal standards, and back.
void Selection_Ready(Context& context);
void back_to_file_choice(Context& context);

}  // namespace kolvar
