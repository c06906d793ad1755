// What a procedure may be given: the run state, the windows, the system around, and who opens windows.
#pragma once

#include "core/platform.hpp"
#include "core/run_state.hpp"
#include "ui/forms.hpp"
#include "ui/shell.hpp"

namespace kolvar {

struct Context {
    RunState& rs;
    Forms& forms;
    Platform& os;
    Shell& shell;
};

}  // namespace kolvar
