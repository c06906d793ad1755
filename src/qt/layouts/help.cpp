#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

void lay_out_help(FormWindow&, const FrmHelp1&) {}

}  // namespace kolvar
