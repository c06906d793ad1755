#include "ui/forms/frm_set_flex.hpp"

#include <array>

#include "core/fault.hpp"

namespace kolvar {

FrmSetFLEX::FrmSetFLEX() : DefaultsForm("frm_Set_FLEX", "Defaults for Kolv_FLEX data reduction") {
    for (ListBox& list : comboPref) put_into(framePref, {&list});
    for (ListBox& list : comboRatio) put_into(Frame6, {&list});
    for (int pair = 1; pair <= 6; ++pair) put_into(Frame6, {&chkRatio(pair)});
    next_after_minerals(framePref);
}

CheckBox& FrmSetFLEX::chkRatio(int pair) {
    const std::array<CheckBox*, 6> boxes{&chkRatio1, &chkRatio2, &chkRatio3, &chkRatio4, &chkRatio5, &chkRatio6};
    if (pair < 1 || pair > 6) fail(FaultKind::index);
    return *boxes[static_cast<std::size_t>(pair) - 1];
}

}  // namespace kolvar
