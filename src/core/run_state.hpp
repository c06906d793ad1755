// The one record that all windows and calculations read and write, under flat names.
#pragma once

#include <exception>

#include "core/default_keys.hpp"
#include "core/intervals.hpp"
#include "core/measurement.hpp"
#include "core/references.hpp"
#include "core/results.hpp"
#include "core/sequence.hpp"
#include "core/settings_keys.hpp"
#include "core/upb_results.hpp"

namespace kolvar {

struct RunState : Measurement, Intervals, References, SettingsKeys, DefaultKeys, Results, UpbResults, Sequence {
    RunState() = default;
    RunState(const RunState&) = delete;
    RunState& operator=(const RunState&) = delete;

    const char* procedure = "";  // the procedure that runs, for the box of a fault
};

// Names the procedure that runs while it lives. A fault that leaves the procedure leaves the name standing.
class Running {
public:
    Running(RunState& rs, const char* procedure) : rs_(rs), former_(rs.procedure), faults_(std::uncaught_exceptions()) {
        rs.procedure = procedure;
    }
    ~Running() {
        if (std::uncaught_exceptions() == faults_) rs_.procedure = former_;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    RunState& rs_;
    const char* former_;
    int faults_;
};

// The start values of a new run (before any file is read).
void set_start_values(RunState& rs);

}  // namespace kolvar
