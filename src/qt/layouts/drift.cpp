#include "qt/layouts/layouts.hpp"
#include "qt/layouts/pieces.hpp"

namespace kolvar {

void lay_out_drift(FormWindow& window, FrmDrift& f) {
    auto* const whole = new QVBoxLayout(window.body());
    for (const Control* control : f.controls) whole->addWidget(window.of(*control));
    window.set_escape_buttons({&f.cmdClose});
}

}  // namespace kolvar
