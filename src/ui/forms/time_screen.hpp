// What the two time-selection screens have in common: the plots, the marks of the intervals, the scales.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct TimeScreen : Form {
    using Form::Form;

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

    Panel pictRightSide{*this, "pictRightSide"};
    OptionButton optLi{*this, "optLi", "Linear", 1};
    OptionButton optLo{*this, "optLo", "Log", 1};

    // Results of the U/Pb and FLEX paths; the screen of the internal-standard path keeps them hidden.
    Button cmdReject{*this, "cmdReject", "Reject outliers"};
    Button cmdCopyHead{*this, "cmdCopyHead", "Copy results with head"};
    Button cmdCopy{*this, "cmdCopy", "Copy results"};
    Button cmdApp{*this, "cmdApp", "Append SUMMARY file"};
    Button cmdCopySel{*this, "cmdCopySel", "Copy selected time slices"};
    Button cmdNewFile{*this, "cmdNewFile", "Browse ..."};
    Button cmdSett{*this, "cmdSett", "Defaults"};

    Button cmdExit{*this, "cmdExit", "Exit"};
    Button cmdBack{*this, "cmdBack", "Back"};
    Button cmdNext{*this, "cmdNext", "Next Step"};

protected:
    // The state before a screen opens for the first time.
    void hide_until_needed() {
        for (Control* hidden : std::initializer_list<Control*>{
                 &lblHgCorrNegative, &pictFormer, &lblFormer1,  &lblFormer2, &lblFormerBL1, &lblFormerBL2, &lblXNew,
                 &lblXNew2,          &txtYMaxInp, &txtYMaxInp2, &lbl10,      &lbl100,       &lbl1000,      &lbl10k,
                 &lbl100k,           &lbl1m,      &lbl10m,      &lblRatios,  &lblBLKshow,   &lblBLKtolig})
            hidden->visible = false;
        optLo.value = 1;
    }
};

}  // namespace kolvar
