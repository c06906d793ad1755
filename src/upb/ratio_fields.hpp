// The five isotope ratios of the U/Pb and FLEX paths as one table: where the run state keeps what belongs to each.
#pragma once

#include <array>

#include "core/run_state.hpp"

namespace kolvar {

struct RatioFields {
    Table1<double> RunState::*slices;  // the ratio of each slice
    int RunState::*numerator;          // columns
    int RunState::*denominator;
    int RunState::*needed;  // the column without which the ratio isn't there; nullptr: always there
    double RunState::*mean, RunState::*median, RunState::*sd, RunState::*error;
    double RunState::*slope, RunState::*intercept, RunState::*correlation;
    double RunState::*tzero, RunState::*residual_sd, RunState::*tzero_error;
    Value RunState::*tested;  // the setting: takes part in the outlier test

    [[nodiscard]] bool measured(const RunState& rs) const { return needed == nullptr || rs.*needed != 0; }
};

inline constexpr int ratio_count = 5;

// In the order 206/238, 207/235, 208/232, 238/232, 207/206.
const std::array<RatioFields, ratio_count>& ratio_fields();

// A slice that takes part in the statistics of the ratios.
inline bool counted(const RunState& rs, int slice) { return rs.RejFlag(slice) < 1; }

}  // namespace kolvar
