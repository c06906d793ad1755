// Which columns hold the isotopes that the U/Pb and FLEX calculations address by their role.
#pragma once

#include <string>
#include <vector>

#include "core/run_state.hpp"

namespace kolvar {

// By the column heads, exactly and case-sensitive: the twelve isotopes of the U/Pb path in their eight forms. Of two
// columns for one isotope the last counts. Sets HgMass and ColHg to the heaviest Hg isotope; without one ColHg stays.
void RecogniseUPb(RunState& rs);

// By the names of the FLEX catalogue. The first seven slots share the role fields of the U/Pb path.
void RecogniseFlex(RunState& rs);

// The heads of columns that have no role on the path of `Method`.
std::vector<std::string> unrecognised_columns(const RunState& rs);

}  // namespace kolvar
