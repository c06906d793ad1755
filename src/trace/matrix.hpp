// The rejection matrix: its cells, the tests that mark or reject them, and the rejections read back.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Load of frm3_Matrix: controls, statistics, table, presets.
void load_matrix(Context& context);
// The table of the view that is set (optCPS, optIIS, optCpsSD, optIisSD); handles the change of basis.
void FillTable(Context& context);
// What each box does when it is switched; the box already holds its new value.
void switch_show_min_max(Context& context);
void switch_show_deviation(Context& context);
void switch_show_grubbs(Context& context);
void switch_reject_min_max(Context& context);
void switch_reject_deviation(Context& context);
void switch_reject_grubbs(Context& context);
void reset_rejection(Context& context);
// The user typed into comboProc: a box, and the level shown before.
void refuse_typed_level(Context& context);
// A click into the table; row 0 is the header row, col 0 the column of names.
void click_matrix(Context& context, int row, int col);
// The normalised trend of a row in pict1.
void Draw_Profile(Context& context, int row);
// No figure of the two halves: lblFirstSec holds the words alone.
void clear_halves(Frm3Matrix& form);
// Rej, nData, nRejected, RejManual and the list of isotopes with too few data (OutText) from the colours of the cells.
void ReadRejections(Context& context);

}  // namespace kolvar
