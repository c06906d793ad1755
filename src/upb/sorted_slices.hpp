// The values of a selection in upward order.
#pragma once

#include "core/run_state.hpp"

namespace kolvar {

// Of a value that is as large as this no sorted table knows.
inline constexpr double sort_sentinel = 1000000000;

// The values of the slices SelLow..SelUpp into `sorted`, at the places of these slices: the smallest first, the
// sentinel where there are no more below it. With `around_rejected` a place whose flag is 1 keeps what stands there,
// while the values of such slices are sorted among the others. MedianWork keeps the sentinel where a value was taken.
void sort_slices(RunState& rs, const Table1<double>& values, Table1<double>& sorted, bool around_rejected);

}  // namespace kolvar
