// The defaults of the U/Pb path, with the table of reference standards.
#pragma once

#include "ui/forms/defaults_form.hpp"

namespace kolvar {

struct FrmSetUP : DefaultsForm {
    FrmSetUP();

    // The table of standards, a row of it at a time: each value beside its error.
    Frame frameStandards{*this, "frameStandards", "Standard"};
    ListBox comboStd{*this, "comboStd"};
    Button cmdNewSTD{*this, "cmdNewSTD", "Add new standard"};
    ControlArray<Label> lblStd{*this, "lblStd", 0, 8, ""};
    ControlArray<Entry> txtStd{*this, "txtStd", 0, 8, ""};
    ControlArray<Entry> txtStdEr{*this, "txtStdEr", 1, 8, ""};
    Label lblStdValue{*this, "lblStdValue", "value"};
    Label lblStdError{*this, "lblStdError", "error"};
    Panel Picture2{*this, "Picture2"};
    Label lblNewSTD{*this, "lblNewSTD",
                    "Type the name of the new standard and press OK.   Note that the name can not be modified later."};
    Entry txtNewSTD{*this, "txtNewSTD"};
    Button cmdOKnewSTD{*this, "cmdOKnewSTD", "OK"};
    Button cmdCancelNewStd{*this, "cmdCancelNewStd", "Cancel"};

    CheckBox chkFormerSel{*this, "chkFormerSel", "Show former selection"};

    CheckBox chkHgCorr1{*this, "chkHgCorr1", "Hg --> Pb204 correction"};

    // Common lead: no calculation reads any of it.
    Frame frameCommonLead{*this, "frameCommonLead", "Common lead correction"};
    CheckBox chkCommLead1{*this, "chkCommLead1", "Common lead correction"};
    OptionButton Option1{*this, "Option1", "No correction", 14};
    OptionButton Option2{*this, "Option2", "Using recent Pb isotope ratios", 14};
    OptionButton Option3{*this, "Option3", "Using Pb isotope ratios according to the  206/238 age of the crystal", 14};
    OptionButton Option13{*this, "Option13", "Using Pb isotope ratios for", 14};
    Entry Text4{*this, "Text4"};
    CheckBox Check4{*this, "Check4", "Apparent common Pb age"};
    Entry txtAgePb{*this, "txtAgePb"};
    CheckBox Check6{*this, "Check6", "Apply when"};
};

}  // namespace kolvar
