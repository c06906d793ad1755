// What to do when the clipboard holds no table that can be read.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmPaste : Form {
    FrmPaste() : Form("frmPaste", "KOLVAR  -  Paste data from clipboard") {}

    Label lblError{*this, "lblError", "Error occurred while trying paste data from the clipboard"};
    Label lblCheck{*this, "lblCheck", "Please check the format of the copied table."};
    Label lblHow{*this, "lblHow", "How to put data to the clipboard?"};
    Label lblOrder{*this, "lblOrder",
                   "Order the data into a closed block by any spreadsheet calculator program and [Copy]."};
    Label lblFirst{*this, "lblFirst", "First line: names of the isotopes."};
    Label lblOther{*this, "lblOther", "All other lines: cps values or counts of the given isotope in the time slices."};
    Label lblExample{*this, "lblExample", "An example table is in the file Example-Copy-Paste.xls."};
    Label lblWarning{*this, "lblWarning",
                     "WARNING: Before pasting the data table check or modify in the 'Settings' the expected data type "
                     "(CPS or COUNTS). Otherwise the results will be incorrect."};
    Button cmdPaste{*this, "cmdPaste", "Paste from Clipboard"};  // no action: close, then paste again
    Button cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace kolvar
