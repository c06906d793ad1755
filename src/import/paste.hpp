// A table on the clipboard in the place of a data file.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Fills the measurement from the clipboard: a line of isotope names, then a line a time slice, TAB between the cells.
// An empty clipboard shows a warning; any other fault opens frmPaste, and what was read so far stays. True when the
// table was read to its end.
bool PasteData(Context& context);

}  // namespace kolvar
