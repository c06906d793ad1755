// Step 4: the ways out for the results, and what to do next.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct Frm4Output : Form {
    Frm4Output() : Form("frm4_Output", "KOLVAR  -  Step 4: Output results", true) {
        put_into(hlp4Title, {&hlp4_0, &hlp4_1});
    }

    MenuTitle hlp4Title{*this, "hlp4Title", "&Help"};
    MenuEntry hlp4_0{*this, "hlp4", "Equations (pdf)", 0};
    MenuEntry hlp4_1{*this, "hlp4", "Exported results (pdf)", 1};

    Label lblkivagy{*this, "lblkivagy"};
    Button cmdSave{*this, "cmdSave", "Save as"};
    Button cmdCopyAll{*this, "cmdCopyAll", "Copy results to Clipboard"};
    Button cmdPreview{*this, "cmdPreview", "Show results"};
    Button cmdAppQuick{*this, "cmdAppQuick", "Append QUICK RESULTS file with average concentrations"};

    Button cmdBackRej{*this, "cmdBackRej", "Back to Rejection Matrix"};
    Button cmdNewSel{*this, "cmdNewSel", "Select an other time interval"};
    Button cmdNewIS{*this, "cmdNewIS", "Recalculation with an other internal standard"};
    Button cmdNewST{*this, "cmdNewST", "Recalculation with an other standard"};
    Button cmdClose{*this, "cmdClose", "Process another data file"};
    Button cmdExit{*this, "cmdExit", "Exit"};
};

struct Frm5Preview : Form {
    Frm5Preview() : Form("frm5_Preview", "KOLVAR  -  Preview of the results") {
        width = 15000;
        height = 9000;
    }

    Label lblKiVagy{*this, "lblKiVagy"};
    Grid FlexGrid1{*this, "FlexGrid1"};
    Button cmdOK{*this, "cmdOK", "OK"};
};

}  // namespace kolvar
