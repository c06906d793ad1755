#include "ui/forms/frm2_time.hpp"

#include <array>

#include "core/fault.hpp"

namespace kolvar {

Frm2Time::Frm2Time() : TimeScreen("frm2_Time", "KOLVAR  -  Step 2: Selection of time slices", true) {
    width = 16500;
    height = 10200;
    put_into(hlp2Title, {&hlp2});
    for (CheckBox& box : chkIs) put_into(pictAllIso, {&box});
    put_into(pictAllIso, {&cmdSel, &lblOver50Iso, &frameIso2});
    for (Label& label : lblRatio) put_into(pictRatios, {&label});
    put_into(pictRatios,
             {&chkR1, &chkR2, &chkR3, &chkR4, &chkR5, &chkR6, &lblExplanation, &cmdAcceptRatios, &cmdClose});
    put_into(pictRightSide, {&optLi, &optLo, &cmdHorizLines, &cmdRatios, &cmdShowConc, &cmdAppQuick, &cmdCopyRatios});
    last_in_tab_order({&cmdExit, &cmsSettings, &cmdBack, &cmdNext});

    hide_until_needed();
    for (CheckBox& box : chkIs) box.visible = false;
    for (Control* hidden :
         std::initializer_list<Control*>{&cmdReject, &cmdCopy, &cmdCopyHead, &cmdApp, &cmdNewFile, &cmdSett,
                                         &cmdCopySel, &pictRatios, &lblExplanation, &lblOver50Iso, &frameIso2})
        hidden->visible = false;
    cmdReject.enabled = cmdShowConc.enabled = cmdAppQuick.enabled = cmdCopyRatios.enabled = false;
}

CheckBox& Frm2Time::chkR(int pair) {
    const std::array<CheckBox*, 6> boxes{&chkR1, &chkR2, &chkR3, &chkR4, &chkR5, &chkR6};
    if (pair < 1 || pair > 6) fail(FaultKind::index);
    return *boxes[static_cast<std::size_t>(pair) - 1];
}

}  // namespace kolvar
