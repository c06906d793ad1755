// Step 2 of the internal-standard path: the marking of blank and signal on the time-resolved plots.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct Frm2Time : Form {
    Frm2Time();

    MenuTitle hlp2Title{*this, "hlp2Title", "&Help"};
    MenuEntry hlp2{*this, "hlp2", "Marking of the intervals", -1};

    // The plots and what stands beside them.
    Picture pict1{*this, "pict1"};
    Picture pict2{*this, "pict2"};
    ScrollBar VScroll1{*this, "VScroll1", 1, 100, 1};
    ScrollBar VScroll3{*this, "VScroll3", 1, 100, 1};
    Label lblLow{*this, "lblLow"};
    Label lblUpp{*this, "lblUpp"};
    Panel pictFormer{*this, "pictFormer"};
    Label lblMaxCps{*this, "lblMaxCps"};
    Label lblMaxCps2{*this, "lblMaxCps2", "cps"};
    Label lblMaxIIS{*this, "lblMaxIIS"};
    Label lblMaxIIS2{*this, "lblMaxIIS2"};
    Label lbl10{*this, "lbl10", "10"};
    Label lbl100{*this, "lbl100", "100"};
    Label lbl1000{*this, "lbl1000", "1000"};
    Label lbl10k{*this, "lbl10k", "10k"};
    Label lbl100k{*this, "lbl100k", "100k"};
    Label lbl1m{*this, "lbl1m", "1M"};
    Label lbl10m{*this, "lbl10m", "10M"};
    Label lblRatios{*this, "lblRatios"};
    Label lblXNew{*this, "lblXNew", "New upper limit:"};
    Entry txtYMaxInp{*this, "txtYMaxInp"};
    Label lblXNew2{*this, "lblXNew2", "New upper limit:"};
    Entry txtYMaxInp2{*this, "txtYMaxInp2"};

    // The file and the marked intervals.
    Label lblmicsodaHead{*this, "lblmicsodaHead", "Data File:"};
    Label lblmicsoda{*this, "lblmicsoda"};
    ControlArray<Label> lblRizsa{*this, "lblRizsa", 0, 0, "Setting File:"};  // head of lblDefa
    Label lblDefa{*this, "lblDefa"};
    Label lblMeasTotHead{*this, "lblMeasTotHead", "Time slices:"};
    Label lblMeasTot{*this, "lblMeasTot"};
    Label lblMeasSelHead{*this, "lblMeasSelHead", "Selected:"};
    Label lblMeasSel{*this, "lblMeasSel"};
    Label lblBLKshow{*this, "lblBLKshow", "Blank:"};
    Label lblBLKtolig{*this, "lblBLKtolig"};
    Label lblFormer1{*this, "lblFormer1", "Former selection:"};
    Label lblFormer2{*this, "lblFormer2"};
    Label lblFormerBL1{*this, "lblFormerBL1", "Former blank:"};
    Label lblFormerBL2{*this, "lblFormerBL2"};
    ControlArray<Label> lblIIS{*this, "lblIIS", 2, 2, ""};  // what the lower plot shows
    Label lbluppScal{*this, "lbluppScal"};
    Label lblHgCorrNegative{*this, "lblHgCorrNegative", "negative"};

    // The strip at the right.
    Panel pictRightSide{*this, "pictRightSide"};
    OptionButton optLi{*this, "optLi", "Linear", 1};
    OptionButton optLo{*this, "optLo", "Log", 1};
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

    // Shared with the U/Pb screen; of no use here and hidden.
    Button cmdReject{*this, "cmdReject", "Reject outliers"};
    Button cmdCopy{*this, "cmdCopy", "Copy"};
    Button cmdCopyHead{*this, "cmdCopyHead", "Copy head"};
    Button cmdApp{*this, "cmdApp", "Append"};
    Button cmdNewFile{*this, "cmdNewFile", "Browse ..."};
    Button cmdSett{*this, "cmdSett", "Defaults"};
    Button cmdCopySel{*this, "cmdCopySel", "Copy selection"};

    Button cmdExit{*this, "cmdExit", "Exit"};
    Button cmsSettings{*this, "cmsSettings", "Settings"};
    Button cmdBack{*this, "cmdBack", "Back"};
    Button cmdNext{*this, "cmdNext", "Next Step"};

    CheckBox& chkR(int pair);  // 1..6
};

}  // namespace kolvar
