// Which internal standard and which rows of the reference files belong to each column.
#pragma once

#include "ui/context.hpp"

namespace kolvar {

// Fills IsoISidx, IsoISconc, IsoISerr by mass boundaries or by the periodic assignment.
void AssignInternalStandards(RunState& rs);

// Binds the columns to the reference tables, lists what is missing, and opens the window that follows.
void MatchReferences(Context& context);

}  // namespace kolvar
