// The import profiles: where heads, first time slice and first isotope stand in the three formats of data files.
#pragma once

#include "ui/form.hpp"

namespace kolvar {

struct FrmInputForm : Form {
    FrmInputForm() : Form("frm_InputForm", "Customize Import") {
        put_into(framePreview, {&lblFile, &cmdDetect, &FlexGrid1});
        for (Entry* box : {&txtCSViso, &txtTXTiso, &txtXLiso}) box->fore = red;
        for (Entry* box : {&txtCSVdat, &txtTXTdat, &txtXLdat}) box->fore = blue;
    }

    // The line of heads and the first time slice, as numbers and as grounds of the preview.
    static constexpr Colour red = rgb(192, 0, 0), blue = rgb(0, 0, 192);
    static constexpr Colour pale_red = rgb(255, 208, 208), pale_blue = rgb(204, 224, 255);
    static constexpr Colour dropped = rgb(208, 208, 208);   // columns left of the first isotope
    static constexpr Colour not_read = rgb(112, 112, 112);  // text of lines that the profile passes over

    Label lblPurpose{*this, "lblPurpose",
                     "The import filter can be customized according to the format of the datafiles of the user"};
    Label lblFormats{
        *this, "lblFormats",
        "Kolvar opens text files with extensions of CSV, TXT and XL. The data should be separated by comma "
        "or TAB."};
    Label lblCSV{*this, "lblCSV", "CSV"};
    Label lblCSVby{*this, "lblCSVby", "(comma delimited)"};
    Label lblTXT{*this, "lblTXT", "TXT"};
    Label lblTXTby{*this, "lblTXTby", "(TAB delimited)"};
    Label lblXL{*this, "lblXL", "XL"};
    Label lblXLby{*this, "lblXLby", "(comma delimited)"};
    Label lblIso{*this, "lblIso", "Number of line that contains the name of isotopes:"};
    Label lblDat{*this, "lblDat", "Number of the line that contains the first time slice (cps or counts data):"};
    Label lblFirst{*this, "lblFirst", "Number of the column that contains the first isotope:"};
    Entry txtCSViso{*this, "txtCSViso"};
    Entry txtCSVdat{*this, "txtCSVdat"};
    Entry txtCSVfirst{*this, "txtCSVfirst"};
    Entry txtTXTiso{*this, "txtTXTiso"};
    Entry txtTXTdat{*this, "txtTXTdat"};
    Entry txtTXTfirst{*this, "txtTXTfirst"};
    Entry txtXLiso{*this, "txtXLiso"};
    Entry txtXLdat{*this, "txtXLdat"};
    Entry txtXLfirst{*this, "txtXLfirst"};
    Label lblOther{*this, "lblOther",
                   "The file may contain lines with other content, but these lines will not be considered. "};
    Label lblReserved{*this, "lblReserved",
                      "*: do not use as extension: SET  STM  BLK  DWE  STM  STC  DAT , becaused these are reserved for "
                      "non-data files"};
    Label lblWarning{*this, "lblWarning",
                     "If you change these numbers later, data files of the former format can no longer be read, also "
                     "not the example file that is opened at the start."};

    // How the profile of its ending reads the data file that was chosen last.
    Frame framePreview{*this, "framePreview", "Data file as it would be read"};
    Label lblFile{*this, "lblFile"};
    Button cmdDetect{*this, "cmdDetect", "Detect"};
    Grid FlexGrid1{*this, "FlexGrid1"};

    Button cmdSave{*this, "cmdSave", "Save As"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
};

}  // namespace kolvar
