// The defaults of the FLEX path, with the analytes and the ratios that it prefers.
#pragma once

#include "ui/forms/defaults_form.hpp"

namespace kolvar {

struct FrmSetFLEX : DefaultsForm {
    FrmSetFLEX();

    Frame framePref{*this, "framePref", "Preferred analytes"};
    ControlArray<ListBox> comboPref{*this, "comboPref", 1, 15};
    Frame Frame6{*this, "Frame6", "Preferred analyte ratios"};
    ControlArray<ListBox> comboRatio{*this, "comboRatio", 0, 11};  // numerator, denominator, numerator, ...
    CheckBox chkRatio1{*this, "chkRatio1", "Show"};
    CheckBox chkRatio2{*this, "chkRatio2", "Show"};
    CheckBox chkRatio3{*this, "chkRatio3", "Show"};
    CheckBox chkRatio4{*this, "chkRatio4", "Show"};
    CheckBox chkRatio5{*this, "chkRatio5", "Show"};
    CheckBox chkRatio6{*this, "chkRatio6", "Show"};

    CheckBox& chkRatio(int pair);  // 1..6
};

}  // namespace kolvar
