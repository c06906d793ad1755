#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

void lay_out_set_is(FormWindow&, const FrmSetIS&) {}

}  // namespace kolvar
