// Step 3: the rejection matrix, a row an isotope and a column a time slice.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct Frm3Matrix : Form {
    Frm3Matrix() : Form("frm3_Matrix", "KOLVAR  -  Step 3: Rejection Matrix", true) {
        width = 15600;
        height = 9900;
        put_into(hlp3Title, {&hlp3});
        put_into(frameView, {&optCPS, &optCpsSD, &optIIS, &optIisSD});
        put_into(Frame2, {&FlexGrid1});
        optCPS.value = 1;
        comboProc.editable = true;
        pictMinMax.visible = pictStDev.visible = pictGrubbs.visible = false;
        lblFirstSecHead.visible = false;
        cmdReset.enabled = false;
    }

    Label lblFile{*this, "lblFile"};
    Label lblSlices{*this, "lblSlices"};      // of the file
    Label lblSelected{*this, "lblSelected"};  // of the selection
    Label lblIsotopes{*this, "lblIsotopes"};
    MenuTitle hlp3Title{*this, "hlp3Title", "&Help"};
    MenuEntry hlp3{*this, "hlp3", "Grubbs' test (pdf)", -1};

    Frame frameView{*this, "frameView", "Table"};
    OptionButton optCPS{*this, "optCPS", "CPS (blank corr.)", 1};
    OptionButton optCpsSD{*this, "optCpsSD", "Relative Std. Dev. (CPS)", 1};
    OptionButton optIIS{*this, "optIIS", "Isotope / Internal Standard", 1};
    OptionButton optIisSD{*this, "optIisSD", "Relative Std. Deviation  (Isotope / Internal Standard)", 1};

    CheckBox chkShowMinMax{*this, "chkShowMinMax", "Show min., max."};
    CheckBox chkShowStDev{*this, "chkShowStDev", "Show relative standard deviation"};
    CheckBox chkShowGrubbs{*this, "chkShowGrubbs", "Show Grubbs test"};
    Picture pictMinMax{*this, "pictMinMax"};  // the legends
    Picture pictStDev{*this, "pictStDev"};
    Picture pictGrubbs{*this, "pictGrubbs"};

    CheckBox chkMinMax{*this, "chkMinMax", "Reject min., max."};
    CheckBox chkStDev{*this, "chkStDev", "Reject if deviation  >"};
    Entry txtSD{*this, "txtSD"};
    Label lblSD{*this, "lblSD", "s.d."};
    CheckBox chkGrubbs{*this, "chkGrubbs", "Reject if  P(g)  <"};
    ListBox comboProc{*this, "comboProc"};
    Button cmdReset{*this, "cmdReset", "Reset All Rejection"};

    Frame Frame2{*this, "Frame2", "CPS  (raw data)"};
    Grid FlexGrid1{*this, "FlexGrid1"};

    Label lblWhatToDo{*this, "lblWhatToDo", "Click the name of the isotopes to plot the normalised trend here"};
    Picture pict1{*this, "pict1"};
    Label lblFirstSecHead{*this, "lblFirstSecHead", "First half / Second half:"};
    Label lblFirstSec{*this, "lblFirstSec", "First half / Second half:"};  // the figure, once there is one

    Button cmdCancel{*this, "cmdCancel", "Exit"};
    Button cmdBack{*this, "cmdBack", "Back"};
    Button cmdNext{*this, "cmdNext", "Next Step"};
};

}  // namespace kolvar
