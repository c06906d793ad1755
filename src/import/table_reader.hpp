// Reads a text table, a line a time slice and a field an isotope, into the measurement.
#pragma once

#include <string>

#include "core/run_state.hpp"

namespace kolvar {

// Where the parts of a table stand. Lines and columns count from 1.
struct TableProfile {
    char separator = ',';
    int head_line = 1;  // below 1: the table has no line of heads
    int data_line = 2;  // a line before the one behind the heads means that one
    int first_column = 1;
    bool skips_empty_lines = false;  // else an empty line is a slice
};

// Fills IsoName, Sig, nIso and nSlices, and sets PrevSlices to the slices of the table before. Columns left of
// first_column are dropped. Faults: file_missing, file_unreadable, end_of_file before the heads or the data, too_many
// columns or slices, overflow of a number. What was read before a fault stays, and the counts never pass the limits.
void read_table(RunState& rs, const std::string& path, const TableProfile& profile);

}  // namespace kolvar
