// The small windows of the U/Pb path: isotopes that the data lack, the choice of the Hg isotope.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmMissingUPb : Form {
    FrmMissingUPb() : Form("frm_Missing_UPb", "Missing Isotopes") {}

    Label lblHead{*this, "lblHead",
                  "The head of the data file does no contain the following isotopes that are necessary for the "
                  "calculations."};
    Label lblLista{*this, "lblLista"};
    Label lblReason{*this, "lblReason", "KOLVAR could not recognize some isotopes in the data file."};
    Label lblFormat{*this, "lblFormat", "Maybe the format of names of the anlytes is not proper."};
    Label lblForms{*this, "lblForms", "U238   U-238   U 238   238U   238-U  238 U  U238(LR)   U238(HR)"};
    Label lblDefault{*this, "lblDefault",
                     "Maybe the used Default File does not match to the format of the data file. Try to open a proper "
                     "Default file."};
    Button cmdSorry{*this, "cmdSorry", "Calculation is not possible"};
};

struct FrmHgIsot : Form {
    FrmHgIsot() : Form("frm_Hg_isot", "More Hg isotopes measured") {
        cmd198.visible = cmd199.visible = cmd200.visible = cmd201.visible = cmd202.visible = false;
    }

    Label Label1{*this, "Label1", "More Hg isotopes are in the data file"};
    Label Label2{*this, "Label2",
                 "Which Hg isotope should KOLVAR use to extract the excess Hg204 counts from the Pb 204 signal?"};
    OptionButton opt198{*this, "opt198", "Hg198", 1};
    OptionButton opt199{*this, "opt199", "Hg199", 1};
    OptionButton opt200{*this, "opt200", "Hg200", 1};
    OptionButton opt201{*this, "opt201", "Hg201", 1};
    OptionButton opt202{*this, "opt202", "Hg202", 1};
    Button cmd198{*this, "cmd198", "Hg198"};
    Button cmd199{*this, "cmd199", "Hg199"};
    Button cmd200{*this, "cmd200", "Hg200"};
    Button cmd201{*this, "cmd201", "Hg201"};
    Button cmd202{*this, "cmd202", "Hg202"};
    CheckBox chkHgMoreFix{*this, "chkHgMoreFix", "Use this selection also at the processing of other files."};
};

}  // namespace kolvar
