// The drift of a batch and the factors that follow from it.
#include "screens/screens.hpp"

namespace kolvar {

void connect_drift(Program& program) {
    Context& context = program.context();
    program.on(context.forms.frm_drift, "cmdClose", EventKind::click,
               [&context](const Event&) { context.shell.close(context.forms.frm_drift); });
}

}  // namespace kolvar
