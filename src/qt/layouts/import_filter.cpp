#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

void lay_out_import_filter(FormWindow&, const FrmInputForm&) {}

}  // namespace kolvar
