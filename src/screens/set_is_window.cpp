#include "screens/set_is_window.hpp"

#include "screens/screens.hpp"

namespace kolvar {

void open_set_is(Context& context, const char* return_to) {
    context.rs.ReturnTo = return_to;
    context.shell.open(context.forms.frm_SetIS);
}

void Take_New_Values_IS(Context& context) { const Running running(context.rs, "Take_New_Values_IS"); }

void connect_set_is_window(Program&) {}

}  // namespace kolvar
