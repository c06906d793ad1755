#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

void lay_out_period(FormWindow&, const FrmPeriod&) {}

}  // namespace kolvar
