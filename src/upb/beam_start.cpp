#include "upb/beam_start.hpp"

#include "core/numbers.hpp"

namespace kolvar {

namespace {

constexpr int run_length = 10;

// Raw cps of a slice. The first two columns take no part. Behind the last slice the table is read as it stands, and
// behind its end as 0.
double total_signal(const RunState& rs, int slice) {
    double total = 0;
    if (slice > MaxSlices) return total;
    for (int i = 3; i <= rs.nIso; ++i) total += rs.Sig(i, slice);
    return total;
}

}  // namespace

void Search_BeamStart(RunState& rs) {
    const Running running(rs, "Search_BeamStart");
    const int low = rs.BlkLow.val();
    const int upp = rs.BlkUpp.val();
    if (upp == low) return;  // too short a blank: the calculation that follows says so
    double blank = 0;
    for (int t = low; t <= upp; ++t) blank += total_signal(rs, t);
    // One less than the slices that were added: the threshold lies a little above the mean of the blank.
    const double threshold = quotient(blank, upp - low);

    int above = 0;  // slices in a row above the threshold
    for (int t = upp; t <= rs.nSlices - 5 + run_length - 1; ++t) {
        above = total_signal(rs, t) > threshold ? above + 1 : 0;
        if (above >= run_length && rs.BeamStart < 1) rs.BeamStart = t - run_length + 1;
    }
}

}  // namespace kolvar
