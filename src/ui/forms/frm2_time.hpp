// Step 2 of the internal-standard path: the marking of blank and signal on the time-resolved plots.
#pragma once

#include "ui/forms/time_screen.hpp"

namespace kolvar {

struct Frm2Time : TimeScreen {
    Frm2Time();

    MenuTitle hlp2Title{*this, "hlp2Title", "&Help"};
    MenuEntry hlp2{*this, "hlp2", "Marking of the intervals", -1};

    ControlArray<Label> lblRizsa{*this, "lblRizsa", 0, 0, "Setting File:"};  // head of lblDefa

    // The strip at the right.
    Button cmdHorizLines{*this, "cmdHorizLines", "Horiz. lines ON"};
    Button cmdRatios{*this, "cmdRatios", "Plot ratios"};
    Button cmdShowConc{*this, "cmdShowConc", "Show aver. conc."};
    Button cmdAppQuick{*this, "cmdAppQuick", "Append QUICK RESULTS file with average concentrations"};
    Button cmdCopyRatios{*this, "cmdCopyRatios", "Copy ratios"};

    // The analytes.
    Panel pictAllIso{*this, "pictAllIso"};
    Button cmdSel{*this, "cmdSel", "Deselect all"};
    Label lblOver50Iso{*this, "lblOver50Iso", "n>50!"};
    Frame frameIso2{*this, "frameIso2", ""};  // the second list
    ControlArray<CheckBox> chkIs{*this, "chkIs", 1, 50, ""};

    // The signal ratios.
    Panel pictRatios{*this, "pictRatios"};
    ControlArray<Label> lblRatio{*this, "lblRatio", 0, 11, ""};
    CheckBox chkR1{*this, "chkR1"};
    CheckBox chkR2{*this, "chkR2"};
    CheckBox chkR3{*this, "chkR3"};
    CheckBox chkR4{*this, "chkR4"};
    CheckBox chkR5{*this, "chkR5"};
    CheckBox chkR6{*this, "chkR6"};
    Label lblExplanation{*this, "lblExplanation",
                         "Select a counter or a denominator in the signal ratios by mouse click and drag a name of an "
                         "isotope from the list at the left."};
    Button cmdAcceptRatios{*this, "cmdAcceptRatios", "Modify ratios"};
    Button cmdClose{*this, "cmdClose", "Delete Ratio Plot"};

    Button cmsSettings{*this, "cmsSettings", "Settings"};

    CheckBox& chkR(int pair);  // 1..6
};

}  // namespace kolvar
