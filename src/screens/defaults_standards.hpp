// The table of reference standards and the names of minerals, which the window of the U/Pb defaults stores at once.
#pragma once

#include "screens/program.hpp"

namespace kolvar {

// The fields show the row of the standard that the list shows; without one they are empty.
void show_standard(FrmSetUP& form, const RunState& rs);

// Name the mineral that the list shows; the last entry has no name to show.
void show_mineral(DefaultsForm& form, const RunState& rs);

void connect_standards(Program& program);
void connect_minerals(Program& program, DefaultsForm& form);

}  // namespace kolvar
